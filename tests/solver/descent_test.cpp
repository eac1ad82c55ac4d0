#include "solver/descent.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "solver/det_math.h"
#include "tests/solver/solver_case.h"
#include "tests/solver/verification.h"

namespace companion {
namespace {

/// Fluid alone, a part in `excess` heavier than deep water of density 1 without layers.
struct Ball {
  Model_Input input = Solver_Case();
  Cloud_Start start;

  explicit Ball(double radius, double excess) {
    input.depth = 20000;
    input.profile_depths = {0};
    input.profile_densities = {1};
    input.batches.front().solids.clear();
    start.x = start.z = 2000;
    start.radius = radius;
    start.fluid_volume = 4 * kPi / 3 * radius * radius * radius;
    start.fluid_mass = start.fluid_volume * (1 + excess);
    start.y = radius / input.coefficients.ALPHA0;  // a point source lies at the surface
  }

  Fall Run(double until) const {
    std::vector<Source> sources;
    const Water water(input, {});
    return Fall_Of(
        input, water, start, 0, until, {}, 1e-10, [](std::size_t, const Cloud&) {}, sources);
  }
  double Buoyancy() const { return kGravity * (start.fluid_mass - start.fluid_volume); }
};

TEST(Descent, A_Thermal_In_Still_Water_Grows_By_Its_Entrainment) {
  const Ball ball(2, 0.01);
  const std::vector<Cloud_State> rows = ball.Run(1e9).phase.rows;
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const double slope = (rows[i].radius - rows[i - 1].radius) / (rows[i].y - rows[i - 1].y);
    if (rows[i].y - rows[i - 1].y > 0.1)
      Verified("Thermal in still water: dr/dz", "ALPHA0",
               slope / ball.input.coefficients.ALPHA0 - 1, 1e-6);
  }
}

TEST(Descent, A_Thermal_Falls_As_The_Square_Root_Of_Time) {
  const double kinds[][2] = {{1.5, 0}, {1, 0.5}};
  for (const auto& [mass, drag] : kinds) {
    Ball ball(1, 0.001);
    ball.input.coefficients.CM = mass;
    ball.input.coefficients.CD = drag;
    const std::vector<Cloud_State> rows = ball.Run(1e9).phase.rows;
    const Cloud_State &early = rows[rows.size() * 3 / 4], &late = rows.back();
    Verified("Thermal: z = k t^n", "n = 1/2",
             std::log(late.y / early.y) / std::log(late.t / early.t) / 0.5 - 1, 2e-3);
    const double a = ball.input.coefficients.ALPHA0;
    const double theory =
        std::sqrt(std::sqrt(ball.Buoyancy() / (kPi * a * a * (2 * a * mass / 3 + drag / 8))));
    Verified("Thermal: k", "[B/(pi a2 (2 a CM/3 + CD/8))]^(1/4)",
             late.y / std::sqrt(late.t) / theory - 1, 2e-3);
    const double reduced = kGravity * (late.density - 1);
    Verified("Thermal: w/sqrt(g'r)", "1.2 in the laboratory (Scorer 1957)",
             late.downward / std::sqrt(reduced * late.radius) / 1.2 - 1, 0.1);
  }
}

/// Depth and time of the level in water whose density grows evenly, without drag.
std::pair<double, double> Level_And_Time(double squared_frequency) {
  Ball ball(1, 0.01);
  ball.input.coefficients.CD = 0;
  ball.input.profile_depths = {0, 20000};
  ball.input.profile_densities = {1, 1 + 20000 * squared_frequency / kGravity};
  const double around = 1 + ball.start.y * squared_frequency / kGravity;
  ball.start.fluid_mass = ball.start.fluid_volume * (around + 0.01);
  const Fall fall = ball.Run(1e9);
  EXPECT_EQ(fall.phase.end, "neutral");
  return {fall.end.y, fall.end.time};
}

TEST(Descent, A_Thermal_In_Layered_Water_Stops_At_Its_Level) {
  const double a = Coefficients().ALPHA0;
  const double buoyancy = kGravity * 0.01 * 4 * kPi / 3;
  for (const double squared : {1e-6, 1e-5}) {
    const auto [level, time] = Level_And_Time(squared);
    Verified("Layered water, no drag: level", "(3B/(pi a3 N2))^(1/4)",
             level / std::sqrt(std::sqrt(3 * buoyancy / (kPi * a * a * a * squared))) - 1, 0.03);
    Verified("Layered water, no drag: time of the level", "N t = pi/2",
             std::sqrt(squared) * time / (kPi / 2) - 1, 0.05);
  }
  Verified("Layered water: level against N", "N x 4: level / 2",
           Level_And_Time(1e-6).first / Level_And_Time(16e-6).first / 2 - 1, 0.03);
}

TEST(Descent, A_Current_Carries_The_Fall_And_Leaves_It_As_It_Is) {
  Model_Input still = Solver_Case();
  const Water water(still, {});
  Cloud_Start start;
  start.x = start.z = 2000;
  start.y = 12;
  start.radius = 6;
  start.fluid_volume = 800;
  start.fluid_mass = 816;
  start.solids = {4 * kPi / 3 * 216 - 800};
  std::vector<Source> sources;
  const auto run = [&sources](const Model_Input& input, const Cloud_Start& from) {
    return Fall_Of(
        input, Water(input, {}), from, 0, 3600, {}, 1e-8, [](std::size_t, const Cloud&) {},
        sources);
  };
  const Fall alone = run(still, start);
  Model_Input moving = still;
  moving.mean_x = 0.75;
  moving.mean_z = -0.5;
  start.velocity_x = 0.75;
  start.velocity_z = -0.5;
  const Fall carried = run(moving, start);
  Verified("Fall in a current and the vessel with it", "the same fall",
           carried.end.y / alone.end.y - 1, 1e-7);
  Verified("Fall in a current and the vessel with it", "the same fall",
           carried.end.time / alone.end.time - 1, 1e-7);
  Verified("Fall in a current and the vessel with it: drift", "u t",
           (carried.end.x - 2000) / (0.75 * alone.end.time) - 1, 1e-7);
  Verified("Fall in a current and the vessel with it: drift", "u t",
           (carried.end.z - 2000) / (-0.5 * alone.end.time) - 1, 1e-7);
}

TEST(Descent, Washing_Takes_What_The_Hand_Check_Says) {
  Ball ball(6, 0.05);
  ball.input.batches.front().solids = {Test_Solid("CLAY", 0.01, 0), Test_Solid("SAND", 0.01, 0)};
  ball.input.batches.front().solids[0].stripped = true;
  ball.input.evaluation = Evaluation::Tracer;
  ball.start.solids = {5, 5};
  ball.start.tracer = 1000;
  ball.input.depth = 200;
  const Fall fall = ball.Run(1e9);
  const Coefficients& c = ball.input.coefficients;
  const double volumes = fall.end.Volume() / (ball.start.fluid_volume + 10);
  // The cloud loses at its skin what it washes off, so it grows by the rest.
  const double kept = std::pow(volumes, -c.CSTRIP / (c.ALPHA0 - c.CSTRIP));
  EXPECT_NEAR(fall.end.solids[0] / 5, kept, 1e-3 * kept);
  EXPECT_NEAR(std::pow(volumes, -c.CSTRIP / c.ALPHA0), kept, 1e-3);
  EXPECT_NEAR(fall.end.tracer / 1000, fall.end.solids[0] / 5, 1e-12);
  EXPECT_EQ(fall.end.solids[1], 5);
  EXPECT_NEAR(fall.phase.washed[0], 5 - fall.end.solids[0], 1e-12);
  EXPECT_EQ(fall.phase.fallen[0], 0);
}

TEST(Descent, Nothing_Is_Washed_Off_Where_No_Fraction_Is_Marked) {
  Ball ball(6, 0.05);
  ball.input.batches.front().solids = {Test_Solid("SAND", 0.01, 0)};
  ball.input.evaluation = Evaluation::Tracer;
  ball.start.solids = {5};
  ball.start.tracer = 1000;
  ball.input.depth = 200;
  EXPECT_EQ(ball.Run(1e9).end.tracer, 1000);
}

TEST(Descent, What_Outruns_The_Cloud_Leaves_In_Sixteen_Parts_Of_The_Way) {
  Ball ball(10, 0.001);
  ball.input.depth = 170;
  ball.start.y = 10;
  ball.input.batches.front().solids = {Test_Solid("CLUMPS", 0.01, 1.2)};
  ball.start.solids = {1};
  std::vector<Source> sources;
  const Water water(ball.input, {});
  const Fall fall = Fall_Of(
      ball.input, water, ball.start, 7, 1e6, {}, 1e-8, [](std::size_t, const Cloud&) {}, sources);
  double left = 0, last = 0;
  for (const Source& source : sources) {
    EXPECT_EQ(source.cloud, 7u);
    EXPECT_GT(source.amount, 0);
    EXPECT_GE(source.time, last);
    EXPECT_LT(source.top, source.foot);
    last = source.time;
    left += source.amount;
  }
  EXPECT_LE(sources.size(), 16u);
  EXPECT_GE(sources.size(), 12u);
  EXPECT_GT(fall.end.solids[0], 0);
  EXPECT_NEAR(left + fall.end.solids[0], 1, 1e-14);
  EXPECT_NEAR(fall.phase.fallen[0], left, 1e-14);
}

TEST(Descent, A_Cloud_That_Is_Washed_Away_Faster_Than_It_Grows_Ends) {
  Ball ball(6, 0.05);
  ball.input.coefficients.ALPHA0 = 0.01;
  ball.input.coefficients.CSTRIP = 0.5;
  ball.input.batches.front().solids = {Test_Solid("CLAY", 0.01, 0)};
  ball.input.batches.front().solids[0].stripped = true;
  ball.start.solids = {5};
  const Fall fall = ball.Run(1e9);
  EXPECT_EQ(fall.phase.end, "washed away");
  EXPECT_NEAR(fall.end.Volume() / (ball.start.fluid_volume + 5), kWashedAway, 1e-8);
}

TEST(Descent, The_Moisture_Of_A_Stiff_Load_Slows_Its_Inflow) {
  EXPECT_EQ(Inflow_Factor(0, 5, 10), 1);
  // 35.5 lb/ft2 at the liquid limit against 1.94 x 5 x 10 = 97 lb/ft2.
  EXPECT_NEAR(Inflow_Factor(1, 5, 10), 97 / (97 + 35.5), 1e-12);
  EXPECT_NEAR(Inflow_Factor(2, 5, 10), 97 / (97 + 35.5 / 64), 1e-12);
  EXPECT_EQ(Inflow_Factor(0.2, 5, 10), kLeastInflowFactor);
  EXPECT_EQ(Inflow_Factor(1, 0, 10), kLeastInflowFactor);
}

TEST(Descent, A_Fall_Time_Knows_No_End_Of_The_Run) {
  Ball ball(6, 0.05);
  ball.input.duration = 1;
  ball.input.depth = 200;
  const double time = Fall_Time(ball.input, Water(ball.input, {}), ball.start, 1e-8);
  EXPECT_NEAR(time, ball.Run(1e9).end.time, 1e-6);
  ball.start.fluid_mass = ball.start.fluid_volume * 0.99;
  EXPECT_EQ(Fall_Time(ball.input, Water(ball.input, {}), ball.start, 1e-8), 0);
}

}  // namespace
}  // namespace companion
