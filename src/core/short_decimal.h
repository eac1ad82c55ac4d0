#pragma once

#include <array>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace barvon {

/// Decimals as people write them: a sign perhaps, at most 15 digits, a point, no exponent. Their
/// digits and the power of ten behind the point are exact as doubles, so that one division rounds
/// as the general conversion does, bit for bit, without its search.
static_assert(FLT_EVAL_METHOD == 0, "a result with more digits than a double has is rounded twice");
inline constexpr std::ptrdiff_t kShortDigits = 15;
inline constexpr std::array<double, kShortDigits + 1> kPowersOfTen = {
    1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Reads the short decimal at `at` and moves `at` behind it. False, and nothing is changed, where
/// there is none. What follows it may still belong to the number ("1.5E3", "1 5"): the caller
/// looks.
inline bool Read_Short_Decimal(const char*& at, const char* end, double& value) {
  const char* next = at;
  std::uint64_t whole = 0;  // wraps for more digits than are taken
  const auto digits = [&] {
    const char* const first = next;
    for (; next != end && *next >= '0' && *next <= '9'; ++next) {
      whole = whole * 10 + static_cast<std::uint64_t>(*next - '0');
    }
    return next - first;
  };
  const bool negative = next != end && *next == '-';
  if (negative || (next != end && *next == '+')) ++next;
  const std::ptrdiff_t before = digits();
  std::ptrdiff_t decimals = 0;
  if (next != end && *next == '.') {
    ++next;
    decimals = digits();
  }
  const std::ptrdiff_t count = before + decimals;
  if (count == 0 || count > kShortDigits) return false;
  const double magnitude = static_cast<double>(static_cast<std::int64_t>(whole)) /
                           kPowersOfTen[static_cast<std::size_t>(decimals)];
  value = negative ? -magnitude : magnitude;
  at = next;
  return true;
}

/// whole x 10^-decimals.
struct Short_Decimal {
  std::int64_t whole = 0;
  int decimals = 0;
};

/// The short decimal with the fewest decimals, and no more than 6, that reads as `magnitude`;
/// nothing when there is none. It is what rounding to 15 digits gives: no two decimals of 15 digits
/// read as the same normal double.
inline std::optional<Short_Decimal> Short_Decimal_Of(double magnitude) {
  constexpr int kMostDecimals = 6;
  constexpr double kProductError = 0x1p-51;  // twice what reading and scaling can be off
  for (int decimals = 0; decimals <= kMostDecimals; ++decimals) {
    const double power = kPowersOfTen[static_cast<std::size_t>(decimals)];
    const double scaled = magnitude * power;
    if (!(scaled < kPowersOfTen[kShortDigits] - 1)) return std::nullopt;
    const auto below = static_cast<std::int64_t>(scaled);
    const std::int64_t whole = scaled - static_cast<double>(below) > 0.5 ? below + 1 : below;
    const auto rounded = static_cast<double>(whole);
    if (std::abs(scaled - rounded) <= scaled * kProductError && rounded / power == magnitude) {
      return Short_Decimal{whole, decimals};
    }
  }
  return std::nullopt;
}

}  // namespace barvon
