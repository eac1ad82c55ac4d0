#include "site/tidal_average.h"

#include <gtest/gtest.h>

#include <cmath>

namespace barvon {
namespace {

using Pattern = OneBased<float, kTidalRows>;

Pattern Everywhere(float velocity) {
  Pattern pattern;
  pattern.fill(velocity);
  return pattern;
}

/// The pattern that begins with these velocities and is 99 behind them, to show if it is read.
Pattern Beginning(std::initializer_list<float> velocities) {
  Pattern pattern = Everywhere(99);
  std::copy(velocities.begin(), velocities.end(), pattern.begin() + 1);
  return pattern;
}

TEST(InterpolateLinear, Hits_Both_Ends_And_The_Middle) {
  EXPECT_EQ(InterpolateLinear(1, 10, 2, 20, 1), 10);
  EXPECT_EQ(InterpolateLinear(1, 10, 2, 20, 2), 20);
  EXPECT_EQ(InterpolateLinear(1, 10, 2, 20, 1.5), 15);
  EXPECT_EQ(InterpolateLinear(0, 3, 0.5, -1, 0.125), 2);
}

// 0.1 is 13421773 / 2^27. 0.5 - 0.1 is 53687091 / 2^27, which has 26 digits and is rounded to
// 13421773 / 2^25. The slope is (1 - 0) / 0.5 = 2, and 1 - 2 x 13421773 / 2^25 =
// (16777216 - 13421773) / 2^24 = 3355443 / 2^24. With 64 bits it would be 0.2000000029...
TEST(InterpolateLinear, Rounds_Every_Step_To_32_Bits) {
  EXPECT_EQ(InterpolateLinear(0, 0, 0.5F, 1, 0.1F), 3355443.0F / 16777216.0F);
  EXPECT_LT(InterpolateLinear(0, 0, 0.5F, 1, 0.1F), 0.2F);
}

// Start: between 0 (0 h) and 1 (0.5 h), 1 - 2 x (0.5 - 0.25) = 0.5.
// End: between 1 (0.5 h) and 3 (1 h), 3 - 4 x (1 - 0.75) = 2.
// (0.25, 0.5) (0.5, 1) (0.75, 2): 0.5 x 1.5 x 0.25 + 0.5 x 3 x 0.25 = 0.5625; / 0.5 = 1.125.
TEST(AverageOverInterval, Both_Ends_Within_The_Pattern_Are_Interpolated) {
  EXPECT_EQ(AverageOverInterval(Beginning({0, 1, 3}), {0.25, 0.5}), 1.125);
}

// Start: 4 - 4 x (0.5 - 0.125) = 2.5. End: 4 - 4 x (0.5 - 0.375) = 3.5. No point between them.
// 0.5 x (2.5 + 3.5) x 0.25 = 0.75; / 0.25 = 3.
TEST(AverageOverInterval, An_Interval_Between_Two_Points_Has_Two_Entries) {
  EXPECT_EQ(AverageOverInterval(Beginning({2, 4}), {0.125, 0.25}), 3);
}

// Start at point 2 and end at point 4 exactly: they are the ends, only point 3 stands between.
// (0.5, 1) (1, 2) (1.5, 5): 0.5 x 3 x 0.5 + 0.5 x 7 x 0.5 = 2.5; / 1 = 2.5.
TEST(AverageOverInterval, Points_At_The_Ends_Count_Once) {
  EXPECT_EQ(AverageOverInterval(Beginning({77, 1, 2, 5, 7}), {0.5, 1}), 2.5);
}

// Points 1 to 25 and 0 at 12.5 hours: 24 x 0.5 x 1 + 0.5 x (1 + 0) x 0.5 = 12.25; / 12.5 = 0.98.
TEST(AverageOverInterval, The_Whole_Pattern_Ends_With_A_Velocity_Of_0) {
  Pattern pattern = Everywhere(1);
  pattern[26] = 50;  // between 12 and 12.5 hours it would count
  EXPECT_EQ(AverageOverInterval(pattern, {0, 12.5}), 0.98);
}

// (12, 4) (12.5, 0): point 26 counts beyond 12.5 hours only. 0.5 x 4 x 0.5 = 1; / 0.5 = 2.
TEST(AverageOverInterval, An_End_At_12_And_A_Half_Hours_Has_A_Velocity_Of_0) {
  Pattern pattern = Everywhere(99);
  pattern[25] = 4;
  pattern[26] = 7;
  EXPECT_EQ(AverageOverInterval(pattern, {12, 0.5}), 2);
}

// (12, 2) (14, 3): 0.5 x 5 x 2 = 5; / 2 = 2.5. Point 25 is at 12 hours.
TEST(AverageOverInterval, Beyond_The_Pattern_The_Last_Point_Stands_At_The_End) {
  Pattern pattern = Everywhere(99);
  pattern[25] = 2;
  pattern[26] = 3;
  EXPECT_EQ(AverageOverInterval(pattern, {12, 2}), 2.5);
}

// (11.5, 1) (12, 2) (13, 4): 0.5 x 3 x 0.5 + 0.5 x 6 x 1 = 3.75; / 1.5 = 2.5. Point 26 is at 13
// hours then, not at 12.5.
TEST(AverageOverInterval, The_Last_Segment_Runs_From_Point_25_To_The_End) {
  Pattern pattern = Everywhere(99);
  pattern[24] = 1;
  pattern[25] = 2;
  pattern[26] = 4;
  EXPECT_EQ(AverageOverInterval(pattern, {11.5, 1.5}), 2.5);
}

// (13, 0) (14, 3): 0.5 x 3 x 1 = 1.5.
TEST(AverageOverInterval, A_Start_Behind_The_Pattern_Has_A_Velocity_Of_0) {
  EXPECT_EQ(AverageOverInterval(Everywhere(3), {13, 1}), 1.5);
  // 12.5 hours exactly belong to no interval either: (12.5, 0) (13.5, 3).
  EXPECT_EQ(AverageOverInterval(Everywhere(3), {12.5, 1}), 1.5);
}

// No interval holds -1: 0. The points between are 2 to 25, so the first segment runs to 0.5 hours.
// 0.5 x 1 x 1.5 + 23 x 0.5 x 1 + 0.5 x 2 x (14 - 12) = 0.75 + 11.5 + 2 = 14.25; / 15 = 0.95.
TEST(AverageOverInterval, A_Start_Before_The_Pattern_Leaves_Point_1_Out) {
  EXPECT_EQ(AverageOverInterval(Everywhere(1), {-1, 15}), 0.95);
}

// (2, 1) (1, 1): 0.5 x 2 x (1 - 2) = -1; / -1 = 1.
TEST(AverageOverInterval, A_Negative_Duration_Runs_Backwards) {
  EXPECT_EQ(AverageOverInterval(Everywhere(1), {2, -1}), 1);
}

// 0.1 is 13421773 / 2^27, 0.2 is 26843546 / 2^27. Their sum 40265319 / 2^27 is rounded to
// 40265320 / 2^27, so the interval is 26843547 / 2^27 long while it is divided by 26843546 / 2^27.
TEST(AverageOverInterval, The_End_Is_Rounded_To_32_Bits) {
  EXPECT_EQ(AverageOverInterval(Everywhere(1), {0.1F, 0.2F}), 26843547.0 / 26843546.0);
}

// 2^25 at 0 h, then 0, 1, 0, 0: 0.5 x 2^25 x 0.5 + 0.25 + 0.25 = 8388608.5. 32 bits would have
// lost each quarter. / 2 = 4194304.25.
TEST(AverageOverInterval, The_Sum_Has_64_Bits) {
  EXPECT_EQ(AverageOverInterval(Beginning({33554432, 0, 1, 0, 0, 0}), {0, 2}), 4194304.25);
}

TEST(AverageOverInterval, A_Duration_Of_0_Has_No_Average) {
  EXPECT_EQ(AverageOverInterval(Everywhere(3), {1, 0}), 0);
}

TEST(AverageOverInterval, Velocities_At_The_End_Of_32_Bits_May_Have_No_Finite_Average) {
  Pattern pattern = Everywhere(0);
  pattern[1] = 3e38F;
  EXPECT_FALSE(std::isfinite(AverageOverInterval(pattern, {0.25, 1})));
}

}  // namespace
}  // namespace barvon
