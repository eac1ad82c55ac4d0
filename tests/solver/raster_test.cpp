#include "solver/raster.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "solver/basin.h"
#include "solver/normal.h"
#include "solver/parts.h"
#include "solver/verification.h"

namespace companion {
namespace {

constexpr double kPiHere = 3.14159265358979323846;

double Exact_Density(const Part& part, double x, double z) {
  const Plan_Moments& s = part.spread;
  const double det = s.xx * s.zz - s.xz * s.xz;
  const double dx = x - part.x, dz = z - part.z;
  const double q = (s.zz * dx * dx - 2 * s.xz * dx * dz + s.xx * dz * dz) / det;
  return part.weight * std::exp(-0.5 * q) / (2 * kPiHere * std::sqrt(det));
}

TEST(Normal, The_Table_Is_Exact_To_Eleven_Digits_And_Rises) {
  const Normal& normal = Normal::Table();
  double last = 0;
  for (double u = -9; u <= 9; u += 0.00137) {
    EXPECT_NEAR(normal.Below(u), 0.5 * std::erfc(-u / std::sqrt(2.0)), 1e-11);
    EXPECT_NEAR(normal.Density(u), std::exp(-0.5 * u * u) / std::sqrt(2 * kPiHere), 1e-10);
    EXPECT_GE(normal.Below(u), last - 1e-16);
    last = normal.Below(u);
  }
}

TEST(Raster, Cells_Have_The_Means_Of_The_Distribution) {
  Raster raster(41, 41, 100, 100);
  const Part part{1, 1980, 2020, {300 * 300, 0, 300 * 300}};
  raster.Add_Deposit(part);
  double worst = 0;
  for (int i = 0; i < 41; ++i)
    for (int k = 0; k < 41; ++k)
      worst = std::max(worst, std::abs(raster.Value(i, k) - Exact_Density(part, 100 * i, 100 * k)));
  Verified("cell averages, cells of 100 ft", "analytic points, parts of the peak",
           worst / Peak(part), 0.01);
}

TEST(Raster, The_Grid_Holds_The_Share_That_Lies_Over_It) {
  Raster raster(41, 41, 100, 100);
  // Its middle lies on the last row of points: half a cell and what is before it is on the grid.
  const Part part{5, 4000, 1900, {260 * 260, 0, 180 * 180}};
  raster.Add_Deposit(part);
  const double share = 0.5 * std::erfc(-50.0 / 260 / std::sqrt(2.0));
  Verified("sum over the grid", "share of the distribution over it",
           raster.On_Grid() / (5 * share) - 1, 1e-9);
  EXPECT_EQ(raster.Last_Row(), 40);
  EXPECT_GE(raster.First_Row(), 4000 / 100 - 19);
  raster.Clear();
  EXPECT_EQ(raster.On_Grid(), 0);
  EXPECT_EQ(*std::max_element(raster.Values().begin(), raster.Values().end()), 0);
}

/// Means over cells by 24 x 24 points of each.
std::vector<double> By_Points(const Part& part, int points, double spacing) {
  constexpr int kEach = 24;
  std::vector<double> cells;
  for (int i = 0; i < points; ++i)
    for (int k = 0; k < points; ++k) {
      double sum = 0;
      for (int a = 0; a < kEach; ++a)
        for (int b = 0; b < kEach; ++b)
          sum += Exact_Density(part, (i + (a + 0.5) / kEach - 0.5) * spacing,
                               (k + (b + 0.5) / kEach - 0.5) * spacing);
      cells.push_back(sum / (kEach * kEach));
    }
  return cells;
}

TEST(Raster, Tilted_Clouds_Have_The_Means_Of_Their_Cells) {
  // From wide to thinner than a cell, tilted both ways; axes in ft, the tilt in degrees.
  const double clouds[8][3] = {{400, 100, 45}, {400, 100, -30}, {300, 60, 45}, {300, 60, 70},
                               {500, 50, 20},  {250, 40, -45},  {600, 40, 45}, {350, 30, 60}};
  double highest_off = 0, worst_off = 0;
  for (const auto& [a, b, degrees] : clouds) {
    const double c = std::cos(degrees * kPiHere / 180), s = std::sin(degrees * kPiHere / 180);
    const Part part{
        1,
        2030,
        1960,
        {a * a * c * c + b * b * s * s, (a * a - b * b) * c * s, a * a * s * s + b * b * c * c}};
    Raster raster(41, 41, 100, 100);
    raster.Add_Deposit(part);
    const std::vector<double> exact = By_Points(part, 41, 100);
    double off = 0, sum = 0;
    for (std::size_t i = 0; i < exact.size(); ++i) {
      off += std::abs(raster.Values()[i] - exact[i]);
      sum += exact[i];
    }
    const double highest = *std::max_element(exact.begin(), exact.end());
    const double got = *std::max_element(raster.Values().begin(), raster.Values().end());
    highest_off = std::max(highest_off, std::abs(got / highest - 1));
    worst_off = std::max(worst_off, off / sum);
  }
  Verified("cell means of 8 tilted clouds, highest cell", "quadrature", highest_off, 0.02);
  Verified("cell means of 8 tilted clouds, L1", "quadrature", worst_off, 0.05);
}

TEST(Raster, A_Map_Goes_As_Far_As_A_Millionth_Of_Its_Highest_Cell) {
  const std::vector<Part> parts = {{1, 1500, 2000, {90 * 90, 3000, 120 * 120}},
                                   {1e-3, 2600, 2050, {300 * 300, -20000, 150 * 150}},
                                   {1e-9, 1500, 2000, {300 * 300, 0, 150 * 150}}};
  Raster cut(41, 41, 100, 100), whole(41, 41, 100, 100);
  cut.Add(parts);
  for (const Part& part : parts) whole.Add_Deposit(part);
  const double highest = *std::max_element(whole.Values().begin(), whole.Values().end());
  for (int i = 0; i < 41; ++i)
    for (int k = 0; k < 41; ++k)
      EXPECT_NEAR(cut.Value(i, k), whole.Value(i, k), 2e-6 * highest) << i << ' ' << k;
  EXPECT_EQ(cut.Value(40, 20), 0);
}

TEST(Raster, Land_Has_Its_Share_Told) {
  Model_Input input = Still_Basin();
  input.constant_depth = false;
  input.depths.assign(41, std::vector<double>(41, 30.0));
  for (int i = 21; i < 41; ++i) input.depths[static_cast<std::size_t>(i)].assign(41, 0.0);
  const Water water(input, {});
  Raster raster(41, 41, 100, 100);
  // Its middle lies on the face between the last row of water and the first of land.
  raster.Add_Deposit({8, 2050, 2000, {100 * 100, 0, 100 * 100}});
  EXPECT_NEAR(raster.Above_Land(water), 4, 1e-9);
}

TEST(Parts, A_Value_Between_Two_Layers_Lies_Straight_Between_Theirs) {
  Column column;
  column.depth = 60;
  column.layers.resize(2);
  // Thicknesses of 18.75 and 41.25 ft, middles at 50.625 and 20.625 ft below the surface.
  column.layers[0] = {18.75 * 4, 100, 200, {50 * 50, 0, 50 * 50}};
  column.layers[1] = {41.25 * 8, 900, 200, {70 * 70, 0, 70 * 70}};
  const auto weights = [&](double y) {
    std::vector<Part> parts;
    Parts_At_Depth({column}, 0, y, parts);
    std::vector<double> found(2);
    for (const Part& part : parts) found[part.x > 500 ? 1 : 0] += part.weight;
    return found;
  };
  EXPECT_NEAR(weights(50.625)[0], 4, 1e-12);
  EXPECT_NEAR(weights(59)[0], 4, 1e-12);
  EXPECT_NEAR(weights(59)[1], 0, 1e-12);
  EXPECT_NEAR(weights(0)[1], 8, 1e-12);
  EXPECT_NEAR(weights(35.625)[0], 2, 1e-12);
  EXPECT_NEAR(weights(35.625)[1], 4, 1e-12);
  EXPECT_EQ(weights(60.1)[0] + weights(60.1)[1], 0);
  EXPECT_EQ(weights(-1)[1], 0);
}

TEST(Parts, A_Cloud_In_Motion_Is_Even_Over_Its_Height) {
  Source source;
  source.amount = 30;
  source.top = 10;
  source.foot = 25;
  std::vector<Part> parts;
  Parts_At_Depth(std::vector<Source>{source}, 0, 12, parts);
  ASSERT_EQ(parts.size(), 1u);
  EXPECT_DOUBLE_EQ(parts[0].weight, 2);
  Parts_At_Depth(std::vector<Source>{source}, 0, 26, parts);
  Parts_At_Depth(std::vector<Source>{source}, 1, 12, parts);
  EXPECT_EQ(parts.size(), 1u);
}

TEST(Parts, The_Highest_Point_Counts_Clouds_In_Motion_And_Keeps_To_Its_Area) {
  Column column;
  column.depth = 60;
  column.layers.resize(1);
  column.layers[0] = {60, 1000, 1000, {100 * 100, 0, 100 * 100}};
  Source cloud;
  cloud.amount = 24;
  cloud.x = cloud.z = 1000;
  cloud.spread = {50 * 50, 0, 50 * 50};
  cloud.top = 20;
  cloud.foot = 28;
  const double own = 1 / (2 * kPiHere * 100 * 100), more = 3 / (2 * kPiHere * 50 * 50);
  const auto both = Highest_Point({column}, {cloud}, 0);
  ASSERT_TRUE(both);
  EXPECT_NEAR(both->value, own + more, 1e-12 * more);
  EXPECT_EQ(both->y, 24);
  EXPECT_FALSE(Highest_Point({column}, {cloud}, 0, 1.001 * (own + more)));
  EXPECT_FALSE(Highest_Point({column}, {cloud}, 1));
  cloud.x = 3000;
  const auto near =
      Highest_Point({column}, {cloud}, 0, 0, [](double x, double) { return x < 2000; });
  ASSERT_TRUE(near);
  EXPECT_NEAR(near->value, own, 1e-12 * own);
}

}  // namespace
}  // namespace companion
