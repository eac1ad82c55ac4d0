#include "site/tidal_average.h"

#include <vector>

namespace barvon {
namespace {

using Pattern = OneBased<float, kTidalRows>;

constexpr float kPatternEnd = (kTidalRows - 1) * kPatternStep;

float Time(int point) { return static_cast<float>(point - 1) * kPatternStep; }

/// The velocity at a time within the pattern, 0 outside. The last point belongs to no interval:
/// at exactly 12.5 hours there is no velocity.
float Velocity_At(const Pattern& pattern, float time) {
  for (int i = 1; i < kTidalRows; ++i) {
    if (Time(i) <= time && time < Time(i + 1)) {
      return InterpolateLinear(Time(i), pattern[i], Time(i + 1), pattern[i + 1], time);
    }
  }
  return 0;
}

}  // namespace

float InterpolateLinear(float x1, float y1, float x2, float y2, float x) {
  const float slope = (y2 - y1) / (x2 - x1);
  return y2 - slope * (x2 - x);
}

double AverageOverInterval(const Pattern& pattern, const Tidal_Interval& interval) {
  if (interval.duration == 0) return 0;
  const float end = interval.End();

  struct Entry {
    float time, velocity;
  };
  std::vector<Entry> list = {{interval.start, Velocity_At(pattern, interval.start)}};
  for (int i = 2; i < kTidalRows; ++i) {
    if (interval.start < Time(i) && Time(i) < end) {
      list.push_back({Time(i), pattern[i]});
    }
  }
  list.push_back({end, end > kPatternEnd ? pattern[kTidalRows] : Velocity_At(pattern, end)});

  double sum = 0;
  for (std::size_t k = 1; k < list.size(); ++k) {
    sum += 0.5 * (double{list[k - 1].velocity} + double{list[k].velocity}) *
           (double{list[k].time} - double{list[k - 1].time});
  }
  return sum / double{interval.duration};
}

}  // namespace barvon
