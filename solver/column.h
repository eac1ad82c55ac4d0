#pragma once

#include <cstddef>
#include <vector>

#include "solver/sources.h"

namespace companion {

inline constexpr double kThinnestLayer = 0.25;  // of an even layer's thickness: the one at the bed

/// An amount with its centre and second moments about it, in plan: a tilted normal distribution.
struct Layer {
  double amount = 0;
  double x = 0, z = 0;
  Plan_Moments spread;
};

/// A tilted normal distribution for each layer of the water, of one species.
struct Column {
  std::size_t cloud = 0, species = 0;
  double depth = 0;  // ft at its centre
  bool held = false;
  std::vector<Layer> layers;  // from the bed up
  Layer settled;              // since it was last taken
  double received = 0;        // amount that ever entered
  std::size_t family = 0;     // columns of one cloud and species have the same number
};

/// Height of a layer's lower face above the bed as a share of the depth. Layers grow from the bed
/// to the surface: p (0.25 + 0.75 p) of the even share p.
double Face_Share(int layer, int layers);

/// The same for a layer's middle.
double Middle_Share(int layer, int layers);

/// Adds `amount` of the shape of another distribution. Amount, centre and second moments of both
/// together are kept exactly, so a variance that was positive stays so.
inline void Join(Layer& into, double amount, const Layer& shape) {
  if (amount <= 0) return;
  if (into.amount <= 0) {
    into = shape;
    into.amount = amount;
    return;
  }
  const double sum = into.amount + amount;
  const double share = amount / sum;
  const double rest = 1 - share;
  const double dx = shape.x - into.x;
  const double dz = shape.z - into.z;
  const double between = share * rest;
  into.amount = sum;
  into.x += share * dx;
  into.z += share * dz;
  into.spread.xx = rest * into.spread.xx + share * shape.spread.xx + between * dx * dx;
  into.spread.xz = rest * into.spread.xz + share * shape.spread.xz + between * dx * dz;
  into.spread.zz = rest * into.spread.zz + share * shape.spread.zz + between * dz * dz;
}

/// Amount of all layers.
double Amount(const Column& column);

/// All layers as one distribution: its second moments hold the distance between layers too.
Layer Whole(const Column& column);

/// The lowest layer that holds something; the lowest of all in an empty column.
const Layer& Lowest(const Column& column);

/// Spreads a source evenly over its depths, which are held to the column's own. One without height
/// goes into the layer that it lies in.
void Put(Column& column, const Source& source);

}  // namespace companion
