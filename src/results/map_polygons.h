#pragma once

#include <compare>
#include <vector>

#include "results/map_place.h"

namespace barvon {

/// A position of a map in thousandths of its unit, easting and northing.
struct Map_Step {
  long long east = 0, north = 0;

  bool operator==(const Map_Step&) const = default;
  std::strong_ordering operator<=>(const Map_Step& other) const {
    return east != other.east ? east <=> other.east : north <=> other.north;
  }
};

/// Closed, its first position not repeated.
using Map_Ring = std::vector<Map_Step>;

/// As a ring, in thousandths of the unit as well, but not rounded.
using Map_Outline = std::vector<Map_Point>;

/// An area without its holes. No ring touches itself; two touch each other in single positions at
/// most, and what is inside hangs together: what simple features ask of a polygon.
struct Map_Polygon {
  Map_Ring outer;               // counterclockwise
  std::vector<Map_Ring> holes;  // clockwise
};

/// The step whose square, from half a step below it up to half a step above, holds the point.
Map_Step Rounded_Step(const Map_Point& point);

/// The polygons of an area that lies on the left of its outlines. Those may touch themselves and
/// each other in points and along lines, as contours at the value of a cell do, but must not cross.
/// Nothing moves by more than a step's square is wide, and what rounding leaves without an area is
/// left out. Rings meet in common positions alone.
std::vector<Map_Polygon> Polygons_Within(const std::vector<Map_Outline>& outlines);

/// Twice the area of a ring, above 0 where it runs counterclockwise.
long double Twice_Area_Of(const Map_Ring& ring);

}  // namespace barvon
