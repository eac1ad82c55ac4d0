#include "solver/collapse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "solver/det_math.h"
#include "tests/solver/solver_case.h"
#include "tests/solver/verification.h"

namespace companion {
namespace {

/// Fluid alone that spreads, in water of density 1, with no coefficient but the front's drag.
struct Spreading {
  Model_Input input = Solver_Case();
  Cloud cloud;
  std::vector<Source> sources;
  std::vector<Deposit> deposits;

  explicit Spreading(double excess) {
    input.depth = 200;
    input.profile_depths = {0};
    input.profile_densities = {1};
    input.batches.front().solids.clear();
    input.coefficients = Coefficients();
    input.coefficients.ALAMDA = input.coefficients.ALPHAC = 0;
    input.coefficients.CFRIC = input.coefficients.FRICTN = input.coefficients.CD3 = 0;
    cloud.x = cloud.z = 2000;
    cloud.y = 100;
    cloud.radius = 20;
    cloud.fluid_volume = 50000;
    cloud.fluid_mass = 50000 * (1 + excess);
  }

  std::vector<Cloud_State> Rows(bool on_bed, double until) {
    const Water water(input, {});
    const std::vector<double> no_stops;
    Collapse collapse(
        input, water, cloud, on_bed, until, no_stops, 1e-10, [](std::size_t, const Cloud&) {},
        sources, deposits);
    collapse.Advance(until);
    return collapse.Take_Phase().rows;
  }
};

/// The power of time between two rows far apart.
double Power(const std::vector<Cloud_State>& rows) {
  const Cloud_State& late = rows.back();
  std::size_t early = 0;
  while (rows[early].t < late.t / 2) ++early;
  return std::log(late.radius / rows[early].radius) / std::log(late.t / rows[early].t);
}

TEST(Collapse, A_Bed_Cloud_Without_Friction_Spreads_As_The_Square_Root_Of_Time) {
  Spreading spreading(1e-3);
  const std::vector<Cloud_State> rows = spreading.Rows(true, 1e7);
  Verified("Bed cloud, no friction: R ~ t^n", "n = 1/2", Power(rows) / 0.5 - 1, 5e-3);
  const double buoyancy = kGravity * 1e-3 * 50000;
  const double constant = rows.back().radius / std::sqrt(std::sqrt(buoyancy) * rows.back().t);
  Verified("Bed cloud, no friction: R/((g'V)^(1/4) t^(1/2))", "(16/(3 pi))^(1/4), exact",
           constant / std::sqrt(std::sqrt(16 / (3 * kPi))) - 1, 0.01);
  Verified("Bed cloud, no friction: against the laboratory",
           "1.159: front Froude number 1.19 (Huppert and Simpson 1980)", constant / 1.159 - 1,
           0.05);
}

TEST(Collapse, A_Bed_Cloud_Under_Friction_Spreads_With_The_Power_Of_Two_Sevenths) {
  Spreading spreading(1e-2);
  spreading.input.coefficients.FRICTN = 0.01;
  Verified("Bed cloud under friction: R ~ t^n", "n = 2/7",
           Power(spreading.Rows(true, 1e8)) / (2.0 / 7) - 1, 0.02);
}

TEST(Collapse, An_Intrusion_Spreads_With_The_Power_Of_A_Third) {
  for (const double gradient : {0.0, 0.25, 0.8}) {
    Spreading spreading(0);
    spreading.input.depth = 2000;
    spreading.input.profile_depths = {0, 2000};
    spreading.input.profile_densities = {0.99, 1.01};
    spreading.input.coefficients.GAMA = gradient;
    spreading.cloud.y = 1000;
    const double frequency = std::sqrt(kGravity * 0.02 / 2000);
    const std::vector<Cloud_State> rows = spreading.Rows(false, 1e7);
    Verified("Intrusion: R ~ t^n", "n = 1/3", Power(rows) * 3 - 1, 0.01);
    Verified(
        "Intrusion: u/(N h)", "sqrt(3 (1 - GAMA))/3",
        rows.back().speed / (frequency * rows.back().height) / (std::sqrt(3 * (1 - gradient)) / 3) -
            1,
        0.02);
  }
}

TEST(Collapse, The_Inflow_Share_Falls_With_The_Richardson_Number) {
  EXPECT_EQ(Inflow_Share(0), 1);
  EXPECT_NEAR(Inflow_Share(0.2), (1 - 0.25) / 2, 1e-15);
  EXPECT_EQ(Inflow_Share(0.8), 0);
  EXPECT_EQ(Inflow_Share(100), 0);
}

TEST(Collapse, The_Plan_Of_A_Capsule_Has_The_Moments_Of_Its_Parts) {
  const Plan_Moments disk = Moments_Of_Plan(4, 0, 0.6, 0.8);
  EXPECT_NEAR(disk.xx, 4, 1e-12);
  EXPECT_NEAR(disk.zz, 4, 1e-12);
  EXPECT_NEAR(disk.xz, 0, 1e-12);
  const Plan_Moments thin = Moments_Of_Plan(1e-6, 12, 0, 1);
  EXPECT_NEAR(thin.zz, 12, 1e-4);
  EXPECT_NEAR(thin.xx, 0, 1e-4);
  // By sums over strips.
  double area = 0, along = 0, across = 0;
  const int strips = 200000;
  for (int i = 0; i < strips; ++i) {
    const double s = (i + 0.5) / strips * 5;  // half of it: 3 ft straight, radius 2
    const double half = s < 3 ? 2 : std::sqrt(4 - (s - 3) * (s - 3));
    area += half;
    along += half * s * s;
    across += half * half * half / 3;
  }
  const Plan_Moments whole = Moments_Of_Plan(2, 6, 1, 0);
  EXPECT_NEAR(whole.xx, along / area, 1e-6);
  EXPECT_NEAR(whole.zz, across / area, 1e-6);
  EXPECT_NEAR(Plan_Radius(Plan_Area(2, 6), 6), 2, 1e-12);
  EXPECT_NEAR(Radius_Of_Volume(kPi * 4 * 6 + 32 * kPi / 3, 6), 2, 1e-12);
}

/// Weight along the slope, one face's friction with the water and that of the bed, at rest: the
/// first two are the only forces that act.
TEST(Collapse, The_Slope_Pushes_Towards_Growing_X) {
  Spreading spreading(0.01);
  spreading.input.slope_x = 2;
  const std::vector<Cloud_State> rows = spreading.Rows(true, 2);
  const double pull = kGravity * 0.01 / 1.01 * std::sin(2 * kPi / 180);
  EXPECT_NEAR(rows.back().x - 2000, pull * 2 * 2 / 2, 1e-6);
  EXPECT_EQ(rows.back().z, 2000);
}

TEST(Collapse, A_Stress_Above_The_Critical_One_Lets_Nothing_Settle) {
  Spreading spreading(0.01);
  spreading.input.batches.front().solids = {Test_Solid("SILT", 0.1, 0.05)};
  spreading.input.coefficients.FRICTN = 0.01;
  spreading.cloud.solids = {10};
  spreading.cloud.spreading = 3;
  spreading.cloud.velocity_x = 2;
  const auto settled = [&spreading](double critical) {
    spreading.input.batches.front().solids.front().critical_shear = critical;
    spreading.deposits.clear();
    spreading.Rows(true, 0.01);
    double amount = 0;
    for (const Deposit& deposit : spreading.deposits) amount += deposit.amount;
    return amount;
  };
  // 0.5 x 1.94 x 0.01 x (9/2 + 4) = 0.0825 lb/ft2 at the start.
  EXPECT_EQ(settled(0.08), 0);
  const double always = settled(0);
  EXPECT_GT(always, 0);
  EXPECT_NEAR(settled(0.165) / always, 0.5, 0.01);
}

}  // namespace
}  // namespace companion
