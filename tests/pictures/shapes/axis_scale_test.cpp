#include "pictures/shapes/axis_scale.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace barvon {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(AxisScale, What_Is_No_Number_Or_Too_Large_Is_Not_Drawn) {
  for (const double value : {kNan, kInfinity, -kInfinity, 1.1e12, -1e300}) {
    EXPECT_FALSE(Can_Be_Drawn(value)) << value;
  }
  for (const double value : {0.0, -0.0, 1e-300, 1e12, -1e12}) EXPECT_TRUE(Can_Be_Drawn(value));
}

TEST(AxisScale, A_Range_Leaves_Out_What_Cannot_Be_Drawn) {
  EXPECT_FALSE(Range_Of({}));
  EXPECT_FALSE(Range_Of({kNan, kInfinity}));
  const auto range = Range_Of({kNan, 3, -2, 1e300});
  ASSERT_TRUE(range);
  EXPECT_EQ(range->low, -2);
  EXPECT_EQ(range->high, 3);
}

// 25 / 5 is 5, itself a round step. 0.0243 / 5 = 0.00486 goes up to 0.005, and five of those
// reach 1.025.
TEST(AxisScale, Five_Round_Steps_Hold_The_Range) {
  const Axis_Scale whole = Scale_Over({0, 25}, 1);
  EXPECT_EQ(whole.low, 0);
  EXPECT_EQ(whole.high, 25);
  EXPECT_EQ(whole.step, 5);
  EXPECT_EQ(whole.decimals, 0);
  const Axis_Scale fine = Scale_Over({1, 1.0243}, 0.002);
  EXPECT_DOUBLE_EQ(fine.low, 1);
  EXPECT_DOUBLE_EQ(fine.high, 1.025);
  EXPECT_DOUBLE_EQ(fine.step, 0.005);
  EXPECT_EQ(fine.decimals, 3);
}

// 30 +- 0.5: steps of 0.2 from 29.4 to 30.6.
TEST(AxisScale, Equal_Values_Stand_In_The_Middle) {
  const Axis_Scale scale = Scale_Over({30, 30}, 1);
  EXPECT_DOUBLE_EQ(scale.low, 29.4);
  EXPECT_DOUBLE_EQ(scale.high, 30.6);
  EXPECT_DOUBLE_EQ(scale.step, 0.2);
}

RC_GTEST_PROP(AxisScale, Holds_Every_Range_In_Two_To_Eight_Steps, ()) {
  const auto number = [] {
    return *rc::gen::inRange(-1'000'000, 1'000'000) * std::pow(10, *rc::gen::inRange(-9, 7));
  };
  const double a = number(), b = number();
  const Value_Range range = {std::min(a, b), std::max(a, b)};
  const Axis_Scale scale = Scale_Over(range, 0.01);
  const double hair = 1e-5 * scale.step;
  RC_ASSERT(scale.low <= range.low + hair);
  RC_ASSERT(scale.high >= range.high - hair);
  const double steps = (scale.high - scale.low) / scale.step;
  RC_ASSERT(std::abs(steps - std::round(steps)) < 1e-3);
  RC_ASSERT(steps > 1.9);
  RC_ASSERT(steps < 8.1);
}

// 96 columns on 400 pixels are 4.17 pixels each: a label of 45 pixels needs 10.8 of them, and 20
// is the next stride. 8 columns of 50 pixels each take one label each.
TEST(AxisScale, Labels_Are_Left_Out_Where_There_Is_No_Room) {
  EXPECT_EQ(Label_Stride(96, 400, 45), 20);
  EXPECT_EQ(Label_Stride(8, 400, 45), 1);
  EXPECT_EQ(Label_Stride(8, 10, 45), 10);
  EXPECT_EQ(Label_Stride(8, 0, 45), 1);
  EXPECT_EQ(Label_Stride(0, 400, 45), 1);
}

