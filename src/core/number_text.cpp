#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

#include "core/failure.h"
#include "core/short_decimal.h"

namespace barvon {
namespace {

constexpr int kDefaultDigits = 15;
constexpr int kLeastPlainExponent = -3;  // 0.0001 is 0.1 x 10^-3
constexpr double kLeastPlain = 0.0001;
constexpr int kMostPlainExponent = 15;  // 999999999999999 is 0.999... x 10^15

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }
bool Is_Blank(char c) { return c == ' ' || c == '\t'; }

/// The longest start of the text that is a number, in the form that from_chars reads, and where it
/// ends. The text holds no blanks in front.
struct Leading_Number {
  explicit Leading_Number(std::string_view text);
  std::string number;
  std::size_t end = 0;
};

Leading_Number::Leading_Number(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
    if (text[at] == '-') number += '-';
    ++at;
  }
  bool any_digit = false;
  for (; at < text.size() && Is_Digit(text[at]); ++at, any_digit = true) number += text[at];
  if (at < text.size() && text[at] == '.') {
    number += '.';
    for (++at; at < text.size() && Is_Digit(text[at]); ++at, any_digit = true) number += text[at];
  }
  if (!any_digit) {
    number.clear();
    return;
  }
  end = at;
  if (at < text.size() && std::string_view("eEdD").find(text[at]) != std::string_view::npos) {
    std::string exponent = "e";
    std::size_t next = at + 1;
    if (next < text.size() && (text[next] == '-' || text[next] == '+')) exponent += text[next++];
    const std::size_t first_digit = next;
    while (next < text.size() && Is_Digit(text[next])) exponent += text[next++];
    if (next > first_digit) {
      number += exponent;
      end = next;
    }
  }
}

/// Whether a number that no double holds is too small rather than too large. The written power of
/// ten is shifted by the place of the first digit that counts.
bool Is_Tiny(const std::string& number) {
  const auto e = number.find('e');
  const std::string mantissa = number.substr(0, e);
  const auto first = mantissa.find_first_of("123456789");
  if (first == std::string::npos) return true;
  const auto point = std::min(mantissa.find('.'), mantissa.size());
  const bool negative_power = e != std::string::npos && number[e + 1] == '-';
  if (e == std::string::npos) return first > point;
  // Powers with more digits than an int holds are decided by their sign alone.
  const std::string power_digits = number.substr(number.find_first_of("0123456789", e));
  int power = 0;
  const auto [end, error] =
      std::from_chars(power_digits.data(), power_digits.data() + power_digits.size(), power);
  if (error != std::errc()) return negative_power;
  const long long place = static_cast<long long>(point) - static_cast<long long>(first);
  return place + (negative_power ? -1LL : 1LL) * power < 0;
}

enum class Range { Held, Too_Small, Too_Large };

struct Conversion {
  double value = 0;  // 0 unless it is held
  Range range = Range::Held;
};

Conversion Convert(const std::string& number) {
  if (number.empty()) return {};
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error == std::errc::result_out_of_range) {
    // from_chars does not tell too large from too small.
    return {0, Is_Tiny(number) ? Range::Too_Small : Range::Too_Large};
  }
  return {value, Range::Held};
}

std::int16_t Whole_To_Int16(double whole) {
  if (!(whole >= std::numeric_limits<std::int16_t>::min() &&
        whole <= std::numeric_limits<std::int16_t>::max())) {
    throw Run_Time_Failure{Failure::Overflow};
  }
  return static_cast<std::int16_t>(whole);
}

std::string Name_Of_Non_Number(double value) {
  if (std::isnan(value)) return "nan";
  return value < 0 ? "-inf" : "inf";
}

/// One digit, its decimals if there are any, and a power of ten of two digits or more.
std::string Exponent_Form(const Decimal_Digits& decimal) {
  std::string text = decimal.negative ? "-" : "";
  text += decimal.digits.front();
  if (decimal.digits.size() > 1) text.append(".").append(decimal.digits, 1);
  const int power = decimal.exponent - 1;
  text += power < 0 ? "E-" : "E+";
  if (std::abs(power) < 10) text += '0';
  return text + std::to_string(std::abs(power));
}

/// The default text form of any value.
std::string General_Form(double value) {
  if (!std::isfinite(value)) return Name_Of_Non_Number(value);
  const Decimal_Digits decimal = To_Decimal(value, kDefaultDigits);
  if (decimal.exponent < kLeastPlainExponent || decimal.exponent > kMostPlainExponent) {
    return Exponent_Form(decimal);
  }
  const int length = static_cast<int>(decimal.digits.size());
  std::string text = decimal.negative ? "-" : "";
  if (decimal.exponent <= 0) {
    text += "0.";
    return text.append(static_cast<std::size_t>(-decimal.exponent), '0') + decimal.digits;
  }
  if (length <= decimal.exponent) {
    return text + decimal.digits +
           std::string(static_cast<std::size_t>(decimal.exponent - length), '0');
  }
  const auto point = static_cast<std::size_t>(decimal.exponent);
  return text + decimal.digits.substr(0, point) + "." + decimal.digits.substr(point);
}

}  // namespace

