#include "material/amden.h"

#include <cmath>

namespace barvon {

// In the literature the last terms of A, of B and of E2 are added, E5 has 0.02 for 0.002 and E6
// has - 0.1 T. Here they stay as they are: densities in users' projects were computed this way.
std::optional<double> AMDEN(double Salinity, double Temperature, double Depth) {
  const double S = Salinity;
  const double T = Temperature;
  // At the surface: chlorinity, then Knudsen's sigma-0 and sigma-t.
  const double Cl = (S - 0.03) / 1.805;  // slightly negative in fresh water
  const double s0 = ((3.98e-5 * Cl - 0.00157) * Cl + 1.4708) * Cl - 0.069;
  const double St = (-((T - 3.98) * (T - 3.98)) / 503.57) * (T + 283) / (T + 67.26);
  const double A = 0.001 * T * (4.7867 - T * (0.098185 + 0.0010843 * T));
  const double B = 1e-6 * T * (18.03 - T * (0.8164 + 0.01667 * T));
  const double sT = ((s0 - 0.1324) * B + (1 - A)) * (s0 + 0.1324) + St;
  const double V0 = 1 / (1 + 0.001 * sT);  // specific volume

  // At depth: Ekman's mean compressibility K. A metre of water counts as a decibar of pressure.
  const double p = 0.3048 * Depth;
  const double E1 = 4886 / (1 + 1.83e-5 * p);
  const double E2 = 227 + T * (28.33 - T * (0.551 + 0.004 * T));
  const double E3 = 0.0001 * p * (105.5 + T * (9.5 - 0.158 * T));
  const double E4 = 1.5e-8 * p * p * T;
  const double D = (s0 - 28) / 10;
  const double E5 = (147.3 + T * (0.04 * T - 2.72)) - 0.0001 * p * (32.4 + T * (0.002 * T - 0.87));
  const double E6 = (4.5 + 0.1 * T) - 0.0001 * p * (1.8 - 0.06 * T);
  const double K = E1 - E2 + E3 - E4 - E5 * D + D * D * E6;
  const double V = (1 - K * p * 1e-9) * V0;

  // A fault on the way may hide in a finite result: an infinite volume has the density 0.
  const bool holds = std::isfinite(sT) && std::isfinite(K) && std::isfinite(V);
  const double density = 1 / V;
  if (!holds || !std::isfinite(density)) return std::nullopt;
  return density;
}

}  // namespace barvon
