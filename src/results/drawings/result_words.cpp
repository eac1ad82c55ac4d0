#include "results/drawings/result_words.h"

#include <cmath>

#include "pictures/shapes/axis_scale.h"

namespace barvon {
namespace {

constexpr double kMinute = 60, kHour = 3600;  // s
constexpr int kFigures = 4;

/// So many figures are more than a model can promise.
double Rounded(double value) {
  if (!std::isfinite(value) || value == 0) return value;
  const double power = std::pow(10, kFigures - 1 - std::floor(std::log10(std::abs(value))));
  const double rounded = std::round(value * power) / power;
  return std::isfinite(rounded) ? rounded : value;
}

}  // namespace

std::string Time_Words(double seconds) {
  const std::string plain = Short_Text(seconds) + " s";
  if (seconds >= kHour) return plain + " (" + Short_Text(Rounded(seconds / kHour)) + " h)";
  if (seconds >= kMinute) return plain + " (" + Short_Text(Rounded(seconds / kMinute)) + " min)";
  return plain;
}

std::string Value_Words(double value, const std::string& unit) {
  return std::isfinite(value) ? Short_Text(Rounded(value)) + " " + unit : "no value";
}

std::string Place_Words(const Result_Point& place) {
  return "X " + Short_Text(Rounded(place.x)) + " ft, Z " + Short_Text(Rounded(place.z)) + " ft";
}

}  // namespace barvon