Decimal_Digits To_Decimal(double value, int count) {
  std::array<char, 40> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                    std::chars_format::scientific, count - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
  const auto e = text.find('e');
  Decimal_Digits decimal;
  decimal.negative = value < 0;
  for (const char c : text.substr(0, e)) {
    if (c != '.') decimal.digits += c;
  }
  const std::string_view exponent = text.substr(e + 1);
  std::from_chars(exponent.data() + (exponent.front() == '+' ? 1 : 0),
                  exponent.data() + exponent.size(), decimal.exponent);
  ++decimal.exponent;
  const auto last = decimal.digits.find_last_not_of('0');
  if (last == std::string::npos) return {false, "0", 1};
  decimal.digits.erase(last + 1);
  return decimal;
}

Number_Start Read_Number_Start(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  const Leading_Number start(text.substr(first));
  const Conversion conversion = Convert(start.number);
  return {conversion.value, start.end == 0 ? 0 : first + start.end,
          conversion.range == Range::Held};
}

double Lenient_Number(std::string_view text) { return Read_Number_Start(text).value; }

double Column_Number(std::string_view text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto skip_blanks = [&] {
    while (at != end && Is_Blank(*at)) ++at;
  };
  double value = 0;
  skip_blanks();
  if (Read_Short_Decimal(at, end, value)) {
    skip_blanks();
    if (at == end) return value;
  }
  std::string dense;
  dense.reserve(text.size());
  for (const char c : text) {
    if (!Is_Blank(c)) dense += c;
  }
  const Conversion conversion = Convert(Leading_Number(dense).number);
  if (conversion.range == Range::Too_Large) throw Run_Time_Failure{Failure::Overflow};
  return conversion.value;
}

void Plain_Letters::Add(std::string_view letters) {
  std::copy(letters.begin(), letters.end(), letters_.begin() + size_);
  size_ += letters.size();
}

Plain_Letters::Plain_Letters(double value) {
  const double magnitude = std::abs(value);
  const bool is_plain = magnitude >= kLeastPlain || magnitude == 0;
  const auto decimal = is_plain ? Short_Decimal_Of(magnitude) : std::nullopt;
  if (!decimal) {
    Add(General_Form(value));
    return;
  }
  std::array<char, kShortDigits> room;
  const char* const end = std::to_chars(room.data(), room.data() + room.size(), decimal->whole).ptr;
  const std::string_view digits(room.data(), static_cast<std::size_t>(end - room.data()));
  const auto decimals = static_cast<std::size_t>(decimal->decimals);
  const std::size_t before = digits.size() > decimals ? digits.size() - decimals : 0;
  if (value < 0) Add("-");
  Add(before == 0 ? "0" : digits.substr(0, before));
  if (decimals == 0) return;
  Add(".");
  Add(std::string_view("000000").substr(0, decimals - (digits.size() - before)));
  Add(digits.substr(before));
}

Plain_Letters::Plain_Letters(int value) {
  const char* const end =
      std::to_chars(letters_.data(), letters_.data() + letters_.size(), value).ptr;
  size_ = static_cast<std::size_t>(end - letters_.data());
}

std::string Plain_Number(double value) { return std::string(Plain_Letters(value).text()); }

std::string Number_To_Cut(double value, std::size_t width) {
  std::string text = Plain_Number(value);
  if (!std::isfinite(value)) return text;
  const bool loses_decimals_only = text.find('E') == std::string::npos && text.find('.') <= width;
  if (loses_decimals_only) return text;
  for (int count = kDefaultDigits; count > 0 && text.size() > width; --count) {
    text = Exponent_Form(To_Decimal(value, count));
  }
  return text;
}

std::string Plain_Number(int value) { return std::to_string(value); }

std::string Exact_Number(double value) {
  if (!std::isfinite(value)) return Name_Of_Non_Number(value);
  std::array<char, 40> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), result.ptr};
}

bool Read_Exact_Number(std::string_view text, double& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return false;
  // The library reads many spellings of what is no number; only our own is a value that was kept.
  return std::isfinite(value) || text == Name_Of_Non_Number(value);
}

double Widen(float value) {
  if (!std::isfinite(value)) return value;
  std::array<char, 40> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  double wide = 0;
  std::from_chars(buffer.data(), result.ptr, wide);
  return wide;
}

double Int(double value) { return std::floor(value); }

double Round_Half_Even(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

std::int16_t To_Int16(double value) { return Whole_To_Int16(Round_Half_Even(value)); }

std::int16_t Cut_To_Int16(double value) { return Whole_To_Int16(std::trunc(value)); }

}  // namespace barvon
