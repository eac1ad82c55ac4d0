#include "pictures/shapes/shapes.h"

#include <algorithm>
#include <cmath>

namespace barvon {
namespace {

bool Is_Near(double value) { return std::abs(value) <= kFarthestPlace; }  // not so NaN

bool Is_Near(const Place& place) { return Is_Near(place.x) && Is_Near(place.y); }

bool Are_Near(const std::vector<Place>& places) {
  return std::ranges::all_of(places, [](const Place& place) { return Is_Near(place); });
}

bool Has_Own_Places(const Line_Shape& line) {
  return line.points.size() >= 2 && Are_Near(line.points);
}

bool Has_Own_Places(const Polygon_Shape& polygon) {
  return polygon.points.size() >= 3 && Are_Near(polygon.points);
}

bool Has_Own_Places(const Circle_Shape& circle) {
  return Is_Near(circle.centre) && circle.radius > 0 && Is_Near(circle.radius);
}

bool Has_Own_Places(const Text_Shape& text) { return Is_Near(text.place) && !text.text.empty(); }

}  // namespace

bool Has_Places(const Shape& shape) {
  return std::visit([](const auto& known) { return Has_Own_Places(known); }, shape);
}

std::vector<Place> Rectangle(Place a, Place b) { return {a, {b.x, a.y}, b, {a.x, b.y}}; }

}  // namespace barvon
