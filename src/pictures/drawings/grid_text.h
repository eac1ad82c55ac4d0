#pragma once

#include <string>
#include <vector>

namespace barvon {

/// The place of a grid point in its table: "Row 3, Col 4".
std::string Cell_Text(int row, int column);

/// How far a grid point lies from the top left one: "X 200 ft from the top, Z 300 ft from the
/// left". Empty when a spacing (ft) is not known, that is not a number above 0.
std::string Distance_Text(int row, int column, double row_spacing, double column_spacing);

/// "grid of 20 rows and 12 columns".
std::string Grid_Text(int rows, int columns);

/// The grid has at least one point and a value for each.
bool Grid_Is_Whole(int rows, int columns, const std::vector<double>& values);

}  // namespace barvon
