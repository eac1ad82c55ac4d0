#include "pictures/drawings/time_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "pictures/shapes/inks.h"
#include "pictures/shapes/lettering.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr double kLeastSpan = 1;                    // s
constexpr double kThinnestStep = 3;                 // pixels; narrower ones become one band
constexpr double kLabelGap = 6, kMarkRadius = 4.5;  // pixels
constexpr double kInset = 0.22;                     // of a lane, above and below what is in it
constexpr std::array<const char*, kTimeLanes> kLabels = {"Duration", "Time steps", "Print times"};

bool Is_A_Time(double value) { return Can_Be_Drawn(value) && value > 0; }

std::vector<double> Quarters(double duration) {
  return {duration / 4, duration / 2, duration * 3 / 4, duration};
}

bool Increase(const std::vector<Print_Mark>& prints) {
  for (std::size_t i = 1; i < prints.size(); ++i) {
    if (!(prints[i].time > prints[i - 1].time)) return false;
  }
  return true;
}

std::string Note_Of(const Time_Drawing& drawing) {
  if (!drawing.duration) return "No duration above 0 yet.";
  std::string note;
  if (!drawing.step) {
    note = "No time step above 0 yet. ";
  } else if (*drawing.step >= *drawing.duration / 2) {
    note = "The time step is half of the duration or longer. ";
  }
  const auto beyond = std::count_if(drawing.prints.begin(), drawing.prints.end(),
                                    [](const Print_Mark& print) { return !print.is_taken; });
  if (beyond > 0) note += Counted(beyond, "print time") + " not within the duration. ";
  if (!Increase(drawing.prints)) note += "Print times do not increase. ";
  if (drawing.left_out > 0) note += Counted(drawing.left_out, "print time") + " missing. ";
  if (!note.empty()) note.pop_back();
  return note;
}

Axis_Scale Scale_Of(const Time_Drawing& drawing) {
  std::vector<double> times = {0, drawing.duration.value_or(0)};
  for (const Print_Mark& print : drawing.prints) times.push_back(print.time);
  Value_Range range = *Range_Of(times);
  if (range.high - range.low < kLeastSpan) range.high = range.low + kLeastSpan;
  return Scale_Over(range, kLeastSpan);
}

std::string Description_Of(const Time_Drawing& drawing) {
  std::string text;
  for (const Time_Lane lane : {Time_Lane::duration, Time_Lane::steps, Time_Lane::prints}) {
    text += Lane_Words(drawing, lane) + ". ";
  }
  if (drawing.note.empty()) {
    text.pop_back();
  } else {
    text += drawing.note;
  }
  return text;
}

/// A lane as a rectangle from one time to another.
std::vector<Place> Area(const Plot_Frame& frame, Time_Lane lane, const Value_Range& times) {
  const double top = static_cast<double>(lane);
  return Rectangle(frame.At(times.low, top + kInset), frame.At(times.high, top + 1 - kInset));
}

void Add_Steps(Shape_List& picture, const Plot_Frame& frame, const Time_Drawing& drawing) {
  if (!drawing.duration || !drawing.step) return;
  const double end = *drawing.duration, step = *drawing.step;
  const double width = frame.At(step, 0).x - frame.At(0, 0).x;
  const double stepped = std::min(step * drawing.steps, end);
  const bool separate = width >= kThinnestStep;
  picture.shapes.push_back(Polygon_Shape{Area(frame, Time_Lane::steps, {0, stepped}),
                                         separate ? kWhite : kGridInk, Stroke{kAxisInk, 1}});
  if (!separate) return;
  const double top = static_cast<double>(Time_Lane::steps);
  for (double i = 1; i < drawing.steps; ++i) {
    picture.shapes.push_back(Line_Shape{
        {frame.At(i * step, top + kInset), frame.At(i * step, top + 1 - kInset)}, {kAxisInk, 1}});
  }
}

