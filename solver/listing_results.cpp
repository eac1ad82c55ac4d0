#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "solver/comparison.h"
#include "solver/listing.h"
#include "solver/listing_parts.h"
#include "solver/look_times.h"
#include "solver/number_text.h"
#include "solver/tables.h"

namespace companion {
namespace {

std::string Unit_Of(const Model_Input& input, std::size_t species) {
  return species < input.Solids() ? "mg/l" : Tracer_Unit(input);
}

std::string Amount_Unit(const Model_Input& input, std::size_t species) {
  if (species < input.Solids()) return "ft3";
  return Tracer_Unit(input) == "%" ? "% ft3" : "mg/l ft3";
}

/// For reading: what is next to nothing is 0.
std::string Shown(double value, int digits = 5) {
  return Plain(std::abs(value) < kLeastShown ? 0 : value, digits);
}

/// Rows of a phase that are shown: its first, its last and others evenly between them.
std::vector<std::size_t> Shown_Rows(std::size_t rows) {
  std::vector<std::size_t> shown;
  const std::size_t most = std::min<std::size_t>(rows, kTableRows);
  for (std::size_t i = 0; i < most; ++i) {
    shown.push_back(most == 1 ? 0 : i * (rows - 1) / (most - 1));
  }
  return shown;
}

std::string Phase_Rows(const Model_Input& input, const Phase& phase) {
  std::string text = kLineEnd;
  text += "  " + phase.name + kLineEnd;
  const bool falls = phase.kind == Phase_Kind::Descent;
  text += "         t         X         Z     depth    radius    height  " +
          std::string(falls ? "   along" : "spreads") + "      down   density      volume";
  for (const Solid& solid : input.batches.front().solids) text += Right(solid.name, 12);
  text += kLineEnd;
  text +=
      "         s        ft        ft        ft        ft        ft      ft/s"
      "      ft/s      g/cc         ft3";
  for (std::size_t s = 0; s < input.Solids(); ++s) text += Right("ft3", 12);
  text += kLineEnd;
  for (const std::size_t i : Shown_Rows(phase.rows.size())) {
    const Cloud_State& row = phase.rows[i];
    text += Right(Fixed(row.t, 2), 10) + Right(Fixed(row.x, 1), 10) + Right(Fixed(row.z, 1), 10) +
            Right(Fixed(row.y, 2), 10) + Right(Fixed(row.radius, 2), 10) +
            Right(Fixed(row.height, 2), 10) + Right(Fixed(row.speed, 3), 10) +
            Right(Fixed(row.downward, 3), 10) + Right(Fixed(row.density, 5), 10) +
            Right(Fixed(row.volume, 0), 12);
    for (const double solid : row.solids) text += Right(Shown(solid, 6), 12);
    text += kLineEnd;
  }
  return text;
}

/// What became of each phase's cloud, a line a species: all that such a run has to tell.
std::string Clouds_At_Their_End(const Model_Input& input, const Outcome& outcome) {
  std::string text = kLineEnd;
  text += "  What left the clouds on the way, and what is left of them at the end\r\n";
  text +=
      "  species      amount in      washed off      fallen out         settled            left"
      "\r\n";
  for (const Phase& phase : outcome.near_field.phases) {
    text += "  " + phase.name + "; " + phase.end + kLineEnd;
    for (std::size_t s = 0; s < input.Species(); ++s) {
      text += "    " + Left(Species_Name(input, s), 10) + Right(Amount_Unit(input, s), 10);
      for (const auto* amounts : {&phase.washed, &phase.fallen, &phase.settled, &phase.left}) {
        text += Right(s < amounts->size() ? Shown((*amounts)[s], 6) : "-", 16);
      }
      text += kLineEnd;
    }
  }
  return text;
}

std::string Place(const Spot& spot) {
  return Right(Plain(spot.time, 7), 11) + Right(Fixed(spot.x, 0), 9) + Right(Fixed(spot.z, 0), 9);
}

struct Named_Area {
  Area area;
  const char* name;
};

std::vector<Named_Area> Named_Areas(const Model_Input& input) {
  const Areas areas(input);
  std::vector<Named_Area> named;
  if (areas.Has_Site()) {
    named.push_back({Area::Inside, "in the site"});
    named.push_back({Area::Outside, "outside it"});
  } else {
    named.push_back({Area::Anywhere, "anywhere"});
  }
  if (areas.Has_Zid()) named.push_back({Area::Outside_Zid, "outside ZID"});
  return named;
}

std::string Zone_Text(const Model_Input& input, const std::string& what, const Zone& zone,
                      double value) {
  const std::string unit = " " + Tracer_Unit(input);
  if (const double base = Base_Of(input, input.Solids()); base > value) {
    return Caption_Line(what, "none: the background alone is " + Plain(base) + unit + ", above " +
                                  Plain(value) + unit);
  }
  if (!zone.any) {
    return Caption_Line(what,
                        "no cell ever passes " + Plain(value) + unit + " at the output depths");
  }
  std::string text = Caption_Line(what, "points " + std::to_string(zone.top) + " to " +
                                            std::to_string(zone.bottom) + " along X, " +
                                            std::to_string(zone.left) + " to " +
                                            std::to_string(zone.right) + " along Z");
  const double x = input.spacing_x, z = input.spacing_z;
  text += Caption_Line(
      "  from corner to corner of its cells",
      "(" + Plain((zone.top - 1.5) * x, 7) + ", " + Plain((zone.left - 1.5) * z, 7) + ") to (" +
          Plain((zone.bottom - 0.5) * x, 7) + ", " + Plain((zone.right - 0.5) * z, 7) + ") ft");
  text += Caption_Line("  its size X, Z", Plain((zone.bottom - zone.top + 1) * x, 7) + " x " +
                                              Plain((zone.right - zone.left + 1) * z, 7) + " ft");
  text += Caption_Line("  outside it no cell ever passes", Plain(value) + unit);
  if (zone.at_edge) text += Paragraph("It reaches the edge of the grid and may go on beyond it.");
  return text;
}

/// What was compared, or why nothing was.
std::string Comparison_Text(const Model_Input& input, const Outcome& outcome) {
  std::string text;
  for (const Comparison& comparison : outcome.comparisons) {
    text += "  " + comparison.of + ", " + Plain(comparison.value) + " " + Tracer_Unit(input) + ":" +
            kLineEnd + "    " + comparison.Verdict(Tracer_Unit(input)) + kLineEnd;
    if (!comparison.ever && comparison.worst.found && comparison.background <= comparison.value) {
      text += "    (largest " + Plain(comparison.worst.value) + " " + Tracer_Unit(input) + " at " +
              Plain(comparison.worst.time, 7) + " s)" + kLineEnd;
    }
  }
  if (!outcome.comparisons.empty()) return text;
  if (outcome.zone_computed || outcome.zid_computed) {
    return "  None: what is asked for is a zone, below.\r\n";
  }
  const bool compares =
      input.evaluation != Evaluation::None && input.evaluation != Evaluation::Tracer;
  return compares ? "  None: the notes say why.\r\n"
                  : "  None: nothing is compared in this run.\r\n";
}

std::string Mixing_Zone_Text(const Model_Input& input, const Additions& additions,
                             const Outcome& outcome) {
  return Zone_Text(input, "Mixing zone", outcome.zone, Limit_Of_Site(input, additions));
}

std::string Zid_Text(const Model_Input& input, const Additions& additions, const Outcome& outcome) {
  return Zone_Text(input, "ZID", outcome.zid, Limit_Of_Zid(input, additions));
}

}  // namespace

std::string Phases_Section(const Model_Input& input, const Outcome& outcome) {
  std::string text = Section_Heading("PHASES");
  text += "  Depth of the centre, radius, height and density are those at the end.\r\n";
  text += "      from        to     depth    radius    height   density  phase; why it ended\r\n";
  text += "         s         s        ft        ft        ft      g/cc\r\n";
  for (const Phase& phase : outcome.near_field.phases) {
    if (phase.rows.empty()) continue;
    const Cloud_State& last = phase.rows.back();
    text += Right(Fixed(phase.rows.front().t, 2), 10) + Right(Fixed(last.t, 2), 10) +
            Right(Fixed(last.y, 2), 10) + Right(Fixed(last.radius, 1), 10) +
            Right(Fixed(last.height, 2), 10) + Right(Fixed(last.density, 5), 10) + "  " +
            phase.name + "; " + phase.end + kLineEnd;
  }
  if (input.key2 != 0) text += Clouds_At_Their_End(input, outcome);
  for (const Phase& phase : outcome.near_field.phases) {
    const bool falls = phase.kind == Phase_Kind::Descent;
    if (falls ? input.print_descent : input.print_collapse) text += Phase_Rows(input, phase);
  }
  return text;
}

std::string Balance_Section(const Model_Input& input, const Outcome& outcome) {
  std::string text = Section_Heading("BALANCE AT THE END");
  text +=
      "  species      amount in        released       suspended  settled on grid"
      "  settled beyond   difference\r\n";
  const std::size_t first = outcome.masses.size() - input.Species();
  for (std::size_t s = 0; s < input.Species(); ++s) {
    const Mass_Row& row = outcome.masses[first + s];
    text += "  " + Left(Species_Name(input, s), 12) + Right(Amount_Unit(input, s), 10);
    for (const double amount : {row.released, row.suspended, row.on_grid, row.off_grid}) {
      text += Right(Shown(amount, 6), 16);
    }
    text += Right(Plain(std::abs(row.Difference()) < kRounding * std::abs(row.released)
                            ? 0
                            : row.Difference(),
                        2),
                  13) +
            kLineEnd;
  }
  text += kLineEnd;
  text += "  The same in parts of what was released, %\r\n";
  for (std::size_t s = 0; s < input.Species(); ++s) {
    const Mass_Row& row = outcome.masses[first + s];
    text += "  " + Left(Species_Name(input, s), 22);
    for (const double amount : {row.released, row.suspended, row.on_grid, row.off_grid}) {
      text += Right(row.released > 0 ? Fixed(100 * amount / row.released, 3) : "-", 16);
    }
    text += kLineEnd;
  }
  text += kLineEnd;
  text += Caption_Line("Largest difference at any output time, of the release",
                       Plain(outcome.worst_balance, 2));
  if (!outcome.drift.empty()) {
    text += kLineEnd;
    text += "  What is suspended: share of the release, centre, spread in plan\r\n";
    text += "         t  species       share       X       Z   sigma\r\n";
    text += "         s                    %      ft      ft      ft\r\n";
    for (const Drift_Row& row : outcome.drift) {
      text += Right(Plain(row.time, 7), 10) + "  " + Left(Species_Name(input, row.species), 10) +
              Right(Fixed(100 * row.share, 3), 7);
      if (row.share > 0) {
        text +=
            Right(Fixed(row.x, 0), 8) + Right(Fixed(row.z, 0), 8) + Right(Fixed(row.sigma, 0), 8);
      }
      text += kLineEnd;
    }
  }
  return text;
}

std::string Maxima_Section(const Model_Input& input, const Outcome& outcome) {
  std::string text = Section_Heading("MAXIMA OVER TIME");
  if (input.key2 != 0) {
    return text + "  The input asks for descent and collapse only: none.\r\n";
  }
  const auto areas = Named_Areas(input);
  text +=
      "  Falling clouds count in none of them. With the background.\r\n" + std::string(kLineEnd);
  text += "  Means over a cell\r\n";
  text += "  species      depth  area              value  unit       at t        X        Z\r\n";
  text += "                  ft                                         s       ft       ft\r\n";
  for (std::size_t s = 0; s < input.Species(); ++s) {
    for (std::size_t d = 0; d < input.output_depths.size(); ++d) {
      for (const Named_Area& area : areas) {
        const Spot& spot = outcome.cell_spots[s][d][static_cast<std::size_t>(area.area)];
        text += "  " + Left(Species_Name(input, s), 10) + Right(Plain(input.output_depths[d]), 8) +
                "  " + Left(area.name, 12) + Right(Shown(spot.value), 11) + "  " +
                Left(Unit_Of(input, s), 4);
        if (spot.found && spot.value > Base_Of(input, s) + kLeastShown) text += Place(spot);
        text += kLineEnd;
      }
    }
  }
  if (input.evaluation == Evaluation::Sediment || input.evaluation == Evaluation::Zone_Sediment) {
    text += "  All of the contaminant counts as dissolved: its values are upper bounds.\r\n";
  }
  text += kLineEnd;
  text += "  At any point and depth: the middles of clouds and layers, and the means above\r\n";
  text += "  species      depth  area              value  unit       at t        X        Z\r\n";
  text += "                  ft                                         s       ft       ft\r\n";
  for (std::size_t s = 0; s < input.Species(); ++s) {
    for (const Named_Area& area : areas) {
      const Spot& spot = outcome.point_spots[s][static_cast<std::size_t>(area.area)];
      const bool above = spot.found && spot.value > Base_Of(input, s) + kLeastShown;
      text += "  " + Left(Species_Name(input, s), 10) +
              Right(above ? Fixed(spot.depth, 1) : "-", 8) + "  " + Left(area.name, 12) +
              Right(Shown(spot.value), 11) + "  " + Left(Unit_Of(input, s), 4);
      if (above) text += Place(spot);
      text += kLineEnd;
    }
  }
  return text;
}

std::string Verdict_Section(const Model_Input& input, const Additions& additions,
                            const Outcome& outcome) {
  std::string text = Section_Heading("VERDICTS") + Comparison_Text(input, outcome);
  if (!outcome.comparisons.empty()) {
    text += Paragraph(
        "A verdict looks at more times than the series of the .dut file, which holds those of "
        "output alone.");
  }
  if (input.evaluation == Evaluation::Sediment || input.evaluation == Evaluation::Zone_Sediment) {
    text += Paragraph(
        "The contaminant of the sediment counts as dissolved at release and stays in the water, "
        "though most would settle with the solids: every figure of it is an upper bound.");
  }
  if (outcome.zone_computed) {
    text += Section_Heading("COMPUTED MIXING ZONE") + Mixing_Zone_Text(input, additions, outcome);
  }
  if (outcome.zid_computed) {
    text +=
        Section_Heading("COMPUTED ZONE OF INITIAL DILUTION") + Zid_Text(input, additions, outcome);
  }
  return text;
}

std::string Verdict_Text(const Model_Input& input, const Additions& additions,
                         const Outcome& outcome) {
  std::string text = Comparison_Text(input, outcome);
  if (outcome.zone_computed) text += Mixing_Zone_Text(input, additions, outcome);
  if (outcome.zid_computed) text += Zid_Text(input, additions, outcome);
  return text;
}

std::string Deposit_Section(const Model_Input& input, const Outcome& outcome) {
  const Bed_Summary& bed = outcome.bed;
  std::string text = Section_Heading("DEPOSIT AT THE END");
  text += Caption_Line("Largest thickness (mean over a cell)",
                       bed.thickest.found
                           ? Plain(bed.thickest.value) + " ft at (" + Plain(bed.thickest.x, 6) +
                                 ", " + Plain(bed.thickest.z, 6) + ") ft"
                           : std::string("none"));
  text += Caption_Line("Volume on the grid, with voids", Plain(bed.volume, 6) + " ft3");
  for (std::size_t s = 0; s < input.Solids(); ++s) {
    text += Caption_Line("  of it " + Species_Name(input, s), Plain(bed.by_solid[s], 6) + " ft3");
  }
  text += Caption_Line("Area thicker than " + Plain(kNotableThickness) + " ft",
                       Plain(bed.area, 6) + " ft2");
  return text;
}

std::string Notes_Section(const Outcome& outcome) {
  std::string text = Section_Heading("NOTES");
  for (const std::string& note : outcome.notes) text += Paragraph(note);
  if (outcome.notes.empty()) text += "  None.\r\n";
  return text;
}

}  // namespace companion
