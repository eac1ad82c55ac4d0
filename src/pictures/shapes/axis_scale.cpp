#include "pictures/shapes/axis_scale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace barvon {
namespace {

constexpr char kNoNumber[] = "no number";

// 1, 2 or 5 times a power of ten, not below the value.
double Round_Value_Above(double value) {
  const double power = std::pow(10, std::floor(std::log10(value)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= value * (1 - 1e-9)) return factor * power;
  }
  return 10 * power;
}

std::string Text_Of(double value, std::chars_format format, int precision) {
  if (!std::isfinite(value)) return kNoNumber;
  // The longest double has 309 digits before the point.
  std::array<char, 400> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
  std::string text(buffer.data(), end.ptr);
  if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
  return text;
}

}  // namespace

std::optional<Value_Range> Range_Of(const std::vector<double>& values) {
  constexpr double kBeyond = std::numeric_limits<double>::infinity();
  Value_Range range{kBeyond, -kBeyond};
  for (const double value : values) {
    if (!Can_Be_Drawn(value)) continue;
    range.low = std::min(range.low, value);
    range.high = std::max(range.high, value);
  }
  if (range.low > range.high) return std::nullopt;
  return range;
}

Axis_Scale Scale_Over(Value_Range range, double least_span) {
  // A span that the numbers themselves cannot resolve would leave no steps between its ends.
  const double largest = std::max(std::abs(range.low), std::abs(range.high));
  const double span = std::max(least_span, largest * 1e-9);
  if (range.high - range.low < span) {
    const double middle = range.low + (range.high - range.low) / 2;
    range = {middle - span / 2, middle + span / 2};
  }
  Axis_Scale scale;
  scale.step = Round_Value_Above((range.high - range.low) / 5);
  // A hair is forgiven, so that a range that ends on a step keeps its end.
  scale.low = std::floor(range.low / scale.step + 1e-6) * scale.step;
  scale.high = std::ceil(range.high / scale.step - 1e-6) * scale.step;
  scale.decimals = std::max(0, -static_cast<int>(std::floor(std::log10(scale.step) + 1e-9)));
  return scale;
}

Axis_Scale Log_Scale_Over(const std::vector<double>& values) {
  std::vector<double> powers;
  for (const double value : values) {
    if (Can_Be_Drawn(value) && value >= kSmallestOnLog) powers.push_back(std::log10(value));
  }
  const Value_Range range = Range_Of(powers).value_or(Value_Range{0, 1});
  // A hair is forgiven, so that a power of ten is an end itself.
  const double low = std::floor(range.low + 1e-9);
  const double high = std::max(std::ceil(range.high - 1e-9), low + 1);
  return {std::pow(10, low), std::pow(10, high), 10, 0, true};
}

double Part_Of_Axis(const Axis_Scale& scale, double value) {
  if (!Can_Be_Drawn(value)) return std::numeric_limits<double>::quiet_NaN();
  if (!scale.logarithmic) return (value - scale.low) / (scale.high - scale.low);
  if (!(value >= kSmallestOnLog)) return std::numeric_limits<double>::quiet_NaN();
  return std::log10(value / scale.low) / std::log10(scale.high / scale.low);
}

double Value_On_Axis(const Axis_Scale& scale, double part) {
  if (!scale.logarithmic) return scale.low + part * (scale.high - scale.low);
  return scale.low * std::pow(scale.high / scale.low, part);
}

std::vector<double> Labels_Of(const Axis_Scale& scale, int stride) {
  std::vector<double> labels;
  if (scale.logarithmic) {
    const long last = std::lround(std::log10(scale.high / scale.low));
    for (long power = 0; power <= last; power += stride) {
      labels.push_back(scale.low * std::pow(10, static_cast<double>(power)));
    }
    return labels;
  }
  const double apart = scale.step * stride;
  const double last = std::floor(scale.high / apart + 1e-6);
  for (double at = std::ceil(scale.low / apart - 1e-6); at <= last; ++at) {
    labels.push_back(at * apart);
  }
  return labels;
}

std::string Label_Text(const Axis_Scale& scale, double value) {
  constexpr double kLargestInFull = 1e6, kSmallestInFull = 1e-5;
  if (scale.logarithmic) return Short_Text(value);
  const double largest = std::max(std::abs(scale.low), std::abs(scale.high));
  const bool in_full = largest < kLargestInFull && scale.step > kSmallestInFull;
  return in_full ? Fixed_Text(value, scale.decimals) : Short_Text(value);
}

int Label_Stride(int count, double pixels, double label_pixels) {
  if (count < 1 || !(pixels > 0)) return 1;
  for (int power = 1; power < 1'000'000; power *= 10) {
    for (const int stride : {power, 2 * power, 5 * power}) {
      if (stride >= count || stride * pixels / count >= label_pixels) return stride;
    }
  }
  return count;
}

double Round_Value_Below(double value) {
  if (!(value > 0) || !std::isfinite(value)) return 0;
  const double power = std::pow(10, std::floor(std::log10(value)));
  for (const double factor : {5.0, 2.0}) {
    if (factor * power <= value * (1 + 1e-9)) return factor * power;
  }
  return power;
}

std::string Fixed_Text(double value, int decimals) {
  return Text_Of(value, std::chars_format::fixed, decimals);
}

std::string Short_Text(double value) { return Text_Of(value, std::chars_format::general, 6); }

}  // namespace barvon
