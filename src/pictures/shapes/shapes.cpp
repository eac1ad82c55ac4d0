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

bool Has_Own_Places(const Area_Shape& area) {
  return !area.rings.empty() && std::ranges::all_of(area.rings, [](const auto& ring) {
    return ring.size() >= 3 && Are_Near(ring);
  });
}

bool Has_Own_Places(const Circle_Shape& circle) {
  return Is_Near(circle.centre) && circle.radius > 0 && Is_Near(circle.radius);
}

bool Has_Own_Places(const Text_Shape& text) { return Is_Near(text.place) && !text.text.empty(); }

struct Mover {
  double x, y, scale;
  Place operator()(const Place& place) const { return {x + place.x * scale, y + place.y * scale}; }
  Stroke operator()(Stroke stroke) const {
    stroke.width *= scale;
    return stroke;
  }
  void Move(Line_Shape& line) const {
    for (Place& place : line.points) place = (*this)(place);
    line.stroke = (*this)(line.stroke);
  }
  void Move(Polygon_Shape& polygon) const {
    for (Place& place : polygon.points) place = (*this)(place);
    if (polygon.stroke) polygon.stroke = (*this)(*polygon.stroke);
  }
  void Move(Area_Shape& area) const {
    for (auto& ring : area.rings) {
      for (Place& place : ring) place = (*this)(place);
    }
    if (area.stroke) area.stroke = (*this)(*area.stroke);
  }
  void Move(Circle_Shape& circle) const {
    circle.centre = (*this)(circle.centre);
    circle.radius *= scale;
    if (circle.stroke) circle.stroke = (*this)(*circle.stroke);
  }
  void Move(Text_Shape& text) const {
    text.place = (*this)(text.place);
    text.size *= scale;
  }
};

}  // namespace

bool Has_Places(const Shape& shape) {
  return std::visit([](const auto& known) { return Has_Own_Places(known); }, shape);
}

Shape Moved(Shape shape, Place corner, double scale) {
  const Mover mover{corner.x, corner.y, scale};
  std::visit([&](auto& known) { mover.Move(known); }, shape);
  return shape;
}

std::vector<Place> Rectangle(Place a, Place b) { return {a, {b.x, a.y}, b, {a.x, b.y}}; }

}  // namespace barvon
