#pragma once

namespace barvon {

// What the pages of the wizard say. The texts stand word for word as users know them, double blanks
// and misspellings included.

inline constexpr char kDescriptionHint[] = "Provide a Short Project Description Here";

inline constexpr char kAnalysisText[] =
    "The type of analysis decides which water quality simulations are possible (a Zone of Initial "
    "Dilution can only be determined for a Section 404 analysis).  The method of disposal decides "
    "which data of the dredged material and of the vessel are asked for.";

inline constexpr char kOptionsText[] =
    "Descent, Collapse and Diffusion must be chosen to set an evaluation type.";

inline constexpr char kGridText[] =
    "The model grid is characterized as a rectangular grid with the Z-Direction representing the "
    "width of the grid and "
    "the x - Direction representing the grid length.  The model grid is further defined using a "
    "series of grid points that "
    "are spaced apart in the X and Z directions.  The spacing in the Z-Direction (DZ) does not "
    "have to be the same as the spacing in the "
    "X-Direction (DX).  Note the presence of the disposal point within the model grid.";
inline constexpr char kGridTextOfOceanSites[] =
    "  For Section 103 Analysis a disposal grid, shown in blue, is superimposed on the disposal "
    "site.";
inline constexpr char kGridTextOfNavigableWaters[] =
    "  For Section 404 Analysis a mixing zone, shown in red, is superimposed on the disposal site. "
    " ";

inline constexpr char kTypicalDataText[] =
    "These values set the size of the disposal site, the number of grid points and the spacing "
    "between them.  The actual velocities are asked for later.  A typical velocity is positive "
    "from top to bottom in the X-Direction and from left to right in the Z-Direction, and negative "
    "otherwise.";

inline constexpr char kVelocityText[] =
    "Choose the form in which the velocities are known.  The next form asks for them.";

inline constexpr char kMaterialText[] =
    "The next form asks for the dredged material.  For each solid fraction, up to four (4) "
    "different types of solids, it asks for a description, the specific gravity, the volumetric "
    "fraction, the fall velocity, the void ratio after deposition and the critical shear stress, "
    "and whether the fraction is cohesive and is stripped during descent.";

inline constexpr char kOperationText[] =
    "The characteristics of the disposal vessel are supplied in the next form: where it lies on "
    "the grid, its dimensions and drafts, how it moves and how long it takes to empty.";

inline constexpr char kCompleteText[] =
    "The Data Wizard is now complete.  Click on the Finished button to return to the main BARVON "
    "window. "
    " At this point you may click on the Enter/Edit button to edit "
    "data supplied through the Data Wizard.  If all data has been supplied through the wizard "
    "you may now conducte a simulation and view output and generate graphics.";
inline constexpr char kEvaluationText[] =
    "Dimensions of the disposal site and water quality data are supplied in the next form.";

}  // namespace barvon
