#include "solver/water.h"

#include <algorithm>
#include <cmath>

#include "solver/det_math.h"

namespace companion {

namespace {

std::vector<double> One_Row(const std::vector<std::vector<double>>& grid) {
  std::vector<double> row;
  for (const std::vector<double>& values : grid)
    row.insert(row.end(), values.begin(), values.end());
  return row;
}

bool Has_Size(const std::vector<std::vector<double>>& grid, int rows, int columns) {
  if (grid.size() != static_cast<std::size_t>(rows)) return false;
  return std::all_of(grid.begin(), grid.end(), [columns](const std::vector<double>& row) {
    return row.size() == static_cast<std::size_t>(columns);
  });
}

/// A coordinate on the grid's lines as the number of the line before it and the share behind.
/// What is no number goes to the edge as well.
double Held(double lines, int points) {
  if (!(lines > 0)) return 0;
  return std::min(lines, static_cast<double>(points - 1));
}

}  // namespace

double Water::Two_Points::At(double y) const {
  if (y <= upper_depth) return upper;
  if (y >= lower_depth) return lower;
  return upper + (lower - upper) * ((y - upper_depth) / (lower_depth - upper_depth));
}

/// Over a depth: the piece above the points, the one between them, the one below.
double Water::Two_Points::Mean(double depth) const {
  const double from = std::clamp(upper_depth, 0.0, depth);
  const double to = std::clamp(lower_depth, 0.0, depth);
  const double between = (to - from) * (At(from) + At(to)) / 2;
  return (from * upper + between + (depth - to) * lower) / depth;
}

Water::Water(const Model_Input& input, const Additions& additions)
    : points_x_(std::max(input.points_x, 2)),
      points_z_(std::max(input.points_z, 2)),
      spacing_x_(input.spacing_x),
      spacing_z_(input.spacing_z),
      per_spacing_x_(1 / input.spacing_x),
      per_spacing_z_(1 / input.spacing_z),
      constant_depth_(input.constant_depth),
      depth_(input.depth),
      vessel_x_(input.vessel_x),
      vessel_z_(input.vessel_z),
      half_hole_x_(input.hole_x / 2),
      half_hole_z_(input.hole_z / 2),
      hole_depth_(input.hole_depth),
      least_roughness_(std::max(input.roughness / kRoughnessDivisor, kLeastRoughness)),
      profile_depths_(input.profile_depths),
      densities_(input.profile_densities),
      velocity_type_(input.velocity_type),
      mean_{input.mean_x, input.mean_z},
      mean_depth_(input.mean_depth) {
  const std::size_t points =
      static_cast<std::size_t>(points_x_) * static_cast<std::size_t>(points_z_);
  if (!constant_depth_) {
    const bool added = Has_Size(additions.depths, points_x_, points_z_);
    depths_ = One_Row(added ? additions.depths : input.depths);
    depths_.resize(points);
  }
  if (velocity_type_ == 4) {
    field_x_ = One_Row(input.field_x);
    field_z_ = One_Row(input.field_z);
    field_x_.resize(points);
    field_z_.resize(points);
  }
  const std::array<double, 8>& two = input.two_point;
  const auto sorted = [](double depth1, double depth2, double v1, double v2) {
    return depth1 <= depth2 ? Two_Points{depth1, depth2, v1, v2}
                            : Two_Points{depth2, depth1, v2, v1};
  };
  profile_x_ = sorted(two[0], two[1], two[2], two[3]);
  profile_z_ = sorted(two[4], two[5], two[6], two[7]);
  if (velocity_type_ == 5 && additions.tide && !additions.tide->times.empty()) {
    tidal_ = true;
    tide_ = *additions.tide;
  }
  strains_ = velocity_type_ == 4 || (velocity_type_ != 3 && !constant_depth_ && mean_depth_ > 0);
  Fill_Land();
  if (constant_depth_) log_of_depth_ = Log(depth_ / Roughness_Of(depth_));
}

/// Land takes the mean of those of its four neighbours that are wet or were filled before it, ring
/// by ring from the shore.
void Water::Fill_Land() {
  if (constant_depth_) return;
  land_.resize(depths_.size());
  for (std::size_t i = 0; i < depths_.size(); ++i) {
    land_[i] = depths_[i] > 0 ? 0 : 1;
    if (land_[i]) has_land_ = true;
  }
  if (!has_land_) return;
  std::vector<char> dry = land_;
  const auto nx = static_cast<std::size_t>(points_x_), nz = static_cast<std::size_t>(points_z_);
  for (;;) {
    std::vector<std::size_t> ring;
    for (std::size_t at = 0; at < dry.size(); ++at) {
      if (!dry[at]) continue;
      const std::size_t i = at / nz, k = at % nz;
      double depth = 0, x = 0, z = 0;
      int wet = 0;
      const auto add = [&](std::size_t other) {
        if (dry[other]) return;
        ++wet;
        depth += depths_[other];
        if (field_x_.empty()) return;
        x += field_x_[other];
        z += field_z_[other];
      };
      if (i > 0) add(at - nz);
      if (i + 1 < nx) add(at + nz);
      if (k > 0) add(at - 1);
      if (k + 1 < nz) add(at + 1);
      if (wet == 0) continue;
      ring.push_back(at);
      depths_[at] = depth / wet;
      if (field_x_.empty()) continue;
      field_x_[at] = x / wet;
      field_z_[at] = z / wet;
    }
    if (ring.empty()) break;
    for (const std::size_t at : ring) dry[at] = 0;
  }
}

Water::Cell Water::Locate(double x, double z) const {
  const double lines_x = Held(x * per_spacing_x_, points_x_);
  const double lines_z = Held(z * per_spacing_z_, points_z_);
  const int i = std::min(static_cast<int>(lines_x), points_x_ - 2);
  const int k = std::min(static_cast<int>(lines_z), points_z_ - 2);
  return {static_cast<std::size_t>(i) * static_cast<std::size_t>(points_z_) +
              static_cast<std::size_t>(k),
          lines_x - i, lines_z - k};
}

double Water::Between(const std::vector<double>& values, const Cell& cell) const {
  const double* upper = values.data() + cell.corner;
  const double* lower = upper + points_z_;
  const double above = upper[0] + (upper[1] - upper[0]) * cell.share_z;
  const double below = lower[0] + (lower[1] - lower[0]) * cell.share_z;
  return above + (below - above) * cell.share_x;
}

double Water::Depth_In(const Cell& cell) const {
  return constant_depth_ ? depth_ : Between(depths_, cell);
}

double Water::Depth(double x, double z) const {
  return constant_depth_ ? depth_ : Between(depths_, Locate(x, z));
}

bool Water::In_Depression(double x, double z) const {
  return hole_depth_ > 0 && half_hole_x_ > 0 && half_hole_z_ > 0 &&
         std::abs(x - vessel_x_) <= half_hole_x_ && std::abs(z - vessel_z_) <= half_hole_z_;
}

double Water::Bed(double x, double z) const {
  return In_Depression(x, z) ? Depth(x, z) + hole_depth_ : Depth(x, z);
}

bool Water::Land_Cell(double x, double z) const {
  if (!has_land_) return false;
  const std::size_t corner = Locate(x, z).corner;
  const std::size_t below = corner + static_cast<std::size_t>(points_z_);
  return land_[corner] && land_[corner + 1] && land_[below] && land_[below + 1];
}

bool Water::Touches_Land(double x, double z) const {
  if (!has_land_) return false;
  const std::size_t corner = Locate(x, z).corner;
  const std::size_t below = corner + static_cast<std::size_t>(points_z_);
  return land_[corner] || land_[corner + 1] || land_[below] || land_[below + 1];
}

bool Water::Land_Point(int i, int k) const {
  return has_land_ && land_[static_cast<std::size_t>(i) * static_cast<std::size_t>(points_z_) +
                            static_cast<std::size_t>(k)];
}

double Water::Density(double y) const {
  std::size_t i = 0;
  while (i < profile_depths_.size() && y > profile_depths_[i]) ++i;
  if (i == 0) return densities_.front();
  if (i == profile_depths_.size()) return densities_.back();
  const double share = (y - profile_depths_[i - 1]) / (profile_depths_[i] - profile_depths_[i - 1]);
  return densities_[i - 1] + (densities_[i] - densities_[i - 1]) * share;
}

double Water::Squared_Frequency(double y0, double y1) const {
  const double distance = std::abs(y1 - y0);
  if (!(distance > 0)) return 0;
  const double upper = Density(std::min(y0, y1)), lower = Density(std::max(y0, y1));
  return std::max(0.0, kGravity * (lower - upper) / ((lower + upper) / 2 * distance));
}

double Water::Roughness_Of(double depth) const {
  return std::min(least_roughness_, depth / kRoughnessOfDepth);
}

double Water::Log_Of_Depth(double depth) const {
  return constant_depth_ ? log_of_depth_ : Log(depth / Roughness_Of(depth));
}

double Water::Roughness(double x, double z) const { return Roughness_Of(Depth(x, z)); }

/// The same flow through another depth, for the types that give a mean.
Velocity Water::Given_Mean(double depth, double t) const {
  Velocity mean = mean_;
  if (tidal_) {
    const std::vector<double>& times = tide_.times;
    std::size_t i = 0;
    while (i < times.size() && t >= times[i]) ++i;
    if (i == 0) return {};
    if (i == times.size()) {
      mean = {tide_.x.back(), tide_.z.back()};
    } else {
      const double share = (t - times[i - 1]) / (times[i] - times[i - 1]);
      mean = {tide_.x[i - 1] + (tide_.x[i] - tide_.x[i - 1]) * share,
              tide_.z[i - 1] + (tide_.z[i] - tide_.z[i - 1]) * share};
    }
  }
  if (!(mean_depth_ > 0)) return mean;
  const double ratio = std::clamp(mean_depth_ / depth, kLeastDepthRatio, kGreatestDepthRatio);
  return {mean.x * ratio, mean.z * ratio};
}

Velocity Water::Current_In(const Cell& cell, double depth, double height, double t) const {
  if (velocity_type_ == 4) return {Between(field_x_, cell), Between(field_z_, cell)};
  if (velocity_type_ == 3) return {profile_x_.At(depth - height), profile_z_.At(depth - height)};
  const Velocity mean = Given_Mean(depth, t);
  if (velocity_type_ != 2) return mean;
  const double z0 = Roughness_Of(depth);
  const double above = std::clamp(height, z0, depth);
  const double shape = Log(above / z0) / (Log_Of_Depth(depth) - 1 + z0 / depth);
  return {mean.x * shape, mean.z * shape};
}

Velocity Water::Current(double x, double z, double y, double t) const {
  const Cell cell = Locate(x, z);
  const double depth = Depth_In(cell);
  return Current_In(cell, depth, depth - y, t);
}

Velocity Water::Current_At_Share(double x, double z, double p, double t) const {
  const Cell cell = Locate(x, z);
  const double depth = Depth_In(cell);
  return Current_In(cell, depth, p * depth, t);
}

Velocity Water::Mean_Current(double x, double z, double t) const {
  const Cell cell = Locate(x, z);
  if (velocity_type_ == 4) return {Between(field_x_, cell), Between(field_z_, cell)};
  const double depth = Depth_In(cell);
  if (velocity_type_ == 3) return {profile_x_.Mean(depth), profile_z_.Mean(depth)};
  return Given_Mean(depth, t);
}

double Water::Shear_Velocity(double x, double z, double t) const {
  const Velocity mean = Mean_Current(x, z, t);
  const double speed = std::sqrt(mean.x * mean.x + mean.z * mean.z);
  // With z0 at most a thirtieth of the depth the divisor is above 2.4.
  return kVonKarman * speed / (Log_Of_Depth(Depth(x, z)) - 1);
}

double Water::Bed_Stress(double x, double z, double t) const {
  const double shear = Shear_Velocity(x, z, t);
  return kSlugsPerGramCc * Density(Depth(x, z)) * shear * shear;
}

std::array<double, 4> Water::Strain(double x, double z, double p, double t) const {
  const double dx = spacing_x_ / 2, dz = spacing_z_ / 2;
  if (!strains_ || Touches_Land(x - dx, z) || Touches_Land(x + dx, z) || Touches_Land(x, z - dz) ||
      Touches_Land(x, z + dz))
    return {};
  const Velocity top = Current_At_Share(x - dx, z, p, t);
  const Velocity bottom = Current_At_Share(x + dx, z, p, t);
  const Velocity left = Current_At_Share(x, z - dz, p, t);
  const Velocity right = Current_At_Share(x, z + dz, p, t);
  return {(bottom.x - top.x) * per_spacing_x_, (right.x - left.x) * per_spacing_z_,
          (bottom.z - top.z) * per_spacing_x_, (right.z - left.z) * per_spacing_z_};
}

}  // namespace companion
