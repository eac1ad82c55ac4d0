#pragma once

#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"

namespace barvon {

/// Water depths (ft) at the grid points, row by row as a table shows them: `rows` x `columns`
/// values, the first row first. NaN stands for an empty cell.
struct Depth_Grid {
  int rows = 0;     // points in X, from top to bottom
  int columns = 0;  // points in Z, from left to right
  std::vector<double> depths;
};

/// What the depth map draws.
struct Depth_Drawing {
  int rows = 0, columns = 0;
  std::vector<double> depths;  // as given; NaN where nothing is drawn
  int left_out = 0;            // cells that are empty or hold a value that cannot be drawn
  bool uniform = false;        // all drawn depths are equal
  std::optional<Value_Range> range;
  Axis_Scale scale;  // of the colours, ft
  std::string note;
  std::string description;
};

/// A grid whose count of values is not rows x columns is drawn as an empty one.
Depth_Drawing Draw_Depths(const Depth_Grid& grid);

/// Row, column (both from 1) and depth of a cell in words; no distances, since table and solver do
/// not count the axes of depths alike. Empty outside of the grid.
std::string Depth_Cell_Text(const Depth_Grid& grid, int row, int column);

}  // namespace barvon
