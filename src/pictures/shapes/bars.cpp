#include "pictures/shapes/bars.h"

#include <algorithm>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr double kLabelPart = 0.4;               // of the width that labels may take
constexpr double kLabelGap = 6, kRemarkGap = 5;  // pixels
constexpr double kGapPart = 0.2, kWidestGap = 6, kThinnestWithGap = 4;
constexpr std::size_t kMostInWords = 40;

bool Is_Drawn(const Bar_Part& part, bool logarithmic) {
  if (!Can_Be_Drawn(part.from) || !Can_Be_Drawn(part.to)) return false;
  return !logarithmic || part.to >= kSmallestOnLog;
}

Axis_Scale Scale_Of(const Bar_Chart& chart) {
  std::vector<double> values;
  for (const Bar& bar : chart.bars) {
    for (const Bar_Part& part : bar.parts) {
      values.insert(values.end(), {part.from, part.to});
      // So that the shortest bar on a logarithmic axis still has a length.
      if (chart.logarithmic) values.push_back(part.to / 2);
    }
  }
  if (chart.logarithmic) return Log_Scale_Over(values);
  values.push_back(0);
  Value_Range range = *Range_Of(values);
  if (range.high == range.low) range.high = 1;
  return Scale_Over(range, (range.high - range.low) / 2);
}

std::string Note_Of(const Bars_Drawing& drawing) {
  if (drawing.chart.bars.empty()) return "Nothing to show yet.";
  return drawing.left_out == 0 ? "" : Counted(drawing.left_out, "value") + " not shown.";
}

std::string Description_Of(const Bars_Drawing& drawing) {
  const auto& bars = drawing.chart.bars;
  if (bars.empty()) return drawing.note;
  std::string text = Counted(bars.size(), "bar") + ", " + drawing.chart.value_label + ".";
  const std::size_t told = std::min(bars.size(), kMostInWords);
  for (std::size_t i = 0; i < told; ++i) text += " " + Bar_Words(bars[i]) + ".";
  if (told < bars.size()) text += " And " + std::to_string(bars.size() - told) + " more.";
  if (!drawing.note.empty()) text += " " + drawing.note;
  return text;
}

double Weight_Of(const Bar& bar) {
  return Can_Be_Drawn(bar.weight) ? std::max(bar.weight, 0.0) : 0;
}

double Weights_Of(const std::vector<Bar>& bars) {
  double sum = 0;
  for (const Bar& bar : bars) sum += Weight_Of(bar);
  return sum;
}

Plot_Frame Frame_Of(const Bars_Drawing& drawing, const Canvas& canvas) {
  const double weights = Weights_Of(drawing.chart.bars);
  double room = 0;
  for (const Bar& bar : drawing.chart.bars) {
    room = std::max(room, Text_Width(bar.label, canvas.text_size) + 2 * kLabelGap);
  }
  Plot_Layout layout;
  layout.across = {drawing.scale, drawing.chart.value_label};
  layout.upright = {{0, weights > 0 ? weights : 1, 1, 0}, "", 0, true, false};
  layout.legend = drawing.chart.legend;
  layout.left_room = std::min(room, kLabelPart * canvas.width);
  return Plot_Frame(layout, canvas);
}

/// Where the letters of an UTF-8 text begin, and its end.
std::vector<std::size_t> Letter_Starts(const std::string& text) {
  std::vector<std::size_t> starts;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if ((text[at] & 0xC0) != 0x80) starts.push_back(at);
  }
  starts.push_back(text.size());
  return starts;
}

// As much of the text as there is room for. What is left out is in the middle: names of a list
// often differ in their last letters only.
std::string Shortened(const std::string& text, double size, double room) {
  if (Text_Width(text, size) <= room) return text;
  const std::vector<std::size_t> starts = Letter_Starts(text);
  const std::size_t letters = starts.size() - 1;
  for (std::size_t kept = letters; kept-- > 1;) {
    const std::size_t behind = kept / 2;
    std::string part =
        text.substr(0, starts[kept - behind]) + "..." + text.substr(starts[letters - behind]);
    if (Text_Width(part, size) <= room) return part;
  }
  return "";
}

struct Rows {
  double top = 0, bottom = 0;
};

Rows Inside(const Rows& rows) {
  const double thick = rows.bottom - rows.top;
  const double gap = thick < kThinnestWithGap ? 0 : std::min(kGapPart * thick, kWidestGap);
  return {rows.top + gap / 2, rows.bottom - gap / 2};
}

