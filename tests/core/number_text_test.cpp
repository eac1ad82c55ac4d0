#include "core/number_text.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale>
#include <string>

#include "core/failure.h"

namespace barvon {
namespace {

TEST(LenientNumber, Takes_The_Leading_Number) {
  EXPECT_EQ(Lenient_Number("62.5 ft"), 62.5);
  EXPECT_EQ(Lenient_Number("  -3"), -3);
  EXPECT_EQ(Lenient_Number("+4."), 4);
  EXPECT_EQ(Lenient_Number(".5"), 0.5);
  EXPECT_EQ(Lenient_Number("1e3"), 1000);
  EXPECT_EQ(Lenient_Number("1D-2x"), 0.01);
}

TEST(LenientNumber, Is_Zero_Where_There_Is_None) {
  for (const char* text : {"", "   ", "abc", ".", "-", "+.", "e5", "-.e3", "\n5"}) {
    EXPECT_EQ(Lenient_Number(text), 0) << text;
  }
}

TEST(LenientNumber, Stops_At_The_First_Character_That_Cannot_Continue) {
  EXPECT_EQ(Lenient_Number("62,5"), 62);
  EXPECT_EQ(Lenient_Number("1O0"), 1);
  EXPECT_EQ(Lenient_Number("1 000"), 1);
  EXPECT_EQ(Lenient_Number("1.2.3"), 1.2);
  EXPECT_EQ(Lenient_Number("5e"), 5);
  EXPECT_EQ(Lenient_Number("5e+"), 5);
  EXPECT_EQ(Lenient_Number("5-3"), 5);
}

TEST(LenientNumber, Beyond_A_Doubles_Range_Is_Zero_And_Too_Small_Is_Zero) {
  EXPECT_EQ(Lenient_Number("1e999"), 0);
  EXPECT_EQ(Lenient_Number("-1e999"), 0);
  EXPECT_EQ(Lenient_Number("1e-999"), 0);
  EXPECT_EQ(Lenient_Number("1e99999999999999999999"), 0);
  EXPECT_EQ(Lenient_Number("0e999"), 0);
}

TEST(ColumnNumber, Ignores_Blanks_Inside_The_Number) {
  EXPECT_EQ(Column_Number("   1 2 "), 12);
  EXPECT_EQ(Column_Number("- 3 . 5"), -3.5);
  EXPECT_EQ(Column_Number(" \t1\t2"), 12);
  EXPECT_EQ(Column_Number("            "), 0);
  EXPECT_EQ(Column_Number("12 x 4"), 12);
}

TEST(ColumnNumber, Overflow_Is_A_Failure_And_Underflow_Is_Zero) {
  EXPECT_THROW(Column_Number("1E400"), Run_Time_Failure);
  EXPECT_THROW(Column_Number(std::string(400, '9')), Run_Time_Failure);
  EXPECT_EQ(Column_Number("1E-400"), 0);
  EXPECT_EQ(Column_Number("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(Column_Number("0.0001E-400"), 0);
  EXPECT_EQ(Column_Number("1" + std::string(400, '0') + "E-999999999999999999999"), 0);
}

/// What a column makes of its text: bits, or the failure in their place.
std::uint64_t Bits_Of_Column(const std::string& text) {
  try {
    return std::bit_cast<std::uint64_t>(Column_Number(text));
  } catch (const Run_Time_Failure& stopped) {
    return static_cast<std::uint64_t>(stopped.failure);
  }
}

// A letter that ends the number changes nothing of it, but it is no short decimal any more.
RC_GTEST_PROP(ColumnNumber, Reads_A_Short_Decimal_As_The_General_Conversion_Does, ()) {
  const std::string text = *rc::gen::container<std::string>(
      rc::gen::elementOf(std::string("00112233445566778899  \t..+-eEdD,\rj")));
  RC_ASSERT(Bits_Of_Column(text) == Bits_Of_Column(text + "x"));
}

RC_GTEST_PROP(ColumnNumber, Reads_Up_To_15_Digits_With_A_Point_Anywhere_To_The_Last_Bit, ()) {
  std::string text = *rc::gen::container<std::string>(rc::gen::inRange('0', ':'));
  text.resize(std::min<std::size_t>(text.size(), 17), '0');
  text.insert(*rc::gen::inRange<std::size_t>(0, text.size() + 1), ".");
  text.insert(0, *rc::gen::element<std::string>("", "-", "+", "  ", " -"));
  text += *rc::gen::element<std::string>("", " ", "\t ", " 7", "E-5", "D12", "-");
  RC_ASSERT(Bits_Of_Column(text) == Bits_Of_Column(text + "x"));
}

TEST(ColumnNumber, Keeps_The_Sign_Of_A_Zero) {
  EXPECT_TRUE(std::signbit(Column_Number(" -0.00 ")));
  EXPECT_FALSE(std::signbit(Column_Number(" 0.00")));
}

TEST(PlainNumber, Has_Fifteen_Significant_Digits_At_Most) {
  EXPECT_EQ(Plain_Number(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(Plain_Number(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(Plain_Number(0.1), "0.1");
  EXPECT_EQ(Plain_Number(1250.5), "1250.5");
  EXPECT_EQ(Plain_Number(-0.5), "-0.5");
  EXPECT_EQ(Plain_Number(100.0), "100");
  EXPECT_EQ(Plain_Number(0.0), "0");
  EXPECT_EQ(Plain_Number(-0.0), "0");
  EXPECT_EQ(Plain_Number(123456789012345.0), "123456789012345");
}

TEST(PlainNumber, Is_Plain_From_0_0001_To_Below_1E15_And_In_Exponent_Form_Outside) {
  EXPECT_EQ(Plain_Number(0.0001), "0.0001");
  EXPECT_EQ(Plain_Number(0.00012345), "0.00012345");
  EXPECT_EQ(Plain_Number(0.00005), "5E-05");
  EXPECT_EQ(Plain_Number(0.0000999), "9.99E-05");
  EXPECT_EQ(Plain_Number(999999999999999.0), "999999999999999");
  EXPECT_EQ(Plain_Number(1e15), "1E+15");
  EXPECT_EQ(Plain_Number(1.5e15), "1.5E+15");
  EXPECT_EQ(Plain_Number(-1.5e-7), "-1.5E-07");
  EXPECT_EQ(Plain_Number(1e100), "1E+100");
  // Rounded to 15 digits it is 1E+15, and so it is written.
  EXPECT_EQ(Plain_Number(999999999999999.9), "1E+15");
}

/// A locale with a decimal comma and grouped digits, there on every machine.
struct Decimal_Comma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};
TEST(NumberToCut, Is_The_Plain_Number_Where_The_Cut_Takes_Decimals_Only) {
  for (const double value : {123.456789012345, 0.000123456789, -0.5, 25.0, 1234567890.0,
                             1234567890.5, 5e-5, 1e100, 0.0}) {
    EXPECT_EQ(Number_To_Cut(value, 10), Plain_Number(value));
  }
  EXPECT_EQ(Number_To_Cut(std::numeric_limits<double>::infinity(), 10), "inf");
}

TEST(NumberToCut, Has_As_Many_Digits_As_Fit_Where_The_Cut_Would_Make_Another_Number_Of_It) {
  EXPECT_EQ(Number_To_Cut(7.40740734e-6, 10), "7.4074E-06");
  EXPECT_EQ(Number_To_Cut(-7.40740734e-6, 10), "-7.407E-06");
  EXPECT_EQ(Number_To_Cut(9.99999999e-6, 10), "1E-05");
  EXPECT_EQ(Number_To_Cut(1.23456789e-300, 10), "1.235E-300");
  EXPECT_EQ(Number_To_Cut(-1.23456789e-300, 10), "-1.23E-300");
  EXPECT_EQ(Number_To_Cut(12345678901.0, 10), "1.2346E+10");
  EXPECT_EQ(Number_To_Cut(-1234567890.0, 10), "-1.235E+09");
}

RC_GTEST_PROP(NumberToCut, Is_Still_That_Number_After_The_Cut, (double value)) {
  RC_PRE(std::isfinite(value));
  const double back = Lenient_Number(Number_To_Cut(value, 10).substr(0, 10));
  RC_ASSERT(std::abs(back - value) <= 0.01 * std::abs(value));
}

TEST(PlainNumber, Does_Not_Follow_The_Locale) {
  const std::string former_c = std::setlocale(LC_ALL, nullptr);
  const std::locale former(std::locale::global(std::locale(std::locale(), new Decimal_Comma)));
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  const std::string plain = Plain_Number(12345.5);
  const std::string exact = Exact_Number(12345.5);
  const double lenient = Lenient_Number("12345.5");
  std::locale::global(former);
  std::setlocale(LC_ALL, former_c.c_str());
  EXPECT_EQ(plain, "12345.5");
  EXPECT_EQ(exact, "12345.5");
  EXPECT_EQ(lenient, 12345.5);
}

TEST(PlainNumber, A_Float_Goes_Through_Its_Own_Shortest_Text) {
  EXPECT_EQ(Plain_Number(Widen(0.1F)), "0.1");
  EXPECT_EQ(Plain_Number(static_cast<double>(0.1F)), "0.100000001490116");
}

TEST(ToInt16, Rounds_Half_To_Even) {
  EXPECT_EQ(To_Int16(0.5), 0);
  EXPECT_EQ(To_Int16(1.5), 2);
  EXPECT_EQ(To_Int16(2.5), 2);
  EXPECT_EQ(To_Int16(-0.5), 0);
  EXPECT_EQ(To_Int16(-1.5), -2);
  EXPECT_EQ(To_Int16(-2.5), -2);
  EXPECT_EQ(To_Int16(2.500001), 3);
}

TEST(ToInt16, Outside_Sixteen_Bits_Is_A_Failure_Never_A_Wrap) {
  EXPECT_EQ(To_Int16(32767), 32767);
  EXPECT_EQ(To_Int16(32767.4), 32767);
  EXPECT_EQ(To_Int16(-32768), -32768);
  for (const double value :
       {32767.5, 32768.0, -32769.0, 1e300, -1e300, std::numeric_limits<double>::quiet_NaN(),
        std::numeric_limits<double>::infinity()}) {
    EXPECT_THROW(To_Int16(value), Run_Time_Failure) << value;
    EXPECT_THROW(Cut_To_Int16(value + (value == 32767.5 ? 1 : 0)), Run_Time_Failure) << value;
  }
}

TEST(ToInt16, Cutting_Drops_The_Fraction) {
  EXPECT_EQ(Cut_To_Int16(2.9), 2);
  EXPECT_EQ(Cut_To_Int16(-2.9), -2);
  EXPECT_EQ(Cut_To_Int16(32767.9), 32767);
}

TEST(Int, Is_The_Whole_Part_Below) {
  EXPECT_EQ(Int(1.9), 1);
  EXPECT_EQ(Int(-1.5), -2);
}

RC_GTEST_PROP(ExactNumber, Gives_The_Same_Bits_Back, (std::uint64_t bits)) {
  const double value = std::bit_cast<double>(bits);
  double back = 0;
  RC_ASSERT(Read_Exact_Number(Exact_Number(value), back));
  if (std::isnan(value)) {
    RC_ASSERT(std::isnan(back));
  } else {
    RC_ASSERT(std::bit_cast<std::uint64_t>(back) == bits);
  }
}

RC_GTEST_PROP(PlainNumber, Reads_Back_To_Fifteen_Digits, (double value)) {
  RC_PRE(std::isfinite(value));
  const double back = Lenient_Number(Plain_Number(value));
  RC_ASSERT(std::abs(back - value) <= std::abs(value) * 1e-14);
}

/// The C library's form of 15 digits, which has the same limits and the same exponents.
std::string Printed(double value) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%.15G", value);
  return text.data();
}

RC_GTEST_PROP(PlainNumber, Is_What_The_C_Library_Prints_With_15_Digits, (std::uint64_t bits)) {
  const double value = std::bit_cast<double>(bits);
  RC_PRE(std::isfinite(value) && value != 0);
  RC_ASSERT(Plain_Number(value) == Printed(value));
}

RC_GTEST_PROP(PlainNumber, Is_So_For_Short_Decimals_And_Their_Neighbours, (std::int64_t whole)) {
  RC_PRE(whole != 0);
  const std::int64_t cut = *rc::gen::element<std::int64_t>(1, 1000, 1000000, 1000000000);
  const double value = static_cast<double>(std::max<std::int64_t>(std::abs(whole / cut), 1)) /
                       std::pow(10.0, *rc::gen::inRange(0, 20));
  for (const double one : {value, -value, std::nextafter(value, 0), std::nextafter(value, 1e300)}) {
    RC_ASSERT(Plain_Number(one) == Printed(one));
  }
}

TEST(PlainNumber, Has_No_Point_Behind_Which_Nothing_Stands_And_Keeps_The_Zeros_In_Front) {
  EXPECT_EQ(Plain_Number(10.50), "10.5");
  EXPECT_EQ(Plain_Number(-1200.0), "-1200");
  EXPECT_EQ(Plain_Number(0.000123), "0.000123");
  EXPECT_EQ(Plain_Number(-0.05), "-0.05");
  EXPECT_EQ(Plain_Number(99999999.999999), "99999999.999999");
  EXPECT_EQ(Plain_Number(9999999999.99999), "9999999999.99999");
  EXPECT_EQ(Plain_Number(999999999999999.0), "999999999999999");
  EXPECT_EQ(Plain_Number(999999999999998.9), "999999999999999");
}

TEST(PlainLetters, Are_The_Plain_Number) {
  EXPECT_EQ(Plain_Letters(-12.25).text(), "-12.25");
  EXPECT_EQ(Plain_Letters(-1.23456789012345e-300).text(), "-1.23456789012345E-300");
  EXPECT_EQ(Plain_Letters(std::numeric_limits<double>::quiet_NaN()).text(), "nan");
  EXPECT_EQ(Plain_Letters(std::numeric_limits<int>::min()).text(), "-2147483648");
}

RC_GTEST_PROP(LenientNumber, Never_Fails_On_Any_Text, (std::string text)) {
  RC_ASSERT(std::isfinite(Lenient_Number(text)));
}

}  // namespace
}  // namespace barvon
