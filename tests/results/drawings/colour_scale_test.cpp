#include "results/drawings/colour_scale.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace barvon::testing {
namespace {

using Levels = std::vector<double>;

TEST(ColourScale, Levels_Above_A_Background_Are_The_Nearest_Numbers_To_Their_Decimals) {
  const std::vector<double> levels = Log_Levels(0.12, 0.1);
  for (const double level : {0.101, 0.102, 0.105, 0.11}) {
    EXPECT_NE(std::ranges::find(levels, level), levels.end()) << level;
  }
}

TEST(ColourScale, Log_Levels_Are_1_2_5_Below_The_Largest_Value) {
  EXPECT_EQ(Log_Levels(7, 0), (Levels{0.02, 0.05, 0.1, 0.2, 0.5, 1, 2, 5}));
  EXPECT_EQ(Log_Levels(1000, 0), (Levels{2, 5, 10, 20, 50, 100, 200, 500}));
  EXPECT_EQ(Log_Levels(1234, 0), (Levels{5, 10, 20, 50, 100, 200, 500, 1000}));
  EXPECT_EQ(Log_Levels(0.0042, 0), (Levels{1e-5, 2e-5, 5e-5, 1e-4, 2e-4, 5e-4, 0.001, 0.002}));
}

TEST(ColourScale, Log_Levels_Are_Round_Above_A_Weak_Base_And_Count_From_A_Strong_One) {
  EXPECT_EQ(Log_Levels(0.3, 0.002), (Levels{0.005, 0.01, 0.02, 0.05, 0.1, 0.2}));
  EXPECT_EQ(Log_Levels(60, 1), (Levels{2, 5, 10, 20, 50}));
  // 9 above 1.
  EXPECT_EQ(Log_Levels(10, 1), (Levels{1.02, 1.05, 1.1, 1.2, 1.5, 2, 3, 6}));
  EXPECT_TRUE(Log_Levels(5, 5).empty());
  EXPECT_TRUE(Log_Levels(0, 0).empty());
  EXPECT_TRUE(Log_Levels(-5, -3).empty());
  EXPECT_TRUE(Log_Levels(std::numeric_limits<double>::quiet_NaN(), 0).empty());
  EXPECT_TRUE(Log_Levels(std::numeric_limits<double>::infinity(), 0).empty());
}

TEST(ColourScale, Even_Levels_Are_Round_And_Between_The_Ends) {
  EXPECT_EQ(Even_Levels(0, 9), (Levels{1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(Even_Levels(0, 9.5), (Levels{2, 4, 6, 8}));
  EXPECT_EQ(Even_Levels(0, 0.4), (Levels{0.05, 0.1, 0.15, 0.2, 0.25, 0.3, 0.35}));
  EXPECT_EQ(Even_Levels(5, 5.3), (Levels{5.05, 5.1, 5.15, 5.2, 5.25}));
  EXPECT_EQ(Even_Levels(-3, 3), (Levels{-2, -1, 0, 1, 2}));
  EXPECT_TRUE(Even_Levels(4, 4).empty());
  EXPECT_TRUE(Even_Levels(5, 4).empty());
}

RC_GTEST_PROP(ColourScale, Levels_Are_Few_Ascending_And_Within, ()) {
  const double base = *rc::gen::inRange(-500, 500) * std::pow(10, *rc::gen::inRange(-6, 6));
  const double largest = base + *rc::gen::inRange(1, 999) * std::pow(10, *rc::gen::inRange(-6, 6));
  for (const bool even : {true, false}) {
    const Levels levels = even ? Even_Levels(base, largest) : Log_Levels(largest, base);
    RC_ASSERT(levels.size() <= kMostLevels);
    for (std::size_t i = 0; i < levels.size(); ++i) {
      RC_ASSERT(levels[i] > base && levels[i] < largest);
      if (i > 0) RC_ASSERT(levels[i] > levels[i - 1]);
    }
    const double size = std::max(std::abs(largest), std::abs(base));
    // A unit of the fifth digit is a ten-thousandth at most.
    if (even && largest - base > 3e-4 * size) RC_ASSERT(levels.size() >= 2u);
  }
}

struct Light {
  double r, g, b;
};

double Linear(std::uint8_t part) {  // IEC 61966-2-1, sRGB
  const double v = part / 255.0;
  return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

/// What an eye sees that lacks a kind of cone: Machado, Oliveira and Fernandes, "A Physiologically-
/// based Model for Simulation of Color Vision Deficiency", IEEE TVCG 15 (2009), severity 1. The
/// first is an eye that lacks none.
constexpr std::array<std::array<double, 9>, 4> kEyes{{
    {1, 0, 0, 0, 1, 0, 0, 0, 1},
    {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998},
    {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881},
    {1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900},
}};

Light Seen(const Colour& colour, const std::array<double, 9>& eye) {
  const double r = Linear(colour.red), g = Linear(colour.green), b = Linear(colour.blue);
  const auto mixed = [&](std::size_t row) {
    return std::clamp(eye[row] * r + eye[row + 1] * g + eye[row + 2] * b, 0.0, 1.0);
  };
  return {mixed(0), mixed(3), mixed(6)};
}

/// CIE 1976 L*, a*, b* for the white D65.
std::array<double, 3> Lab(const Light& light) {
  const auto f = [](double t) {
    return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
  };
  const double x = 0.4124 * light.r + 0.3576 * light.g + 0.1805 * light.b;
  const double y = 0.2126 * light.r + 0.7152 * light.g + 0.0722 * light.b;
  const double z = 0.0193 * light.r + 0.1192 * light.g + 0.9505 * light.b;
  return {116 * f(y) - 16, 500 * (f(x / 0.9505) - f(y)), 200 * (f(y) - f(z / 1.089))};
}

constexpr double kLeastStep = 5;  // of L* from band to band; about 1 can just be seen side by side

TEST(ColourScale, Every_Eye_Sees_More_As_Darker_Down_To_Print_In_Grey) {
  for (std::size_t eye = 0; eye < kEyes.size(); ++eye) {
    for (std::size_t bands = 2; bands <= kMostLevels; ++bands) {
      for (const auto& colour : {Band_Colour, More_Colour, Less_Colour}) {
        double former = 100;  // white paper
        for (std::size_t band = 0; band < bands; ++band) {
          const double light = Lab(Seen(colour(band, bands), kEyes[eye]))[0];
          EXPECT_LT(light, former - kLeastStep) << "eye " << eye << ", " << band << " of " << bands;
          former = light;
        }
      }
    }
  }
}

TEST(ColourScale, Every_Eye_Tells_The_Two_Sides_Apart) {
  constexpr double kLeastApart = 15;  // in a* and b* alone: both sides are as dark as each other
  for (std::size_t eye = 0; eye < kEyes.size(); ++eye) {
    for (std::size_t band = 0; band < kMostLevels; ++band) {
      const auto more = Lab(Seen(More_Colour(band, kMostLevels), kEyes[eye]));
      const auto less = Lab(Seen(Less_Colour(band, kMostLevels), kEyes[eye]));
      EXPECT_GT(std::hypot(more[1] - less[1], more[2] - less[2]), kLeastApart)
          << "eye " << eye << ", band " << band;
    }
  }
}

// Cells have five digits: those about 0.1 are 0.00001 apart, those about 1000 0.1.
TEST(ColourScale, Levels_Are_Not_Finer_Than_Cells_Are_Written) {
  EXPECT_EQ(Log_Levels(0.10003, 0.1), (Levels{0.10001, 0.10002}));
  EXPECT_EQ(Even_Levels(0.1, 0.10003), (Levels{0.10001, 0.10002}));
  EXPECT_EQ(Log_Levels(1000.5, 1000), (Levels{1000.1, 1000.2}));
  EXPECT_EQ(Even_Levels(1000, 1000.5), (Levels{1000.1, 1000.2, 1000.3, 1000.4}));
  EXPECT_TRUE(Log_Levels(1000.1, 1000).empty());
  EXPECT_TRUE(Log_Levels(0.123456, 0.123451).empty());
  EXPECT_TRUE(Even_Levels(0.123451, 0.123456).empty());
}

TEST(ColourScale, A_Value_Has_The_Colour_Of_The_Level_That_It_Is_Not_Below) {
  const Colour_Scale one{.levels = {1, 2, 5}};
  EXPECT_FALSE(Colour_Of(one, 0.9));
  EXPECT_EQ(Colour_Of(one, 1), Band_Colour(0, 3));
  EXPECT_EQ(Colour_Of(one, 4.9), Band_Colour(1, 3));
  EXPECT_EQ(Colour_Of(one, 1e9), Band_Colour(2, 3));
  EXPECT_FALSE(Colour_Of(one, -2));
  EXPECT_FALSE(Colour_Of(one, std::numeric_limits<double>::quiet_NaN()));
  const Colour_Scale two{.levels = {1, 2}, .two_sides = true};
  EXPECT_EQ(Colour_Of(two, 1.5), More_Colour(0, 2));
  EXPECT_EQ(Colour_Of(two, -3), Less_Colour(1, 2));
  EXPECT_FALSE(Colour_Of(two, -0.5));
  EXPECT_FALSE(Colour_Of({}, 3));
}

TEST(ColourScale, Letters_On_Dark_Bands_Are_White) {
  EXPECT_FALSE(Is_Dark(Band_Colour(0, 8)));
  EXPECT_TRUE(Is_Dark(Band_Colour(7, 8)));
}

}  // namespace
}  // namespace barvon::testing
