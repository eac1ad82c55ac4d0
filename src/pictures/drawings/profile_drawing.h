#pragma once

#include <array>
#include <limits>
#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/plot_frame.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

/// One row of the two-point profile: depths in ft below the surface, velocities in ft/s. NaN
/// stands for an empty cell.
struct Profile_Point {
  double x_depth = std::numeric_limits<double>::quiet_NaN();
  double x_velocity = std::numeric_limits<double>::quiet_NaN();
  double z_depth = std::numeric_limits<double>::quiet_NaN();
  double z_velocity = std::numeric_limits<double>::quiet_NaN();
};

struct Profile_Line_Point {
  double velocity = 0;  // ft/s
  double depth = 0;     // ft
};

/// What the two-point profile draws.
struct Profile_Drawing {
  std::vector<Profile_Line_Point> x, z;  // in the order given
  int left_out = 0;                      // points of both lines that are not drawn
  Axis_Scale velocity;                   // ft/s, holds 0
  Axis_Scale depth;                      // ft, holds 0
  std::string note;
  std::string description;
};

Profile_Drawing Draw_Profile(const std::array<Profile_Point, 2>& points);

/// Velocity across, depth downwards.
Plot_Frame Frame_Of(const Profile_Drawing& drawing, const Canvas& canvas);
Shape_List Profile_Shapes(const Profile_Drawing& drawing, const Canvas& canvas);

}  // namespace barvon
