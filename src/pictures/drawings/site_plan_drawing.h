#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/plan.h"

namespace barvon {

/// A part of the vessel's way at one velocity. X grows downwards, Z to the right.
struct Vessel_Leg {
  double x = 0, z = 0;  // ft/s
  double seconds = 0;
};

/// The velocity of a current, ft/s.
struct Mean_Current {
  double x = 0, z = 0;
};

/// Where everything lies on the grid of a disposal site, in feet from its upper left corner. What
/// is not given is not drawn.
struct Site_Plan {
  double length_x = 0, length_z = 0;  // of the grid
  std::optional<Feet_Point> disposal_point;
  double vessel_length = 0, vessel_width = 0;  // about the disposal point; 0: none is drawn
  std::vector<Vessel_Leg> course;              // from the disposal point on
  double hole_x = 0, hole_z = 0;               // lengths of a depression below the disposal point
  std::string boundary_name = "Mixing zone";
  std::optional<Feet_Area> boundary, zid;
  std::optional<Mean_Current> current;
};

/// The site to scale: the grid and what lies on it or up to half the grid's larger side beside it.
/// What is farther away would leave the grid a dot; it is only told.
Plan Draw_Site(const Site_Plan& site);

}  // namespace barvon
