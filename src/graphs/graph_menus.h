#pragma once

namespace barvon {

class frmGraphs;

/// The topic of the graphics program's page in the help.
inline constexpr int kGraphicsTopic = 2740;
inline constexpr char kHelpFileOfGraphics[] = "BARVON.HLP";

/// Gives the window its menus with their keys.
void Build_Graph_Menus(frmGraphs& window);

}  // namespace barvon
