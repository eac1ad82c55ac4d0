#include "pictures/drawings/density_drawing.h"

#include "platform/text/counted.h"

#include <algorithm>

#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

constexpr double kLeastDensitySpan = 0.002;  // g/cc
constexpr double kLeastDepthSpan = 1;        // ft

Value_Range Of(const std::vector<Density_Point>& points, double Density_Point::*member,
               Value_Range when_none) {
  std::vector<double> values;
  for (const Density_Point& point : points) values.push_back(point.*member);
  return Range_Of(values).value_or(when_none);
}

std::string Note_Of(const Density_Drawing& drawing) {
  if (drawing.points.empty()) return "No point has a depth and a density yet.";
  std::string note;
  if (drawing.left_out > 0) note = Counted(drawing.left_out, "point") + " not complete. ";
  if (!drawing.depths_increase) note += "Depths do not increase from point to point. ";
  if (!note.empty()) note.pop_back();
  return note;
}

std::string Description_Of(const Density_Drawing& drawing) {
  std::string text = Counted(drawing.points.size(), "point") + ":";
  for (const Density_Point& point : drawing.points) {
    text += " " + Fixed_Text(point.density, 4) + " g/cc at " + Short_Text(point.depth) + " ft,";
  }
  text.back() = '.';
  if (drawing.bottom) text += " Bottom at " + Short_Text(*drawing.bottom) + " ft.";
  if (!drawing.note.empty()) text += " " + drawing.note;
  return text;
}

}  // namespace

Density_Drawing Draw_Density(const std::vector<Density_Point>& points, double bottom) {
  Density_Drawing drawing;
  for (const Density_Point& point : points) {
    if (!Can_Be_Drawn(point.depth) || !Can_Be_Drawn(point.density)) {
      ++drawing.left_out;
      continue;
    }
    if (!drawing.points.empty() && !(point.depth > drawing.points.back().depth)) {
      drawing.depths_increase = false;
    }
    drawing.points.push_back(point);
  }
  if (Can_Be_Drawn(bottom) && bottom > 0) drawing.bottom = bottom;
  Value_Range depth = Of(drawing.points, &Density_Point::depth, {0, 0});
  depth.low = std::min(depth.low, 0.0);
  depth.high = std::max({depth.high, 0.0, drawing.bottom.value_or(0)});
  if (depth.high - depth.low < kLeastDepthSpan) depth.high = depth.low + kLeastDepthSpan;
  drawing.depth = Scale_Over(depth, kLeastDepthSpan);
  drawing.density =
      Scale_Over(Of(drawing.points, &Density_Point::density, {1, 1}), kLeastDensitySpan);
  drawing.note = Note_Of(drawing);
  drawing.description = Description_Of(drawing);
  return drawing;
}

Plot_Frame Frame_Of(const Density_Drawing& drawing, const Canvas& canvas) {
  Plot_Layout layout;
  layout.across = {drawing.density, "Density (g/cc)"};
  layout.upright = {drawing.depth, "Depth (ft)"};
  layout.upright.downwards = true;
  return Plot_Frame(layout, canvas);
}

Shape_List Density_Shapes(const Density_Drawing& drawing, const Canvas& canvas) {
  const Plot_Frame frame = Frame_Of(drawing, canvas);
  Shape_List picture = frame.Ground("Water density against depth", drawing.description);
  if (drawing.bottom) {
    // Below the lines of the grid; beyond the axis's last number too.
    Shape_List ground;
    frame.Add_Band(ground, {*drawing.bottom, kLargestDrawn}, kGroundFill);
    picture.shapes.insert(picture.shapes.begin(), ground.shapes.begin(), ground.shapes.end());
    frame.Add_Mark(picture, *drawing.bottom, {kGroundInk, 2});
    // At the left, where the water is lightest and the line seldom is so deep.
    const double baseline = frame.At(drawing.density.low, *drawing.bottom).y - 4;
    picture.shapes.push_back(Text_Shape{{frame.left() + 5, baseline},
                                        "bottom " + Short_Text(*drawing.bottom) + " ft",
                                        canvas.text_size,
                                        kGroundLetters});
  }
  frame.Add_Mark(picture, 0, {kWaterInk, 2});
  std::vector<Plot_Value> values;
  for (const Density_Point& point : drawing.points) values.push_back({point.density, point.depth});
  Add_Marked_Line(picture, frame, values, kXInk, Sample::circles);
  frame.Add_Axes(picture);
  return picture;
}

}  // namespace barvon
