#include "solver/settling.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/solver/solver_case.h"

namespace companion {
namespace {

TEST(Settling, Flocs_Settle_Faster_With_Their_Concentration_Up_To_Five_Times) {
  Solid solid = Test_Solid("CLAY", 0.1, 0.001);
  EXPECT_EQ(Floc_Factor(solid, 1e-3), 1);
  solid.cohesive = true;
  EXPECT_EQ(Floc_Factor(solid, 0), 1);
  EXPECT_NEAR(Floc_Factor(solid, 600 / 2.65e6), 3, 1e-12);
  EXPECT_EQ(Floc_Factor(solid, 1e-2), 5);
}

TEST(Settling, Grains_Hinder_Each_Other_And_Flocs_Hurry) {
  Solid solid;
  solid.sg = 2.5;
  EXPECT_EQ(Settling_Factor(solid, 0), 1);
  EXPECT_NEAR(Settling_Factor(solid, 0.2), std::pow(0.8, 4.65), 1e-12);
  EXPECT_NEAR(Settling_Factor(solid, 1e-3), std::pow(1 - 1e-3, 4.65), 2e-8);
  solid.cohesive = true;
  EXPECT_NEAR(Settling_Factor(solid, 60e-6), 1, 1e-3);   // 150 mg/l
  EXPECT_NEAR(Settling_Factor(solid, 160e-6), 2, 2e-3);  // 400 mg/l
  EXPECT_NEAR(Settling_Factor(solid, 800e-6), 5, 2e-2);  // 2 g/l
  EXPECT_GT(Settling_Factor(solid, 1), 0);
}

// Clouds and columns differ by the series that stands for the power in thin water, and no more.
TEST(Settling, Is_The_Same_In_Clouds_And_Columns) {
  for (const bool cohesive : {false, true}) {
    Solid solid = Test_Solid("CLAY", 0.1, 0.001);
    solid.cohesive = cohesive;
    for (const double share : {0.0, 1e-5, 1e-4, 2e-4, 1e-3, 1.001e-3, 0.01, 0.3, 0.8}) {
      const double cloud = Hindrance(share) * Floc_Factor(solid, share);
      EXPECT_NEAR(Settling_Factor(solid, share) / cloud, 1, 2e-8) << share;
    }
  }
}

}  // namespace
}  // namespace companion
