#include "solver/water.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "solver/det_math.h"
#include "tests/solver/solver_case.h"
#include "tests/solver/verification.h"

namespace companion {
namespace {

using Grid = std::vector<std::vector<double>>;

Water Of(const Model_Input& input) { return Water(input, {}); }

/// The plain site over a depth grid with its points 100 ft apart.
Model_Input Over(const Grid& depths) {
  Model_Input input = Solver_Case();
  input.points_x = static_cast<int>(depths.size());
  input.points_z = static_cast<int>(depths.front().size());
  input.constant_depth = false;
  input.depths = depths;
  return input;
}

Model_Input Flowing(int type, double x, double z, double depth) {
  Model_Input input = Solver_Case();
  input.velocity_type = type;
  input.mean_x = x;
  input.mean_z = z;
  input.mean_depth = depth;
  return input;
}

/// Mean over the water above a height, by Simpson's rule in the logarithm of the height.
double Mean_By_Quadrature(const Water& water, double depth, double lowest) {
  constexpr int kSteps = 4000;
  const double range = std::log(depth / lowest);
  double sum = 0;
  for (int i = 0; i <= kSteps; ++i) {
    const double height = std::min(depth, lowest * std::exp(range * i / kSteps));
    const double weight = i == 0 || i == kSteps ? 1 : (i % 2 == 0 ? 2 : 4);
    sum += weight * height * water.Current(2000, 2000, depth - height, 0).x;
  }
  return sum * range / kSteps / 3 / depth;
}

TEST(Water_Depth, Is_Straight_Between_The_Points_And_Held_At_The_Edge) {
  const Water water = Of(Over({{10, 20, 20}, {30, 40, 40}, {30, 40, 44}}));
  EXPECT_DOUBLE_EQ(water.Depth(0, 0), 10);
  EXPECT_DOUBLE_EQ(water.Depth(0, 100), 20);
  EXPECT_DOUBLE_EQ(water.Depth(100, 0), 30);
  EXPECT_DOUBLE_EQ(water.Depth(50, 50), 25);
  EXPECT_DOUBLE_EQ(water.Depth(25, 75), 22.5);
  EXPECT_DOUBLE_EQ(water.Depth(150, 150), 41);
  EXPECT_DOUBLE_EQ(water.Depth(200, 200), 44);
  EXPECT_DOUBLE_EQ(water.Depth(1e9, 1e9), 44);
  EXPECT_DOUBLE_EQ(water.Depth(-1e9, -1), 10);
  EXPECT_DOUBLE_EQ(water.Depth(std::nan(""), 0), 10);
}

TEST(Water_Depth, Takes_The_Depths_Of_The_Additions_Over_A_Grid_Of_That_Size) {
  Model_Input input = Over({{10, 20}, {30, 40}});
  Additions additions;
  additions.depths = {{1, 2}, {3, 4}};
  EXPECT_DOUBLE_EQ(Water(input, additions).Depth(100, 0), 3);
  additions.depths = {{1, 2, 3}, {3, 4, 5}};
  EXPECT_DOUBLE_EQ(Water(input, additions).Depth(100, 0), 30);
  additions.depths = {{1, 2}, {3, 4}};
  input.constant_depth = true;
  EXPECT_DOUBLE_EQ(Water(input, additions).Depth(100, 0), 60);
}

TEST(Water_Land, Is_Filled_Ring_By_Ring_From_Its_Wet_Neighbours) {
  const Water water = Of(Over({{10, 0, 0, 30}, {20, -5, 0, 50}}));
  // First ring: 10 and 20 on the left, 30 and 50 on the right, each from one wet side alone.
  EXPECT_DOUBLE_EQ(water.Depth(0, 100), 10);
  EXPECT_DOUBLE_EQ(water.Depth(100, 100), 20);
  EXPECT_DOUBLE_EQ(water.Depth(0, 200), 30);
  EXPECT_DOUBLE_EQ(water.Depth(100, 200), 50);

  const Water wide = Of(Over({{10, 0, 0, 0, 40}, {20, 0, 0, 0, 60}}));
  EXPECT_DOUBLE_EQ(wide.Depth(0, 100), 10);
  EXPECT_DOUBLE_EQ(wide.Depth(0, 200), 25);  // second ring: between 10 and 40
  EXPECT_DOUBLE_EQ(wide.Depth(100, 200), 40);
}

TEST(Water_Land, Takes_The_Field_Of_Its_Wet_Neighbours_Too) {
  Model_Input input = Over({{10, 0, 30}, {10, 0, 30}});
  input.velocity_type = 4;
  input.field_x = {{1, 9, 3}, {2, 9, 6}};
  input.field_z = {{-1, 9, 0}, {0, 9, 0}};
  const Water water = Of(input);
  EXPECT_DOUBLE_EQ(water.Current(0, 100, 5, 0).x, 2);
  EXPECT_DOUBLE_EQ(water.Current(100, 100, 5, 0).x, 4);
  EXPECT_DOUBLE_EQ(water.Current(0, 100, 5, 0).z, -0.5);
}

TEST(Water_Land, Is_Told_By_Point_And_By_Cell) {
  const Water water = Of(Over({{10, 0, 0}, {10, 0, 0}, {10, 10, 10}}));
  EXPECT_FALSE(water.Land_Point(0, 0));
  EXPECT_TRUE(water.Land_Point(0, 1));
  EXPECT_TRUE(water.Touches_Land(50, 50));
  EXPECT_FALSE(water.Land_Cell(50, 50));
  EXPECT_TRUE(water.Land_Cell(50, 150));
  EXPECT_TRUE(water.Touches_Land(150, 150));
  EXPECT_FALSE(water.Land_Cell(150, 150));
  const Water sea = Of(Solver_Case());
  EXPECT_FALSE(sea.Land_Point(0, 0));
  EXPECT_FALSE(sea.Touches_Land(50, 50));
  EXPECT_FALSE(sea.Land_Cell(50, 50));
}

TEST(Water_Land, A_Grid_Without_Any_Water_Ends) {
  const Water water = Of(Over({{0, 0}, {0, 0}}));
  EXPECT_TRUE(water.Land_Cell(50, 50));
}

TEST(Water_Depression, Lowers_The_Bed_In_Its_Rectangle_Around_The_Vessel) {
  Model_Input input = Solver_Case();
  input.hole_x = 200;
  input.hole_z = 80;
  input.hole_depth = 7;
  const Water water = Of(input);
  EXPECT_DOUBLE_EQ(water.Bed(2000, 2000), 67);
  EXPECT_DOUBLE_EQ(water.Bed(2100, 1960), 67);
  EXPECT_DOUBLE_EQ(water.Bed(2100.1, 2000), 60);
  EXPECT_DOUBLE_EQ(water.Bed(2000, 2040.1), 60);
  EXPECT_DOUBLE_EQ(water.Depth(2000, 2000), 60);
  EXPECT_TRUE(water.In_Depression(1900, 2040));
  input.hole_depth = 0;
  EXPECT_FALSE(Of(input).In_Depression(2000, 2000));
}

TEST(Water_Density, Is_Straight_Between_The_Points_And_Constant_Beyond) {
  Model_Input input = Solver_Case();
  input.profile_depths = {10, 30, 30, 50};
  input.profile_densities = {1.00, 1.01, 1.02, 1.03};
  const Water water = Of(input);
  EXPECT_DOUBLE_EQ(water.Density(0), 1.00);
  EXPECT_DOUBLE_EQ(water.Density(10), 1.00);
  EXPECT_DOUBLE_EQ(water.Density(20), 1.005);
  EXPECT_DOUBLE_EQ(water.Density(30), 1.01);
  EXPECT_NEAR(water.Density(30.0001), 1.02, 1e-6);
  EXPECT_DOUBLE_EQ(water.Density(40), 1.025);
  EXPECT_DOUBLE_EQ(water.Density(1000), 1.03);
  input.profile_depths = {0};
  input.profile_densities = {1.02};
  EXPECT_DOUBLE_EQ(Of(input).Density(33), 1.02);
}

TEST(Water_Density, Squared_Frequency_By_Hand) {
  Model_Input input = Solver_Case();
  input.profile_depths = {0, 50};
  input.profile_densities = {1.00, 1.02};
  const Water water = Of(input);
  const double by_hand = 32.174 * 0.02 / (1.01 * 50);
  Verified("N2 of layered water", "by hand", water.Squared_Frequency(0, 50) / by_hand - 1, 1e-12);
  EXPECT_DOUBLE_EQ(water.Squared_Frequency(50, 0), water.Squared_Frequency(0, 50));
  EXPECT_EQ(water.Squared_Frequency(60, 70), 0);
  EXPECT_EQ(water.Squared_Frequency(20, 20), 0);
  input.profile_densities = {1.02, 1.00};
  EXPECT_EQ(Of(input).Squared_Frequency(0, 50), 0);
}

TEST(Water_Current, Carries_The_Same_Flow_Through_Another_Depth) {
  const Grid slope = {{50, 50}, {25, 25}, {5, 5}, {1000, 1000}};
  for (const int type : {0, 1, 5}) {
    Model_Input input = Over(slope);
    input.velocity_type = type;
    input.mean_x = 1;
    input.mean_z = -0.5;
    input.mean_depth = 50;
    const Water water = Of(input);
    EXPECT_DOUBLE_EQ(water.Current(0, 50, 3, 0).x, 1);
    EXPECT_DOUBLE_EQ(water.Current(100, 50, 3, 0).x, 2);
    EXPECT_DOUBLE_EQ(water.Current(100, 50, 3, 0).z, -1);
    EXPECT_DOUBLE_EQ(water.Current(200, 50, 3, 0).x, 5);    // held, not 10
    EXPECT_DOUBLE_EQ(water.Current(300, 50, 3, 0).x, 0.2);  // held, not 0.05
    EXPECT_DOUBLE_EQ(water.Mean_Current(100, 50, 0).x, 2);
    input.mean_depth = 0;
    EXPECT_DOUBLE_EQ(Of(input).Current(100, 50, 3, 0).x, 1);
  }
  Model_Input input = Over(slope);
  input.velocity_type = 2;
  input.mean_x = 1;
  input.mean_depth = 50;
  EXPECT_DOUBLE_EQ(Of(input).Mean_Current(100, 50, 0).x, 2);
}

TEST(Water_Current, Logarithmic_Profile_By_Hand) {
  Model_Input input = Flowing(2, 1, 0.5, 40);
  input.depth = 40;
  input.roughness = 0.3;  // z0 = 0.01 ft
  const Water water = Of(input);
  EXPECT_DOUBLE_EQ(water.Roughness(2000, 2000), 0.01);
  // ln(20/0.01) = 7.600902460, ln(40/0.01) = 8.294049640.
  const double by_hand = 7.600902460 / (8.294049640 - 1 + 0.00025);
  EXPECT_NEAR(water.Current(2000, 2000, 20, 0).x, by_hand, 1e-9);
  EXPECT_NEAR(water.Current(2000, 2000, 20, 0).z, by_hand / 2, 1e-9);
  EXPECT_NEAR(water.Current_At_Share(2000, 2000, 0.5, 0).x, by_hand, 1e-9);
  EXPECT_EQ(water.Current(2000, 2000, 39.99, 0).x, 0);
  EXPECT_EQ(water.Current(2000, 2000, 45, 0).x, 0);
  EXPECT_DOUBLE_EQ(water.Current(2000, 2000, -5, 0).x, water.Current(2000, 2000, 0, 0).x);
}

TEST(Water_Current, Logarithmic_Profile_Has_The_Mean_That_Is_Given) {
  for (const double roughness : {0.0, 0.001, 0.3, 3.0, 30.0}) {
    Model_Input input = Flowing(2, 1, 0, 60);
    input.roughness = roughness;
    const Water water = Of(input);
    const double mean = Mean_By_Quadrature(water, 60, water.Roughness(2000, 2000));
    Verified("logarithmic profile: its mean over the depth", "the given one, by quadrature",
             mean - 1, 1e-9);
  }
}

TEST(Water_Current, Roughness_Above_The_Depth_Gives_A_Number) {
  Model_Input input = Flowing(2, 1, 0, 60);
  input.roughness = 3000;  // z0 of 100 ft, held to 2
  const Water water = Of(input);
  EXPECT_DOUBLE_EQ(water.Roughness(2000, 2000), 2);
  const double mean = Mean_By_Quadrature(water, 60, 2);
  Verified("roughness above the depth: mean of the profile", "the given one", mean - 1, 1e-9);
  const double by_hand = 0.41 / (3.4011973816621555 - 1);  // ln 30
  Verified("roughness above the depth: shear velocity", "by hand",
           water.Shear_Velocity(2000, 2000, 0) / by_hand - 1, 1e-12);
}

TEST(Water_Current, Shear_Velocity_And_Stress_By_Hand) {
  Model_Input input = Flowing(1, 0.6, -0.8, 40);
  input.depth = 40;
  input.roughness = 0.3;
  const Water water = Of(input);
  const double by_hand = 0.41 / (8.294049640102028 - 1);  // of 1 ft/s
  Verified("shear velocity", "by hand", water.Shear_Velocity(2000, 2000, 0) / by_hand - 1, 1e-12);
  Verified("stress on the bed", "by hand",
           water.Bed_Stress(2000, 2000, 0) / (1.94 * 1.02 * by_hand * by_hand) - 1, 1e-12);
  input.roughness = 0;
  EXPECT_DOUBLE_EQ(Of(input).Roughness(0, 0), 3.3e-7);
}

TEST(Water_Current, Two_Points_Are_Straight_Between_And_Constant_Beyond) {
  Model_Input input = Solver_Case();
  input.velocity_type = 3;
  input.two_point = {10, 30, 2, 1, 40, 20, -1, 1};
  const Water water = Of(input);
  EXPECT_DOUBLE_EQ(water.Current(0, 0, 0, 0).x, 2);
  EXPECT_DOUBLE_EQ(water.Current(0, 0, 20, 0).x, 1.5);
  EXPECT_DOUBLE_EQ(water.Current(0, 0, 55, 0).x, 1);
  EXPECT_DOUBLE_EQ(water.Current(0, 0, 5, 0).z, 1);  // given from below
  EXPECT_DOUBLE_EQ(water.Current(0, 0, 30, 0).z, 0);
  EXPECT_DOUBLE_EQ(water.Current(0, 0, 50, 0).z, -1);
  // 10 ft of 2, 20 ft of 1.5, 30 ft of 1 in 60 ft; 20 of 1, 20 of 0, 20 of -1.
  EXPECT_DOUBLE_EQ(water.Mean_Current(0, 0, 0).x, 80.0 / 60);
  EXPECT_NEAR(water.Mean_Current(0, 0, 0).z, 0, 1e-15);
  EXPECT_FALSE(water.Strains());
  input.depth = 20;  // the lower points lie beneath the bed
  EXPECT_DOUBLE_EQ(Of(input).Mean_Current(0, 0, 0).x, (20 + 10 * 1.75) / 20);
  input.two_point = {10, 10, 2, 1, 0, 0, 3, 3};  // a jump
  EXPECT_DOUBLE_EQ(Of(input).Current(0, 0, 9.9, 0).x, 2);
  EXPECT_DOUBLE_EQ(Of(input).Current(0, 0, 10.1, 0).x, 1);
  EXPECT_DOUBLE_EQ(Of(input).Mean_Current(0, 0, 0).x, 1.5);
  EXPECT_DOUBLE_EQ(Of(input).Current(0, 0, 5, 0).z, 3);
}

TEST(Water_Current, A_Field_Is_Straight_Between_Its_Points_And_The_Same_Over_The_Depth) {
  Model_Input input = Over({{50, 50}, {25, 25}});
  input.velocity_type = 4;
  input.field_x = {{1, 2}, {3, 4}};
  input.field_z = {{0, 0}, {0, 8}};
  const Water water = Of(input);
  for (const double y : {0.0, 20.0}) {
    EXPECT_DOUBLE_EQ(water.Current(50, 50, y, 0).x, 2.5);
    EXPECT_DOUBLE_EQ(water.Current(50, 50, y, 0).z, 2);
  }
  EXPECT_DOUBLE_EQ(water.Mean_Current(100, 100, 0).x, 4);
  EXPECT_TRUE(water.Strains());
}

TEST(Water_Tide, Is_Straight_Between_Its_Times_And_Holds_Its_Last_Value) {
  Model_Input input = Flowing(5, 0.7, 0.1, 60);
  Additions additions;
  additions.present = true;
  additions.tide = Tide{{600, 2400, 4200}, {1, -1, 0.5}, {0, 0.4, 0}};
  const Water water(input, additions);
  const auto at = [&water](double t) { return water.Current(2000, 2000, 30, t); };
  EXPECT_EQ(at(0).x, 0);  // before the first point
  EXPECT_EQ(at(599).z, 0);
  EXPECT_DOUBLE_EQ(at(600).x, 1);
  EXPECT_DOUBLE_EQ(at(1500).x, 0);
  EXPECT_DOUBLE_EQ(at(1500).z, 0.2);
  EXPECT_DOUBLE_EQ(at(2400).x, -1);
  EXPECT_DOUBLE_EQ(at(3300).x, -0.25);
  EXPECT_DOUBLE_EQ(at(4200).x, 0.5);
  EXPECT_DOUBLE_EQ(at(1e6).x, 0.5);
  EXPECT_DOUBLE_EQ(water.Mean_Current(0, 0, 1e6).x, 0.5);
}

TEST(Water_Tide, Is_Of_Type_5_Alone_And_Without_It_The_Average_Holds) {
  Additions additions;
  additions.present = true;
  additions.tide = Tide{{0}, {3}, {3}};
  EXPECT_DOUBLE_EQ(Water(Flowing(1, 0.7, 0, 60), additions).Current(0, 0, 9, 99).x, 0.7);
  EXPECT_DOUBLE_EQ(Water(Flowing(5, 0.7, 0, 60), additions).Current(0, 0, 9, 99).x, 3);
  EXPECT_DOUBLE_EQ(Of(Flowing(5, 0.7, 0, 60)).Current(0, 0, 9, 99).x, 0.7);
  EXPECT_DOUBLE_EQ(Water(Flowing(5, 0.7, 0, 120), additions).Current(0, 0, 9, 99).x, 6);
}

TEST(Water_Strain, Of_A_Straight_Field_Is_Its_Slopes) {
  Model_Input input = Solver_Case();
  input.velocity_type = 4;
  input.spacing_z = 50;
  for (int i = 0; i < 41; ++i) {
    input.field_x.emplace_back();
    input.field_z.emplace_back();
    for (int k = 0; k < 41; ++k) {
      const double x = i * 100.0, z = k * 50.0;
      input.field_x.back().push_back(1 + 2e-4 * x - 3e-4 * z);
      input.field_z.back().push_back(4e-4 * x + 5e-4 * z);
    }
  }
  const std::array<double, 4> strain = Of(input).Strain(1234, 777, 0.5, 0);
  EXPECT_NEAR(strain[0], 2e-4, 1e-15);
  EXPECT_NEAR(strain[1], -3e-4, 1e-15);
  EXPECT_NEAR(strain[2], 4e-4, 1e-15);
  EXPECT_NEAR(strain[3], 5e-4, 1e-15);
}

TEST(Water_Strain, Of_A_Mean_Current_Is_That_Of_The_Depth) {
  Model_Input input = Over(Grid(21, std::vector<double>(3, 0)));
  for (int i = 0; i < 21; ++i) input.depths[static_cast<std::size_t>(i)].assign(3, 40 - i);
  input.velocity_type = 1;
  input.mean_x = 1;
  input.mean_depth = 40;
  const Water water = Of(input);
  EXPECT_TRUE(water.Strains());
  // At x = 1000 the depth is 30: from 40/30.5 to 40/29.5 within the 100 ft of a cell.
  EXPECT_NEAR(water.Strain(1000, 100, 0.3, 0)[0], (40 / 29.5 - 40 / 30.5) / 100, 1e-15);
  EXPECT_EQ(water.Strain(1000, 100, 0.3, 0)[1], 0);
  input.mean_depth = 0;
  EXPECT_FALSE(Of(input).Strains());
  EXPECT_FALSE(Of(Flowing(1, 1, 0, 40)).Strains());
}

TEST(Water_Strain, Is_None_Where_It_Would_Touch_Land) {
  Model_Input input = Over(Grid(3, std::vector<double>(8, 40)));
  input.depths[1][6] = 0;
  input.velocity_type = 4;
  input.field_x.assign(3, {0, 1, 2, 3, 4, 5, 6, 7});
  input.field_z = input.field_x;
  const Water water = Of(input);
  EXPECT_NEAR(water.Strain(100, 440, 0.5, 0)[1], 0.01, 1e-15);
  EXPECT_EQ(water.Strain(100, 460, 0.5, 0), (std::array<double, 4>{}));
}

}  // namespace
}  // namespace companion
