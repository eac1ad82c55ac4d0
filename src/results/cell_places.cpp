#include "results/cell_places.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace barvon {
namespace {

/// The two neighbouring centres along an axis, from 1, and the part of the way between them.
struct Between {
  int first, second;
  double part;
};

Between Neighbours(double place, double spacing, int count) {
  const double at = std::clamp(place / spacing, 0.0, static_cast<double>(count - 1));
  const int first = std::min(static_cast<int>(at), std::max(count - 2, 0));
  return {first + 1, std::min(first + 2, count), at - first};
}

}  // namespace

bool Is_Whole(const Cell_Values& cells) {
  return cells.rows > 0 && cells.columns > 0 && cells.spacing_x > 0 && cells.spacing_z > 0 &&
         std::isfinite(cells.spacing_x) && std::isfinite(cells.spacing_z) &&
         cells.values.size() ==
             static_cast<std::size_t>(cells.rows) * static_cast<std::size_t>(cells.columns);
}

Result_Area Reach_Of(const Cell_Values& cells) {
  return {-0.5 * cells.spacing_x, -0.5 * cells.spacing_z, (cells.rows - 0.5) * cells.spacing_x,
          (cells.columns - 0.5) * cells.spacing_z};
}

double Value_At(const Cell_Values& cells, const Result_Point& place) {
  if (!Is_Whole(cells)) return std::numeric_limits<double>::quiet_NaN();
  const Result_Area reach = Reach_Of(cells);
  if (!(place.x >= reach.top && place.x <= reach.bottom && place.z >= reach.left &&
        place.z <= reach.right)) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  const Between x = Neighbours(place.x, cells.spacing_x, cells.rows);
  const Between z = Neighbours(place.z, cells.spacing_z, cells.columns);
  const auto mixed = [](double first, double second, double part) {
    return first * (1 - part) + second * part;
  };
  const double value =
      mixed(mixed(cells.At(x.first, z.first), cells.At(x.first, z.second), z.part),
            mixed(cells.At(x.second, z.first), cells.At(x.second, z.second), z.part), x.part);
  if (std::isfinite(value)) return value;
  return cells.At(x.part < 0.5 ? x.first : x.second, z.part < 0.5 ? z.first : z.second);
}

double Volume_Of(const Cell_Values& cells) {
  double sum = 0;
  for (const double value : cells.values) {
    if (std::isfinite(value)) sum += value;
  }
  return sum * cells.spacing_x * cells.spacing_z;
}

double Cell_Area_Above(const Cell_Values& cells, double limit) {
  const auto count =
      std::ranges::count_if(cells.values, [limit](double value) { return value > limit; });
  return static_cast<double>(count) * cells.spacing_x * cells.spacing_z;
}

Cell_Place Largest_Cell(const Cell_Values& cells) {
  Cell_Place largest;
  if (!Is_Whole(cells)) return largest;
  for (int row = 1; row <= cells.rows; ++row) {
    for (int column = 1; column <= cells.columns; ++column) {
      const double value = cells.At(row, column);
      if (!std::isfinite(value)) continue;
      if (largest.row == 0 || value > cells.At(largest.row, largest.column)) {
        largest = {row, column};
      }
    }
  }
  return largest;
}

Result_Point Centre_Of(const Cell_Values& cells, const Cell_Place& cell) {
  return {(cell.row - 1) * cells.spacing_x, (cell.column - 1) * cells.spacing_z};
}

}  // namespace barvon
