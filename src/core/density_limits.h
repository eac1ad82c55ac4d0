#pragma once

namespace barvon {

/// What water at a dredging site can weigh, g/cc.
inline constexpr double kLeastSiteDensity = 0.972;
inline constexpr double kGreatestSiteDensity = 1.05;

/// The density held to its limits, without a message.
inline double Held_Site_Density(double density) {
  if (density < kLeastSiteDensity) return kLeastSiteDensity;
  if (density > kGreatestSiteDensity) return kGreatestSiteDensity;
  return density;
}

}  // namespace barvon
