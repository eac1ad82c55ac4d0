#include "solver/raster.h"

#include <gtest/gtest.h>

#include <cmath>

#include "solver/normal.h"
#include "solver/verification.h"

namespace companion {
namespace {

constexpr double kPiHere = 3.14159265358979323846;

double Exact_Density(const Part& part, double x, double z) {
  const Plan_Moments& s = part.spread;
  const double det = s.xx * s.zz - s.xz * s.xz;
  const double dx = x - part.x, dz = z - part.z;
  const double q = (s.zz * dx * dx - 2 * s.xz * dx * dz + s.xx * dz * dz) / det;
  return part.weight * std::exp(-0.5 * q) / (2 * kPiHere * std::sqrt(det));
}

TEST(Normal, The_Table_Is_Exact_To_Eleven_Digits_And_Rises) {
  const Normal& normal = Normal::Table();
  double last = 0;
  for (double u = -9; u <= 9; u += 0.00137) {
    EXPECT_NEAR(normal.Below(u), 0.5 * std::erfc(-u / std::sqrt(2.0)), 1e-11);
    EXPECT_NEAR(normal.Density(u), std::exp(-0.5 * u * u) / std::sqrt(2 * kPiHere), 1e-10);
    EXPECT_GE(normal.Below(u), last - 1e-16);
    last = normal.Below(u);
  }
}

TEST(Raster, Cells_Have_The_Means_Of_The_Distribution) {
  Raster raster(41, 41, 100, 100);
  const Part part{1, 1980, 2020, {300 * 300, 0, 300 * 300}};
  raster.Add_Deposit(part);
  double worst = 0;
  for (int i = 0; i < 41; ++i)
    for (int k = 0; k < 41; ++k)
      worst = std::max(worst, std::abs(raster.Value(i, k) - Exact_Density(part, 100 * i, 100 * k)));
  Verified("cell averages, cells of 100 ft", "analytic points, parts of the peak",
           worst / Peak(part), 0.01);
}

}  // namespace
}  // namespace companion
