#pragma once

#include <string>

#include "results/cell_values.h"

namespace barvon {

/// From a thickness on that the solver's listing tells an area of, ft.
inline constexpr double kNotableThickness = 0.1;

/// "12345 ft3 (457.2 yd3) on the grid". `difference`: "+120 ft3 (+4.444 yd3) ...".
std::string Volume_Words(const Cell_Values& thickness, bool difference);

/// The area of the cells that are thicker than the typed limit in feet, "40000 ft2 (0.918 acres)",
/// or what is wrong with the text.
std::string Area_Words(const Cell_Values& thickness, const std::string& typed_limit);

}  // namespace barvon
