#include "solver/drift.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "solver/basin.h"
#include "solver/columns.h"
#include "solver/parts.h"
#include "solver/raster.h"
#include "solver/verification.h"

namespace companion {
namespace {

/// 201 by 41 points 50 ft apart, 40 ft deep at 1000 ft along X and 10 ft at 9000 ft, straight.
Model_Input Shoal(int velocity_type) {
  Model_Input input = Still_Basin();
  input.points_x = 201;
  input.points_z = 41;
  input.spacing_x = input.spacing_z = 50;
  input.constant_depth = false;
  input.velocity_type = velocity_type;
  input.mean_x = 0.5;
  input.mean_depth = 40;
  input.vessel_x = 1000;
  input.vessel_z = 1000;
  for (int i = 0; i < input.points_x; ++i) {
    const double depth = 40 - 30 * (50.0 * i - 1000) / 8000;
    input.depths.emplace_back(static_cast<std::size_t>(input.points_z), depth);
    input.field_x.emplace_back(static_cast<std::size_t>(input.points_z), 0.5 * 40 / depth);
    input.field_z.emplace_back(static_cast<std::size_t>(input.points_z), 0.0);
  }
  return input;
}

double Highest_In_The_Middle(const Passive& passive, const Model_Input& input, const Water& water) {
  const Layer whole = Whole(passive.Columns().front());
  std::vector<Part> parts;
  Parts_At_Depth(passive.Columns(), 0, 0.5 * water.Depth(whole.x, whole.z), parts);
  Raster raster(input.points_x, input.points_z, input.spacing_x, input.spacing_z);
  raster.Add(parts);
  return *std::max_element(raster.Values().begin(), raster.Values().end());
}

TEST(Drift, A_Current_Onto_A_Shoal_Keeps_The_Concentration) {
  for (const int type : {1, 4}) {
    const Model_Input input = Shoal(type);
    const Water water(input, {});
    Passive passive(input, water);
    Source source = Round_Source(input, 40);
    source.foot = 40;
    passive.Add(source);
    passive.Advance(1);
    const double first = Value_At(passive.Columns(), {}, 0, 1000, 1000, 20);
    double time = 1;
    while (Whole(passive.Columns().front()).x < 9000) passive.Advance(time += 10);
    const Layer whole = Whole(passive.Columns().front());
    EXPECT_NEAR(passive.Columns().front().depth, 10, 0.1);
    const double later = Value_At(passive.Columns(), {}, 0, whole.x, whole.z, 5);
    Verified("concentration along a current that shoals, type " + std::to_string(type), "the same",
             later / first - 1, 0.01);
  }
}

TEST(Drift, A_Sheared_Current_Onto_A_Shoal_Keeps_The_Concentration) {
  const Model_Input input = Shoal(2);
  const Water water(input, {});
  Passive passive(input, water);
  Source source = Round_Source(input, 300);
  source.foot = 40;
  passive.Add(source);
  passive.Advance(1);
  const double first = Highest_In_The_Middle(passive, input, water);
  double time = 1;
  while (Whole(passive.Columns().front()).x < 5000) passive.Advance(time += 30);
  const double later = Highest_In_The_Middle(passive, input, water);
  Verified("concentration along a current that shoals, type 2, cell at mid-depth", "the same",
           later / first - 1, 0.03);
}

TEST(Drift, What_The_Depression_Holds_Stays) {
  Model_Input input = Still_Basin();
  input.mean_x = 1;
  input.coefficients.AKY0 = 0.05;
  input.hole_x = input.hole_z = 400;
  input.hole_depth = 10;
  const Water water(input, {});
  Passive passive(input, water);
  Source source = Round_Source(input, 50);
  source.top = 60;
  source.foot = 70;
  source.held = true;
  passive.Add(source);
  passive.Advance(7200);
  const Column& column = passive.Columns().front();
  const Layer whole = Whole(column);
  const double off =
      std::max({std::abs(whole.x - 2000), std::abs(whole.z - 2000), std::abs(column.depth - 70)});
  Verified("held by the depression: place after two hours, depth", "the same, ft", off, 1e-9);
  EXPECT_NEAR(whole.amount, source.amount, 1e-12 * source.amount);
}

TEST(Drift, What_Comes_Ashore_Stands_Still_In_The_First_Land_Cell) {
  Model_Input input = Still_Basin();
  input.constant_depth = false;
  input.mean_x = 2;
  input.mean_depth = 0;
  input.coefficients.AKY0 = 0.05;
  input.coefficients.ALAMDA = 0.001;
  input.depths.assign(41, std::vector<double>(41, 30.0));
  for (int i = 25; i < 41; ++i) input.depths[static_cast<std::size_t>(i)].assign(41, 0.0);
  input.batches.front().solids.front().fall_velocity = 0.002;
  const Water water(input, {});
  Passive passive(input, water);
  passive.Add(Round_Source(input, 100));
  double settled = 0, highest = 0;
  for (double time = 60; time <= 3600; time += 60) {
    passive.Advance(time);
    settled += Taken_Settled(passive);
    const double value = Highest_Point(passive.Columns(), {}, 0).value_or(Point_Value{}).value;
    if (time > 60) {
      EXPECT_LE(value, highest * (1 + 1e-9));
    }
    highest = value;
  }
  Verified("half the grid land: balance", "exact", (settled + In_Water(passive)) / 1000 - 1, 1e-12);
  for (const Layer& layer : passive.Columns().front().layers) {
    EXPECT_GE(layer.x, 2500);
    EXPECT_LE(layer.x, 2600);
  }
}

TEST(Drift, No_Current_Steps_Over_A_Strip_Of_Land) {
  Model_Input input = Still_Basin();
  input.constant_depth = false;
  input.mean_x = 9;  // 270 ft in a step
  input.mean_depth = 0;
  input.depths.assign(41, std::vector<double>(41, 30.0));
  for (const std::size_t row : {33u, 34u}) input.depths[row].assign(41, 0.0);
  const Water water(input, {});
  Passive passive(input, water);
  passive.Add(Round_Source(input, 100));
  passive.Advance(600);
  const Layer whole = Whole(passive.Columns().front());
  EXPECT_GE(whole.x, 3300);
  EXPECT_LE(whole.x, 3400);
}

TEST(Drift, A_Current_That_Runs_Together_Makes_No_Line_Of_A_Cloud) {
  Model_Input input = Still_Basin();
  input.velocity_type = 4;
  input.points_x = input.points_z = 41;
  for (int i = 0; i < 41; ++i) {
    input.field_x.emplace_back(41, 0.02 * (20 - i) * 100);
    input.field_z.emplace_back();
    for (int k = 0; k < 41; ++k) input.field_z.back().push_back(0.02 * (k - 20) * 100);
  }
  const Water water(input, {});
  Passive passive(input, water);
  passive.Add(Round_Source(input, 40));
  passive.Advance(7200);
  for (const Column& column : passive.Columns())
    for (const Layer& layer : column.layers) {
      const Plan_Moments& s = layer.spread;
      EXPECT_GE(s.xx * s.zz - s.xz * s.xz, 0.99 * kSmallest * kSmallest);
      EXPECT_LE(s.zz, 2 * 4100.0 * 4100 * (1 + 1e-9));
    }
  EXPECT_NEAR(In_Water(passive), 1000, 1e-9);
}

TEST(Drift, A_Cloud_In_Still_Water_Settles_With_Its_Own_Symmetry) {
  Model_Input input = Still_Basin();
  input.coefficients.AKY0 = 0.05;
  input.coefficients.ALAMDA = 0.0002;
  input.batches.front().solids.front().fall_velocity = 0.02;
  const Water water(input, {});
  Passive passive(input, water);
  passive.Add(Round_Source(input, 150));
  Raster raster(41, 41, 100, 100);
  double settled = 0;
  for (double time = 600; time <= 7200; time += 600) {
    passive.Advance(time);
    for (const Deposit& deposit : passive.Take_Settled()) {
      raster.Add_Deposit(Part_Of(deposit));
      settled += deposit.amount;
    }
  }
  EXPECT_GT(settled, 500);
  EXPECT_NEAR(raster.On_Grid(), settled, 1e-9 * settled);
  double worst = 0, highest = 0;
  for (int i = 0; i < 41; ++i)
    for (int k = 0; k < 41; ++k) {
      const double value = raster.Value(i, k);
      highest = std::max(highest, value);
      for (const double other :
           {raster.Value(40 - i, k), raster.Value(i, 40 - k), raster.Value(k, i)})
        worst = std::max(worst, std::abs(value - other));
    }
  Verified("no current: symmetry of the bed", "exact, parts of the peak", worst / highest, 1e-12);
}

}  // namespace
}  // namespace companion
