#include "solver/column.h"

#include <algorithm>

namespace companion {
namespace {

constexpr double kThinnestSource = 1e-9;  // of the depth: below it, a source has no height

}  // namespace

double Face_Share(int layer, int layers) {
  const double even = static_cast<double>(layer) / layers;
  return even * (kThinnestLayer + (1 - kThinnestLayer) * even);
}

double Middle_Share(int layer, int layers) {
  return 0.5 * (Face_Share(layer, layers) + Face_Share(layer + 1, layers));
}

double Amount(const Column& column) {
  double sum = 0;
  for (const Layer& layer : column.layers) sum += layer.amount;
  return sum;
}

Layer Whole(const Column& column) {
  Layer whole;
  for (const Layer& layer : column.layers) Join(whole, layer.amount, layer);
  return whole;
}

const Layer& Lowest(const Column& column) {
  for (const Layer& layer : column.layers)
    if (layer.amount > 0) return layer;
  return column.layers.front();
}

void Put(Column& column, const Source& source) {
  if (source.amount <= 0) return;
  const int layers = static_cast<int>(column.layers.size());
  // Heights above the bed as shares of the depth.
  const double high = 1 - std::clamp(source.top / column.depth, 0.0, 1.0);
  const double low = std::min(high, 1 - std::clamp(source.foot / column.depth, 0.0, 1.0));
  const double height = high - low;
  const Layer shape{source.amount, source.x, source.z, source.spread};
  column.received += source.amount;
  double put = 0;
  for (int l = 0; l < layers; ++l) {
    const double face = Face_Share(l + 1, layers);
    double below = 0;
    if (height > kThinnestSource)
      below = std::clamp((face - low) / height, 0.0, 1.0);
    else
      below = face > low || l + 1 == layers ? 1 : 0;
    if (l + 1 == layers) below = 1;
    const double upto = source.amount * below;
    Join(column.layers[l], upto - put, shape);
    put = upto;
  }
}

}  // namespace companion
