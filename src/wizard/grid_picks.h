#pragma once

#include <optional>

#include "core/project_record.h"

namespace barvon {

// The arithmetic of the graphical page, in feet. Its picture has Z to the right ("X" of its labels)
// and X downwards ("Y").

/// A place on the picture.
struct Picture_Point {
  double x = 0, y = 0;
};

/// A grid that was constructed on the page.
struct Constructed_Grid {
  Picture_Point upper_left = {};
  int points_x = 0, points_z = 0;       // rows and columns, 8 to 96 each
  double spacing_x = 0, spacing_z = 0;  // ft
};

/// The largest velocities of the record's profile (ft/s): signed averages for one velocity over the
/// depth and for an unsteady one, sizes without a sign for two points and for a field.
struct Largest_Velocity {
  float MaxVelX = 0, MaxVelZ = 0;
};
Largest_Velocity Largest_Velocity_Of(const ProjectRecord& record);

/// The spacing (ft) for a velocity (ft/s): wider for faster water.
double Spacing_For(float velocity);

/// A grid over the rectangle of so much width (Z) and height (X), ft. Its spacings follow the
/// velocities, then fit the whole number of intervals; a width or height of 0 gives a spacing of 0.
Constructed_Grid Construct_Grid(Picture_Point upper_left, double width, double height,
                                const Largest_Velocity& velocity);

/// A point of the grid, from 1.
struct Grid_Pick {
  int column = 1, row = 1;
  bool operator==(const Grid_Pick&) const = default;
};

/// The point nearest to a place; exactly in the middle the lower one. Outside, the nearest edge.
Grid_Pick Nearest_Point(const Constructed_Grid& grid, Picture_Point place);
/// Where a point of the grid is.
Picture_Point Place_Of(const Constructed_Grid& grid, Grid_Pick pick);

/// Where the vessel goes in a site between two corners: on the upstream one of them in each
/// direction, in the middle without a velocity.
Picture_Point Vessel_Between(const Constructed_Grid& grid, Grid_Pick first, Grid_Pick last,
                             const Largest_Velocity& velocity);

}  // namespace barvon
