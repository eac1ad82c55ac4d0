#include "pictures/drawings/velocity_drawing.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "pictures/drawings/grid_text.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr double kLeastSpeedSpan = 0.01;  // ft/s
constexpr double kLeastSquares = 1e-280;  // below it squares lose digits

bool Is_Whole(const Velocity_Grid& grid) {
  return Grid_Is_Whole(grid.rows, grid.columns, grid.x) &&
         Grid_Is_Whole(grid.rows, grid.columns, grid.z);
}

/// Every point's, each time a cell is typed: where its squares are sound, their root is much
/// quicker than `hypot`.
double Speed(double x, double z) {
  const double squares = x * x + z * z;
  return squares > kLeastSquares ? std::sqrt(squares) : std::hypot(x, z);
}

std::string Note_Of(const Velocity_Drawing& drawing) {
  if (static_cast<int>(drawing.speeds.size()) == drawing.left_out) return "No velocity to show.";
  std::string note;
  if (drawing.fastest == 0) note = "Still water everywhere. ";
  if (drawing.left_out > 0) note += Counted(drawing.left_out, "point") + " without a velocity. ";
  if (!note.empty()) note.pop_back();
  return note;
}

std::string Description_Of(const Velocity_Drawing& drawing) {
  if (drawing.rows == 0) return drawing.note;
  std::string text = "Currents over a " + Grid_Text(drawing.rows, drawing.columns) + ".";
  if (drawing.fastest > 0) {
    const auto at = std::find(drawing.speeds.begin(), drawing.speeds.end(), drawing.fastest);
    const int index = static_cast<int>(at - drawing.speeds.begin());
    const std::size_t i = static_cast<std::size_t>(index);
    text += " Fastest " + Short_Text(drawing.fastest) + " ft/s " +
            Heading_Text(drawing.x[i], drawing.z[i]) + " at " +
            Cell_Text(index / drawing.columns + 1, index % drawing.columns + 1) + ", slowest " +
            Short_Text(drawing.slowest) + " ft/s.";
  }
  if (!drawing.note.empty()) text += " " + drawing.note;
  return text;
}

}  // namespace

Velocity_Drawing Draw_Velocities(const Velocity_Grid& grid) {
  Velocity_Drawing drawing;
  if (Is_Whole(grid)) {
    drawing.rows = grid.rows;
    drawing.columns = grid.columns;
    drawing.x = grid.x;
    drawing.z = grid.z;
    drawing.speeds.reserve(grid.x.size());
    for (std::size_t i = 0; i < grid.x.size(); ++i) {
      const double speed = Speed(grid.x[i], grid.z[i]);
      const bool drawn = Can_Be_Drawn(grid.x[i]) && Can_Be_Drawn(grid.z[i]) && Can_Be_Drawn(speed);
      drawing.speeds.push_back(drawn ? speed : std::numeric_limits<double>::quiet_NaN());
      if (!drawn) ++drawing.left_out;
    }
  }
  const Value_Range range = Range_Of(drawing.speeds).value_or(Value_Range{});
  drawing.slowest = range.low;
  drawing.fastest = range.high;
  drawing.reference = Round_Value_Below(drawing.fastest);
  drawing.scale = Scale_Over({0, std::max(drawing.fastest, kLeastSpeedSpan)}, kLeastSpeedSpan);
  drawing.note = Note_Of(drawing);
  drawing.description = Description_Of(drawing);
  return drawing;
}

std::vector<Velocity_Arrow> Arrows_Of(const Velocity_Drawing& drawing, int row_stride,
                                      int column_stride) {
  std::vector<Velocity_Arrow> arrows;
  if (!(drawing.fastest > 0)) return arrows;
  for (int row = (row_stride - 1) / 2; row < drawing.rows; row += row_stride) {
    for (int column = (column_stride - 1) / 2; column < drawing.columns; column += column_stride) {
      const std::size_t i = static_cast<std::size_t>(row) * drawing.columns + column;
      if (!std::isfinite(drawing.speeds[i])) continue;
      arrows.push_back(
          {row + 1, column + 1, drawing.z[i] / drawing.fastest, drawing.x[i] / drawing.fastest});
    }
  }
  return arrows;
}

int Arrow_Stride(int points, double pixels, double least_pixels) {
  if (points < 1 || !(pixels > 0)) return 1;
  return std::clamp(static_cast<int>(std::ceil(points * least_pixels / pixels)), 1, points);
}

std::string Velocity_Cell_Text(const Velocity_Grid& grid, int row, int column) {
  if (!Is_Whole(grid)) return {};
  if (row < 1 || row > grid.rows || column < 1 || column > grid.columns) return {};
  const std::size_t i = static_cast<std::size_t>(row - 1) * grid.columns + column - 1;
  std::string text = Cell_Text(row, column) + ": ";
  if (Can_Be_Drawn(grid.x[i]) && Can_Be_Drawn(grid.z[i])) {
    text += Short_Text(std::hypot(grid.x[i], grid.z[i])) + " ft/s " +
            Heading_Text(grid.x[i], grid.z[i]) + "\nX " + Short_Text(grid.x[i]) + " ft/s, Z " +
            Short_Text(grid.z[i]) + " ft/s";
  } else {
    text += "no velocity";
  }
  const std::string distance = Distance_Text(row, column, grid.row_spacing, grid.column_spacing);
  if (!distance.empty()) text += "\n" + distance;
  return text;
}

std::string Heading_Text(double x_velocity, double z_velocity) {
  // What is less than a hundredth of the other component is not worth a word.
  const double least = 0.01 * std::max(std::abs(x_velocity), std::abs(z_velocity));
  std::string text;
  if (std::abs(x_velocity) > least) text = x_velocity > 0 ? "down" : "up";
  if (std::abs(z_velocity) > least) {
    if (!text.empty()) text += " and ";
    text += z_velocity > 0 ? "right" : "left";
  }
  return text.empty() ? "nowhere" : text;
}

}  // namespace barvon
