#include "wizard/grid_picks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "core/velocity_types.h"

namespace barvon::testing {
namespace {

TEST(GridPicks, Faster_Water_Has_A_Wider_Spacing) {
  const auto above = [](float bound) { return std::nextafter(bound, 10.0F); };
  const auto below = [](float bound) { return std::nextafter(bound, 0.0F); };
  EXPECT_EQ(Spacing_For(-3), 35);
  EXPECT_EQ(Spacing_For(below(0.1F)), 35);
  EXPECT_EQ(Spacing_For(0.1F), 95);
  EXPECT_EQ(Spacing_For(0.3F), 95);
  EXPECT_EQ(Spacing_For(above(0.3F)), 200);
  EXPECT_EQ(Spacing_For(0.7F), 200);
  EXPECT_EQ(Spacing_For(above(0.7F)), 350);
  EXPECT_EQ(Spacing_For(1.5F), 350);
  EXPECT_EQ(Spacing_For(above(1.5F)), 700);
}

TEST(GridPicks, The_Spacing_Is_Fitted_To_Whole_Intervals) {
  // 2000 / 350 is 5, so 6 points, raised to 8; 4000 / 200 is 20, so 21 points.
  const Constructed_Grid grid = Construct_Grid({100, 50}, 4000, 2000, {1, 0.5F});
  EXPECT_EQ(grid.points_x, 8);
  EXPECT_EQ(grid.points_z, 21);
  EXPECT_DOUBLE_EQ(grid.spacing_x, 2000.0 / 7);
  EXPECT_DOUBLE_EQ(grid.spacing_z, 200);
  const Constructed_Grid wide = Construct_Grid({}, 40000, 0, {0, 0});
  EXPECT_EQ(wide.points_z, 96);
  EXPECT_EQ(wide.spacing_x, 0) << "no height has no spacing";
  EXPECT_EQ(wide.points_x, 8);
}

TEST(GridPicks, The_Nearest_Point_Is_Picked_And_In_The_Middle_The_Lower_One) {
  const Constructed_Grid grid = Construct_Grid({100, 50}, 4000, 2000, {1, 0.5F});
  EXPECT_EQ(Nearest_Point(grid, {100, 50}), (Grid_Pick{1, 1}));
  EXPECT_EQ(Nearest_Point(grid, {200, 50}).column, 1) << "the middle";
  EXPECT_EQ(Nearest_Point(grid, {200.001, 50}).column, 2);
  EXPECT_EQ(Nearest_Point(grid, {300, 50}).column, 2);
  EXPECT_EQ(Nearest_Point(grid, {0, 0}), (Grid_Pick{1, 1})) << "in front of the grid";
  EXPECT_EQ(Nearest_Point(grid, {9000, 9000}), (Grid_Pick{21, 8})) << "behind it";
  EXPECT_EQ(Place_Of(grid, {21, 8}).x, 4100);
  EXPECT_NEAR(Place_Of(grid, {21, 8}).y, 2050, 1e-9);
}

TEST(GridPicks, The_Vessel_Goes_To_The_Upstream_Corner) {
  const Constructed_Grid grid = Construct_Grid({100, 50}, 4000, 1400, {1, 0.5F});
  const Grid_Pick first{3, 2}, last{11, 6};
  const Picture_Point down = Vessel_Between(grid, first, last, {1, 0.5F});
  EXPECT_EQ(down.x, 500);
  EXPECT_EQ(down.y, 250);
  const Picture_Point up = Vessel_Between(grid, first, last, {-1, -0.5F});
  EXPECT_EQ(up.x, 2100);
  EXPECT_EQ(up.y, 1050);
  const Picture_Point still = Vessel_Between(grid, first, last, {0, 0});
  EXPECT_EQ(still.x, 1300);
  EXPECT_EQ(still.y, 650);
}

TEST(GridPicks, The_Largest_Velocity_Depends_On_The_Profile) {
  auto record = std::make_unique<ProjectRecord>();
  record->AvgVelocityX = -2;
  record->AvgVelocityZ = 0.5;
  record->VelX1 = 1;
  record->VelX2 = -3;
  record->VelZ1 = -4;
  record->VelZ2 = 2;
  record->NMAX0 = 3;
  record->MMAX0 = 2;
  record->VelocityFieldX[3][2] = -5;
  record->VelocityFieldX[2][3] = 9;
  record->VelocityFieldZ[1][1] = 0.25;
  for (const double type : {kSingleVelocity, kLogarithmicVelocity, kUnsteadyVelocity}) {
    record->VelocityProfileType = type;
    EXPECT_EQ(Largest_Velocity_Of(*record).MaxVelX, -2) << type;
    EXPECT_EQ(Largest_Velocity_Of(*record).MaxVelZ, 0.5F) << type;
  }
  record->VelocityProfileType = kTwoPointVelocity;
  EXPECT_EQ(Largest_Velocity_Of(*record).MaxVelX, 3);
  EXPECT_EQ(Largest_Velocity_Of(*record).MaxVelZ, 4);
  record->VelocityProfileType = kVelocityField;
  EXPECT_EQ(Largest_Velocity_Of(*record).MaxVelX, 5) << "what lies outside the grid does not count";
  EXPECT_EQ(Largest_Velocity_Of(*record).MaxVelZ, 0.25F);
  record->VelocityProfileType = kNoVelocity;
  EXPECT_EQ(Largest_Velocity_Of(*record).MaxVelX, 0);
}

}  // namespace
}  // namespace barvon::testing
