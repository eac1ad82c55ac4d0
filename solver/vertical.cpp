#include "solver/vertical.h"

#include <algorithm>
#include <cmath>

#include "solver/det_math.h"
#include "solver/settling.h"

namespace companion {
namespace {

/// Slope of the amounts within a layer from those beside it (van Leer 1974), held so that no value
/// within the layer passes a neighbour's mean.
double Limited_Slope(double here, double below, double above, double height, double below_distance,
                     double above_distance) {
  const double lower = (here - below) / below_distance, upper = (above - here) / above_distance;
  if (!(lower * upper > 0)) return 0;
  const double slope = 0.5 * (lower + upper);
  const double most = 2 * std::min({std::abs(here - below), std::abs(above - here), here}) / height;
  return std::clamp(slope, -most, most);
}

}  // namespace

double Munk_Anderson(double still, double squared_frequency, double squared_shear) {
  if (squared_frequency <= 0) return still;
  const double richardson = squared_frequency < kMunkAndersonLimit * squared_shear
                                ? squared_frequency / squared_shear
                                : kMunkAndersonLimit;
  const double damping = 1 + kMunkAndersonFactor * richardson;
  return still / (damping * std::sqrt(damping));
}

double Pritchard(double speed, double y, double depth, double squared_frequency) {
  const double shear = kPritchardShear * speed / depth;
  double richardson = 0;
  if (squared_frequency > 0)
    richardson = squared_frequency < kPritchardLimit * shear * shear
                     ? squared_frequency / (shear * shear)
                     : kPritchardLimit;
  const double damping = 1 + kPritchardRichardson * richardson;
  const double height = depth - y;
  const double size = speed * y * y * height * height / (depth * depth * depth);
  return std::max(kPritchardLeast, kPritchardFactor * size / (damping * damping));
}

Vertical::Vertical(const Model_Input& input, const Water& water, int layers)
    : input_(input),
      water_(water),
      layers_(static_cast<std::size_t>(layers)),
      uniform_(input.constant_depth && input.velocity_type != 4),
      diffusivity_(layers_),
      up_(layers_),
      pivot_(layers_),
      slope_(layers_),
      fall_(layers_ + 1),
      departure_(layers_ + 1),
      fresh_(layers_) {
  for (int l = 0; l <= layers; ++l) faces_.push_back(Face_Share(l, layers));
  for (int l = 0; l < layers; ++l) middles_.push_back(Middle_Share(l, layers));
}

void Vertical::Find_Diffusivity(const Column& column, const Layer& lowest, double time) {
  const bool steady = input_.velocity_type != 5;
  if (uniform_ && column.depth == known_depth_ && known_time_ >= 0 &&
      (steady || time == known_time_))
    return;
  known_depth_ = column.depth;
  known_time_ = time;
  const double depth = column.depth;
  if (input_.pritchard) {
    const Velocity mean = water_.Mean_Current(lowest.x, lowest.z, time);
    const double speed = std::sqrt(mean.x * mean.x + mean.z * mean.z);
    for (std::size_t f = 1; f < layers_; ++f) {
      const double upper = std::min(1.0, faces_[f] + kGradientShare);
      const double lower = std::max(0.0, faces_[f] - kGradientShare);
      const double frequency = water_.Squared_Frequency(depth * (1 - upper), depth * (1 - lower));
      diffusivity_[f] = Pritchard(speed, depth * (1 - faces_[f]), depth, frequency);
    }
    return;
  }
  const double friction = water_.Shear_Velocity(lowest.x, lowest.z, time) / kVonKarman;
  for (std::size_t f = 1; f < layers_; ++f) {
    const double upper = std::min(1.0, faces_[f] + kGradientShare);
    const double lower = std::max(0.0, faces_[f] - kGradientShare);
    const double frequency = water_.Squared_Frequency(depth * (1 - upper), depth * (1 - lower));
    double shear = 0;
    if (frequency > 0) {
      const Velocity high = water_.Current_At_Share(lowest.x, lowest.z, upper, time);
      const Velocity low = water_.Current_At_Share(lowest.x, lowest.z, lower, time);
      const double distance = depth * (upper - lower);
      const double x = (high.x - low.x) / distance, z = (high.z - low.z) / distance;
      const double law = friction / (depth * std::max(kLeastHeightShare, faces_[f]));
      shear = std::max(x * x + z * z, law * law);
    }
    diffusivity_[f] = Munk_Anderson(input_.coefficients.AKY0, frequency, shear);
  }
}

void Vertical::Prepare(const Column& column, double time) {
  const Layer& lowest = Lowest(column);
  Find_Diffusivity(column, lowest, time);
  deposit_ = 1;
  if (column.species >= input_.Solids()) return;
  const double critical = input_.batches.front().solids[column.species].critical_shear;
  if (critical > 0)
    deposit_ = std::max(0.0, 1 - water_.Bed_Stress(lowest.x, lowest.z, time) / critical);
}

void Vertical::Diffuse(Column& column, double seconds) {
  std::vector<Layer>& layers = column.layers;
  const double before = Amount(column);
  if (before <= 0) return;
  // A layer sends the shares above/height and below/height of itself to its neighbours: the matrix
  // has no negative entry off the diagonal but these, so both sweeps only join distributions.
  const double scale = seconds / (column.depth * column.depth);
  double pivot = 0, carried = 0;
  for (std::size_t l = 0; l < layers_; ++l) {
    const double height = faces_[l + 1] - faces_[l];
    const double above =
        l + 1 < layers_ ? scale * diffusivity_[l + 1] / (middles_[l + 1] - middles_[l]) : 0;
    const double below = l > 0 ? scale * diffusivity_[l] / (middles_[l] - middles_[l - 1]) : 0;
    double share = 0;  // of the layer below that ends up here
    if (l > 0) {
      share = carried / pivot;
      Join(layers[l], layers[l - 1].amount * share, layers[l - 1]);
    }
    pivot = 1 + (above + below * (1 - share)) / height;
    pivot_[l] = 1 / pivot;
    up_[l] = below / height;
    carried = above / height;
  }
  layers[layers_ - 1].amount *= pivot_[layers_ - 1];
  for (std::size_t l = layers_ - 1; l-- > 0;) {
    Join(layers[l], layers[l + 1].amount * up_[l + 1], layers[l + 1]);
    layers[l].amount *= pivot_[l];
  }
  const double after = Amount(column);
  const double restore = before / after;
  for (Layer& layer : layers) layer.amount *= restore;
}

/// Heights from which what is at each face after the step fell, ft above the bed; beyond the
/// surface it is held there.
void Vertical::Departures(const Column& column, const Solid& solid, double seconds) {
  const std::vector<Layer>& layers = column.layers;
  const double depth = column.depth;
  for (std::size_t l = 0; l < layers_; ++l) {
    const Layer& layer = layers[l];
    const double height = depth * (faces_[l + 1] - faces_[l]);
    const Plan_Moments& s = layer.spread;
    const double area = 2 * kPi * std::sqrt(std::max(s.xx * s.zz - s.xz * s.xz, 0.0));
    const double peak = layer.amount > 0 && area > 0 ? layer.amount / (height * area) : 0;
    fall_[l] = solid.fall_velocity * Settling_Factor(solid, kTypicalOfPeak * peak);
  }
  // The face's own height rises to its departure through layers that fall at their own velocity.
  std::size_t l = 0;
  double reached = 0;  // time from face 0 to the lower face of layer l
  double time = 0;     // time from face 0 to face f
  for (std::size_t f = 0; f < layers_; ++f) {
    const double goal = time + seconds;
    double through = 0;
    while (l < layers_) {
      through = depth * (faces_[l + 1] - faces_[l]) / fall_[l];
      if (reached + through > goal) break;
      reached += through;
      ++l;
    }
    departure_[f] = l < layers_ ? depth * faces_[l] + (goal - reached) * fall_[l] : depth;
    departure_[f] = std::clamp(departure_[f], depth * faces_[f], depth);
    if (f > 0) departure_[f] = std::max(departure_[f], departure_[f - 1]);
    time += depth * (faces_[f + 1] - faces_[f]) / fall_[f];
  }
  departure_[layers_] = depth;
}

void Vertical::Settle(Column& column, double seconds) {
  if (column.species >= input_.Solids()) return;
  const Solid& solid = input_.batches.front().solids[column.species];
  if (solid.fall_velocity <= 0 || Amount(column) <= 0) return;
  std::vector<Layer>& layers = column.layers;
  const double depth = column.depth;
  Departures(column, solid, seconds);

  const auto density = [&](std::size_t l) {
    return layers[l].amount / (depth * (faces_[l + 1] - faces_[l]));
  };
  for (std::size_t l = 0; l < layers_; ++l) {
    slope_[l] = 0;
    if (l == 0 || l + 1 == layers_) continue;
    slope_[l] = Limited_Slope(
        density(l), density(l - 1), density(l + 1), depth * (faces_[l + 1] - faces_[l]),
        depth * (middles_[l] - middles_[l - 1]), depth * (middles_[l + 1] - middles_[l]));
  }
  // Amount of a layer up to a height above its own lower face.
  const auto upto = [&](std::size_t l, double mean, double height, double above) {
    return std::clamp(above * (mean + 0.5 * slope_[l] * (above - height)), 0.0, layers[l].amount);
  };

  std::size_t from = 0;  // the layer that is being emptied
  double taken = 0;      // of it
  Layer falling;         // what reaches the bed
  for (std::size_t face = 0; face <= layers_; ++face) {
    // All between the last face's departure and this one's: to the bed, or to the layer below.
    Layer arrives;
    const double end = departure_[face];
    while (from < layers_) {
      const double foot = depth * faces_[from], height = depth * (faces_[from + 1] - faces_[from]);
      const bool all = end >= depth * faces_[from + 1] || face == layers_;
      const double mean = layers[from].amount / height;
      const double reached = all ? layers[from].amount : upto(from, mean, height, end - foot);
      Join(arrives, reached - taken, layers[from]);
      taken = std::max(taken, reached);
      if (!all) break;
      ++from;
      taken = 0;
    }
    if (face == 0) {
      falling = arrives;
      continue;
    }
    fresh_[face - 1] = arrives;
  }
  layers.swap(fresh_);
  const double stays = falling.amount * deposit_;
  Join(column.settled, stays, falling);
  Join(layers[0], falling.amount - stays, falling);
}

}  // namespace companion
