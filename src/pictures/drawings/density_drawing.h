#pragma once

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/plot_frame.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

/// Water of `density` (g/cc) at `depth` (ft below the surface). NaN stands for an empty cell.
struct Density_Point {
  double depth = std::numeric_limits<double>::quiet_NaN();
  double density = std::numeric_limits<double>::quiet_NaN();
};

/// What the density profile draws.
struct Density_Drawing {
  std::vector<Density_Point> points;  // those that are drawn, in the order given
  int left_out = 0;                   // points with an empty cell or a value that cannot be drawn
  bool depths_increase = true;        // each drawn point is deeper than the one before
  Axis_Scale density;                 // g/cc
  Axis_Scale depth;                   // ft, from the surface or the highest point downwards
  std::optional<double> bottom;       // ft
  std::string note;                   // what is odd about the values, in words; may be empty
  std::string description;            // the picture in words, with its numbers
};

/// `bottom` is the water depth (ft); it is drawn when it is above 0.
Density_Drawing Draw_Density(const std::vector<Density_Point>& points, double bottom);

/// Density across, depth downwards.
Plot_Frame Frame_Of(const Density_Drawing& drawing, const Canvas& canvas);
Shape_List Density_Shapes(const Density_Drawing& drawing, const Canvas& canvas);

}  // namespace barvon
