#pragma once

#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"

namespace barvon {

/// Velocities (ft/s) at the grid points, row by row as a table shows them: `rows` x `columns`
/// values each. NaN stands for an empty cell.
struct Velocity_Grid {
  int rows = 0;               // points in X, from top to bottom
  int columns = 0;            // points in Z, from left to right
  std::vector<double> x;      // positive from top to bottom
  std::vector<double> z;      // positive from left to right
  double row_spacing = 0;     // ft between two rows; 0 when not known
  double column_spacing = 0;  // ft between two columns; 0 when not known
};

/// What the arrow map draws beside its arrows.
struct Velocity_Drawing {
  int rows = 0, columns = 0;
  std::vector<double> x, z;    // as given
  std::vector<double> speeds;  // ft/s, row by row; NaN where nothing is drawn
  int left_out = 0;            // points with an empty cell or a value that cannot be drawn
  double slowest = 0;          // ft/s
  double fastest = 0;          // ft/s
  double reference = 0;        // speed of the reference arrow, ft/s; 0 when there is none
  Axis_Scale scale;            // of the speeds, from 0
  std::string note;
  std::string description;
};

/// A grid whose counts of values are not rows x columns is drawn as an empty one.
Velocity_Drawing Draw_Velocities(const Velocity_Grid& grid);

/// One arrow at a grid point. `right` and `down` are parts of the longest arrow's length.
struct Velocity_Arrow {
  int row = 0, column = 0;  // from 1
  double right = 0;         // Z velocity / fastest speed
  double down = 0;          // X velocity / fastest speed
};

/// An arrow for every `row_stride` rows and `column_stride` columns (each at least 1), at the point
/// in the middle of each block; points where nothing is drawn have none.
std::vector<Velocity_Arrow> Arrows_Of(const Velocity_Drawing& drawing, int row_stride,
                                      int column_stride);

/// Every how many points an arrow is drawn, so that arrows keep `least_pixels` between them.
int Arrow_Stride(int points, double pixels, double least_pixels);

/// Row, column (both from 1), velocities, speed and distances of a point in words. Empty outside
/// of the grid.
std::string Velocity_Cell_Text(const Velocity_Grid& grid, int row, int column);

/// Where a current goes to on the screen: "down and right", "up", "nowhere" for no speed.
std::string Heading_Text(double x_velocity, double z_velocity);

}  // namespace barvon
