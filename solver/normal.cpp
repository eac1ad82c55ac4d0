#include "solver/normal.h"

#include <cmath>

#include "solver/det_math.h"

namespace companion {

Normal::Normal() {
  const double root = std::sqrt(2.0);
  const double peak = 1 / std::sqrt(2 * kPi);
  const int last = static_cast<int>(kReach * kNodes) + 1;
  for (int n = 0; n <= last; ++n) {
    const double u = static_cast<double>(n) / kNodes;
    const double density = peak * Exp(-0.5 * u * u);
    nodes_.push_back({0.5 * Erf(u / root), density / kNodes, u * density / (kNodes * kNodes)});
  }
}

const Normal& Normal::Table() {
  static const Normal table;
  return table;
}

}  // namespace companion
