#include "solver/columns.h"

#include <gtest/gtest.h>

#include <cmath>

#include "solver/basin.h"
#include "solver/verification.h"

namespace companion {
namespace {

TEST(Columns, Diffusion_By_The_Four_Thirds_Law_Is_Exact_At_Any_Step) {
  Model_Input input = Still_Basin();
  input.coefficients.ALAMDA = 0.001;
  input.mean_x = 0.5;
  const Water water(input, {});
  for (const double step : {30.0, 300.0}) {
    Passive passive(input, water, kLayers, step);
    passive.Add(Round_Source(input, 100));
    passive.Advance(3600);
    const double root =
        std::cbrt(100.0) * std::cbrt(100.0) + 2.0 / 3 * std::pow(4, 4.0 / 3) * 0.001 * 3600;
    const double theory = root * root * root;
    double worst = 0;
    for (const Layer& layer : passive.Columns().front().layers) {
      worst = std::max(worst, std::abs(layer.spread.xx / theory - 1));
      worst = std::max(worst, std::abs(layer.spread.zz / theory - 1));
      EXPECT_NEAR(layer.x, input.vessel_x + 1800, 1e-6);
    }
    Verified("4/3 law after an hour, steps 30 and 300 s", "exact", worst, 1e-9);
  }
}

}  // namespace
}  // namespace companion
