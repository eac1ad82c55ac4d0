#pragma once

#include "database/line_walk.h"

// Where the numbers of the data files stand in their lines.
namespace barvon::data_columns {

inline constexpr Line_Columns kCode{1, 4};
// Sites.
inline constexpr Line_Columns kPoints{6, 6};
inline constexpr Line_Columns kGridZ{1, 3}, kGridX{4, 6}, kSpacingZ{1, 6}, kSpacingX{7, 12};
inline constexpr Line_Columns kSlopeX{1, 4}, kSlopeZ{6, 9};
inline constexpr Line_Columns kProfileDepth{1, 6}, kProfileDensity{7, 12};
// Velocities.
inline constexpr Line_Columns kMonth{1, 3};
inline constexpr Line_Columns kXDepth{1, 8}, kXSpeed{9, 16}, kZDepth{24, 30}, kZSpeed{32, 38};
// Materials.
inline constexpr Line_Columns kSolids{41, 42}, kVolume{1, 9}, kName{4, 11}, kGravity{19, 22};
inline constexpr Line_Columns kFraction{25, 30}, kFall{32, 37}, kVoid{39, 44}, kShear{46, 51};
inline constexpr Line_Columns kCohesive{53, 53}, kStripped{55, 55};
inline constexpr Line_Columns kIsGiven{1, 1}, kMoisture{4, 10}, kDensity{4, 9};
// Vessels.
inline constexpr Line_Columns kOpeningX{1, 6}, kOpeningZ{7, 14};
// A line with one number, of sites and vessels.
inline constexpr Line_Columns kField{1, 6};

}  // namespace barvon::data_columns
