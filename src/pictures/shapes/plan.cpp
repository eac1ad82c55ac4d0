#include "pictures/shapes/plan.h"

#include <algorithm>
#include <cmath>

#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

constexpr double kLeastSide = 2;                                  // pixels of a canvas with room
constexpr double kLargestHead = 9, kHeadPart = 0.4, kWide = 0.4;  // of an arrow

bool Has_Extent(double low, double high) {
  return Can_Be_Drawn(low) && Can_Be_Drawn(high) && high > low;
}

Axis_Scale Scale_Of(double low, double high) {
  Axis_Scale scale = Scale_Over({low, high}, high - low);
  scale.low = low;
  scale.high = high;
  return scale;
}

Plot_Layout Layout_Of(const Feet_Area& area, bool empty) {
  Plot_Layout layout;
  const Feet_Area shown = empty ? Feet_Area{0, 0, 1, 1} : area;
  layout.across = {Scale_Of(shown.left, shown.right), "Z (ft), left to right", 0};
  layout.upright = {Scale_Of(shown.top, shown.bottom), "X (ft), top to bottom", 0, true};
  layout.across.short_label = "Z (ft)";
  layout.upright.short_label = "X (ft)";
  layout.across_on_top = true;
  layout.equal_scales = true;
  return layout;
}

Place Placed(const Plan_Frame& frame, const Place& feet) { return frame.At({feet.y, feet.x}); }

// The shape with its places on the canvas; `scale` pixels for each unit of a radius.
Shape Placed(const Plan_Frame& frame, Shape shape, double scale, double text_size) {
  if (auto* line = std::get_if<Line_Shape>(&shape)) {
    for (Place& place : line->points) place = Placed(frame, place);
  } else if (auto* polygon = std::get_if<Polygon_Shape>(&shape)) {
    for (Place& place : polygon->points) place = Placed(frame, place);
  } else if (auto* rings = std::get_if<Area_Shape>(&shape)) {
    for (auto& ring : rings->rings) {
      for (Place& place : ring) place = Placed(frame, place);
    }
  } else if (auto* circle = std::get_if<Circle_Shape>(&shape)) {
    circle->centre = Placed(frame, circle->centre);
    circle->radius *= scale;
  } else if (auto* text = std::get_if<Text_Shape>(&shape)) {
    text->place = Placed(frame, text->place);
    text->size = text_size;
  }
  return shape;
}

double Distance(const Place& from, const Place& to) {
  return std::hypot(to.x - from.x, to.y - from.y);
}

void Add_Arrow(Shape_List& picture, const Plan_Frame& frame, const Plan_Arrow& arrow) {
  std::vector<Place> way = {frame.At(arrow.tail)};
  for (const Feet_Point& bend : arrow.bends) way.push_back(frame.At(bend));
  const Place tip = frame.At(arrow.tip), last = way.back();
  double length = Distance(last, tip);
  if (!(length > 0)) return;
  const Place along{(tip.x - last.x) / length, (tip.y - last.y) / length};
  const double last_part = length;
  for (std::size_t i = 1; i < way.size(); ++i) length += Distance(way[i - 1], way[i]);
  // By the whole way: a last part may be short.
  const double head = std::min(kLargestHead, kHeadPart * length);
  const Place neck{tip.x - along.x * head, tip.y - along.y * head};
  const Place across{-along.y * head * kWide, along.x * head * kWide};
  if (last_part > head) way.push_back(neck);
  if (way.size() > 1) picture.shapes.push_back(Line_Shape{way, arrow.stroke});
  picture.shapes.push_back(Polygon_Shape{
      {tip, {neck.x + across.x, neck.y + across.y}, {neck.x - across.x, neck.y - across.y}},
      arrow.stroke.colour,
      {}});
}

}  // namespace

Plan_Frame::Plan_Frame(const Feet_Area& area, const Canvas& canvas)
    : area_(area),
      empty_(!Has_Extent(area.left, area.right) || !Has_Extent(area.top, area.bottom) ||
             !(canvas.width > kLeastSide) || !(canvas.height > kLeastSide)),
      frame_(Layout_Of(area, empty_), canvas) {}

double Plan_Frame::Pixels_Per_Foot() const {
  return empty_ ? 0 : (frame_.right() - frame_.left()) / (area_.right - area_.left);
}

std::optional<Feet_Point> Plan_Frame::Feet_At(const Place& place) const {
  if (empty_ || !frame_.Holds(place)) return std::nullopt;
  return Nearest_Feet(place);
}

Feet_Point Plan_Frame::Nearest_Feet(const Place& place) const {
  const double grain = Round_Value_Below(1 / Pixels_Per_Foot());
  const auto rounded = [&](double feet) {
    return grain > 0 ? std::round(feet / grain) * grain : feet;
  };
  return Inside({rounded(frame_.Upright_At(place)), rounded(frame_.Across_At(place))});
}

Feet_Point Plan_Frame::Inside(const Feet_Point& point) const {
  return {std::clamp(point.x, area_.top, area_.bottom),
          std::clamp(point.z, area_.left, area_.right)};
}

Shape_List Plan_Shapes(const Plan& plan, const Canvas& canvas) {
  const Plan_Frame frame(plan.area, canvas);
  if (frame.Is_Empty()) {
    return {std::max(canvas.width, 0.0),
            std::max(canvas.height, 0.0),
            plan.title,
            plan.description,
            {}};
  }
  Shape_List picture = frame.plot().Ground(plan.title, plan.description);
  for (const Shape& shape : plan.shapes) {
    picture.shapes.push_back(Placed(frame, shape, frame.Pixels_Per_Foot(), canvas.text_size));
  }
  for (const Plan_Arrow& arrow : plan.arrows) Add_Arrow(picture, frame, arrow);
  for (const Shape& shape : plan.marks) {
    picture.shapes.push_back(Placed(frame, shape, 1, canvas.text_size));
  }
  frame.plot().Add_Axes(picture);
  return picture;
}

std::string Words_Of(const Feet_Point& point) {
  return "X " + Short_Text(point.x) + " ft, Z " + Short_Text(point.z) + " ft";
}

}  // namespace barvon
