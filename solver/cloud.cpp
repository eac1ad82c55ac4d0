#include "solver/cloud.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "solver/det_math.h"

namespace companion {

namespace {

constexpr double kThinnest = 1e-3;  // ft, of a range of depths

}  // namespace

double Left_Of(double amount, double lost) {
  if (!(lost > 0)) return amount;
  return lost < kAllLost ? amount * Exp(-lost) : 0;
}

double Cloud::Volume() const {
  double volume = fluid_volume;
  for (const double solid : solids) volume += solid;
  return volume;
}

std::vector<double> Cloud::Amounts(bool with_tracer) const {
  std::vector<double> amounts = solids;
  if (with_tracer) amounts.push_back(tracer);
  return amounts;
}

double Cloud_Mass(double fluid_mass, const std::vector<Solid>& kinds,
                  const std::vector<double>& solids) {
  double mass = fluid_mass;
  for (std::size_t i = 0; i < solids.size(); ++i) mass += kinds[i].sg * solids[i];
  return mass;
}

/// Newton's rule comes down from a radius that is too large, without ever passing the root: the
/// volume is convex in the radius.
double Radius_Of_Volume(double volume, double length) {
  if (!(volume > 0)) return 0;
  double radius = Cbrt(3 * volume / (4 * kPi));
  if (!(length > 0)) return radius;
  radius = std::min(radius, std::sqrt(volume / (kPi * length)));
  for (int round = 0; round < 60; ++round) {
    const double excess = kPi * radius * radius * (length + 4.0 / 3 * radius) - volume;
    const double next = radius - excess / (2 * kPi * radius * (length + 2 * radius));
    if (!(next < radius)) break;
    radius = next;
  }
  return radius;
}

double Plan_Area(double radius, double length) {
  return kPi * radius * radius + 2 * radius * length;
}

double Plan_Radius(double area, double length) {
  return area / (length + std::sqrt(length * length + kPi * area));
}

Plan_Moments Moments_Of_Plan(double radius, double length, double axis_x, double axis_z) {
  const double area = Plan_Area(radius, length);
  if (!(area > 0)) return {};
  const double disk = kPi * radius * radius * radius * radius / 4;
  const double along = radius * length * length * length / 6 +
                       kPi * radius * radius * length * length / 4 +
                       4.0 / 3 * length * radius * radius * radius + disk;
  const double across = 2.0 / 3 * length * radius * radius * radius + disk;
  const double difference = (along - across) / area;
  return {across / area + difference * axis_x * axis_x, difference * axis_x * axis_z,
          across / area + difference * axis_z * axis_z};
}

double Level_Of(const Model_Input& input, double density, double foot) {
  const std::vector<double>& depths = input.profile_depths;
  const std::vector<double>& densities = input.profile_densities;
  std::size_t below = 0;  // the first point that is deeper than the foot
  while (below < depths.size() && depths[below] < foot) ++below;
  double y = foot;
  double here = densities.back();
  if (below == 0) {
    here = densities.front();
  } else if (below < depths.size()) {
    const double share = (foot - depths[below - 1]) / (depths[below] - depths[below - 1]);
    here = densities[below - 1] + (densities[below] - densities[below - 1]) * share;
  }
  if (here <= density) return foot;
  for (std::size_t i = below; i-- > 0;) {
    if (densities[i] <= density)
      return std::max(
          0.0, depths[i] + (y - depths[i]) * (density - densities[i]) / (here - densities[i]));
    y = depths[i];
    here = densities[i];
  }
  return 0;
}

Layering Layering_Of(const Model_Input& input, double top, double foot) {
  const std::vector<double>& depths = input.profile_depths;
  const std::vector<double>& densities = input.profile_densities;
  foot = std::max(foot, top + kThinnest);
  const double middle = (top + foot) / 2, height = foot - top;
  double sum = 0, moment = 0;
  const auto add = [&](double from, double to, double upper, double slope, double at) {
    from = std::max(from, top);
    to = std::min(to, foot);
    if (!(to > from)) return;
    const double length = to - from, centre = (from + to) / 2;
    const double density = upper + slope * (centre - at);
    sum += length * density;
    moment += length * (density * (centre - middle) + slope * length * length / 12);
  };
  add(top, depths.front(), densities.front(), 0, 0);
  for (std::size_t i = 1; i < depths.size(); ++i)
    if (depths[i] > depths[i - 1])
      add(depths[i - 1], depths[i], densities[i - 1],
          (densities[i] - densities[i - 1]) / (depths[i] - depths[i - 1]), depths[i - 1]);
  add(depths.back(), foot, densities.back(), 0, 0);
  const double density = sum / height;
  const double gradient = 12 * moment / (height * height * height);
  return {density, std::max(0.0, kGravity * gradient / density)};
}

namespace {

void Add_Sources(const Cloud& cloud, const std::vector<double>& amounts, double top, double foot,
                 bool held, std::vector<Source>& sources) {
  Plan_Moments spread = Moments_Of_Plan(cloud.radius, cloud.length, cloud.axis_x, cloud.axis_z);
  spread = {kPlanMoments * spread.xx, kPlanMoments * spread.xz, kPlanMoments * spread.zz};
  for (std::size_t i = 0; i < amounts.size(); ++i) {
    if (amounts[i] == 0) continue;
    sources.push_back(
        {cloud.time, cloud.number, i, amounts[i], cloud.x, cloud.z, spread, top, foot, held});
  }
}

/// Top and foot in the water, a cloud that stands out of it pushed back with its height.
std::pair<double, double> Heights(const Cloud& cloud, double bed) {
  double top = cloud.y - cloud.height / 2, foot = cloud.y + cloud.height / 2;
  if (top < 0) {
    foot -= top;
    top = 0;
  }
  if (foot > bed) {
    top = std::max(0.0, top - (foot - bed));
    foot = bed;
  }
  return {std::min(top, foot), foot};
}

}  // namespace

void Hand_Over(const Cloud& cloud, bool with_tracer, double bed, bool held,
               std::vector<Source>& sources) {
  const auto [top, foot] = Heights(cloud, bed);
  Add_Sources(cloud, cloud.Amounts(with_tracer), top, foot, held, sources);
}

void Hand_Over_Light(const Cloud& cloud, const Model_Input& input, double bed,
                     std::vector<Source>& sources) {
  const auto [top, foot] = Heights(cloud, bed);
  Add_Sources(cloud, cloud.solids, top, foot, false, sources);
  if (!input.Has_Tracer()) return;
  std::vector<double> tracer(cloud.solids.size(), 0);
  tracer.push_back(cloud.tracer);
  double level = top;
  if (cloud.fluid_volume > 0)
    level = std::min(top, Level_Of(input, cloud.fluid_mass / cloud.fluid_volume, foot));
  Add_Sources(cloud, tracer, level, foot, false, sources);
}

void Row_Keeper::Add(Cloud_State row) {
  last_kept_ = seen_ % every_ == 0;
  if (last_kept_) rows_.push_back(row);
  last_ = std::move(row);
  ++seen_;
  if (rows_.size() < kMostRows) return;
  std::size_t kept = 1;
  for (std::size_t i = 2; i < rows_.size(); i += 2) rows_[kept++] = std::move(rows_[i]);
  rows_.resize(kept);
  every_ *= 2;
  last_kept_ = (seen_ - 1) % every_ == 0;
}

std::vector<Cloud_State> Row_Keeper::Take() {
  if (seen_ > 0 && !last_kept_) rows_.push_back(std::move(last_));
  return std::move(rows_);
}

}  // namespace companion
