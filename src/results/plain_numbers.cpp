#include "results/plain_numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace barvon {
namespace {

constexpr double kLeastPlain = 1e-4, kMostPlain = 1e15;

/// So many units of ten to the power.
struct Decimal {
  std::int64_t units = 0;
  int power = 0;
};

/// The decimal of so many digits that is nearest to a finite value.
Decimal In_Units(double value, int digits) {
  std::array<char, 40> letters;
  const auto end = std::to_chars(letters.data(), letters.data() + letters.size(), value,
                                 std::chars_format::scientific, digits - 1);
  Decimal decimal;
  const char* at = letters.data();
  for (; *at != 'e'; ++at) {
    if (*at >= '0' && *at <= '9') decimal.units = 10 * decimal.units + (*at - '0');
  }
  ++at;
  if (*at == '+') ++at;
  std::from_chars(at, end.ptr, decimal.power);
  decimal.power -= digits - 1;
  if (letters[0] == '-') decimal.units = -decimal.units;
  return decimal;
}

/// Halves go away from 0.
std::int64_t Nearest_Quotient(std::int64_t value, std::int64_t by) {
  return (value + (value < 0 ? -by : by) / 2) / by;
}

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
  const bool is_larger = std::abs(a) >= std::abs(b);
  const Decimal larger = In_Units(is_larger ? a : b, digits);
  const Decimal smaller = In_Units(is_larger ? b : a, digits);
  const int shift = larger.power - smaller.power;
  std::int64_t units = larger.units;
  if (shift <= digits) {  // else it is less than half a unit of the larger
    std::int64_t scale = 1;
    for (int i = 0; i < shift; ++i) scale *= 10;
    units = Nearest_Quotient(larger.units * scale - smaller.units, scale);
  }
  if (!is_larger) units = -units;
  constexpr std::size_t kMostUnits = 24;  // letters; 64 bits have 20
  std::array<char, 2 * kMostUnits> letters;
  auto end = std::to_chars(letters.data(), letters.data() + kMostUnits, units).ptr;
  *end++ = 'e';
  end = std::to_chars(end, letters.data() + letters.size(), larger.power).ptr;
  double nearest = difference;  // at the ends of what a number can be
  std::from_chars(letters.data(), end, nearest);
  return nearest;
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
