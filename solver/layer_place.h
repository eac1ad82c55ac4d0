#pragma once

#include <cmath>
#include <cstddef>

#include "solver/column.h"

namespace companion {

inline constexpr double kFarthest = 40;  // exponent beyond which a distribution counts as nothing

/// Where a depth lies between the middles of a column's layers: the one below and the one above,
/// and what of their amounts is there per ft of depth. The same layer twice beyond the last middle.
struct Layer_Place {
  std::size_t lower = 0, upper = 0;
  double per_foot_lower = 0, per_foot_upper = 0;

  Layer_Place(const Column& column, double y) {
    const int layers = static_cast<int>(column.layers.size());
    const double step = 1.0 / layers;
    const auto face = [step](int layer) {
      const double even = layer * step;
      return even * (kThinnestLayer + (1 - kThinnestLayer) * even);
    };
    const double share = 1 - y / column.depth;
    // The layer whose faces are around the share: the inverse of the faces' own formula.
    constexpr double kGrowth = 1 - kThinnestLayer;
    constexpr double kPerGrowth = 1 / (2 * kGrowth);
    const double even =
        (std::sqrt(kThinnestLayer * kThinnestLayer + 4 * kGrowth * (share > 0 ? share : 0)) -
         kThinnestLayer) *
        kPerGrowth;
    int layer = static_cast<int>(even * layers);
    if (layer > layers - 1) layer = layers - 1;
    const double foot = face(layer), top = face(layer + 1);
    const double middle = 0.5 * (foot + top);
    const double per_depth = 1 / column.depth;
    lower = upper = static_cast<std::size_t>(layer);
    per_foot_lower = per_depth / (top - foot);
    if (share < middle) {
      if (layer == 0) return;
      --lower;
      const double last = face(layer - 1);
      const double up = (share - 0.5 * (last + foot)) / (0.5 * (top - last));
      per_foot_upper = up * per_foot_lower;
      per_foot_lower = (1 - up) * per_depth / (foot - last);
    } else {
      if (layer == layers - 1) return;
      ++upper;
      const double next = face(layer + 2);
      const double up = (share - middle) / (0.5 * (next - foot));
      per_foot_upper = up * per_depth / (next - top);
      per_foot_lower *= 1 - up;
    }
  }
};

}  // namespace companion
