#include "solver/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace companion {
namespace {

constexpr std::size_t kLongestNumber = 400;  // the largest double without an exponent has 309

/// Nothing where the exponent would need a third digit: every number has its columns.
double In_Two_Digits(double value) { return std::abs(value) < kLeastWritten ? 0 : value; }

std::string Text(double value, std::chars_format format, int digits) {
  if (value == 0) value = 0;  // of either sign
  std::array<char, kLongestNumber> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, format, digits);
  return {text.data(), end.ptr};
}

}  // namespace

std::string Right(const std::string& text, std::size_t columns) {
  return std::string(text.size() < columns ? columns - text.size() : 1, ' ') + text;
}

std::string Left(std::string text, std::size_t columns) {
  if (text.size() < columns) text.resize(columns, ' ');
  return text;
}

std::string Sci(double value) {
  return Right(Text(In_Two_Digits(value), std::chars_format::scientific, kSciDigits - 1),
               kSciColumns);
}

std::string Int(long value) { return Right(std::to_string(value), kIntColumns); }

std::string Map_Number(double value) {
  return Right(Text(In_Two_Digits(value), std::chars_format::scientific, kMapDigits - 1),
               kMapColumns);
}

std::string Plain(double value, int digits) {
  return Text(value, std::chars_format::general, digits);
}

std::string Fixed(double value, int decimals) {
  std::string text = Text(value, std::chars_format::fixed, decimals);
  // What rounds to zero from below has no sign either.
  if (text.front() == '-' && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
  return text;
}

}  // namespace companion
