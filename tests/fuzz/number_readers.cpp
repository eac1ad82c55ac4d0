#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "core/failure.h"
#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "core/project_file/project_image.h"
#include "core/typed_number.h"
#include "dilution/dilution_file.h"
#include "fuzz/readers.h"

namespace barvon::fuzz {
namespace {

constexpr std::size_t kFileWidth = 15;
constexpr std::size_t kCutWidth = 10;

bool Same_Bits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

std::vector<std::string> Numbers() {
  return {"62.50",
          " -1.5E-3 ft",
          "1D3",
          "+.5",
          "9999999999999999999",
          "1 200",
          "62,5",
          "1E999",
          "0.1234567890123456789",
          "-0",
          "5E-324",
          "32767.5",
          "1E-400"};
}

/// What the C library makes of the number that begins the text, where the lenient parse has found
/// its end: the same digits in another hand.
void Compare_With_The_Library(std::string_view text, const Number_Start& start) {
  std::string number(text.substr(0, start.end));
  std::ranges::replace_if(
      number, [](char c) { return c == 'D' || c == 'd'; }, 'E');
  char* end = nullptr;
  const double library = std::strtod(number.c_str(), &end);
  Demand(end == number.c_str() + number.size(), "the library reads as far");
  // What a double holds only with fewer digits may count as beyond its range.
  const bool normal = std::isnormal(library);
  Demand(!normal || (start.in_range && Same_Bits(library, start.value)),
         "the library reads the same number");
  Demand(start.in_range || start.value == 0, "a number beyond the range reads as 0");
}

void Hold_Value(double value) {
  double back = 0;
  Demand(Read_Exact_Number(Exact_Number(value), back) &&
             (std::isnan(value) ? std::isnan(back) : Same_Bits(value, back)),
         "an exact number comes back");
  const std::string plain = Plain_Number(value);
  if (std::isfinite(value)) {
    const double read = Lenient_Number(plain);
    Demand(!std::isnormal(value) || !std::isnormal(read) ||
               std::abs(read - value) <= 1e-14 * std::abs(value),
           "the default text form is close");
    Demand(Number_To_Fit(value, kFileWidth).size() <= kFileWidth, "a number fits its columns");
    Demand(Number_To_Cut(value, kCutWidth).find('E') == std::string::npos ||
               Number_To_Cut(value, kCutWidth).size() <= kCutWidth,
           "an exponent is not cut");
    Widen(static_cast<float>(std::clamp(value, -1e38, 1e38)));
  }
  Demand(Typed_Number(plain, value).Number() == value || std::isnan(value), "a filled field holds");
}

void Read_Number(std::string_view bytes) {
  const std::string text(bytes);
  Read_Real(text);
  Real_Note(text);
  for (const auto& reading : {Read_Whole(text), Read_Cut(text)}) {
    Demand(!reading.value ||
               (*reading.value == std::trunc(*reading.value) && std::abs(*reading.value) <= 32768),
           "a whole number of 16 bits");
  }
  Whole_Note(text);
  Cut_Note(text);
  Number_Named(text);
}

void Hold_Number(std::string_view bytes) {
  const Number_Start start = Read_Number_Start(bytes);
  Demand(start.end <= bytes.size() && std::isfinite(start.value), "a number is finite");
  Demand(Same_Bits(Lenient_Number(bytes), start.value), "one parse");
  if (start.end > 0) Compare_With_The_Library(bytes, start);
  try {
    const double column = Column_Number(bytes);
    const bool dense = bytes.find_first_of(" \t") == std::string_view::npos;
    Demand(!dense || !start.in_range || Same_Bits(column, start.value),
           "a column without blanks reads the same");
  } catch (const Run_Time_Failure& stopped) {
    Demand(stopped.failure == Failure::Overflow, "a column overflows or is read");
  }
  Hold_Value(start.value);
  if (bytes.size() >= sizeof(double)) {
    double value = 0;
    std::memcpy(&value, bytes.data(), sizeof value);
    Hold_Value(value);
  }
}

// ---- Digit patterns, behind the eight bytes of a number

std::vector<std::string> Patterns() {
  std::vector<std::string> inputs;
  for (const double value : {1234567.125, -0.005, 1e21, 2e-9}) {
    for (const char* pattern : {"####0.0000", "#.00", "#,##0.0", "@@@@@@@@.0", "##", "0"}) {
      std::string input(sizeof value, '\0');
      std::memcpy(input.data(), &value, sizeof value);
      inputs.push_back(input + pattern);
    }
  }
  return inputs;
}

void Read_Pattern(std::string_view bytes) {
  if (bytes.size() < sizeof(double)) return;
  double value = 0;
  std::memcpy(&value, bytes.data(), sizeof value);
  const std::string_view pattern = bytes.substr(sizeof value);
  const std::string text = Format_Number(value, pattern);
  Format_Text(pattern, "@@-@@");
  const bool plain = pattern.find_first_not_of("#0.,") == std::string_view::npos &&
                     std::ranges::count(pattern, '.') <= 1;
  if (!plain || !std::isfinite(value)) return;
  Demand(std::ranges::count(text, '.') == std::ranges::count(pattern, '.'),
         "a point where the pattern has one");
  std::string digits = text;
  std::erase(digits, ',');
  const std::string_view decimals = pattern.substr(std::min(pattern.find('.'), pattern.size()));
  const auto places = std::ranges::count_if(decimals, [](char c) { return c == '#' || c == '0'; });
  // Rounded on 15 digits, half away from zero.
  const double unit = std::pow(10.0, -static_cast<double>(places));
  Demand(std::abs(Lenient_Number(digits) - value) <= 0.5001 * unit + 1e-14 * std::abs(value),
         "a number is rounded to its places");
}

constexpr Reader kReaders[] = {
    {"numbers", 0, Numbers, Read_Number, Hold_Number, nullptr},
    {"patterns", 0, Patterns, Read_Pattern, nullptr, nullptr},
};

}  // namespace

std::span<const Reader> Number_Readers() { return kReaders; }

}  // namespace barvon::fuzz
