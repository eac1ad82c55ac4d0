#include <algorithm>
#include <cmath>
#include <cstddef>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "results/drawings/maxima_drawing.h"
#include "results/drawings/result_words.h"

namespace barvon {
namespace {

constexpr double kInset = 6;          // pixels, of words in the plot
constexpr double kLimitStroke = 1.6;  // pixels
constexpr double kReadMark = 5;       // pixels
constexpr double kLeastLines = 6;     // of text, that a legend leaves to the plot
constexpr double kLabelPart = 0.8;    // of a side that a label along it may take

/// How an area's curve looks: in colours that differ in lightness, with a marker of its own.
struct Area_Look {
  Colour colour;
  Sample marker;
};

Area_Look Look_Of(Result_Where where) {
  switch (where) {
    case Result_Where::inside:
      return {kXInk, Sample::circles};
    case Result_Where::outside:
      return {kZInk, Sample::squares};
    case Result_Where::outside_zid:
      return {kInk, Sample::triangles};
    case Result_Where::anywhere:
      break;
  }
  return {kXInk, Sample::squares};
}

Dash Dash_Of(bool of_other) { return of_other ? Dash::dashed : Dash::solid; }

// A limit's line is red and broken; that of another project in dots.
Stroke Limit_Stroke(const Maxima_Limit& limit) {
  return {kWarnInk, kLimitStroke, limit.of_other ? Dash::dotted : Dash::dashed};
}

std::vector<Legend_Entry> Legend_Of(const Maxima_Drawing& drawing, const Canvas& canvas,
                                    bool with_limits) {
  std::vector<Legend_Entry> legend;
  for (const Maxima_Curve& curve : drawing.curves) {
    const Area_Look look = Look_Of(curve.where);
    legend.push_back({curve.name, look.colour, look.marker, Dash_Of(curve.of_other)});
  }
  if (!with_limits) return legend;
  for (const Maxima_Limit& limit : drawing.limits) {
    const bool has_room = Text_Width(limit.name, canvas.text_size) < kLabelPart * canvas.width;
    legend.push_back({has_room ? limit.name : Value_Words(limit.value, drawing.unit), kWarnInk,
                      Sample::line, Limit_Stroke(limit).dash});
  }
  return legend;
}

// The longest that the height has room for.
std::string Upright_Label(const Maxima_Drawing& drawing, const Canvas& canvas) {
  const std::string unit = drawing.unit.empty() ? "" : " (" + drawing.unit + ")";
  for (const std::string& label : {"Largest " + drawing.title + unit, drawing.title + unit}) {
    if (Text_Width(label, canvas.text_size) <= kLabelPart * canvas.height) return label;
  }
  return drawing.unit;
}

bool Has_A_Place(const Place& place, const Plot_Frame& frame) {
  return std::isfinite(place.y) && place.y <= frame.bottom() + 1;
}

// A value without a place ends a line, the next one begins another.
void Add_Curve(Shape_List& picture, const Plot_Frame& frame, const Maxima_Curve& curve) {
  const Area_Look look = Look_Of(curve.where);
  std::vector<Plot_Value> run;
  const auto end_run = [&] {
    if (!run.empty()) {
      Add_Marked_Line(picture, frame, run, look.colour, look.marker, Dash_Of(curve.of_other));
    }
    run.clear();
  };
  for (const Timed_Value& value : curve.values) {
    if (Has_A_Place(frame.At(value.time, value.value), frame)) {
      run.push_back({value.time, value.value});
    } else {
      end_run();
    }
  }
  end_run();
}

std::vector<Shape> Bands(const Maxima_Drawing& drawing, const Plot_Frame& frame) {
  std::vector<Shape> bands;
  const auto across = [&](double time) {
    return std::clamp(frame.At(time, drawing.value.low).x, frame.left(), frame.right());
  };
  for (const Maxima_Limit& limit : drawing.limits) {
    for (const Time_Span& span : limit.exceeded) {
      // A moment is seen too.
      const double from = across(span.from), to = std::max(across(span.to), from + 2);
      bands.emplace_back(
          Polygon_Shape{Rectangle({from, frame.top()}, {to, frame.bottom()}), kWarnFill, {}});
    }
  }
  return bands;
}

// The limit and, where the line has room, when it is exceeded.
std::string Words_On_Line(const Maxima_Limit& limit, const std::string& unit, double size,
                          double room) {
  std::string value = Value_Words(limit.value, unit);
  if (limit.exceeded.empty()) return value;
  std::string all = value + ", exceeded";
  if (limit.exceeded.size() == 1) {
    all += " from " + Time_Words(std::round(limit.exceeded[0].from)) + " to " +
           Time_Words(std::round(limit.exceeded[0].to));
  }
  return Text_Width(all, size) <= room ? all : value;
}

// Whether a curve runs through a rectangle, as far as a few places of each of its lines tell.
bool Is_Crossed(const Maxima_Drawing& drawing, const Plot_Frame& frame, Place low, Place high) {
  constexpr int kParts = 24;
  for (const Maxima_Curve& curve : drawing.curves) {
    for (std::size_t i = 0; i + 1 < curve.values.size(); ++i) {
      const Place a = frame.At(curve.values[i].time, curve.values[i].value);
      const Place b = frame.At(curve.values[i + 1].time, curve.values[i + 1].value);
      for (int part = 0; part <= kParts; ++part) {
        const double at = static_cast<double>(part) / kParts;
        const double x = a.x + at * (b.x - a.x), y = a.y + at * (b.y - a.y);
        if (x >= low.x && x <= high.x && y >= low.y && y <= high.y) return true;
      }
    }
  }
  return false;
}

// Where the words of a line at a height are read: above it, as near as no curve is in their way;
// below where the plot ends.
double Free_Baseline(const Maxima_Drawing& drawing, const Plot_Frame& frame, double line,
                     double width, double size) {
  const double nearest = line - kInset / 2, right = frame.right() - kInset;
  if (nearest - size < frame.top()) return line + size;
  for (double baseline = nearest; baseline - size > frame.top(); baseline -= size) {
    const Place low{right - width, baseline - size}, high{right, baseline + kInset / 2};
    if (!Is_Crossed(drawing, frame, low, high)) return baseline;
  }
  return nearest;
}

void Add_Limits(Shape_List& picture, const Maxima_Drawing& drawing, const Plot_Frame& frame,
                double size) {
  for (const Maxima_Limit& limit : drawing.limits) {
    const Place from = frame.At(limit.from, limit.value);
    if (!Has_A_Place(from, frame)) continue;
    const double left = limit.from > 0 ? std::min(from.x, frame.right()) : frame.left();
    picture.shapes.push_back(
        Line_Shape{{{left, from.y}, {frame.right(), from.y}}, Limit_Stroke(limit)});
    const std::string words =
        Words_On_Line(limit, drawing.unit, size, frame.right() - frame.left() - kInset);
    const Place end{frame.right() - kInset,
                    Free_Baseline(drawing, frame, from.y, Text_Width(words, size), size)};
    picture.shapes.push_back(Text_Shape{end, words, size, kWarnInk, Anchor::end});
  }
}

}  // namespace

Plot_Frame Frame_Of(const Maxima_Drawing& drawing, const Canvas& canvas) {
  Plot_Layout layout;
  layout.across = {drawing.time, "Time from the start (s)"};
  layout.upright = {drawing.value, Upright_Label(drawing, canvas)};
  // What the limits are stands beside their lines too; a picture in small has room for its curves
  // alone.
  for (const bool with_limits : {true, false}) {
    layout.legend = Legend_Of(drawing, canvas, with_limits);
    Plot_Frame frame(layout, canvas);
    if (frame.bottom() - frame.top() >= kLeastLines * canvas.text_size) return frame;
  }
  layout.legend.clear();
  return Plot_Frame(layout, canvas);
}

double Least_Height(const Maxima_Drawing& drawing, const Canvas& canvas) {
  constexpr double kHigh = 1e4;  // pixels
  Plot_Layout layout;
  layout.across = {drawing.time, "Time"};
  layout.upright = {drawing.value, "Value"};
  layout.legend = Legend_Of(drawing, canvas, false);
  const Plot_Frame frame(layout, {canvas.width, kHigh, canvas.text_size});
  // The frame goes to whole pixels: one more is enough.
  return kHigh - (frame.bottom() - frame.top()) + kLeastLines * canvas.text_size + 1;
}

Shape_List Maxima_Shapes(const Maxima_Drawing& drawing, const Canvas& canvas) {
  const Plot_Frame frame = Frame_Of(drawing, canvas);
  Shape_List picture = frame.Ground("Max Conc. vs Time: " + drawing.title, drawing.description);
  // The bands are ground: lines go over them.
  const auto bands = Bands(drawing, frame);
  picture.shapes.insert(picture.shapes.begin(), bands.begin(), bands.end());
  Add_Limits(picture, drawing, frame, canvas.text_size);
  for (const Maxima_Curve& curve : drawing.curves) Add_Curve(picture, frame, curve);
  frame.Add_Axes(picture);
  return picture;
}

Shape_List Reading_Shapes(const Maxima_Drawing& drawing, const Canvas& canvas, double time) {
  const Plot_Frame frame = Frame_Of(drawing, canvas);
  Shape_List above{canvas.width, canvas.height, "", "", {}};
  const double x = frame.At(time, drawing.value.low).x;
  above.shapes.push_back(
      Line_Shape{{{x, frame.top()}, {x, frame.bottom()}}, {kQuietInk, 1, Dash::dotted}});
  for (const Maxima_Curve& curve : drawing.curves) {
    const auto value = Value_At(curve, time);
    if (!value) continue;
    const Place at = frame.At(time, *value);
    if (!Has_A_Place(at, frame)) continue;
    above.shapes.push_back(Circle_Shape{at, kReadMark, Look_Of(curve.where).colour, {}});
  }
  return above;
}

}  // namespace barvon
