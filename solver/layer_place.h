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
    const double share = 1 - y / column.depth;
    // The layer whose faces are around the share: the inverse of Face_Share.
    constexpr double kGrowth = 1 - kThinnestLayer;
    const double even =
        (std::sqrt(kThinnestLayer * kThinnestLayer + 4 * kGrowth * (share > 0 ? share : 0)) -
         kThinnestLayer) /
        (2 * kGrowth);
    int layer = static_cast<int>(even * layers);
    if (layer > layers - 1) layer = layers - 1;
    if (share < Middle_Share(layer, layers)) --layer;
    // Between the middles of `layer` and the next one.
    const int below = layer < 0 ? 0 : layer;
    const int above = layer + 1 < layers ? layer + 1 : layers - 1;
    lower = static_cast<std::size_t>(below);
    upper = static_cast<std::size_t>(above);
    double up = 0;
    if (below != above) {
      const double from = Middle_Share(below, layers), to = Middle_Share(above, layers);
      up = (share - from) / (to - from);
    }
    per_foot_lower =
        (1 - up) / (column.depth * (Face_Share(below + 1, layers) - Face_Share(below, layers)));
    per_foot_upper =
        up / (column.depth * (Face_Share(above + 1, layers) - Face_Share(above, layers)));
  }
};

}  // namespace companion
