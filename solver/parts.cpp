#include "solver/parts.h"

#include <algorithm>
#include <cmath>

#include "solver/det_math.h"
#include "solver/layer_place.h"

namespace companion {
namespace {

/// Two layers that differ so little that their sum is again a normal distribution, as good as: the
/// distance of their centres and the difference of their moments, both measured by the moments.
bool Alike(const Layer& a, const Layer& b) {
  const Plan_Moments& s = a.spread;
  const double determinant = s.xx * s.zz - s.xz * s.xz;
  if (determinant <= 0) return false;
  const double dx = b.x - a.x, dz = b.z - a.z;
  const double squared = s.zz * dx * dx - 2 * s.xz * dx * dz + s.xx * dz * dz;
  if (squared > kSamePlace * kSamePlace * determinant) return false;
  const double xx = b.spread.xx - s.xx, xz = b.spread.xz - s.xz, zz = b.spread.zz - s.zz;
  // The squares of the difference in units of the moments: trace of (C^-1 D)^2.
  const double first = s.zz * xx - s.xz * xz, second = s.xx * zz - s.xz * xz;
  const double mixed = (s.zz * xz - s.xz * zz) * (s.xx * xz - s.xz * xx);
  return first * first + 2 * mixed + second * second <=
         kSameSpread * kSameSpread * determinant * determinant;
}

}  // namespace

void Parts_At_Depth(const std::vector<Column>& columns, std::size_t species, double y,
                    std::vector<Part>& parts) {
  for (const Column& column : columns) {
    if (column.species != species || y < 0 || y > column.depth) continue;
    const Layer_Place place(column, y);
    Layer lower = column.layers[place.lower], upper = column.layers[place.upper];
    lower.amount *= place.per_foot_lower;
    upper.amount *= place.per_foot_upper;
    if (lower.amount > 0 && upper.amount > 0 && Alike(lower, upper)) {
      Join(lower, upper.amount, upper);
      upper.amount = 0;
    }
    for (const Layer* layer : {&lower, &upper})
      if (layer->amount > 0) parts.push_back({layer->amount, layer->x, layer->z, layer->spread});
  }
}

void Parts_At_Depth(const std::vector<Source>& moving, std::size_t species, double y,
                    std::vector<Part>& parts) {
  for (const Source& source : moving) {
    const double height = source.foot - source.top;
    if (source.species != species || y < source.top || y > source.foot || height <= 0) continue;
    parts.push_back({source.amount / height, source.x, source.z, source.spread});
  }
}

Part Part_Of(const Deposit& deposit) {
  return {deposit.amount, deposit.x, deposit.z, deposit.spread};
}

double Density_At(const Part& part, double x, double z) {
  const double xx = std::max(part.spread.xx, kLeastVariance);
  const double zz = std::max(part.spread.zz, kLeastVariance);
  const double slope = part.spread.xz / xx;
  const double across = std::max(zz - slope * part.spread.xz, kLeastVariance);
  const double dx = x - part.x, dz = z - part.z - slope * dx;
  const double exponent = 0.5 * (dx * dx / xx + dz * dz / across);
  if (exponent > kFarthest) return 0;
  return part.weight * Exp(-exponent) / (2 * kPi * std::sqrt(xx * across));
}

double Value_At(const std::vector<Column>& columns, const std::vector<Source>& moving,
                std::size_t species, double x, double z, double y) {
  double value = 0;
  for (const Column& column : columns) {
    if (column.species != species || y < 0 || y > column.depth) continue;
    const Layer_Place place(column, y);
    const Layer& lower = column.layers[place.lower];
    const Layer& upper = column.layers[place.upper];
    if (lower.amount > 0)
      value +=
          Density_At({lower.amount * place.per_foot_lower, lower.x, lower.z, lower.spread}, x, z);
    if (upper.amount > 0)
      value +=
          Density_At({upper.amount * place.per_foot_upper, upper.x, upper.z, upper.spread}, x, z);
  }
  std::vector<Part> parts;
  Parts_At_Depth(moving, species, y, parts);
  for (const Part& part : parts) value += Density_At(part, x, z);
  return value;
}

}  // namespace companion
