#include "solver/ode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace companion {
namespace {

using Values = Integrator::Values;

Integrator Decay(double tolerance) {
  return Integrator([](double, const Values& values, Values& rates) { rates[0] = -2 * values[0]; },
                    tolerance, {1e-12});
}

double Never(double, const Values&) { return -1; }

TEST(Ode, A_Decay_Comes_Out_To_The_Tolerance_Exactly_At_The_Limit) {
  for (const double tolerance : {1e-6, 1e-8, 1e-10}) {
    Integrator integrator = Decay(tolerance);
    integrator.Start(1, {3});
    while (integrator.Time() < 4) integrator.Step(4, Never);
    EXPECT_EQ(integrator.Time(), 4);
    EXPECT_NEAR(integrator.Now()[0] / (3 * std::exp(-6)), 1, 30 * tolerance);
  }
}

TEST(Ode, The_Step_Grows_Again_Behind_A_Stop) {
  Integrator with = Decay(1e-8), without = Decay(1e-8);
  int steps_with = 0, steps_without = 0;
  with.Start(0, {1});
  for (double stop = 0.5; stop < 4.9; stop += 0.5)
    for (; with.Time() < stop; ++steps_with) with.Step(stop, Never);
  without.Start(0, {1});
  for (; without.Time() < 4.5; ++steps_without) without.Step(4.5, Never);
  EXPECT_LE(steps_with, steps_without + 9);
}

TEST(Ode, An_Event_Is_Found_Within_A_Billionth_Of_A_Second_Behind_It) {
  Integrator integrator = Decay(1e-12);
  integrator.Start(0, {1});
  bool met = false;
  while (!met)
    met = integrator.Step(10, [](double, const Values& values) { return 0.25 - values[0]; });
  EXPECT_NEAR(integrator.Time(), std::log(4) / 2, 1.1e-9);
  EXPECT_LE(integrator.Now()[0], 0.25);
}

TEST(Ode, The_First_Of_Two_Events_In_A_Step_Ends_It) {
  Integrator integrator([](double, const Values&, Values& rates) { rates[0] = 1; }, 1e-6, {1});
  integrator.Start(0, {0});
  const auto past = [](double, const Values& values) {
    return std::max(std::min(values[0] - 0.3, 0.31 - values[0]), 1e3 * (values[0] - 0.7));
  };
  while (!integrator.Step(0.3005, past)) {
  }
  EXPECT_NEAR(integrator.Time(), 0.3, 2e-9);
}

TEST(Ode, Rates_That_Are_No_Numbers_Use_Up_The_Steps_And_End) {
  Integrator integrator(
      [](double time, const Values&, Values& rates) {
        rates[0] = time > 1 ? std::numeric_limits<double>::quiet_NaN() : 1;
      },
      1e-8, {1});
  integrator.Start(0, {0});
  int steps = 0;
  while (!integrator.Exhausted() && integrator.Time() < 2 && ++steps < 2 * kMostSteps)
    integrator.Step(2, Never);
  EXPECT_TRUE(integrator.Exhausted());
  EXPECT_NEAR(integrator.Now()[0], 1, 1e-8);
  EXPECT_NEAR(integrator.Time(), integrator.Now()[0], 1e-12);
}

}  // namespace
}  // namespace companion