void Add_Prints(Shape_List& picture, const Plot_Frame& frame, const Time_Drawing& drawing) {
  const double top = static_cast<double>(Time_Lane::prints);
  for (const Print_Mark& print : drawing.prints) {
    const Colour ink = print.is_taken ? kZInk : kWarnInk;
    picture.shapes.push_back(Line_Shape{{frame.At(print.time, 0), frame.At(print.time, top + 0.5)},
                                        {ink, 1, print.is_taken ? Dash::solid : Dash::dashed}});
    picture.shapes.push_back(Circle_Shape{frame.At(print.time, top + 0.5), kMarkRadius,
                                          print.is_taken ? ink : kWarnFill, Stroke{ink, 1.5}});
  }
}

}  // namespace

Time_Drawing Draw_Times(const Run_Times& times) {
  Time_Drawing drawing;
  drawing.own_prints = times.own_prints;
  if (Is_A_Time(times.duration)) drawing.duration = times.duration;
  if (Is_A_Time(times.time_step)) drawing.step = times.time_step;
  // A quotient just below a whole number is that number: 0.3 / 0.1.
  if (drawing.duration && drawing.step) {
    drawing.steps = std::floor(*drawing.duration / *drawing.step * (1 + 1e-12));
  }
  std::vector<double> prints = times.own_prints ? times.prints : std::vector<double>();
  if (!times.own_prints && drawing.duration) prints = Quarters(*drawing.duration);
  for (const double time : prints) {
    if (Can_Be_Drawn(time)) {
      drawing.prints.push_back({time, time > 0 && time <= drawing.duration.value_or(0)});
    } else {
      ++drawing.left_out;
    }
  }
  drawing.time = Scale_Of(drawing);
  drawing.note = Note_Of(drawing);
  drawing.description = Description_Of(drawing);
  return drawing;
}

Plot_Frame Frame_Of(const Time_Drawing& drawing, const Canvas& canvas) {
  double room = 0;
  for (const char* label : kLabels) {
    room = std::max(room, Text_Width(label, canvas.text_size) + 2 * kLabelGap);
  }
  Plot_Layout layout;
  layout.across = {drawing.time, "Time (sec)"};
  layout.upright = {{0, kTimeLanes, 1, 0}, "", 0, true, false};
  layout.left_room = room;
  return Plot_Frame(layout, canvas);
}

Shape_List Time_Shapes(const Time_Drawing& drawing, const Canvas& canvas) {
  const Plot_Frame frame = Frame_Of(drawing, canvas);
  Shape_List picture = frame.Ground("Time line of the simulation", drawing.description);
  if (drawing.duration) {
    picture.shapes.push_back(
        Polygon_Shape{Area(frame, Time_Lane::duration, {0, *drawing.duration}), kXInk, {}});
  }
  Add_Steps(picture, frame, drawing);
  Add_Prints(picture, frame, drawing);
  const double size = canvas.text_size;
  for (int lane = 0; lane < kTimeLanes; ++lane) {
    const double middle = frame.At(drawing.time.low, lane + 0.5).y;
    picture.shapes.push_back(Text_Shape{{frame.left() - kLabelGap, middle + Half_Figure(size)},
                                        kLabels[static_cast<std::size_t>(lane)],
                                        size,
                                        kInk,
                                        Anchor::end});
  }
  frame.Add_Axes(picture);
  return picture;
}

std::string Lane_Words(const Time_Drawing& drawing, Time_Lane lane) {
  std::string text = kLabels[static_cast<std::size_t>(lane)];
  text += ": ";
  switch (lane) {
    case Time_Lane::duration:
      return text + (drawing.duration ? Short_Text(*drawing.duration) + " s" : "none");
    case Time_Lane::steps:
      if (!drawing.step) return text + "none";
      if (!drawing.duration) return text + Short_Text(*drawing.step) + " s each";
      return text + Short_Text(drawing.steps) + " of " + Short_Text(*drawing.step) + " s";
    case Time_Lane::prints:
      break;
  }
  if (drawing.prints.empty()) return text + "none";
  if (!drawing.own_prints) text += "quarterly, ";
  for (const Print_Mark& print : drawing.prints) text += Short_Text(print.time) + ", ";
  text.pop_back();
  text.back() = ' ';
  return text + "s";
}

}  // namespace barvon
