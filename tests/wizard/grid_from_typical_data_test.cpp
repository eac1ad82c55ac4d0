#include "wizard/grid_from_typical_data.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

namespace barvon::testing {
namespace {

class TypicalGrid : public ::testing::Test {
 protected:
  TypicalGrid() { *record = {}; }
  std::string Compute(float distance, float duration, float x, float z, float depth = 50) {
    return ComputeGridFromTypicalData({distance, duration, x, z, depth}, *record);
  }
  /// Counts and spacings as they were put in.
  void Expect_Untouched() {
    EXPECT_EQ(record->NMAX0, 32);
    EXPECT_EQ(record->MMAX0, 32);
    EXPECT_EQ(record->DX0, 7);
    EXPECT_EQ(record->DZ0, 9);
  }
  void Put_In_Former() {
    record->NMAX0 = record->MMAX0 = 32;
    record->DX0 = 7;
    record->DZ0 = 9;
  }
  std::unique_ptr<ProjectRecord> record = std::make_unique<ProjectRecord>();
};

struct Ladder_Row {
  float spacing;
  std::optional<float> result;
};

float Just_Above(float value) { return std::nextafter(value, 1e9F); }
float Just_Below(float value) { return std::nextafter(value, -1.0F); }

TEST(SpacingLadder, Each_Step_On_Both_Sides_Of_Its_Bounds) {
  const std::vector<Ladder_Row> rows = {
      {0, 10},
      {9.99F, 10},
      {10, 20},
      {63.6F, 70},
      {95, 100},
      {Just_Below(100), 100},  // the sum is 11 in 32 bits
      {100, 100},
      {Just_Below(101), 200},
      {101, 125},
      {125, 125},
      {Just_Above(125), std::nullopt},
      {Just_Below(126), std::nullopt},
      {126, 150},
      {150, 150},
      {Just_Above(150), std::nullopt},
      {Just_Below(151), std::nullopt},
      {151, 175},
      {175, 175},
      {Just_Above(175), 200},
      {200, 200},
      {Just_Above(200), 200},
      {Just_Below(201), 300},
      {201, 250},
      {250, 250},
      {Just_Above(250), std::nullopt},
      {Just_Below(251), std::nullopt},
      {251, 300},
      {300, 300},
      {Just_Above(300), std::nullopt},
      {Just_Below(301), std::nullopt},
      {301, 350},
      {350, 350},
      {Just_Above(350), std::nullopt},
      {Just_Below(351), std::nullopt},
      {351, 400},
      {400, 400},
      {Just_Above(400), std::nullopt},
      {Just_Below(401), std::nullopt},
      {401, 450},
      {450, 450},
      {Just_Above(450), 500},
      {500, 500},
      {Just_Above(500), 500},
      {501, 600},
      {600, 600},
      {601, 700},
  };
  for (const Ladder_Row& row : rows) EXPECT_EQ(SpacingUp(row.spacing), row.result) << row.spacing;
}

TEST(SpacingLadder, Whole_Hundreds_Are_Rounded_Just_Below_The_Next) {
  EXPECT_EQ(RoundHundred(100), 100);
  EXPECT_EQ(RoundHundred(100.4F), 200);
  EXPECT_EQ(RoundHundred(1000), 1000);
  EXPECT_EQ(RoundHundred(3.3e6F), std::nullopt) << "beyond 16 bits of hundreds";
}

TEST_F(TypicalGrid, A_Plume_That_Stays_Within_The_Distance_Has_60_Intervals) {
  EXPECT_EQ(Compute(10000, 2400, 1, 0), "");
  EXPECT_EQ(record->NMAX0, 65);
  EXPECT_EQ(record->MMAX0, 65);
  EXPECT_EQ(record->DX0, 175);
  EXPECT_EQ(record->DZ0, 10);
}

TEST_F(TypicalGrid, A_Plume_That_Leaves_It_Has_80_At_Most) {
  // L = 5091 ft, n = 305 cut to 80, A = 63.6, 45 ft each way; K = 1000 / (2 A x 1.692 x 1.414) = 3.
  EXPECT_EQ(Compute(1000, 3600, 1, 1), "");
  EXPECT_EQ(record->NMAX0, 85);
  EXPECT_EQ(record->DX0, 50);
  EXPECT_EQ(record->DZ0, 50);
}

TEST_F(TypicalGrid, A_Gap_Of_The_Ladder_Leaves_The_Records_Spacing) {
  Put_In_Former();
  // 60 intervals of 125.5 ft.
  EXPECT_EQ(Compute(7530, 2400, 1, 0), "");
  EXPECT_EQ(record->DX0, 7);
  EXPECT_EQ(record->DZ0, 10);
}

TEST_F(TypicalGrid, A_Grid_Too_Fine_For_Slow_Water_Is_Coarsened_In_Steps_Of_15) {
  // U = 0.095, V = 0.1, L = 2105 > D = 2000: n = 63, A = 33.4; K = 2000 / (2 A 0.195 0.1) = 1535.
  // n 48: A 41.7; 33: 60.6; 18: 111; 3: 667, K = 77 ends it, too late: 8 points, 700 ft.
  EXPECT_EQ(Compute(2000, 21052, 0.1F, 0), "");
  EXPECT_EQ(record->NMAX0, 8);
  EXPECT_EQ(record->DX0, 700);
}

TEST_F(TypicalGrid, What_Is_No_Grid_Is_Refused_And_Nothing_Is_Written) {
  Put_In_Former();
  EXPECT_NE(Compute(1000, 20000, 0.1F, 0), "") << "five intervals below none";
  EXPECT_NE(Compute(0, 3600, 1, 0), "") << "divides by zero";
  EXPECT_NE(Compute(1000, -3600, 1, 0), "");
  EXPECT_NE(Compute(1000, 3600, 1, 0, 0), "");
  EXPECT_NE(Compute(1000, 3600, 1, 0, -5), "");
  EXPECT_NE(Compute(-1000, 3600, 1, 0), "");
  EXPECT_NE(Compute(1, 1e9F, 100, 0), "") << "beyond 16 bits";
  Expect_Untouched();
}

TEST_F(TypicalGrid, Water_That_Stands_Still_Is_Refused_By_Its_Own_Words) {
  Put_In_Former();
  EXPECT_EQ(Compute(1000, 3600, 0, 0), "Please Provide a Typical Velocity Other Than Zero.");
  Expect_Untouched();
}

TEST_F(TypicalGrid, A_Spacing_Of_None_In_A_Gap_Is_Refused) {
  EXPECT_NE(Compute(7530, 2400, 1, 0), "") << "the record has no spacing to keep";
  EXPECT_EQ(record->NMAX0, 0);
}

}  // namespace
}  // namespace barvon::testing
