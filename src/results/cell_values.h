#pragma once

#include <cstddef>
#include <vector>

namespace barvon {

/// A value for each cell of the site's grid, row by row. A cell is centred on its grid point: row i
/// and column k, both from 1, stand for X = (i - 1) * spacing_x and Z = (k - 1) * spacing_z, and a
/// cell reaches half a spacing to each side. X grows from top to bottom, Z from left to right.
struct Cell_Values {
  int rows = 0, columns = 0;
  double spacing_x = 0, spacing_z = 0;  // ft
  std::vector<double> values;           // rows * columns

  double At(int row, int column) const {
    return values[static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns) +
                  static_cast<std::size_t>(column - 1)];
  }
  bool operator==(const Cell_Values&) const = default;
};

}  // namespace barvon
