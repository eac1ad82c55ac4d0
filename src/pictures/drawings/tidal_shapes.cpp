#include "pictures/drawings/tidal_shapes.h"

#include <string>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "pictures/shapes/plot_frame.h"

namespace barvon {
namespace {

constexpr Colour kShade{255, 241, 204}, kShadeEdge{214, 178, 84};

std::vector<Plot_Value> Values_Of(const std::vector<Tidal_Point>& points) {
  std::vector<Plot_Value> values;
  for (const Tidal_Point& point : points) values.push_back({point.hour, point.velocity});
  return values;
}

Line_Shape Upright_Line(const Plot_Frame& frame, double hour, const Stroke& stroke) {
  const double x = frame.At(hour, 0).x;
  return {{{x, frame.top()}, {x, frame.bottom()}}, stroke};
}

void Add_Interval(Shape_List& picture, const Plot_Frame& frame, const Tidal_Drawing& drawing) {
  const double left = frame.At(drawing.shaded->low, 0).x;
  const double right = frame.At(drawing.shaded->high, 0).x;
  const Polygon_Shape band{Rectangle({left, frame.top()}, {right, frame.bottom()}), kShade, {}};
  picture.shapes.insert(picture.shapes.begin(), band);
  for (const double edge : {drawing.shaded->low, drawing.shaded->high}) {
    picture.shapes.push_back(Upright_Line(frame, edge, {kShadeEdge, 1}));
  }
}

void Add_Average(Shape_List& picture, const Plot_Frame& frame, const Tidal_Drawing& drawing,
                 const std::optional<double>& average, Colour colour) {
  if (!average || !drawing.shaded) return;
  picture.shapes.push_back(Line_Shape{
      {frame.At(drawing.shaded->low, *average), frame.At(drawing.shaded->high, *average)},
      {colour, 2, Dash::dashed}});
}

std::string Note_Of(const Tidal_Drawing& drawing) {
  std::string note;
  if (drawing.shaded && drawing.average_x && drawing.average_z) {
    note = "Dashed: the averages of the simulated interval, X " + Short_Text(*drawing.average_x) +
           " ft/s and Z " + Short_Text(*drawing.average_z) + " ft/s.";
  }
  if (!note.empty() && !drawing.note.empty()) note += " ";
  return note + drawing.note;
}

}  // namespace

Shape_List Tidal_Shapes(const Tidal_Drawing& drawing, const Canvas& canvas) {
  Plot_Layout layout;
  layout.across = {drawing.time, "Time (h)"};
  layout.upright = {drawing.velocity, "Velocity (ft/s)"};
  layout.legend = {{"X velocity", kXInk, Sample::circles}, {"Z velocity", kZInk, Sample::squares}};
  if (drawing.shaded) layout.legend.push_back({"Simulated", kShade, Sample::area});
  const Plot_Frame frame(layout, canvas);
  Shape_List picture = frame.Ground("Velocity over the tidal pattern", drawing.description);
  if (drawing.shaded) Add_Interval(picture, frame, drawing);
  frame.Add_Mark(picture, 0, {kZeroInk, 1});
  Add_Average(picture, frame, drawing, drawing.average_x, kXInk);
  Add_Average(picture, frame, drawing, drawing.average_z, kZInk);
  Add_Marked_Line(picture, frame, Values_Of(drawing.x), kXInk, Sample::circles);
  Add_Marked_Line(picture, frame, Values_Of(drawing.z), kZInk, Sample::squares);
  frame.Add_Axes(picture);
  Add_Note(picture, Note_Of(drawing), canvas.text_size);
  return picture;
}

}  // namespace barvon
