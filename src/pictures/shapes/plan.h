#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/plot_frame.h"
#include "pictures/shapes/shapes.h"

namespace barvon {

/// A point of the site in feet: X grows from top to bottom, Z from left to right.
struct Feet_Point {
  double x = 0, z = 0;

  bool operator==(const Feet_Point&) const = default;
};

/// An upright rectangle in feet; X from `top` to `bottom`, Z from `left` to `right`.
struct Feet_Area {
  double top = 0, left = 0, bottom = 0, right = 0;
};

/// The point as a shape of a plan has it.
inline Place On_Plan(const Feet_Point& point) { return {point.z, point.x}; }

/// An arrow between two points, past the bends in between. It has one head, in pixels, at its tip.
struct Plan_Arrow {
  Feet_Point tail, tip;
  Stroke stroke;
  std::vector<Feet_Point> bends = {};
};

/// A picture of a part of the site, to scale. The places of its shapes are in feet (`On_Plan`),
/// widths of lines and sizes of letters in pixels. Nothing is cut at the edge: give an area that
/// holds it all.
struct Plan {
  Feet_Area area;
  std::string title;
  std::vector<Shape> shapes;       // a circle's radius is in feet
  std::vector<Plan_Arrow> arrows;  // above the shapes
  std::vector<Shape> marks;        // above all; a circle's radius is in pixels
  std::string note, description;
};

/// Where a part of the site lies on a canvas: as large as it fits, a foot as long across as down.
class Plan_Frame {
 public:
  Plan_Frame(const Feet_Area& area, const Canvas& canvas);

  /// There is nothing to see: the area has no extent or values that cannot be drawn, or the canvas
  /// no room.
  bool Is_Empty() const { return empty_; }

  Place At(const Feet_Point& point) const { return frame_.At(point.z, point.x); }
  /// The point there, in round feet no coarser than a pixel; nothing outside of the area.
  std::optional<Feet_Point> Feet_At(const Place& place) const;
  /// The same; a place outside counts as the nearest one inside. Not for an empty frame.
  Feet_Point Nearest_Feet(const Place& place) const;
  /// The point, or the nearest one of the area. Not for an empty frame.
  Feet_Point Inside(const Feet_Point& point) const;

  double Pixels_Per_Foot() const;
  const Plot_Frame& plot() const { return frame_; }

 private:
  Feet_Area area_;
  bool empty_;
  Plot_Frame frame_;
};

Shape_List Plan_Shapes(const Plan& plan, const Canvas& canvas);

/// "X 1200 ft, Z 800 ft".
std::string Words_Of(const Feet_Point& point);

}  // namespace barvon
