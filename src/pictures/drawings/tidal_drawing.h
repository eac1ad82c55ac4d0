#pragma once

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/axis_scale.h"

namespace barvon {

/// Hours from one point of the pattern to the next.
inline constexpr double kTidalStep = 0.5;
/// The time axis ends here at the latest; what lies beyond is told in words.
inline constexpr double kLatestDrawnHour = 50;

/// An unsteady pattern: velocities (ft/s) every half hour from 0, and the interval that is
/// simulated. NaN stands for an empty cell.
struct Tidal_Pattern {
  std::vector<double> x, z;
  double start = 0;     // hours
  double duration = 0;  // hours; no interval is drawn unless it is above 0
  double average_x = std::numeric_limits<double>::quiet_NaN();  // ft/s over the interval
  double average_z = std::numeric_limits<double>::quiet_NaN();  // NaN: no line
};

struct Tidal_Point {
  double hour = 0;
  double velocity = 0;  // ft/s
};

/// What the tidal curve draws.
struct Tidal_Drawing {
  std::vector<Tidal_Point> x, z;
  int left_out = 0;
  double pattern_end = 0;               // hours, the last point's time
  std::optional<Value_Range> interval;  // hours as simulated
  std::optional<Value_Range> shaded;    // the part of it on the time axis
  std::optional<double> average_x, average_z;
  Axis_Scale time;      // hours; ends with the pattern or the interval, not on a step
  Axis_Scale velocity;  // ft/s, holds 0
  std::string note;
  std::string description;
};

Tidal_Drawing Draw_Tide(const Tidal_Pattern& pattern);

/// The curves at the nearest point of the pattern, in words.
std::string Tidal_Text_At(const Tidal_Pattern& pattern, double hour);

}  // namespace barvon
