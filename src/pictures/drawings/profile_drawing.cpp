#include "pictures/drawings/profile_drawing.h"

#include "platform/text/counted.h"

#include <algorithm>

#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

constexpr double kLeastDepthSpan = 1;       // ft
constexpr double kLeastVelocitySpan = 0.1;  // ft/s

std::string Line_Text(const char* name, const std::vector<Profile_Line_Point>& line) {
  std::string text = std::string(name) + " velocity:";
  for (const Profile_Line_Point& point : line) {
    text += " " + Short_Text(point.velocity) + " ft/s at " + Short_Text(point.depth) + " ft,";
  }
  if (line.empty()) text += " none,";
  text.back() = '.';
  return text;
}

Axis_Scale Scale_With_Zero(const std::vector<double>& values, double least_span) {
  Value_Range range = Range_Of(values).value_or(Value_Range{});
  range.low = std::min(range.low, 0.0);
  range.high = std::max(range.high, 0.0);
  if (range.high - range.low < least_span) range.high = range.low + least_span;
  return Scale_Over(range, least_span);
}

}  // namespace

Profile_Drawing Draw_Profile(const std::array<Profile_Point, 2>& points) {
  Profile_Drawing drawing;
  std::vector<double> velocities, depths;
  const auto add = [&](std::vector<Profile_Line_Point>& line, double velocity, double depth) {
    if (!Can_Be_Drawn(velocity) || !Can_Be_Drawn(depth)) {
      ++drawing.left_out;
      return;
    }
    line.push_back({velocity, depth});
    velocities.push_back(velocity);
    depths.push_back(depth);
  };
  for (const Profile_Point& point : points) {
    add(drawing.x, point.x_velocity, point.x_depth);
    add(drawing.z, point.z_velocity, point.z_depth);
  }
  drawing.velocity = Scale_With_Zero(velocities, kLeastVelocitySpan);
  drawing.depth = Scale_With_Zero(depths, kLeastDepthSpan);
  if (drawing.x.empty() && drawing.z.empty()) {
    drawing.note = "No point has a depth and a velocity yet.";
  } else if (drawing.left_out > 0)
    drawing.note = Counted(drawing.left_out, "value pair") + " not complete.";
  drawing.description = Line_Text("X", drawing.x) + " " + Line_Text("Z", drawing.z);
  if (!drawing.note.empty()) drawing.description += " " + drawing.note;
  return drawing;
}

Plot_Frame Frame_Of(const Profile_Drawing& drawing, const Canvas& canvas) {
  Plot_Layout layout;
  layout.across = {drawing.velocity, "Velocity (ft/s)"};
  layout.upright = {drawing.depth, "Depth (ft)"};
  layout.upright.downwards = true;
  layout.legend = {{"X velocity", kXInk, Sample::circles}, {"Z velocity", kZInk, Sample::squares}};
  return Plot_Frame(layout, canvas);
}

Shape_List Profile_Shapes(const Profile_Drawing& drawing, const Canvas& canvas) {
  const Plot_Frame frame = Frame_Of(drawing, canvas);
  Shape_List picture = frame.Ground("Velocity against depth", drawing.description);
  frame.Add_Mark(picture, 0, {kWaterInk, 2});
  const auto add = [&](const std::vector<Profile_Line_Point>& line, Colour colour, Sample sample) {
    std::vector<Plot_Value> values;
    for (const Profile_Line_Point& point : line) values.push_back({point.velocity, point.depth});
    Add_Marked_Line(picture, frame, values, colour, sample);
  };
  add(drawing.x, kXInk, Sample::circles);
  add(drawing.z, kZInk, Sample::squares);
  frame.Add_Axes(picture);
  return picture;
}

}  // namespace barvon
