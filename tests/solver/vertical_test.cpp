#include "solver/vertical.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "solver/basin.h"
#include "solver/columns.h"
#include "solver/verification.h"

namespace companion {
namespace {

TEST(Vertical, A_Slab_Settles_As_One) {
  Model_Input input = Still_Basin();
  input.batches.front().solids.front().fall_velocity = 0.05;
  const Water water(input, {});
  for (const int layers : {16, 32, 64}) {
    Passive passive(input, water, layers);
    passive.Add(Round_Source(input, 1000, 15, 30));  // the bed is at 60 ft
    double settled = 0, worst = 0;
    for (double time = 20; time <= 1200; time += 20) {
      passive.Advance(time);
      settled += Taken_Settled(passive) / 1000;
      worst = std::max(worst, std::abs(settled - std::clamp((0.05 * time - 30) / 15, 0.0, 1.0)));
      EXPECT_NEAR(settled + In_Water(passive) / 1000, 1, 1e-12);
    }
    Verified("settled share of a slab in time, " + std::to_string(layers) + " layers",
             "exact, parts of all", worst, 3.0 / layers);
    EXPECT_GT(settled, 0.95);
  }
}

TEST(Vertical, Heavy_Grains_Settle_As_Far_As_They_Fall) {
  // 18 ft in a minute of 60 ft in water; 3 ft/s would pass a hundred layers in a step.
  for (const double fall : {0.3, 3.0}) {
    Model_Input input = Still_Basin();
    input.depth = input.mean_depth = 200 * fall;
    input.batches.front().solids.front().fall_velocity = fall;
    const Water water(input, {});
    Passive passive(input, water);
    passive.Add(Round_Source(input, 3000));
    passive.Advance(60);
    Verified("settled of a full depth in 60 s, " + Two_Digits(fall) + " ft/s", "0.3",
             Taken_Settled(passive) / 300 - 1, 0.02);
  }
}

/// How far a layer is off, at worst or the lowest alone, when all that fell is lifted again:
/// c ~ exp(ws y/K) (Rouse 1937, of a constant diffusivity). 60 ft of water.
struct Off {
  double worst = 0, lowest = 0;
};
Off Balance_Of_Fall_And_Mixing(double fall, double diffusivity, double step) {
  Model_Input input = Still_Basin();
  input.mean_x = 1;
  Solid& solid = input.batches.front().solids.front();
  solid.fall_velocity = fall;
  solid.critical_shear = 1e-9;  // any stress lifts it again
  input.coefficients.AKY0 = diffusivity;
  const Water water(input, {});
  Passive passive(input, water, kLayers, step);
  passive.Add(Round_Source(input, 3000));
  passive.Advance(60000);  // eight times what mixing takes over the depth
  EXPECT_EQ(Taken_Settled(passive), 0);
  const Column& column = passive.Columns().front();
  const double rate = fall / diffusivity;
  Off off;
  for (int l = 0; l < kLayers; ++l) {
    const double low = 60 * Face_Share(l, kLayers), high = 60 * Face_Share(l + 1, kLayers);
    const double theory =
        1000 * (std::exp(-rate * low) - std::exp(-rate * high)) / (1 - std::exp(-rate * 60));
    const double here = column.layers[static_cast<std::size_t>(l)].amount / theory - 1;
    if (l == 0) off.lowest = here;
    off.worst = std::max(off.worst, std::abs(here));
  }
  return off;
}

TEST(Vertical, What_May_Not_Settle_Is_Spread_By_The_Balance_Of_Fall_And_Mixing) {
  Verified("no deposit allowed", "c ~ exp(ws y/K) (Rouse, constant K)",
           Balance_Of_Fall_And_Mixing(0.005, 0.3, 30).worst, 0.02);
  // Settling and mixing in turn pile up what is lifted again: it goes with fall and step.
  for (const double fall : {0.005, 0.01, 0.02})
    for (const double diffusivity : {0.05, 0.2})
      for (const double step : {30.0, 10.0})
        Verified("no deposit allowed, lowest layer, fall " + Two_Digits(fall) + " ft/s, AKY0 " +
                     Two_Digits(diffusivity) + ", step " + Two_Digits(step) + " s",
                 "the same", Balance_Of_Fall_And_Mixing(fall, diffusivity, step).lowest, 0.07);
}

TEST(Vertical, Deposit_Goes_With_What_The_Stress_Leaves_Of_The_Critical_One) {
  Model_Input input = Still_Basin();
  input.mean_x = 1;
  Solid& solid = input.batches.front().solids.front();
  solid.fall_velocity = 0.02;
  const Water water(input, {});
  solid.critical_shear = 2 * water.Bed_Stress(2000, 2000, 0);
  Passive passive(input, water);
  Vertical vertical(input, water, kLayers);
  Column column;
  column.depth = 60;
  column.layers.resize(kLayers);
  Put(column, Round_Source(input, 3000));
  vertical.Prepare(column, 0);
  vertical.Settle(column, 30);
  // 0.02 ft/s x 30 s of 60 ft reach the bed, half of it stays there.
  EXPECT_NEAR(column.settled.amount, 1000 * 0.01 / 2, 0.01);
  EXPECT_NEAR(column.settled.amount + Amount(column), 1000, 1e-9);
}

TEST(Vertical, Diffusivity_In_Layered_Water_Is_As_Worked_Out_By_Hand) {
  Model_Input input = Still_Basin();
  input.mean_x = 2;
  input.velocity_type = 3;
  input.two_point = {0, 60, 3, 1, 0, 60, 0, 0};  // ft/s each ft: 1/30
  input.profile_depths = {0, 60};
  input.profile_densities = {1.0, 1.006};
  input.coefficients.AKY0 = 0.05;
  input.coefficients.ALAMDA = 0.001;
  const Water water(input, {});
  Vertical vertical(input, water, kLayers);
  Column column;
  column.depth = 60;
  column.layers.resize(kLayers);
  Put(column, Round_Source(input, 100));
  vertical.Prepare(column, 0);
  double worst = 0;
  for (int f = 1; f < kLayers; ++f) {
    const double share = Face_Share(f, kLayers);
    const double high = std::min(1.0, share + 0.05), low = std::max(0.0, share - 0.05);
    const double upper = 1 + 0.006 * (1 - high), lower = 1 + 0.006 * (1 - low);
    const double frequency =
        kGravity * (lower - upper) / (0.5 * (lower + upper) * 60 * (high - low));
    const double law = water.Shear_Velocity(0, 0, 0) / 0.41 / (60 * std::max(0.02, share));
    const double shear = std::max(1.0 / 900, law * law);
    const double theory = 0.05 * std::pow(1 + 3.33 * std::min(1.0, frequency / shear), -1.5);
    worst =
        std::max(worst, std::abs(vertical.Diffusivity()[static_cast<std::size_t>(f)] / theory - 1));
  }
  Verified("Kz in layered water", "by hand", worst, 1e-9);

  input.pritchard = true;
  const Water same(input, {});
  Vertical by_pritchard(input, same, 2);
  column.layers.assign(2, {});
  Put(column, Round_Source(input, 100));
  by_pritchard.Prepare(column, 0);
  // One face between two layers, at 37.5 % of an even share above the bed: 0.5 (0.25 + 0.375).
  const double share = 0.3125, height = 60 * share, y = 60 - height;
  const double frequency = kGravity * 0.0006 / ((1 + 0.006 * (1 - share)) * 6);
  const double richardson = frequency / ((0.7 * 2 / 60) * (0.7 * 2 / 60));
  const double theory = 8.59e-3 * 2 * y * y * height * height / (60.0 * 60 * 60) /
                        ((1 + 0.276 * richardson) * (1 + 0.276 * richardson));
  Verified("Kz by Pritchard", "by hand", by_pritchard.Diffusivity()[1] / theory - 1, 1e-3);
  // Mid-depth without layers: 8.59e-3 U H/16.
  EXPECT_NEAR(Pritchard(1, 30, 60, 0), 8.59e-3 * 60 / 16, 1e-12);
  EXPECT_EQ(Pritchard(0, 30, 60, 1e-4), 1e-5);
}

TEST(Vertical, A_Sheared_Current_Spreads_A_Cloud_As_It_Should) {
  // A straight profile of the difference U over H disperses with U2 H2/(120 K).
  Model_Input input = Still_Basin();
  input.depth = input.mean_depth = 20;
  input.velocity_type = 3;
  input.two_point = {0, 20, 1, 0, 0, 20, 0, 0};
  input.coefficients.AKY0 = 0.2;
  input.duration = 20000;
  const Water water(input, {});
  for (const double step : {10.0, 2.0}) {
    Passive passive(input, water, kLayers, step);
    passive.Add(Round_Source(input, 100));
    passive.Advance(8000);
    const double early = Whole(passive.Columns().front()).spread.xx;
    passive.Advance(14000);
    const double late = Whole(passive.Columns().front()).spread.xx;
    const double theory = 1.0 * 20 * 20 / (120 * 0.2);
    Verified("shear dispersion, straight profile, steps of " + Two_Digits(step) + " s",
             "U2 H2/(120 Kz)", (late - early) / (2 * 6000) / theory - 1, 1.5e-3 * step);
  }
}

}  // namespace
}  // namespace companion
