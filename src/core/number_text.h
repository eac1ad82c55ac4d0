#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace barvon {

/// Numbers as text, whatever the desktop's locale: the point is always ".".

/// The decimal digits of a finite value, rounded to `count` significant ones (1 to 17).
struct Decimal_Digits {
  bool negative = false;
  std::string digits;  // without trailing zeros; "0" for zero, with exponent 1
  int exponent = 0;    // value = 0.digits x 10^exponent
};
Decimal_Digits To_Decimal(double value, int count = 15);

/// Lenient parse of a text box: the leading number of the text, 0 if there is none. Blanks and
/// tabs in front of it are skipped; it ends at the first character that can't continue it. An
/// exponent may be written with E or D. A number beyond the range of a double reads as 0.
double Lenient_Number(std::string_view text);

/// What the lenient parse makes of a text.
struct Number_Start {
  double value = 0;
  std::size_t end = 0;   // the first character that is no part of the number; 0 without a number
  bool in_range = true;  // false: what is written is too large or too small, and reads as 0
};
Number_Start Read_Number_Start(std::string_view text);

/// The decimal conversion of the project file's columns: as Lenient_Number, but blanks and tabs
/// inside the number are ignored too. Throws Run_Time_Failure (Overflow) beyond a double's range.
double Column_Number(std::string_view text);

/// The default text form: 15 significant digits at most; plain from 0.0001 up to below 1E+15,
/// in exponent form outside ("5E-05", "1.5E+15"). Not-a-number is "nan", infinities "inf", "-inf".
std::string Plain_Number(double value);
std::string Plain_Number(int value);

/// The default text form in room of its own, for what writes thousands of numbers.
class Plain_Letters {
 public:
  explicit Plain_Letters(double value);
  explicit Plain_Letters(int value);

  std::string_view text() const { return {letters_.data(), size_}; }

 private:
  void Add(std::string_view letters);

  std::array<char, 32> letters_;
  std::size_t size_ = 0;
};

/// The default text form for a text that is going to be cut after `width` characters (10 or more):
/// where the cut would take an exponent or whole digits, and so make another number of it, it is
/// in exponent form with as many digits as fit ("7.4074E-06").
std::string Number_To_Cut(double value, std::size_t width);

/// The shortest text that gives the same bits back when it is read ("-0" for a negative zero).
std::string Exact_Number(double value);
/// Reads what Exact_Number wrote, the whole of it. False when the text is anything else.
bool Read_Exact_Number(std::string_view text, double& value);

/// A 32-bit value as the 64-bit value of its own shortest text: 0.1f gives 0.1.
double Widen(float value);

/// The whole part below or at the value (Int of -1.5 is -2).
double Int(double value);

/// Half to even.
double Round_Half_Even(double value);

/// To a 16-bit integer, half to even. Throws Run_Time_Failure (Overflow) outside 16 bits and for
/// what is no number.
std::int16_t To_Int16(double value);
/// The same, cutting the fraction instead of rounding.
std::int16_t Cut_To_Int16(double value);

}  // namespace barvon
