#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "solver/basin.h"
#include "solver/columns.h"
#include "solver/parts.h"
#include "solver/verification.h"

namespace companion {
namespace {

/// Draws inputs and sources over wide ranges.
class Draw {
 public:
  explicit Draw(unsigned seed) : engine_(seed) {}
  double Even(double low, double high) {
    return low + (high - low) * static_cast<double>(engine_() - engine_.min()) /
                     static_cast<double>(engine_.max() - engine_.min());
  }
  double Wide(double low, double high) { return low * std::pow(high / low, Even(0, 1)); }
  int Whole(int low, int high) { return low + static_cast<int>(Even(0, high - low + 0.999)); }
  bool Chance(double share) { return Even(0, 1) < share; }

 private:
  std::mt19937 engine_;
};

Model_Input Drawn_Input(Draw& draw) {
  Model_Input input = Still_Basin();
  const int types[] = {1, 2, 3, 4};
  input.velocity_type = types[draw.Whole(0, 3)];
  input.depth = draw.Wide(10, 1000);
  input.mean_x = draw.Even(-4, 4);
  input.mean_z = draw.Even(-4, 4);
  input.mean_depth = draw.Chance(0.3) ? 0 : input.depth;
  input.two_point = {0, input.depth, draw.Even(-3, 3), draw.Even(-3, 3),
                     0, input.depth, draw.Even(-3, 3), draw.Even(-3, 3)};
  input.constant_depth = draw.Chance(0.5);
  const double land = draw.Chance(0.5) ? 0.2 : 0;
  for (int i = 0; i < input.points_x; ++i) {
    input.depths.emplace_back();
    input.field_x.emplace_back();
    input.field_z.emplace_back();
    for (int k = 0; k < input.points_z; ++k) {
      const bool vessel = std::abs(i - 20) < 2 && std::abs(k - 20) < 2;
      input.depths.back().push_back(!vessel && draw.Chance(land) ? 0
                                                                 : input.depth * draw.Even(0.3, 1));
      input.field_x.back().push_back(draw.Even(-2, 2));
      input.field_z.back().push_back(draw.Even(-2, 2));
    }
  }
  if (draw.Chance(0.5)) {
    input.profile_depths = {0, 0.5 * input.depth, input.depth};
    input.profile_densities = {1, 1 + draw.Wide(1e-5, 0.02), 1.02};
  }
  input.pritchard = draw.Chance(0.3);
  input.coefficients.AKY0 = draw.Chance(0.1) ? 0 : draw.Wide(1e-4, 1);
  input.coefficients.ALAMDA = draw.Chance(0.1) ? 0 : draw.Wide(1e-5, 0.01);
  Solid& solid = input.batches.front().solids.front();
  solid.fall_velocity = draw.Chance(0.1) ? 0 : draw.Wide(1e-4, 3);
  solid.cohesive = draw.Chance(0.5);
  solid.critical_shear = draw.Chance(0.5) ? 0 : draw.Wide(1e-4, 0.1);
  input.evaluation = Evaluation::Tracer;
  return input;
}

TEST(PassiveSweep, Amounts_And_Variances_Stay_Above_Nothing_And_All_Is_Told) {
  const char* wanted = std::getenv("BARVON_SWEEP");
  const int inputs = wanted ? std::atoi(wanted) : 40;
  const unsigned seed = 20240;
  std::cout << "passive sweep: " << inputs << " inputs, seed " << seed << '\n';
  double worst = 0;
  for (int number = 0; number < inputs; ++number) {
    Draw draw(seed + static_cast<unsigned>(number));
    const Model_Input input = Drawn_Input(draw);
    const Water water(input, {});
    Passive passive(input, water);
    const double end = draw.Wide(60, 8000);
    std::vector<double> given(2), settled(2);
    for (int s = 0; s < 12; ++s) {
      Source source = Round_Source(input, draw.Wide(1, 800));
      source.species = s % 2;
      source.cloud = static_cast<std::size_t>(s % 3);
      source.time = draw.Even(0, 0.9 * end);
      source.amount = draw.Wide(1e-6, 1e7);
      source.x += draw.Even(-800, 800);
      source.z += draw.Even(-800, 800);
      source.spread.zz *= draw.Wide(0.01, 100);
      source.spread.xz = draw.Even(-0.999, 0.999) * std::sqrt(source.spread.xx * source.spread.zz);
      source.top = draw.Even(0, input.depth);
      source.foot = draw.Chance(0.2) ? source.top : draw.Even(source.top, 1.1 * input.depth);
      source.held = draw.Chance(0.1);
      passive.Add(source);
      given[source.species] += source.amount;
    }
    for (int stop = 1; stop <= 5; ++stop) {
      passive.Advance(end * stop / 5);
      for (const Deposit& deposit : passive.Take_Settled()) {
        EXPECT_GT(deposit.amount, 0) << number;
        settled[deposit.species] += deposit.amount;
      }
    }
    for (std::size_t species = 0; species < 2; ++species)
      worst = std::max(
          worst, std::abs((settled[species] + In_Water(passive, species)) / given[species] - 1));
    EXPECT_EQ(settled[1], 0) << number;
    for (const Column& column : passive.Columns()) {
      EXPECT_GT(column.depth, 0) << number;
      for (const Layer& layer : column.layers) {
        ASSERT_GE(layer.amount, 0) << number;
        if (layer.amount <= 0) continue;
        const Plan_Moments& s = layer.spread;
        ASSERT_GT(s.xx, 0) << number;
        ASSERT_GT(s.zz, 0) << number;
        ASSERT_GT(s.xx * s.zz * (1 + 1e-9), s.xz * s.xz) << number;
        ASSERT_TRUE(std::isfinite(layer.x + layer.z + s.xx + s.zz)) << number;
      }
    }
    // The bounded search finds what looking everywhere finds.
    for (std::size_t species = 0; species < 2; ++species) {
      double highest = 0;
      for (const Column& column : passive.Columns()) {
        if (column.species != species) continue;
        for (int l = 0; l < kLayers; ++l) {
          const Layer& layer = column.layers[static_cast<std::size_t>(l)];
          if (layer.amount > 0 && passive.Columns().size() < 60)
            highest = std::max(highest, Value_At(passive.Columns(), {}, species, layer.x, layer.z,
                                                 column.depth * (1 - Middle_Share(l, kLayers))));
        }
      }
      const auto found = Highest_Point(passive.Columns(), {}, species);
      if (highest > 0) {
        ASSERT_TRUE(found) << number;
        EXPECT_DOUBLE_EQ(found->value, highest) << number;
      }
    }
  }
  Verified("columns of drawn inputs: settled and suspended against what entered", "exact", worst,
           1e-12);
}

}  // namespace
}  // namespace companion
