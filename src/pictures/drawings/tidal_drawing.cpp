#include "pictures/drawings/tidal_drawing.h"

#include "platform/text/counted.h"

#include <algorithm>
#include <cmath>

namespace barvon {
namespace {

constexpr double kLeastVelocitySpan = 0.2;  // ft/s
constexpr double kPatternHours = 12.5;      // the time axis is never shorter

std::vector<Tidal_Point> Points_Of(const std::vector<double>& velocities, int& left_out) {
  std::vector<Tidal_Point> points;
  for (std::size_t i = 0; i < velocities.size(); ++i) {
    if (Can_Be_Drawn(velocities[i])) {
      points.push_back({static_cast<double>(i) * kTidalStep, velocities[i]});
    } else {
      ++left_out;
    }
  }
  return points;
}

std::string Interval_Text(const Value_Range& interval) {
  return Short_Text(interval.low) + " to " + Short_Text(interval.high) + " h";
}

std::string Note_Of(const Tidal_Drawing& drawing) {
  std::string note;
  if (!drawing.interval) {
    note = "No interval: the simulation duration is not above 0. ";
  } else if (!drawing.shaded) {
    note = "The simulated interval, " + Interval_Text(*drawing.interval) +
           ", lies beyond the picture. ";
  } else if (drawing.interval->high > drawing.time.high) {
    note = "The simulated interval goes on to " + Short_Text(drawing.interval->high) + " h. ";
  }
  if (drawing.left_out > 0) note += Counted(drawing.left_out, "value") + " missing. ";
  if (!note.empty()) note.pop_back();
  return note;
}

std::string Curve_Text(const char* name, const std::vector<Tidal_Point>& points) {
  if (points.empty()) return std::string(name) + " velocity: none.";
  const auto [low, high] = std::minmax_element(
      points.begin(), points.end(),
      [](const Tidal_Point& a, const Tidal_Point& b) { return a.velocity < b.velocity; });
  if (low->velocity == high->velocity) {
    return std::string(name) + " velocity " + Short_Text(low->velocity) + " ft/s throughout.";
  }
  return std::string(name) + " velocity from " + Short_Text(low->velocity) + " ft/s at " +
         Short_Text(low->hour) + " h to " + Short_Text(high->velocity) + " ft/s at " +
         Short_Text(high->hour) + " h.";
}

std::string Description_Of(const Tidal_Drawing& drawing) {
  std::string text = Curve_Text("X", drawing.x) + " " + Curve_Text("Z", drawing.z);
  if (drawing.interval) text += " Simulated: " + Interval_Text(*drawing.interval) + ".";
  if (drawing.average_x) text += " X average " + Short_Text(*drawing.average_x) + " ft/s.";
  if (drawing.average_z) text += " Z average " + Short_Text(*drawing.average_z) + " ft/s.";
  if (!drawing.note.empty()) text += " " + drawing.note;
  return text;
}

// The hours that the axis must hold: all of the pattern, and of the interval what a reasonable
// axis can take.
Value_Range Hours_Of(const Tidal_Drawing& drawing) {
  Value_Range hours = {0, std::clamp(drawing.pattern_end, kPatternHours, kLatestDrawnHour)};
  const auto& interval = drawing.interval;
  if (!interval || interval->low >= kLatestDrawnHour || interval->high <= -kLatestDrawnHour) {
    return hours;
  }
  hours.low = std::clamp(interval->low, -kLatestDrawnHour, 0.0);
  hours.high = std::clamp(interval->high, hours.high, kLatestDrawnHour);
  return hours;
}

}  // namespace

Tidal_Drawing Draw_Tide(const Tidal_Pattern& pattern) {
  Tidal_Drawing drawing;
  drawing.x = Points_Of(pattern.x, drawing.left_out);
  drawing.z = Points_Of(pattern.z, drawing.left_out);
  const std::size_t count = std::max(pattern.x.size(), pattern.z.size());
  drawing.pattern_end = count > 0 ? static_cast<double>(count - 1) * kTidalStep : 0;
  const double end = pattern.start + pattern.duration;
  if (Can_Be_Drawn(pattern.start) && Can_Be_Drawn(end) && pattern.duration > 0) {
    drawing.interval = {pattern.start, end};
    if (Can_Be_Drawn(pattern.average_x)) drawing.average_x = pattern.average_x;
    if (Can_Be_Drawn(pattern.average_z)) drawing.average_z = pattern.average_z;
  }
  const Value_Range hours = Hours_Of(drawing);
  // Half the hours make steps half as wide: a tide is read by single hours.
  drawing.time = Scale_Over({hours.low / 2, hours.high / 2}, 1);
  // A pattern of 26 points ends between two whole hours; the axis ends with it.
  drawing.time.low = hours.low;
  drawing.time.high = hours.high;
  if (drawing.interval) {
    const Value_Range shaded = {std::max(drawing.interval->low, hours.low),
                                std::min(drawing.interval->high, hours.high)};
    if (shaded.low < shaded.high) drawing.shaded = shaded;
  }
  std::vector<double> velocities = {0, drawing.average_x.value_or(0),
                                    drawing.average_z.value_or(0)};
  for (const auto* curve : {&drawing.x, &drawing.z}) {
    for (const Tidal_Point& point : *curve) velocities.push_back(point.velocity);
  }
  drawing.velocity = Scale_Over(*Range_Of(velocities), kLeastVelocitySpan);
  drawing.note = Note_Of(drawing);
  drawing.description = Description_Of(drawing);
  return drawing;
}

std::string Tidal_Text_At(const Tidal_Pattern& pattern, double hour) {
  const std::size_t count = std::max(pattern.x.size(), pattern.z.size());
  const double nearest = std::round(hour / kTidalStep);
  if (!(nearest >= 0) || nearest >= static_cast<double>(count)) return {};
  const std::size_t i = static_cast<std::size_t>(nearest);
  const auto text = [i](const std::vector<double>& values) {
    return i < values.size() && Can_Be_Drawn(values[i]) ? Short_Text(values[i]) + " ft/s"
                                                        : std::string("none");
  };
  return "Point " + std::to_string(i + 1) + ", " + Fixed_Text(nearest * kTidalStep, 1) + " h\nX " +
         text(pattern.x) + "\nZ " + text(pattern.z);
}

}  // namespace barvon
