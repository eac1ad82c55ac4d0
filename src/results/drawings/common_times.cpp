#include "results/drawings/common_times.h"

#include <algorithm>
#include <cmath>

#include "results/drawings/result_words.h"

namespace barvon {
namespace {

constexpr double kSame = 1e-6;
constexpr std::size_t kFew = 6;

bool Holds(const std::vector<double>& times, double wanted) {
  return std::ranges::any_of(times, [&](double time) { return Is_Same_Written(time, wanted); });
}

std::vector<double> Times_Of(const Results& results) {
  std::vector<double> times;
  for (const auto* maps : {&results.maps, &results.beds}) {
    for (const Result_Map& map : *maps) {
      if (!Holds(times, map.time)) times.push_back(map.time);
    }
  }
  std::ranges::sort(times);
  return times;
}

}  // namespace

bool Is_Same_Written(double a, double b) {
  return std::abs(a - b) <= kSame * std::max({1.0, std::abs(a), std::abs(b)});
}

std::string Times_Of_Both(const std::vector<double>& times, std::optional<double> wanted) {
  if (times.empty()) return "No time is in both outputs.";
  if (times.size() == 1) return "The time in both is " + Time_Words(times.front()) + ".";
  if (times.size() > kFew) {
    std::string words = std::to_string(times.size()) + " times are in both, from " +
                        Time_Words(times.front()) + " to " + Time_Words(times.back());
    if (!wanted) return words + ".";
    const double nearest =
        *std::ranges::min_element(times, {}, [&](double time) { return std::abs(time - *wanted); });
    return words + "; the nearest is " + Time_Words(nearest) + ".";
  }
  std::string words = "The times in both are ";
  for (std::size_t i = 0; i < times.size(); ++i) {
    if (i > 0) words += i + 1 < times.size() ? ", " : " and ";
    words += Time_Words(times[i]);
  }
  return words + ".";
}

std::string Common_Times_Words(const Results& own, const Results& other) {
  const std::vector<double> others = Times_Of(other);
  std::vector<double> both = Times_Of(own);
  const std::size_t most = std::max(both.size(), others.size());
  std::erase_if(both, [&](double time) { return !Holds(others, time); });
  if (both.size() == most) return {};
  const std::string words = Times_Of_Both(both);
  return words + (both.empty()       ? " A map has no difference at a time."
                  : both.size() == 1 ? " Differences at a time are of this one alone."
                                     : " Differences at a time are of these alone.");
}

}  // namespace barvon
