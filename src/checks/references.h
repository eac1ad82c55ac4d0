#pragma once

namespace barvon::reference {

// Where a finding leads: the window's name, then its control's.

inline constexpr char kSiteZPoints[] = "frmDescription!Text1(0)";
inline constexpr char kSiteXPoints[] = "frmDescription!Text1(1)";
// The two spacings lead to the field behind their own: to the X spacing and to the depth. These
// references are what findings have always shown, in the list and in the lines of the console
// program; who knows them keeps them.
inline constexpr char kSiteZSpacing[] = "frmDescription!Text1(3)";
inline constexpr char kSiteXSpacing[] = "frmDescription!Text1(4)";
inline constexpr char kSiteDepth[] = "frmDescription!Text1(4)";
inline constexpr char kSiteRoughness[] = "frmDescription!Text1(5)";
inline constexpr char kSiteDensities[] = "frmDescription!F1Book1";

inline constexpr char kBoundaryTop[] = "frmMdlkyn!Text(0)";
inline constexpr char kBoundaryLeft[] = "frmMdlkyn!Text(1)";
inline constexpr char kBoundaryBottom[] = "frmMdlkyn!Text(2)";
inline constexpr char kBoundaryRight[] = "frmMdlkyn!Text(3)";

inline constexpr char kHopperSolids[] = "frmMatHopper!F1Book1";
inline constexpr char kBargeSolids[] = "frmMatBarge!F1Book1";
inline constexpr char kNowhere[] = "";

inline constexpr char kVesselPlace[] = "frmOperation!Text1(0)";
inline constexpr char kVesselLength[] = "frmOperation!Text1(2)";
inline constexpr char kVesselWidth[] = "frmOperation!Text1(3)";

inline constexpr char kDuration[] = "frmSimulation!Text1(0)";
inline constexpr char kTimeStep[] = "frmSimulation!Text1(1)";

}  // namespace barvon::reference
