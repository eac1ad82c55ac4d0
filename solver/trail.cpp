#include "solver/trail.h"

#include <algorithm>
#include <utility>

namespace companion {

Trail::Place Trail::Of(const Cloud& cloud) {
  return {cloud.time, cloud.x, cloud.z,
          Moments_Of_Plan(cloud.radius, cloud.length, cloud.axis_x, cloud.axis_z)};
}

void Trail::Begin(const Cloud& cloud, std::vector<double> amounts) {
  here_ = Of(cloud);
  last_top_ = cloud.y - cloud.height / 2;
  last_foot_ = cloud.y + cloud.height / 2;
  last_ = std::move(amounts);
  Next_Stretch();
}

void Trail::Next_Stretch() {
  begun_ = last_;
  begun_time_ = here_.time;
  means_.assign(begun_.size(), {});
  top_ = last_top_;
  foot_ = upper_foot_ = last_foot_;
}

void Trail::Pass(const Cloud& cloud, const std::vector<double>& amounts) {
  const Place place = Of(cloud);
  for (std::size_t i = 0; i < means_.size(); ++i) {
    const double weight = last_[i] - amounts[i];
    Place& sum = means_[i].sum;
    means_[i].weight += weight;
    sum.time += weight * (here_.time + place.time) / 2;
    sum.x += weight * (here_.x + place.x) / 2;
    sum.z += weight * (here_.z + place.z) / 2;
    sum.spread.xx += weight * (here_.spread.xx + place.spread.xx) / 2;
    sum.spread.xz += weight * (here_.spread.xz + place.spread.xz) / 2;
    sum.spread.zz += weight * (here_.spread.zz + place.spread.zz) / 2;
  }
  here_ = place;
  last_ = amounts;
  last_top_ = cloud.y - cloud.height / 2;
  last_foot_ = cloud.y + cloud.height / 2;
  top_ = std::min(top_, last_top_);
  upper_foot_ = std::min(upper_foot_, last_foot_);
  foot_ = std::max(foot_, last_foot_);
}

/// Rounding may not carry the mean out of the stretch's time.
Trail::Place Trail::Centre_Of(const Mean& mean) const {
  const Place& sum = mean.sum;
  if (mean.weight == 0) return here_;
  const double part = 1 / mean.weight;
  return {std::clamp(sum.time * part, begun_time_, here_.time),
          sum.x * part,
          sum.z * part,
          {sum.spread.xx * part, sum.spread.xz * part, sum.spread.zz * part}};
}

template <typename Put>
void Trail::Leave(const Put& put) {
  for (std::size_t i = 0; i < means_.size(); ++i) {
    const double amount = begun_[i] - last_[i];
    if (amount == 0) continue;
    const Place place = Centre_Of(means_[i]);
    put(i, amount, place,
        Plan_Moments{kPlanMoments * place.spread.xx, kPlanMoments * place.spread.xz,
                     kPlanMoments * place.spread.zz});
  }
  Next_Stretch();
}

void Trail::Leave_Between(double top, double foot, std::vector<Source>& sources) {
  Leave([&](std::size_t species, double amount, const Place& place, const Plan_Moments& spread) {
    sources.push_back(
        {place.time, number_, species, amount, place.x, place.z, spread, top, foot, false});
  });
}

void Trail::Leave_Sources(double bed, std::vector<Source>& sources) {
  const double foot = std::min(std::max(foot_, 0.0), bed);
  Leave_Between(std::clamp(top_, 0.0, foot), foot, sources);
}

void Trail::Leave_From_Foot(double bed, std::vector<Source>& sources) {
  const double foot = std::min(std::max(foot_, 0.0), bed);
  Leave_Between(std::clamp(upper_foot_, 0.0, foot), foot, sources);
}

void Trail::Leave_Deposits(std::vector<Deposit>& deposits) {
  Leave([&](std::size_t species, double amount, const Place& place, const Plan_Moments& spread) {
    deposits.push_back({place.time, species, amount, place.x, place.z, spread});
  });
}

}  // namespace companion
