#include "solver/det_math.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>

#include "tests/solver/verification.h"

namespace companion {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kDenormal = std::numeric_limits<double>::denorm_min();

/// Numbers between two bounds, the same ones in every run.
class Drawn {
 public:
  double Between(double low, double high) {
    return low + (high - low) * (static_cast<double>(generator_() >> 11) * 0x1p-53);
  }
  bool Coin() { return (generator_() & 1) != 0; }

 private:
  std::mt19937_64 generator_{20260};
};

/// The largest distance from the C library's long double, as a part of it.
class Worst {
 public:
  void See(double got, long double exact) {
    const long double off = exact == 0 ? std::abs(got) : std::abs((got - exact) / exact);
    worst_ = std::max(worst_, static_cast<double>(off));
    if (off != off) worst_ = kInfinity;
  }
  double Value() const { return worst_; }

 private:
  double worst_ = 0;
};

constexpr int kDraws = 100000;

TEST(Det_Math, Exp_Against_The_C_Library) {
  Drawn drawn;
  Worst worst;
  for (int i = 0; i < kDraws; ++i) {
    for (const double range : {1e-6, 0.4, 5.0, 80.0, 708.0}) {
      const double x = drawn.Between(-range, range);
      worst.See(Exp(x), std::exp(static_cast<long double>(x)));
    }
  }
  Verified("own functions: exp", "the C library's long double", worst.Value(), 1.4e-15);
}

TEST(Det_Math, Log_Against_The_C_Library) {
  Drawn drawn;
  Worst worst;
  for (int i = 0; i < kDraws; ++i) {
    const std::array<double, 4> values = {
        std::exp(drawn.Between(-744, 709)), drawn.Between(0.3, 3), drawn.Between(1, 1e9),
        1 + std::exp(drawn.Between(-36, -1)) * (drawn.Coin() ? 1 : -1)};
    for (const double x : values) worst.See(Log(x), std::log(static_cast<long double>(x)));
  }
  Verified("own functions: log", "the C library's long double", worst.Value(), 1.4e-15);
}

TEST(Det_Math, Cbrt_Against_The_C_Library) {
  Drawn drawn;
  Worst worst;
  for (int i = 0; i < kDraws; ++i) {
    const std::array<double, 3> values = {std::exp(drawn.Between(-744, 709)), drawn.Between(0, 8),
                                          drawn.Between(-64, 0)};
    for (const double x : values) worst.See(Cbrt(x), std::cbrt(static_cast<long double>(x)));
  }
  Verified("own functions: cbrt", "the C library's long double", worst.Value(), 1.4e-15);
}

TEST(Det_Math, Erf_Against_The_C_Library) {
  Drawn drawn;
  Worst worst;
  for (int i = 0; i < kDraws; ++i) {
    const std::array<double, 3> values = {drawn.Between(-7, 7), drawn.Between(-0.1, 0.1),
                                          std::exp(drawn.Between(-300, 2))};
    for (const double x : values) worst.See(Erf(x), std::erf(static_cast<long double>(x)));
  }
  Verified("own functions: erf", "the C library's long double", worst.Value(), 1.4e-15);
}

TEST(Det_Math, Pow_Against_The_C_Library) {
  Drawn drawn;
  Worst worst, far;
  for (int i = 0; i < kDraws; ++i) {
    const std::array<std::array<double, 2>, 3> cases = {
        {{drawn.Between(0, 2), drawn.Between(-7, 7)},
         {std::exp(drawn.Between(-14, 14)), drawn.Between(-7, 7)},
         {1 + drawn.Between(-1e-9, 1e-9), drawn.Between(-1e9, 1e9)}}};
    for (const auto& [base, exponent] : cases)
      worst.See(Pow(base, exponent),
                std::pow(static_cast<long double>(base), static_cast<long double>(exponent)));
    const double base = drawn.Between(0.4, 2.4), exponent = drawn.Between(-750, 750);
    far.See(Pow(base, exponent),
            std::pow(static_cast<long double>(base), static_cast<long double>(exponent)));
  }
  Verified("own functions: powers", "the C library's long double", worst.Value(), 1.4e-15);
  EXPECT_LE(far.Value(), 2e-15);
}

TEST(Det_Math, Sin_Against_The_C_Library) {
  Drawn drawn;
  Worst worst;
  for (int i = 0; i < kDraws; ++i) {
    const std::array<double, 4> values = {drawn.Between(-4, 4), drawn.Between(-1e5, 1e5),
                                          std::exp(drawn.Between(-700, 0)),
                                          std::floor(drawn.Between(-6e4, 6e4)) * (kPi / 2)};
    for (const double x : values) worst.See(Sin(x), std::sin(static_cast<long double>(x)));
  }
  Verified("own functions: sin", "the C library's long double", worst.Value(), 1.4e-15);
}

TEST(Det_Math, Exp_At_Its_Edges) {
  EXPECT_EQ(Exp(0), 1);
  EXPECT_EQ(Exp(1e-300), 1);
  EXPECT_EQ(Exp(710), kInfinity);
  EXPECT_EQ(Exp(kInfinity), kInfinity);
  EXPECT_EQ(Exp(-746), 0);
  EXPECT_EQ(Exp(-kInfinity), 0);
  EXPECT_TRUE(std::isfinite(Exp(709.7)));
  EXPECT_EQ(Exp(-745), kDenormal);
  EXPECT_TRUE(std::isnan(Exp(std::nan(""))));
}

TEST(Det_Math, Log_At_Its_Edges) {
  EXPECT_EQ(Log(1), 0);
  EXPECT_EQ(Log(0), -kInfinity);
  EXPECT_EQ(Log(kInfinity), kInfinity);
  EXPECT_TRUE(std::isnan(Log(-1)));
  EXPECT_TRUE(std::isnan(Log(std::nan(""))));
  EXPECT_NEAR(Log(kDenormal), -1074 * 0.6931471805599453, 1e-12);
}

TEST(Det_Math, Cbrt_Of_Cubes_And_At_Its_Edges) {
  EXPECT_DOUBLE_EQ(Cbrt(-27), -3);
  EXPECT_DOUBLE_EQ(Cbrt(1e-300), 1e-100);
  EXPECT_DOUBLE_EQ(Cbrt(8e300), 2e100);
  EXPECT_EQ(Cbrt(0), 0);
  EXPECT_EQ(Cbrt(-kInfinity), -kInfinity);
  EXPECT_EQ(Cbrt(0x1p-1074), 0x1p-358);
  EXPECT_TRUE(std::isnan(Cbrt(std::nan(""))));
  for (int side = 1; side <= 200; ++side) EXPECT_DOUBLE_EQ(Cbrt(side * side * side), side);
}

TEST(Det_Math, Erf_At_Its_Edges) {
  EXPECT_EQ(Erf(0), 0);
  EXPECT_EQ(Erf(6), 1);
  EXPECT_EQ(Erf(-kInfinity), -1);
  EXPECT_DOUBLE_EQ(Erf(1e-300), 1e-300 * 1.1283791670955126);
  EXPECT_TRUE(std::isnan(Erf(std::nan(""))));
  for (double x = 0; x < 7; x += 0.001) EXPECT_EQ(Erf(-x), -Erf(x));
}

TEST(Det_Math, Erf_Never_Falls_Over_The_Borders_Of_Its_Pieces) {
  double before = -1;
  for (double x = -6.1; x < 6.1; x += 1.0 / 4096) {
    // But for the last digit.
    EXPECT_GE(Erf(x), before - 1.2e-16) << x;
    before = Erf(x);
  }
}

TEST(Det_Math, Pow_At_Its_Edges) {
  EXPECT_EQ(Pow(0, 4.65), 0);
  EXPECT_EQ(Pow(0, 0), 1);
  EXPECT_EQ(Pow(0, -1), kInfinity);
  EXPECT_EQ(Pow(1, 1e300), 1);
  EXPECT_EQ(Pow(7, 0), 1);
  EXPECT_EQ(Pow(2, 2000), kInfinity);
  EXPECT_EQ(Pow(2, -2000), 0);
  EXPECT_EQ(Pow(2, 1e300), kInfinity);
  EXPECT_EQ(Pow(kInfinity, 2), kInfinity);
  EXPECT_EQ(Pow(kInfinity, -2), 0);
  EXPECT_EQ(Pow(2, kInfinity), kInfinity);
  EXPECT_EQ(Pow(0.5, kInfinity), 0);
  EXPECT_TRUE(std::isnan(Pow(-1, 2)));
  EXPECT_TRUE(std::isnan(Pow(std::nan(""), 2)));
  EXPECT_DOUBLE_EQ(Pow(3, 4), 81);
  EXPECT_DOUBLE_EQ(Pow(0.2, -6), 15625);
}

TEST(Det_Math, Sin_At_Its_Edges) {
  EXPECT_EQ(Sin(0), 0);
  EXPECT_DOUBLE_EQ(Sin(kPi / 6), 0.5);
  EXPECT_DOUBLE_EQ(Sin(kPi / 2), 1);
  EXPECT_DOUBLE_EQ(Sin(-kPi / 2), -1);
  EXPECT_DOUBLE_EQ(Sin(kPi), std::sin(kPi));
  EXPECT_TRUE(std::isnan(Sin(kInfinity)));
  EXPECT_LE(std::abs(Sin(1e300)), 1);
}

/// The same bits from every compiler and option: the figures of one build, held by all.
TEST(Det_Math, Every_Build_Gives_The_Same_Bits) {
  Drawn drawn;
  std::uint64_t sum = 0;
  const auto add = [&sum](double value) {
    sum = sum * 6364136223846793005u + std::bit_cast<std::uint64_t>(value);
  };
  for (int i = 0; i < 10000; ++i) {
    add(Exp(drawn.Between(-700, 700)));
    add(Log(drawn.Between(0, 1e6)));
    add(Cbrt(drawn.Between(-1e6, 1e6)));
    add(Erf(drawn.Between(-6, 6)));
    const double base = drawn.Between(0, 9), exponent = drawn.Between(-9, 9);
    add(Pow(base, exponent));
    add(Sin(drawn.Between(-100, 100)));
  }
  EXPECT_EQ(sum, 3856955089544099536u);
}

}  // namespace
}  // namespace companion
