#pragma once

#include <optional>
#include <string>

#include "results/results.h"

namespace barvon {

/// How a foot of the grid is counted in the coordinate system.
enum class Place_Unit {
  metre,         // the system has metres, 1 ft is 0.3048 m (international foot)
  metre_survey,  // the system has metres, 1 ft is 1200/3937 m (US survey foot)
  foot,          // the system has feet of the grid's own kind
};

/// How the grid lies in a coordinate system of a plane, easting to the east and northing to the
/// north.
///
/// A grid that is not turned has Z to the east and X to the south, as it is seen on the screen.
/// `turn` turns it clockwise, as seen from above, about its corner point: the point of row 1 and
/// column 1, X = Z = 0. So Z grows towards the direction 90 + turn and X towards 180 + turn degrees
/// from north, clockwise.
struct Map_Place {
  double easting = 0, northing = 0;  // of the corner point, in the system's unit
  double turn = 0;                   // degrees
  Place_Unit unit = Place_Unit::metre;
  std::string system;  // as it was typed, UTF-8: "EPSG:32618"; may be empty

  bool operator==(const Map_Place&) const = default;
};

struct Map_Point {
  double easting = 0, northing = 0;
};

/// The length of a foot of the grid in the system's unit.
double Units_Per_Foot(Place_Unit unit);

/// Sine and cosine of an angle in degrees, exact for quarter turns.
struct Turn {
  double sine = 0, cosine = 1;
};
Turn Turn_Of(double degrees);

/// Where a point of the grid's plane (ft) lies, and the point that lies somewhere:
///   easting  = corner + u (z cos t - x sin t)
///   northing = corner - u (z sin t + x cos t)
Map_Point On_Map(const Map_Place& place, const Result_Point& point);
Result_Point On_Grid(const Map_Place& place, const Map_Point& point);

/// The number of the coordinate system in the EPSG register when the text is one: "EPSG:32618",
/// "epsg 32618" or "32618".
std::optional<int> Epsg_Code(const std::string& system);

}  // namespace barvon
