#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Numbers of the outputs as text: by to_chars alone, so that they are the same bytes everywhere.
/// Minus zero is written as zero.
namespace companion {

inline constexpr std::size_t kSciColumns = 14;
inline constexpr int kSciDigits = 7;
inline constexpr std::size_t kIntColumns = 5;
inline constexpr std::size_t kMapColumns = 11;
inline constexpr int kMapDigits = 5;
inline constexpr double kLeastWritten = 1e-99;  // of any quantity: less is written as 0

/// Right-justified; a text that is as wide or wider stays as it is behind one blank.
std::string Right(const std::string& text, std::size_t columns);
std::string Left(std::string text, std::size_t columns);

/// Seven digits with an exponent, 14 columns: "  1.234567e+03".
std::string Sci(double value);
/// Five columns.
std::string Int(long value);
/// Five digits with an exponent, 11 columns.
std::string Map_Number(double value);

/// At most `digits` significant digits, without an exponent where that reads well, for reading.
std::string Plain(double value, int digits = 5);
/// With `decimals` digits behind the point.
std::string Fixed(double value, int decimals);

}  // namespace companion
