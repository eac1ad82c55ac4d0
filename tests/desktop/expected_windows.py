"""What each part of assistive_walk.py must have looked at: a window's title without the folder, with
what was chosen in it, as often as it stands here. A screen that a box refuses is not seen."""

from collections import Counter

BARGE = [f"Material Description Data - Barge Dredge, tab {tab}" for tab in
         ("Material Volume and Velocity", "Material Properties",
          "Volumetric Fraction and Moisture Content", "Dredging Site Water Density")] + [
              "Disposal Operation Data - Barge or Scow"]
HOPPER = [f"Material Description Data - Hopper Dredge, tab {tab}" for tab in
          ("General and Site Water Density", "Material Properties")] + [
              "Disposal Operation Data - Hopper Dredge"]
EVERY_PROJECT = ["Disposal Site Data", "Velocity Profile Data", "Table of Coefficients",
                 "Time Step and Print Options", "Dredging Site Water Density"]
# A project that follows no tracer has no evaluation: a box says so in its place.
NO_EVALUATION = ["BARVON, box: No Long Term Tracer Computations Will Be Carried Out"]


def evaluation(regulation):
    return [f"Water Quality Analysis for {regulation}, tab {tab}" for tab in
            ("Description", "Zone of Initial Dilution", "Transport-Diffusion Output")]


EXPECTED = {
    "at_start": ["BARVON - UNTITLED.DUI, main menu board at start", "Open",
                 "BARVON, start dialog, page 1", "BARVON, start dialog, page 2",
                 "BARVON, start dialog, page 3", "Tip of the Day", "About BARVON",
                 "More About BARVON"],
    "tools": ["Graphical Site Data", "Dilute, tab Bulk Sediment", "Dilute, tab Elutriate",
              "BARVON - DataBase", "Database Files", "Untitled", "Untitled, with the find bar",
              "walk.duo, a file", "long.duo, a long line", "BARVON Help, tab Contents",
              "BARVON Help, tab Index", "BARVON Help, tab Search"],
    "errors": ["Save As", "Error List",
               "BARVON, box: Errors have been detected in the data.  Do You Wish to Fix T"],
    "velocities": ["Velocity Profile Data"] * 4,
    "wizard": [f"BARVON Data Wizard - Step {page} of  8 (Hopper_Six_Openings.DUI), page {page}"
               for page in range(1, 9)],
    "depth_grid": ["Variable Depth Grid, over the site description"],
    "graphics": [f"BARVON Graphics - Section_404_Zid.DUI, {view}" for view in
                 ("Overview", "Max Conc. vs Time", "Concentration Contours",
                  "Deposition Thickness")] + [
                      "Place of the Grid",
                      "BARVON Graphics - Pipeline_Continuous.DUI, no results"],
    "Hopper_Six_Openings.DUI": EVERY_PROJECT + HOPPER + NO_EVALUATION,
    "Section_103_Water_Quality.DUI":
        EVERY_PROJECT + BARGE + evaluation("Section 103 Regulatory Analysis"),
    "Section_404_Zid.DUI":
        EVERY_PROJECT + HOPPER + evaluation("Section 404(b)(1) Regulatory Analysis"),
    "Section_404_Sediment.DUI":
        EVERY_PROJECT + BARGE + evaluation("Section 404(b)(1) Regulatory Analysis"),
    "Barge_Four_Layers.DUI":
        EVERY_PROJECT + BARGE + evaluation("General Open Water Disposal"),
    "Tidal_Estuary.DUI": EVERY_PROJECT + BARGE + evaluation("General Open Water Disposal"),
    "Variable_96_By_96.DUI": EVERY_PROJECT + BARGE + NO_EVALUATION,
}


def not_seen(part, seen):
    """What is missing among what a part has looked at."""
    expected = list(EXPECTED[part])
    if part.endswith(".DUI"):
        expected += [f"BARVON - {part}, {board} board" for board in ("main menu", "data")]
    return sorted((Counter(expected) - Counter(seen)).elements())
