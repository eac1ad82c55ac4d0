#include "results/plain_numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace barvon {
namespace {

constexpr double kLeastPlain = 1e-4, kMostPlain = 1e15;

}  // namespace

std::string Shortest_Number(double value) {
  const double size = std::abs(value);
  const bool plain = size == 0 || (size >= kLeastPlain && size < kMostPlain);
  std::array<char, 32> letters;  // the longest form has 24
  const auto end = std::to_chars(letters.data(), letters.data() + letters.size(), value,
                                 plain ? std::chars_format::fixed : std::chars_format::scientific);
  return {letters.data(), end.ptr};
}

std::string Rounded_Number(double value, int decimals) {
  std::array<char, 400> letters;  // the largest number has 309 digits before the point
  const auto end = std::to_chars(letters.data(), letters.data() + letters.size(), value,
                                 std::chars_format::fixed, decimals);
  std::string text(letters.data(), end.ptr);
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  return text == "-0" ? "0" : text;
}

double In_Digits(double value, int digits) {
  if (!std::isfinite(value)) return value;
  std::array<char, 40> letters;
  const auto end = std::to_chars(letters.data(), letters.data() + letters.size(), value,
                                 std::chars_format::scientific, digits - 1);
  double rounded = value;
  std::from_chars(letters.data(), end.ptr, rounded);
  return rounded;
}

double Written_Difference(double a, double b, int digits) {
  const double difference = a - b;
  // Most cells of two maps are alike, or one has nothing there.
  if (a == 0 || b == 0 || difference == 0 || !std::isfinite(difference)) return difference;
  // By how many digits the difference is shorter than the larger of both: those are of no number.
  const double larger = std::max(std::abs(a), std::abs(b));
  const int shorter = static_cast<int>(std::floor(std::log10(larger))) -
                      static_cast<int>(std::floor(std::log10(std::abs(difference))));
  return shorter < digits ? In_Digits(difference, digits - shorter) : 0;
}

std::optional<double> Number_Of(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end.ec != std::errc() || end.ptr != text.data() + text.size() || !std::isfinite(value)) {
    return std::nullopt;
  }
  return value;
}

}  // namespace barvon
