#include "pictures/shapes/plot_frame.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"

namespace barvon {
namespace {

constexpr double kTick = 4, kTickGap = 3, kLabelGap = 6, kEdge = 15, kLeastSide = 1;  // pixels
constexpr double kLeastPlot = 0.5;  // of the canvas, beside labels that may go
constexpr double kLine = 1.25;      // height of a line of text, of its size
constexpr double kSampleWidth = 20, kBrokenSampleWidth = 36, kSampleGap = 8, kEntryGap = 16;
constexpr double kMarker = 3.5, kTriangle = 9, kMarkerStroke = 1.4, kLineStroke = 1.8;

double Widest_Label(const Axis_Scale& scale, double size) {
  double widest = 0;
  for (const double value : Labels_Of(scale, 1)) {
    widest = std::max(widest, Text_Width(Label_Text(scale, value), size));
  }
  return widest;
}

// The middle of a pixel, where a thin upright or level line is sharp.
double Sharp(double place) { return std::floor(place) + 0.5; }

double Part_With_Margin(const Plot_Axis& axis, double value) {
  return (Part_Of_Axis(axis.scale, value) + axis.margin) / (1 + 2 * axis.margin);
}

double Value_With_Margin(const Plot_Axis& axis, double part) {
  return Value_On_Axis(axis.scale, part * (1 + 2 * axis.margin) - axis.margin);
}

/// Powers of ten with their double and fivefold between them.
std::vector<double> With_2_And_5(const std::vector<double>& powers) {
  std::vector<double> labels;
  for (const double power : powers) {
    for (const double factor : {1.0, 2.0, 5.0}) labels.push_back(factor * power);
  }
  labels.resize(labels.size() - 2);
  return labels;
}

std::vector<double> Labels_For(const Plot_Axis& axis, double pixels, double label) {
  constexpr int kFewDecades = 2;  // whose powers alone would say little of what lies between
  const Axis_Scale& scale = axis.scale;
  std::vector<double> labels = Labels_Of(scale, 1);
  const int steps = static_cast<int>(labels.size()) - 1;
  if (scale.logarithmic && steps > 0 && steps <= kFewDecades &&
      std::log10(2) * pixels / steps >= label) {
    return With_2_And_5(labels);
  }
  labels = Labels_Of(scale, Label_Stride(steps, pixels, label));
  // Of a short axis the two ends may be too close for both.
  if (labels.size() > 1) {
    const double apart = Part_With_Margin(axis, labels[1]) - Part_With_Margin(axis, labels[0]);
    if (apart * pixels < label) labels.resize(1);
  }
  return labels;
}

/// Leaves the label as it is, or one step shorter where it does not fit: whether it is shorter.
bool Shorten_Label(Plot_Axis& axis, double axis_pixels, bool crowded, double size) {
  if (axis.short_label.empty() || axis.label.empty()) return false;
  const bool fits = !crowded && Text_Width(axis.label, size) <= axis_pixels;
  if (fits) return false;
  const bool again = !crowded && axis.label != axis.short_label;
  axis.label = again ? axis.short_label : std::string();
  return true;
}

void Add_Marker(Shape_List& picture, Place at, Colour colour, Sample sample) {
  const Stroke edge{colour, kMarkerStroke};
  if (sample == Sample::line) return;
  if (sample == Sample::triangles) {
    const double half = kTriangle / 2, above = kTriangle / std::sqrt(3.0);
    picture.shapes.push_back(Polygon_Shape{
        {{at.x, at.y - above}, {at.x + half, at.y + above / 2}, {at.x - half, at.y + above / 2}},
        kWhite,
        edge});
  } else if (sample == Sample::squares) {
    picture.shapes.push_back(
        Polygon_Shape{Rectangle({at.x - kMarker, at.y - kMarker}, {at.x + kMarker, at.y + kMarker}),
                      kWhite, edge});
  } else {
    picture.shapes.push_back(Circle_Shape{at, kMarker, kWhite, edge});
  }
}

// A broken line shows that it is one beside its marker.
double Sample_Width(const Legend_Entry& entry) {
  return entry.dash == Dash::solid ? kSampleWidth : kBrokenSampleWidth;
}

double Entry_Width(const Legend_Entry& entry, double size) {
  return Sample_Width(entry) + kSampleGap + Text_Width(entry.text, size) + kEntryGap;
}

// The entries in rows that are no wider than the canvas, one at least in each.
std::vector<std::vector<Legend_Entry>> Legend_Rows(const std::vector<Legend_Entry>& entries,
                                                   const Canvas& canvas) {
  std::vector<std::vector<Legend_Entry>> rows;
  double used = 0;
  for (const Legend_Entry& entry : entries) {
    const double width = Entry_Width(entry, canvas.text_size);
    if (rows.empty() || used + width > canvas.width - kEdge) {
      rows.emplace_back();
      used = 0;
    }
    rows.back().push_back(entry);
    used += width;
  }
  return rows;
}

}  // namespace

Plot_Frame::Plot_Frame(Plot_Layout layout, const Canvas& canvas)
    : layout_(std::move(layout)), canvas_(canvas) {
  Lay_Out();
  while (Shorten_Labels()) Lay_Out();
}

void Plot_Frame::Lay_Out() {
  const Canvas& canvas = canvas_;
  const double line = kLine * canvas.text_size;
  const auto beside = [&](const Plot_Axis& axis, double numbers) {
    return (axis.labelled ? kTick + kTickGap + numbers : 0) +
           (axis.label.empty() ? 0 : kLabelGap + line);
  };
  const double above = static_cast<double>(Legend_Rows(layout_.legend, canvas).size()) * line;
  const double across = beside(layout_.across, line);
  const double upright =
      beside(layout_.upright, Widest_Label(layout_.upright.scale, canvas.text_size));
  left_ = Sharp(std::max(kEdge, upright + layout_.left_room));
  top_ = Sharp(kEdge + above + (layout_.across_on_top ? across - kEdge / 2 : 0));
  // A number stands in the middle below its line, the last one too.
  const double last_number =
      layout_.across.labelled ? Widest_Label(layout_.across.scale, canvas.text_size) / 2 : 0;
  right_ = std::max(Sharp(canvas.width - std::max(kEdge, last_number)), left_ + kLeastSide);
  bottom_ = std::max(Sharp(canvas.height - (layout_.across_on_top ? kEdge : across + kEdge / 3)),
                     top_ + kLeastSide);
  room_across_ = right_ - left_;
  room_down_ = bottom_ - top_;
  if (layout_.equal_scales) Shrink_To_Equal_Scales();
}

// What a label takes from the canvas upright is room that the axis across has beside it, and the
// other way round.
bool Plot_Frame::Shorten_Labels() {
  const double size = canvas_.text_size;
  const bool low = room_down_ < kLeastPlot * canvas_.height;
  const bool narrow = room_across_ < kLeastPlot * canvas_.width;
  const bool across = Shorten_Label(layout_.across, right_ - left_, low, size);
  const bool upright = Shorten_Label(layout_.upright, bottom_ - top_, narrow, size);
  return across || upright;
}

double Plot_Frame::numbers_right() const {
  if (!layout_.across.labelled) return right_;
  return right_ + Widest_Label(layout_.across.scale, canvas_.text_size) / 2;
}

void Plot_Frame::Shrink_To_Equal_Scales() {
  const auto span = [](const Axis_Scale& scale) { return scale.high - scale.low; };
  const double across = span(layout_.across.scale), upright = span(layout_.upright.scale);
  if (!(across > 0) || !(upright > 0)) return;
  const double pixels = std::min((right_ - left_) / across, (bottom_ - top_) / upright);
  right_ = left_ + pixels * across;
  bottom_ = top_ + pixels * upright;
}

Place Plot_Frame::At(double across, double upright) const {
  const double right = Part_With_Margin(layout_.across, across);
  const double up = Part_With_Margin(layout_.upright, upright);
  return {left_ + right * (right_ - left_), layout_.upright.downwards
                                                ? top_ + up * (bottom_ - top_)
                                                : bottom_ - up * (bottom_ - top_)};
}

double Plot_Frame::Across_At(const Place& place) const {
  return Value_With_Margin(layout_.across, (place.x - left_) / (right_ - left_));
}

double Plot_Frame::Upright_At(const Place& place) const {
  const double down = (place.y - top_) / (bottom_ - top_);
  return Value_With_Margin(layout_.upright, layout_.upright.downwards ? down : 1 - down);
}

bool Plot_Frame::Holds(const Place& place) const {
  return place.x >= left_ && place.x <= right_ && place.y >= top_ && place.y <= bottom_;
}

std::vector<double> Plot_Frame::Labels_Across() const {
  const Axis_Scale& scale = layout_.across.scale;
  const double size = canvas_.text_size;
  return Labels_For(layout_.across, right_ - left_, Widest_Label(scale, size) + size);
}

std::vector<double> Plot_Frame::Labels_Upright() const {
  return Labels_For(layout_.upright, bottom_ - top_, 1.8 * canvas_.text_size);
}

Shape_List Plot_Frame::Ground(const std::string& title, const std::string& description) const {
  Shape_List picture{
      std::max(canvas_.width, 0.0), std::max(canvas_.height, 0.0), title, description, {}};
  const auto add = [&](double value, Place a, Place b) {
    picture.shapes.push_back(Line_Shape{{a, b}, {value == 0 ? kZeroInk : kGridInk, 1}});
  };
  if (layout_.across.labelled) {
    for (const double value : Labels_Across()) {
      const double x = Sharp(At(value, layout_.upright.scale.low).x);
      add(value, {x, top_}, {x, bottom_});
    }
  }
  if (layout_.upright.labelled) {
    for (const double value : Labels_Upright()) {
      const double y = Sharp(At(layout_.across.scale.low, value).y);
      add(value, {left_, y}, {right_, y});
    }
  }
  return picture;
}

void Plot_Frame::Add_Band(Shape_List& picture, Value_Range range, Colour fill) const {
  const double across = layout_.across.scale.low;
  const double from = std::clamp(At(across, range.low).y, top_, bottom_);
  const double to = std::clamp(At(across, range.high).y, top_, bottom_);
  picture.shapes.push_back(Polygon_Shape{Rectangle({left_, from}, {right_, to}), fill, {}});
}

void Plot_Frame::Add_Mark(Shape_List& picture, double upright, const Stroke& stroke) const {
  const double y = At(layout_.across.scale.low, upright).y;
  picture.shapes.push_back(Line_Shape{{{left_, y}, {right_, y}}, stroke});
}

void Plot_Frame::Add_Axes(Shape_List& picture) const {
  Add_Across(picture);
  Add_Upright(picture);
  Add_Legend(picture);
}

void Plot_Frame::Add_Across(Shape_List& picture) const {
  const double size = canvas_.text_size;
  const double base = layout_.across_on_top ? top_ : bottom_;
  const double out = layout_.across_on_top ? -1 : 1;
  // Letters grow upwards from their baseline, so below the axis they begin lower.
  const auto baseline = [&](double distance) {
    return base + out * distance + (out > 0 ? 0.9 * size : 0);
  };
  picture.shapes.push_back(Line_Shape{{{left_, base}, {right_, base}}, {kAxisInk, 1}});
  double used = 0;
  if (layout_.across.labelled) {
    for (const double value : Labels_Across()) {
      const double x = Sharp(At(value, layout_.upright.scale.low).x);
      picture.shapes.push_back(Line_Shape{{{x, base}, {x, base + out * kTick}}, {kAxisInk, 1}});
      picture.shapes.push_back(Text_Shape{{x, baseline(kTick + kTickGap)},
                                          Label_Text(layout_.across.scale, value),
                                          size,
                                          kInk,
                                          Anchor::middle});
    }
    used = kTick + kTickGap + size;
  }
  if (layout_.across.label.empty()) return;
  picture.shapes.push_back(Text_Shape{{(left_ + right_) / 2, baseline(used + kLabelGap)},
                                      layout_.across.label,
                                      size,
                                      kInk,
                                      Anchor::middle});
}

void Plot_Frame::Add_Upright(Shape_List& picture) const {
  const double size = canvas_.text_size;
  picture.shapes.push_back(Line_Shape{{{left_, top_}, {left_, bottom_}}, {kAxisInk, 1}});
  double used = 0;
  if (layout_.upright.labelled) {
    for (const double value : Labels_Upright()) {
      const double y = Sharp(At(layout_.across.scale.low, value).y);
      picture.shapes.push_back(Line_Shape{{{left_ - kTick, y}, {left_, y}}, {kAxisInk, 1}});
      picture.shapes.push_back(Text_Shape{{left_ - kTick - kTickGap, y + Half_Figure(size)},
                                          Label_Text(layout_.upright.scale, value),
                                          size,
                                          kInk,
                                          Anchor::end});
    }
    used = kTick + kTickGap + Widest_Label(layout_.upright.scale, size);
  }
  if (layout_.upright.label.empty()) return;
  picture.shapes.push_back(Text_Shape{{left_ - used - kLabelGap, (top_ + bottom_) / 2},
                                      layout_.upright.label,
                                      size,
                                      kInk,
                                      Anchor::middle,
                                      true});
}

void Plot_Frame::Add_Legend(Shape_List& picture) const {
  const double size = canvas_.text_size;
  double middle = kLine * size / 2 + 4;
  for (const auto& row : Legend_Rows(layout_.legend, canvas_)) {
    double width = 0;
    for (const Legend_Entry& entry : row) width += Entry_Width(entry, size);
    double x = std::max(kSampleGap, (canvas_.width - width + kEntryGap) / 2);
    for (const Legend_Entry& entry : row) {
      const Place from{x, middle}, to{x + Sample_Width(entry), middle};
      if (entry.sample == Sample::area) {
        const double half = 0.4 * size;
        picture.shapes.push_back(
            Polygon_Shape{Rectangle({from.x, middle - half}, {to.x, middle + half}), entry.colour,
                          Stroke{kAxisInk, 1}});
      } else {
        picture.shapes.push_back(Line_Shape{{from, to}, {entry.colour, kLineStroke, entry.dash}});
        Add_Marker(picture, {(from.x + to.x) / 2, middle}, entry.colour, entry.sample);
      }
      picture.shapes.push_back(
          Text_Shape{{to.x + kSampleGap, middle + Half_Figure(size)}, entry.text, size, kInk});
      x += Entry_Width(entry, size);
    }
    middle += kLine * size;
  }
}

void Add_Marked_Line(Shape_List& picture, const Plot_Frame& frame,
                     const std::vector<Plot_Value>& values, Colour colour, Sample markers,
                     Dash dash) {
  std::vector<Place> places;
  for (const Plot_Value& value : values) places.push_back(frame.At(value.across, value.upright));
  picture.shapes.push_back(Line_Shape{places, {colour, kLineStroke, dash}});
  for (const Place& place : places) Add_Marker(picture, place, colour, markers);
}

}  // namespace barvon
