#include "pictures/drawings/depth_drawing.h"

#include <algorithm>
#include <limits>

#include "pictures/drawings/grid_text.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr double kLeastDepthSpan = 1;  // ft

std::string Depth_Text(double depth) {
  return Can_Be_Drawn(depth) ? Fixed_Text(depth, 2) + " ft" : "no depth";
}

// "28.00 ft (Row 3, Col 4)" of the first cell that holds the value.
std::string First_Cell_With(const Depth_Drawing& drawing, double depth) {
  const auto at = std::find(drawing.depths.begin(), drawing.depths.end(), depth);
  const int index = static_cast<int>(at - drawing.depths.begin());
  return Depth_Text(depth) + " (" +
         Cell_Text(index / drawing.columns + 1, index % drawing.columns + 1) + ")";
}

std::string Note_Of(const Depth_Drawing& drawing) {
  if (!drawing.range) return "No depth to show.";
  std::string note;
  if (drawing.uniform) note = Depth_Text(drawing.range->low) + " everywhere. ";
  if (drawing.left_out > 0) note += Counted(drawing.left_out, "cell") + " without a depth. ";
  if (!note.empty()) note.pop_back();
  return note;
}

std::string Description_Of(const Depth_Drawing& drawing) {
  if (drawing.rows == 0) return drawing.note;
  std::string text = "Water depth over a " + Grid_Text(drawing.rows, drawing.columns);
  if (drawing.range && !drawing.uniform) {
    text += ": from " + First_Cell_With(drawing, drawing.range->low) + " to " +
            First_Cell_With(drawing, drawing.range->high);
  }
  text += ".";
  if (!drawing.note.empty()) text += " " + drawing.note;
  return text;
}

}  // namespace

Depth_Drawing Draw_Depths(const Depth_Grid& grid) {
  Depth_Drawing drawing;
  if (Grid_Is_Whole(grid.rows, grid.columns, grid.depths)) {
    drawing.rows = grid.rows;
    drawing.columns = grid.columns;
    drawing.depths = grid.depths;
  }
  for (double& depth : drawing.depths) {
    if (Can_Be_Drawn(depth)) continue;
    depth = std::numeric_limits<double>::quiet_NaN();
    ++drawing.left_out;
  }
  drawing.range = Range_Of(drawing.depths);
  drawing.uniform = drawing.range && drawing.range->low == drawing.range->high;
  drawing.scale = Scale_Over(drawing.range.value_or(Value_Range{}), kLeastDepthSpan);
  drawing.note = Note_Of(drawing);
  drawing.description = Description_Of(drawing);
  return drawing;
}

std::string Depth_Cell_Text(const Depth_Grid& grid, int row, int column) {
  if (!Grid_Is_Whole(grid.rows, grid.columns, grid.depths)) return {};
  if (row < 1 || row > grid.rows || column < 1 || column > grid.columns) return {};
  const std::size_t index = static_cast<std::size_t>(row - 1) * grid.columns + column - 1;
  return Cell_Text(row, column) + ": " + Depth_Text(grid.depths[index]);
}

}  // namespace barvon
