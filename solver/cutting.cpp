#include "solver/cutting.h"

#include <algorithm>
#include <cmath>

namespace companion {
namespace {

/// The direction in which a column is longest, and how long.
struct Axis {
  double x = 1, z = 0;
  double sigma = 0;  // ft
};

Axis Longer_Axis(const Plan_Moments& m) {
  const double middle = 0.5 * (m.xx + m.zz), apart = 0.5 * (m.xx - m.zz);
  const double swing = std::sqrt(apart * apart + m.xz * m.xz);
  const double longest = middle + swing;
  Axis axis;
  axis.sigma = std::sqrt(std::max(longest, 0.0));
  // Of the two rows of C - longest 1 the larger one.
  const double x = apart >= 0 ? longest - m.zz : m.xz;
  const double z = apart >= 0 ? m.xz : longest - m.xx;
  const double length = std::sqrt(x * x + z * z);
  if (length > 0) {
    axis.x = x / length;
    axis.z = z / length;
  }
  return axis;
}

/// Middle, height and mean spread of the layers, without the distance between them.
struct Figure {
  Layer mean;
  double share = 0;  // of the depth above the bed
};

Figure Figure_Of(const Column& column) {
  Figure figure;
  const int layers = static_cast<int>(column.layers.size());
  for (int l = 0; l < layers; ++l) {
    Layer flat = column.layers[l];
    if (flat.amount <= 0) continue;
    figure.mean.amount += flat.amount;
    const double share = flat.amount / figure.mean.amount;
    Layer& mean = figure.mean;
    mean.x += share * (flat.x - mean.x);
    mean.z += share * (flat.z - mean.z);
    mean.spread.xx += share * (flat.spread.xx - mean.spread.xx);
    mean.spread.xz += share * (flat.spread.xz - mean.spread.xz);
    mean.spread.zz += share * (flat.spread.zz - mean.spread.zz);
    figure.share += share * (Middle_Share(l, layers) - figure.share);
  }
  return figure;
}

/// How far the current bends the column over the outlook, over what it may.
double Bend(const Figure& figure, const Axis& axis, const Water& water, double time,
            double outlook) {
  const double dx = axis.x * axis.sigma, dz = axis.z * axis.sigma;
  const double x = figure.mean.x, z = figure.mean.z;
  const Velocity here = water.Current_At_Share(x, z, figure.share, time);
  const Velocity ahead = water.Current_At_Share(x + dx, z + dz, figure.share, time);
  const Velocity behind = water.Current_At_Share(x - dx, z - dz, figure.share, time);
  const double bend_x = ahead.x - 2 * here.x + behind.x, bend_z = ahead.z - 2 * here.z + behind.z;
  return std::sqrt(bend_x * bend_x + bend_z * bend_z) * outlook / (kCutLimit * axis.sigma);
}

/// One of the three parts, `side` of the middle (-1, 0 or 1).
Column Part_Of(const Column& column, const Axis& axis, int side) {
  Column part = column;
  const double share = side == 0 ? 1 - 2 * kCutShare : kCutShare;
  part.received = share * column.received;
  if (side != 0) part.settled = {};
  for (Layer& layer : part.layers) {
    layer.amount *= share;
    Plan_Moments& s = layer.spread;
    // Along a direction that need not be the layer's own axis, the way is C e / sqrt(e C e).
    const double x = s.xx * axis.x + s.xz * axis.z, z = s.xz * axis.x + s.zz * axis.z;
    const double along = axis.x * x + axis.z * z;
    if (along <= 0) continue;
    const double scale = 1 / std::sqrt(along);
    const double wx = kCutDistance * scale * x, wz = kCutDistance * scale * z;
    layer.x += side * wx;
    layer.z += side * wz;
    s.xx -= 2 * kCutShare * wx * wx;
    s.xz -= 2 * kCutShare * wx * wz;
    s.zz -= 2 * kCutShare * wz * wz;
  }
  return part;
}

}  // namespace

bool Cut(std::vector<Column>& columns, std::size_t families, const Model_Input& input,
         const Water& water, double time, double outlook) {
  struct Wish {
    double gain = 0;
    std::size_t column = 0;
    Axis axis;
  };
  const double narrowest = 0.5 * std::max(input.spacing_x, input.spacing_z);
  std::vector<double> received(families);
  for (const Column& column : columns) received[column.family] += column.received;
  std::vector<Wish> wishes;
  for (std::size_t c = 0; c < columns.size(); ++c) {
    if (columns[c].held) continue;
    const Figure figure = Figure_Of(columns[c]);
    const Axis axis = Longer_Axis(figure.mean.spread);
    if (figure.mean.amount <= 0 || axis.sigma < narrowest) continue;
    const double bend = Bend(figure, axis, water, time, outlook);
    if (bend <= 1) continue;
    wishes.push_back({bend * figure.mean.amount / received[columns[c].family], c, axis});
  }
  std::stable_sort(wishes.begin(), wishes.end(),
                   [](const Wish& a, const Wish& b) { return a.gain > b.gain; });
  bool any = false;
  for (const Wish& wish : wishes) {
    if (columns.size() + 2 > families + kMostCut) break;
    columns.push_back(Part_Of(columns[wish.column], wish.axis, -1));
    columns.push_back(Part_Of(columns[wish.column], wish.axis, 1));
    columns[wish.column] = Part_Of(columns[wish.column], wish.axis, 0);
    any = true;
  }
  return any;
}

}  // namespace companion
