#include "results/plain_numbers.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace barvon {
namespace {

TEST(PlainNumbers, The_Fewest_Digits_That_Are_The_Number) {
  EXPECT_EQ(Shortest_Number(250), "250");
  EXPECT_EQ(Shortest_Number(0.1), "0.1");
  EXPECT_EQ(Shortest_Number(500000), "500000");
  EXPECT_EQ(Shortest_Number(0.0001), "0.0001");
  EXPECT_EQ(Shortest_Number(0), "0");
  EXPECT_EQ(Shortest_Number(1e-7), "1e-07");
  EXPECT_EQ(Shortest_Number(-2.5e20), "-2.5e+20");
  EXPECT_EQ(Shortest_Number(-12.5), "-12.5");
}

TEST(PlainNumbers, Decimals_Are_Rounded_And_Zeros_Go) {
  EXPECT_EQ(Rounded_Number(499984.76, 6), "499984.76");
  EXPECT_EQ(Rounded_Number(2.0004, 3), "2");
  EXPECT_EQ(Rounded_Number(-0.0001, 3), "0");
  EXPECT_EQ(Rounded_Number(100, 0), "100");
  EXPECT_EQ(Rounded_Number(-9999, 0), "-9999");
}

TEST(PlainNumbers, Digits_Behind_Those_That_Are_Known_Go) {
  EXPECT_EQ(In_Digits(0.1 + 0.2, 5), 0.3);
  EXPECT_EQ(In_Digits(123456, 5), 123460);
  EXPECT_EQ(In_Digits(-9.99996, 5), -10);
  EXPECT_EQ(In_Digits(0, 5), 0);
  EXPECT_TRUE(std::isnan(In_Digits(std::nan(""), 5)));
}

TEST(PlainNumbers, A_Difference_Has_The_Decimals_Of_The_Larger) {
  EXPECT_EQ(Written_Difference(0.9, 0.6, 5), 0.3);            // 0.30000000000000004
  EXPECT_EQ(Written_Difference(1.2, 1.1, 5), 0.1);            // 0.09999999999999987
  EXPECT_EQ(Written_Difference(1.2345, 0.00001, 5), 1.2345);  // four decimals
  EXPECT_EQ(Written_Difference(0.00001, 1.2345, 5), -1.2345);
  EXPECT_EQ(Written_Difference(12346, 12345, 5), 1);
  EXPECT_EQ(Written_Difference(1.2346e-20, 1.2345e-20, 5), 1e-24);
  EXPECT_EQ(Written_Difference(1.2346e20, 0.5, 5), 1.2346e20);
  EXPECT_EQ(Written_Difference(0.12345, 0, 5), 0.12345);
  EXPECT_EQ(Written_Difference(3, 3, 5), 0);
  EXPECT_EQ(Written_Difference(1 + 1e-9, 1, 5), 0);
}

TEST(PlainNumbers, A_Difference_Is_Of_The_Decimals_And_Not_Of_The_Subtraction) {
  EXPECT_EQ(Written_Difference(295.76, 295.75, 5), 0.01);  // 0.009999999999990905
  EXPECT_EQ(Written_Difference(295.75, 295.76, 5), -0.01);
  EXPECT_EQ(Written_Difference(100.00, 99.991, 5), 0.01);  // 0.009 in hundredths
  EXPECT_EQ(Written_Difference(100.00, 99.996, 5), 0);     // 0.004
  EXPECT_EQ(Written_Difference(100.00, 99.995, 5), 0.01);  // a half
  EXPECT_EQ(Written_Difference(99.995, 100.00, 5), -0.01);
  EXPECT_EQ(Written_Difference(1000.0, 999.99, 5), 0);  // 0.01 in tenths
  EXPECT_EQ(Written_Difference(1000.1, 999.99, 5), 0.1);
  EXPECT_EQ(Written_Difference(2.5, -2.5, 5), 5);
  EXPECT_EQ(Written_Difference(-2.5, 0.00013, 5), -2.5001);
}

TEST(PlainNumbers, Every_Difference_Is_That_Of_Whole_Numbers) {
  EXPECT_TRUE(rc::check([] {
    const int digits = *rc::gen::inRange(1, 8);
    const int behind = *rc::gen::inRange(0, digits + 3);  // the smaller one's last digit
    const int power = *rc::gen::inRange(-30, 31);
    std::int64_t most = 1, scale = 1;
    for (int i = 0; i < digits; ++i) most *= 10;
    for (int i = 0; i < behind; ++i) scale *= 10;
    const auto any = rc::gen::inRange(most / 10, most);
    const auto sign = rc::gen::element<std::int64_t>(-1, 1);
    const std::int64_t larger = *any * *sign, smaller = *any * *sign;
    const auto decimal = [](std::int64_t units, int exponent) {
      return *Number_Of(std::to_string(units) + "e" + std::to_string(exponent));
    };
    const std::int64_t exact = larger * scale - smaller;
    std::int64_t units = exact / scale;
    if (2 * std::abs(exact % scale) >= scale) units += exact < 0 ? -1 : 1;
    const double a = decimal(larger, power), b = decimal(smaller, power - behind);
    RC_ASSERT(Written_Difference(a, b, digits) == decimal(units, power));
    RC_ASSERT(Written_Difference(b, a, digits) == -decimal(units, power));
  }));
}

TEST(PlainNumbers, A_Text_Is_A_Number_As_A_Whole_Or_Not_At_All) {
  EXPECT_EQ(Number_Of("583960.5"), 583960.5);
  EXPECT_EQ(Number_Of("  -2e3\t"), -2000);
  EXPECT_EQ(Number_Of("+7"), 7);
  for (const char* text : {"", " ", "583 960", "583,960.5", "583960,5", "12 m", "nan", "inf",
                           "1e999", "+-1", "0x10", "--1", "1.2.3"}) {
    EXPECT_EQ(Number_Of(text), std::nullopt) << text;
  }
}

TEST(PlainNumbers, Every_Number_Reads_Back) {
  EXPECT_TRUE(rc::check([](double value) {
    RC_PRE(std::isfinite(value));
    RC_ASSERT(Number_Of(Shortest_Number(value)) == value);
  }));
}

}  // namespace
}  // namespace barvon
