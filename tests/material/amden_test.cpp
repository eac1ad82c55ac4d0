#include "material/amden.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "core/format_pattern.h"

namespace barvon {
namespace {

struct Water {
  double salinity, temperature, depth;  // ppt, deg C, ft
  std::string density;                  // g/cc
};

void Expect_Density(const Water& water) {
  const auto density = AMDEN(water.salinity, water.temperature, water.depth);
  ASSERT_TRUE(density.has_value());
  EXPECT_EQ(Format_Number(*density, "0.000000"), water.density)
      << water.salinity << " ppt, " << water.temperature << " deg C, " << water.depth << " ft";
}

TEST(Amden, Gives_The_Densities_Of_The_Table) {
  for (const Water& water : {Water{0, 4, 0, "1.000038"}, Water{0, 20, 0, "0.998267"},
                             Water{35, 10, 0, "1.027006"}, Water{35, 20, 0, "1.025060"},
                             Water{30, 25, 0, "1.020116"}, Water{35, 10, 1000, "1.028389"}}) {
    Expect_Density(water);
  }
}

// S = 0.03: Cl = 0 and s0 = -0.069. T = 0: A = B = 0 and
// St = -3.98^2 x 283 / (503.57 x 67.26) = -4482.8333 / 33870.1182 = -0.1323536.
// sT = (s0 + 0.1324) + St = 0.0634 - 0.1323536 = -0.0689536; density 1 + 0.001 sT.
TEST(Amden, At_0_Degrees_Only_The_Temperature_Term_Counts) {
  Expect_Density({0.03, 0, 0, "0.999931"});
}

// At 3.98 deg C St = 0. A = 0.00398 x (4.7867 - 3.98 x (0.098185 + 0.0043155)) = 0.0174274,
// B = 3.98e-6 x (18.03 - 3.98 x (0.8164 + 0.0663466)) = 0.0000578.
// sT = (-0.2014 x 0.0000578 + 0.9825726) x 0.0634 = 0.0622944.
TEST(Amden, Water_Without_Chlorine_At_3_98_Degrees) { Expect_Density({0.03, 3.98, 0, "1.000062"}); }

// S = 0: Cl = -0.03 / 1.805 = -0.0166205, s0 = 1.4708 Cl - 0.069 - 0.00157 Cl^2 = -0.0934459.
// T = 25: St = -21.02^2 x 308 / (503.57 x 92.26) = -2.9291583; A = 0.025 x (4.7867 - 25 x
// 0.1252925) = 0.0413597; B = 0.000025 x (18.03 - 25 x 1.23315) = -0.00032.
// sT = (-0.2258459 x -0.00032 + 0.9586403) x 0.0389541 - 2.9291583 = -2.8918125.
TEST(Amden, Fresh_Water_Takes_The_Slightly_Negative_Chlorinity_As_It_Is) {
  Expect_Density({0, 25, 0, "0.997108"});
}

// Cl = 34.97 / 1.805 = 19.3739612, s0 = 28.1263486. T = 30: St = -26.02^2 x 313 / (503.57 x
// 97.26) = -4.3267799. With the last terms of A and B subtracted: A = 0.03 x (4.7867 - 30 x
// 0.130714) = 0.0259584, B = 0.00003 x (18.03 - 30 x 1.3165) = -0.000644;
// sT = (27.9939486 x -0.000644 + 0.9740416) x 28.2587486 - 4.3267799 = 22.6890047.
// Added, as in the literature, they would give 1.021034 and 1.023401.
TEST(Amden, The_Last_Terms_Of_A_And_B_Are_Subtracted) { Expect_Density({35, 30, 0, "1.022689"}); }

// S = 0.03, T = 30, p = 3048 m; s0 = -0.069, sT = 0.0634 x (1 - 0.0259584 + 0.2014 x 0.000644)
// - 4.3267799 = -4.2650175, V0 = 1.0042833. E1 = 4886 / 1.0557784 = 4627.8651,
// E2 = 227 + 30 x (28.33 - 30 x 0.671) = 473, E3 = 0.3048 x 248.3 = 75.6818,
// E4 = 1.5e-8 x 3048^2 x 30 = 4.1806, D = -2.8069,
// E5 = 147.3 + 30 x (1.2 - 2.72) - 0.3048 x (32.4 + 30 x (0.06 - 0.87)) = 99.2311,
// E6 = 4.5 + 3 - 0.3048 x (1.8 - 1.8) = 7.5.
// K = 4627.8651 - 473 + 75.6818 - 4.1806 + 2.8069 x 99.2311 + 7.8787 x 7.5 = 4563.988;
// V = (1 - 4563.988 x 3048e-9) x V0 = 0.9903127.
// With + 0.004 in E2, 0.02 in E5 or - 0.1 T in E6 it would be 1.009108, 1.009739 or 1.009635.
TEST(Amden, Compressibility_Keeps_Its_Own_Signs_And_Constants) {
  Expect_Density({0.03, 30, 10000, "1.009782"});
}

// S = 100: Cl = 99.97 / 1.805 = 55.3850416, s0 = 83.3371118, D = 5.5337112. T = 10, p = 9144 m:
// St = -6.02^2 x 293 / (503.57 x 77.26) = -0.2729267, A = 0.01 x (4.7867 - 10 x 0.109028) =
// 0.0369642, B = 0.00001 x (18.03 - 10 x 0.9831) = 0.000082,
// sT = (83.2047118 x 0.000082 + 0.9630358) x 83.4695118 - 0.2729267 = 80.6806265, V0 = 0.9253428.
// E1 = 4886 / 1.1673352 = 4185.6015, E2 = 227 + 10 x (28.33 - 10 x 0.591) = 451.2,
// E3 = 0.9144 x (105.5 + 10 x 7.92) = 168.8897, E4 = 1.5e-8 x 9144^2 x 10 = 12.5419,
// E5 = 147.3 + 10 x (0.4 - 2.72) - 0.9144 x (32.4 + 10 x (0.02 - 0.87)) = 102.2458,
// E6 = 4.5 + 1 - 0.9144 x (1.8 - 0.6) = 4.40272.
// K = 4185.6015 - 451.2 + 168.8897 - 12.5419 - 102.2458 x 5.5337112 + 30.6219596 x 4.40272 =
// 3459.7703; V = (1 - 3459.7703 x 9144e-9) x V0 = 0.8960685.
// With the pressure's part of E6 added it would be 1.116673.
TEST(Amden, Pressure_Weakens_The_Square_Of_The_Excess_Of_Sigma_0) {
  Expect_Density({100, 10, 30000, "1.115986"});
}

TEST(Amden, Breaks_Down_At_Minus_67_26_Degrees) {
  for (const double salinity : {0.0, 35.0, -5.0}) {
    EXPECT_FALSE(AMDEN(salinity, -67.26, 0)) << salinity;
    EXPECT_FALSE(AMDEN(salinity, -67.26, 1000)) << salinity;
  }
  EXPECT_TRUE(AMDEN(35, -67.25, 0));
  EXPECT_TRUE(AMDEN(35, -67.27, 0));
}

// The infinite volume would have a density of 0.
TEST(Amden, A_Division_By_Zero_Does_Not_Hide_In_A_Finite_Result) {
  const double depth = -1 / 1.83e-5 / 0.3048;
  ASSERT_EQ(1 + 1.83e-5 * (0.3048 * depth), 0);
  EXPECT_FALSE(AMDEN(35, 10, depth));
}

TEST(Amden, Breaks_Down_Where_Numbers_Overflow_Or_Are_None) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double bad :
       {1e300, -1e300, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(AMDEN(bad, 10, 0)) << bad;
    EXPECT_FALSE(AMDEN(35, bad, 0)) << bad;
    EXPECT_FALSE(AMDEN(35, 10, bad)) << bad;
  }
}

RC_GTEST_PROP(Amden, Gives_A_Finite_Density_Or_Nothing_Whatever_It_Is_Given, ()) {
  const auto any = [] { return std::bit_cast<double>(*rc::gen::arbitrary<std::uint64_t>()); };
  const auto density = AMDEN(any(), any(), any());
  RC_ASSERT(std::isfinite(density.value_or(0)));
}

// Waters of the sea and of rivers: salinity in tenths of ppt, temperature in tenths of deg C.
RC_GTEST_PROP(Amden, Natural_Water_Has_A_Density_That_Grows_With_Salinity_And_Depth, ()) {
  const double salinity = *rc::gen::inRange(0, 420) / 10.0;
  const double temperature = *rc::gen::inRange(-20, 400) / 10.0;
  const double depth = *rc::gen::inRange(0, 20000);
  const auto density = AMDEN(salinity, temperature, depth);
  RC_ASSERT(density.has_value());
  RC_ASSERT(*density > 0.98 && *density < 1.08);
  RC_ASSERT(*AMDEN(salinity + 0.1, temperature, depth) > *density);
  RC_ASSERT(*AMDEN(salinity, temperature, depth + 1) > *density);
}

RC_GTEST_PROP(Amden, Warm_Water_Is_Lighter, ()) {
  const double salinity = *rc::gen::inRange(0, 420) / 10.0;
  const double temperature = *rc::gen::inRange(50, 400) / 10.0;
  RC_ASSERT(*AMDEN(salinity, temperature + 0.1, 0) < *AMDEN(salinity, temperature, 0));
}

RC_GTEST_PROP(Amden, Salinity_0_03_Is_The_Zero_Of_Chlorinity, ()) {
  const double temperature = *rc::gen::inRange(-20, 400) / 10.0;
  const double fresh = *AMDEN(0, temperature, 0);
  const double zero = *AMDEN(0.03, temperature, 0);
  const double above = *AMDEN(0.06, temperature, 0);
  RC_ASSERT(fresh < zero && zero < above);
  // Nothing holds the chlorinity at 0: below it the curve goes on as straight as above.
  RC_ASSERT(std::abs((above - zero) - (zero - fresh)) < 1e-8);
}

}  // namespace
}  // namespace barvon
