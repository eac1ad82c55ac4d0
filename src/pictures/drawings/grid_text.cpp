#include "pictures/drawings/grid_text.h"

#include "pictures/shapes/axis_scale.h"
#include "platform/text/counted.h"

namespace barvon {

std::string Cell_Text(int row, int column) {
  return "Row " + std::to_string(row) + ", Col " + std::to_string(column);
}

std::string Distance_Text(int row, int column, double row_spacing, double column_spacing) {
  if (!Can_Be_Drawn(row_spacing) || !Can_Be_Drawn(column_spacing)) return {};
  if (!(row_spacing > 0) || !(column_spacing > 0)) return {};
  return "X " + Short_Text((row - 1) * row_spacing) + " ft from the top, Z " +
         Short_Text((column - 1) * column_spacing) + " ft from the left";
}

std::string Grid_Text(int rows, int columns) {
  return "grid of " + Counted(rows, "row") + " and " + Counted(columns, "column");
}

bool Grid_Is_Whole(int rows, int columns, const std::vector<double>& values) {
  if (rows < 1 || columns < 1) return false;
  return values.size() == static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
}

}  // namespace barvon
