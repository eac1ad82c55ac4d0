#include "results/drawings/map_words.h"

#include <cmath>

#include "pictures/shapes/plan.h"
#include "results/drawings/result_words.h"

namespace barvon {

std::string Reading_Words(double value, const std::string& unit) {
  constexpr double kHair = 1e-12;  // a half in decimals is one, whatever the double: it goes up
  if (!std::isfinite(value)) return "no value";
  if (value == 0) return Value_Words(0, unit);
  const double power = std::pow(10, kReadingFigures - 1 - std::floor(std::log10(std::abs(value))));
  const double rounded = std::round(value * power * (1 + kHair)) / power;
  // At the ends of what a number can be there is nothing to round.
  return Value_Words(std::isfinite(rounded) ? rounded : value, unit);
}

std::string Place_Words(const Result_Point& place) {
  constexpr double kGrain = 100;  // of a foot
  const auto round = [](double feet) { return std::round(feet * kGrain) / kGrain; };
  return Words_Of(Feet_Point{round(place.x), round(place.z)});
}

}  // namespace barvon
