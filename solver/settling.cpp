#include "solver/settling.h"

#include <algorithm>

#include "solver/det_math.h"

namespace companion {
namespace {

constexpr double kSeries = 1e-3;          // share up to which two terms of a series do
constexpr double kDensestSettling = 0.9;  // a share beyond is not looked at

}  // namespace

double Hindrance(double share) { return Pow(std::max(0.0, 1 - share), kHinderedPower); }

double Floc_Factor(const Solid& solid, double share) {
  if (!solid.cohesive) return 1;
  return std::clamp(kMilligramsPerLitre * solid.sg * share / kFlocFrom, 1.0, kMostOfFlocs);
}

double Settling_Factor(const Solid& solid, double share) {
  const double c = std::min(share, kDensestSettling);
  const double hindrance =
      c > kSeries ? Hindrance(c) : 1 - kHinderedPower * c * (1 - 0.5 * (kHinderedPower - 1) * c);
  return hindrance * Floc_Factor(solid, c);
}

}  // namespace companion
