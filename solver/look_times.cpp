#include "solver/look_times.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace companion {
namespace {

/// Rising, each once, within the run. Of times that are closer than a moment the first stays, but
/// for the end of the run, which stays whatever is close to it.
std::vector<double> In_Order(std::vector<double> times, double end) {
  std::sort(times.begin(), times.end());
  std::vector<double> kept;
  for (const double time : times) {
    if (time <= 0 || time > end - kSameTime) continue;
    if (kept.empty() || time - kept.back() > kSameTime) kept.push_back(time);
  }
  return kept;
}

}  // namespace

std::vector<double> Map_Times(const Model_Input& input) {
  std::vector<double> times = input.print_times;
  if (times.empty()) {
    for (int quarter = 1; quarter <= 4; ++quarter) times.push_back(quarter * input.duration / 4);
  }
  const bool at_end = std::any_of(times.begin(), times.end(), [&](double time) {
    return std::abs(time - input.duration) <= kSameTime;
  });
  times = In_Order(std::move(times), input.duration);
  if (at_end) times.push_back(input.duration);
  return times;
}

std::vector<double> Series_Times(const Model_Input& input) {
  std::vector<double> times = Map_Times(input);
  for (long i = 1; static_cast<double>(i) * input.step < input.duration; ++i) {
    times.push_back(static_cast<double>(i) * input.step);
  }
  times = In_Order(std::move(times), input.duration);
  times.push_back(input.duration);
  return times;
}

std::vector<double> Look_Times(const Model_Input& input, double last_release,
                               const std::vector<double>& ends) {
  std::vector<double> times = Series_Times(input);
  for (const double end : ends) times.push_back(end + kBehindPhase);
  times.push_back(kInitialMixing);
  const double fine_end = last_release + kFineUntil;
  const double fine = std::max(kFineSpacing, fine_end / kMostFineTimes);
  double time = 0;
  while (time < input.duration) {
    if (time < fine_end) {
      time += fine;
    } else if (time < last_release + kMiddleUntil) {
      time += std::max(fine, kMiddleSpacing);
    } else if (time < last_release + kCoarseUntil) {
      time += std::max(fine, kCoarseSpacing);
    } else {
      time *= kLateGrowth;
    }
    times.push_back(time);
  }
  times = In_Order(std::move(times), input.duration);
  times.push_back(input.duration);
  return times;
}

bool Holds_Time(const std::vector<double>& times, double time) {
  const auto next = std::lower_bound(times.begin(), times.end(), time - kSameTime);
  return next != times.end() && *next <= time + kSameTime;
}

}  // namespace companion