void Add_Bar(Shape_List& picture, const Plot_Frame& frame, const Bars_Drawing& drawing,
             const Bar& bar, const Rows& rows, double text_size) {
  const double start = drawing.scale.logarithmic ? drawing.scale.low : 0;
  const auto across = [&](double value) {
    return frame.At(drawing.scale.logarithmic ? std::max(value, start) : value, 0).x;
  };
  double end = across(start);
  if (bar.endless) {
    picture.shapes.push_back(Polygon_Shape{Rectangle({end, rows.top}, {frame.right(), rows.bottom}),
                                           kWarnFill, Stroke{kWarnInk, 1, Dash::dashed}});
  }
  for (const Bar_Part& part : bar.parts) {
    const double from = across(part.from), to = across(part.to);
    std::optional<Stroke> edge;
    if (bar.warned) edge = Stroke{kWarnInk, 2};
    picture.shapes.push_back(
        Polygon_Shape{Rectangle({from, rows.top}, {to, rows.bottom}), part.fill, edge});
    end = std::max({end, from, to});
  }
  if (bar.remark.empty() || rows.bottom - rows.top < 0.8 * text_size) return;
  const double width = Text_Width(bar.remark, text_size);
  const bool beside = end + kRemarkGap + width <= frame.right();
  const double left = beside ? end + kRemarkGap : frame.right() - kRemarkGap - width;
  const double middle = (rows.top + rows.bottom) / 2, half = 0.65 * text_size;
  if (!beside) {
    // On a bar of any colour the words have ground of their own.
    picture.shapes.push_back(Polygon_Shape{
        Rectangle({left - 2, middle - half}, {left + width + 2, middle + half}), kWhite, {}});
  }
  picture.shapes.push_back(Text_Shape{{left, middle + Half_Figure(text_size)},
                                      bar.remark,
                                      text_size,
                                      bar.endless || bar.warned ? kWarnInk : kInk});
}

}  // namespace

Bar Plain_Bar(const std::string& label, double value, Colour fill) {
  return {label, {{0, value, fill, ""}}};
}

Bar Stacked_Bar(const std::string& label, const std::vector<Bar_Amount>& amounts) {
  Bar bar{label, {}};
  double from = 0;
  for (const Bar_Amount& amount : amounts) {
    // One that cannot be drawn becomes a part that is left out and counted.
    if (Can_Be_Drawn(amount.amount) && !(amount.amount > 0)) continue;
    bar.parts.push_back({from, from + amount.amount, amount.fill, amount.words});
    if (Can_Be_Drawn(amount.amount)) from += amount.amount;
  }
  return bar;
}

std::string Bar_Words(const Bar& bar) {
  std::string text = bar.label + ":";
  for (const Bar_Part& part : bar.parts) {
    if (text.back() != ':') text += ",";
    if (!part.words.empty()) text += " " + part.words;
    text += part.from == 0 || (part.words.empty() && bar.parts.size() == 1)
                ? " " + Short_Text(part.to)
                : " " + Short_Text(part.from) + " to " + Short_Text(part.to);
  }
  if (!bar.remark.empty()) text += (text.back() == ':' ? " " : ", ") + bar.remark;
  return text.back() == ':' ? text + " nothing" : text;
}

Bars_Drawing Draw_Bars(const Bar_Chart& chart) {
  Bars_Drawing drawing;
  drawing.chart = chart;
  for (Bar& bar : drawing.chart.bars) {
    drawing.left_out += static_cast<int>(std::erase_if(
        bar.parts, [&](const Bar_Part& part) { return !Is_Drawn(part, chart.logarithmic); }));
  }
  drawing.scale = Scale_Of(drawing.chart);
  drawing.note = Note_Of(drawing);
  drawing.description = Description_Of(drawing);
  return drawing;
}

Shape_List Bar_Shapes(const Bars_Drawing& drawing, const Canvas& canvas) {
  const Plot_Frame frame = Frame_Of(drawing, canvas);
  Shape_List picture = frame.Ground(drawing.chart.title, drawing.description);
  const double size = canvas.text_size, room = frame.left() - kLabelGap;
  double weight = 0, free_from = 0;
  for (const Bar& bar : drawing.chart.bars) {
    const Rows rows{frame.At(drawing.scale.low, weight).y,
                    frame.At(drawing.scale.low, weight + Weight_Of(bar)).y};
    weight += Weight_Of(bar);
    Add_Bar(picture, frame, drawing, bar, Inside(rows), size);
    const double middle = (rows.top + rows.bottom) / 2;
    // Of many thin bars every few have a label.
    if (middle - 0.6 * size < free_from || !(rows.bottom > rows.top)) continue;
    free_from = middle + 0.6 * size;
    picture.shapes.push_back(Text_Shape{{room, middle + Half_Figure(size)},
                                        Shortened(bar.label, size, room),
                                        size,
                                        kInk,
                                        Anchor::end});
  }
  frame.Add_Axes(picture);
  return picture;
}

std::optional<std::size_t> Bar_At(const Bars_Drawing& drawing, const Canvas& canvas,
                                  const Place& place) {
  const Plot_Frame frame = Frame_Of(drawing, canvas);
  if (!(place.y >= frame.top() && place.y <= frame.bottom())) return std::nullopt;
  const double at = frame.Upright_At(place);
  double weight = 0;
  for (std::size_t i = 0; i < drawing.chart.bars.size(); ++i) {
    weight += Weight_Of(drawing.chart.bars[i]);
    if (at < weight) return i;
  }
  return std::nullopt;
}

}  // namespace barvon