TEST(AxisScale, The_Round_Value_Below) {
  EXPECT_EQ(Round_Value_Below(1.35), 1);
  EXPECT_EQ(Round_Value_Below(2), 2);
  EXPECT_EQ(Round_Value_Below(49), 20);
  EXPECT_DOUBLE_EQ(Round_Value_Below(0.09), 0.05);
  EXPECT_EQ(Round_Value_Below(0), 0);
  EXPECT_EQ(Round_Value_Below(kNan), 0);
  EXPECT_EQ(Round_Value_Below(kInfinity), 0);
}

TEST(AxisScale, Numbers_As_Text) {
  EXPECT_EQ(Fixed_Text(1.02434, 4), "1.0243");
  EXPECT_EQ(Fixed_Text(-0.004, 2), "0.00");
  EXPECT_EQ(Fixed_Text(-0.006, 2), "-0.01");
  EXPECT_EQ(Fixed_Text(kNan, 2), "no number");
  EXPECT_EQ(Short_Text(40), "40");
  EXPECT_EQ(Short_Text(30.6), "30.6");
  EXPECT_EQ(Short_Text(1.5e9), "1.5e+09");
  EXPECT_EQ(Short_Text(-0.0), "0");
  EXPECT_EQ(Short_Text(-kInfinity), "no number");
  EXPECT_GT(Fixed_Text(1e308, 2).size(), 300u);
}

TEST(AxisScale, A_Logarithmic_Axis_Goes_From_One_Power_Of_Ten_To_Another) {
  const Axis_Scale scale = Log_Scale_Over({5, 2000, 0, -7, kNan, kInfinity});
  EXPECT_EQ(scale.low, 1);
  EXPECT_EQ(scale.high, 10000);
  EXPECT_EQ(Labels_Of(scale, 1), (std::vector<double>{1, 10, 100, 1000, 10000}));
  EXPECT_EQ(Labels_Of(scale, 2), (std::vector<double>{1, 100, 10000}));
  EXPECT_EQ(Label_Text(scale, 1000), "1000");
  // A power of ten is an end itself; equal values get a decade.
  EXPECT_EQ(Log_Scale_Over({1000, 10}).high, 1000);
  EXPECT_EQ(Log_Scale_Over({10}).low, 10);
  EXPECT_EQ(Log_Scale_Over({10}).high, 100);
}

TEST(AxisScale, Zero_Has_No_Place_On_A_Logarithmic_Axis) {
  const Axis_Scale none = Log_Scale_Over({0, -1, kNan, 1e-300});
  EXPECT_EQ(none.low, 1);
  EXPECT_EQ(none.high, 10);
  for (const double value : {0.0, -1.0, 1e-300, kNan, kInfinity}) {
    EXPECT_TRUE(std::isnan(Part_Of_Axis(none, value))) << value;
  }
}

TEST(AxisScale, A_Value_And_Its_Part_Of_The_Axis_Undo_Each_Other) {
  const Axis_Scale log = Log_Scale_Over({1, 10000}), linear = Scale_Over({-10, 40}, 1);
  EXPECT_DOUBLE_EQ(Part_Of_Axis(log, 100), 0.5);
  EXPECT_DOUBLE_EQ(Part_Of_Axis(linear, 15), 0.5);
  for (const double value : {1.0, 3.0, 40.0}) {
    EXPECT_NEAR(Value_On_Axis(log, Part_Of_Axis(log, value)), value, 1e-12 * value + 1e-12);
    EXPECT_NEAR(Value_On_Axis(linear, Part_Of_Axis(linear, value)), value, 1e-12);
  }
}

TEST(AxisScale, Labels_Are_Multiples_Within_The_Axis) {
  Axis_Scale scale = Scale_Over({0, 25}, 1);
  EXPECT_EQ(Labels_Of(scale, 1), (std::vector<double>{0, 5, 10, 15, 20, 25}));
  EXPECT_EQ(Labels_Of(scale, 2), (std::vector<double>{0, 10, 20}));
  scale.low = 3;  // an axis that ends where its picture does
  scale.high = 17;
  EXPECT_EQ(Labels_Of(scale, 1), (std::vector<double>{5, 10, 15}));
  EXPECT_EQ(Label_Text(scale, 5), "5");
  EXPECT_EQ(Label_Text(Scale_Over({0, 5e7}, 1), 1e7), "1e+07");
}

}  // namespace
}  // namespace barvon
