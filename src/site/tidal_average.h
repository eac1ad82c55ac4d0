#pragma once

#include "core/project_record.h"

namespace barvon {

/// Hours between two points of the tidal pattern; point i is at (i - 1) of them.
inline constexpr float kPatternStep = 0.5F;

/// y at x on the straight line through (x1, y1) and (x2, y2). Every step is rounded to 32 bits.
float InterpolateLinear(float x1, float y1, float x2, float y2, float x);

/// The part of the tidal pattern that is simulated, in hours.
struct Tidal_Interval {
  float start = 0;
  float duration = 0;
  float End() const { return start + duration; }
};

/// The velocity averaged over the interval by the trapezoidal rule, ft/s. The listed times and
/// velocities have 32 bits, their sum 64. A duration of 0 has no average: it gives 0.
///
/// Outside the pattern the velocity is 0 at the start, and at the end point 26's beyond 12.5 hours.
double AverageOverInterval(const OneBased<float, kTidalRows>& pattern,
                           const Tidal_Interval& interval);

}  // namespace barvon
