#include "solver/raster.h"

#include <algorithm>
#include <cmath>

#include "solver/det_math.h"
#include "solver/normal.h"

namespace companion {
namespace {

constexpr double kUpright = 1e-7;     // correlation up to which a part counts as not tilted
constexpr double kNarrowCell = 0.5;   // standard deviations up to which a series gives the mean
constexpr double kWidestStrip = 1.5;  // conditional standard deviations that a strip may carry
constexpr int kMostPieces = 8;        // of a strip
constexpr double kThinStrip = 1e-14;  // share of a strip below which its middle stands for it

/// A part as its distribution along X and the one along Z at a place of X.
struct Tilt {
  double sigma_x = 0, variance_x = 0, slope = 0, variance_z = 0;
};

Tilt Tilt_Of(const Plan_Moments& m) {
  Tilt tilt;
  tilt.variance_x = std::max(m.xx, kLeastVariance);
  tilt.sigma_x = std::sqrt(tilt.variance_x);
  const double zz = std::max(m.zz, kLeastVariance);
  if (m.xz * m.xz > kUpright * kUpright * tilt.variance_x * zz) tilt.slope = m.xz / tilt.variance_x;
  tilt.variance_z = std::max(zz - tilt.slope * m.xz, kLeastVariance);
  return tilt;
}

/// The cells from `first` to `last` that [low, high] touches; cells are centred on the points.
void Cells_Between(double low, double high, double spacing, int points, int& first, int& last) {
  const double from = std::floor(low / spacing + 0.5), to = std::floor(high / spacing + 0.5);
  first = from > 0 ? (from < points ? static_cast<int>(from) : points) : 0;
  last = to < points - 1 ? (to >= 0 ? static_cast<int>(to) : -1) : points - 1;
}

}  // namespace

double Peak(const Part& part) {
  const Tilt tilt = Tilt_Of(part.spread);
  return part.weight / (2 * kPi * tilt.sigma_x * std::sqrt(tilt.variance_z));
}

Raster::Raster(int points_x, int points_z, double spacing_x, double spacing_z)
    : points_x_(points_x),
      points_z_(points_z),
      spacing_x_(spacing_x),
      spacing_z_(spacing_z),
      values_(static_cast<std::size_t>(points_x) * static_cast<std::size_t>(points_z)),
      first_row_(points_x),
      last_row_(-1),
      first_column_(points_z),
      last_column_(-1),
      strip_(static_cast<std::size_t>(points_z)) {}

void Raster::Clear() {
  for (int i = first_row_; i <= last_row_; ++i)
    std::fill(values_.begin() + static_cast<std::ptrdiff_t>(Index(i, first_column_)),
              values_.begin() + static_cast<std::ptrdiff_t>(Index(i, last_column_) + 1), 0.0);
  first_row_ = points_x_;
  first_column_ = points_z_;
  last_row_ = last_column_ = -1;
}

/// The mean over a cell whose middle is the part's own.
double Raster::Highest_Cell(const Part& part) const {
  const Normal& normal = Normal::Table();
  const Tilt tilt = Tilt_Of(part.spread);
  const double along = 2 * normal.Below(0.5 * spacing_x_ / tilt.sigma_x) - 1;
  const double inside = std::min(spacing_x_ * spacing_x_ / 12, tilt.variance_x);
  const double sigma = std::sqrt(tilt.variance_z + tilt.slope * tilt.slope * inside);
  const double across = 2 * normal.Below(0.5 * spacing_z_ / sigma) - 1;
  return part.weight * along * across / (spacing_x_ * spacing_z_);
}

void Raster::Add(const std::vector<Part>& parts, double least) {
  double highest = 0;
  for (const Part& part : parts) highest = std::max(highest, Highest_Cell(part));
  const double limit = least * highest;
  for (const Part& part : parts) {
    const double peak = Peak(part);
    if (peak > limit) Put(part, 2 * Log(peak / limit), false);
  }
}

void Raster::Add_Deposit(const Part& part) { Put(part, kDepositReach * kDepositReach, true); }

/// Strip by strip along Z: the share of the strip along X, and within it a normal distribution of
/// the conditional mean, whose variance also holds what the tilt makes of the strip's own width.
void Raster::Put(const Part& part, double squared_reach, bool whole) {
  const Normal& normal = Normal::Table();
  const Tilt tilt = Tilt_Of(part.spread);
  const double reach_x = tilt.sigma_x * std::sqrt(squared_reach);
  int first = 0, last = 0;
  Cells_Between(part.x - reach_x, part.x + reach_x, spacing_x_, points_x_, first, last);
  if (first > last) return;
  const double height = part.weight / (spacing_x_ * spacing_z_);
  const double per_sigma = 1 / tilt.sigma_x;
  const double upright_sigma = std::sqrt(tilt.variance_z);

  // The shares along Z of an upright part are those of every strip.
  int strip_first = 0, strip_last = -1;
  const auto fill = [&](double middle, double sigma, int from, int to) {
    const double scale = 1 / sigma;
    if (!whole && spacing_z_ * scale <= kNarrowCell) {
      Fill_Narrow((from * spacing_z_ - middle) * scale, spacing_z_ * scale, strip_.data() + from,
                  to - from + 1);
      return;
    }
    double below = normal.Below(((from - 0.5) * spacing_z_ - middle) * scale);
    for (int k = from; k <= to; ++k) {
      const double upto = normal.Below(((k + 0.5) * spacing_z_ - middle) * scale);
      strip_[static_cast<std::size_t>(k)] = std::max(0.0, upto - below);
      below = upto;
    }
  };
  if (tilt.slope == 0) {
    const double reach = upright_sigma * std::sqrt(squared_reach);
    Cells_Between(part.z - reach, part.z + reach, spacing_z_, points_z_, strip_first, strip_last);
    if (strip_first > strip_last) return;
    fill(part.z, upright_sigma, strip_first, strip_last);
  }

  // Where the tilt carries a strip across more than its own width, it is taken in pieces.
  const double carried = std::abs(tilt.slope) * spacing_x_;
  const int pieces = carried > kWidestStrip * upright_sigma
                         ? static_cast<int>(std::ceil(std::min<double>(
                               kMostPieces, carried / (kWidestStrip * upright_sigma))))
                         : 1;
  const double width = spacing_x_ / pieces;
  const double start = (first - 0.5) * spacing_x_ - part.x;
  double lower = start * per_sigma;
  double below = normal.Below(lower);
  double lower_density = tilt.slope == 0 ? 0 : normal.Density(lower);
  const int strips = (last - first + 1) * pieces;
  for (int strip = 0; strip < strips; ++strip) {
    const int i = first + strip / pieces;
    const double upper = (start + (strip + 1) * width) * per_sigma;
    const double upto = normal.Below(upper);
    const double share = std::max(0.0, upto - below);
    const double nearest = lower > 0 ? lower : upper < 0 ? upper : 0;
    const double rest = std::sqrt(std::max(0.0, squared_reach - nearest * nearest));
    int from = strip_first, to = strip_last;
    if (tilt.slope == 0) {
      Cells_Between(part.z - rest * upright_sigma, part.z + rest * upright_sigma, spacing_z_,
                    points_z_, from, to);
    } else {
      const double upper_density = normal.Density(upper);
      double middle = 0.5 * (lower + upper), variance = 0;  // in standard deviations
      if (share > kThinStrip) {
        middle = std::clamp((lower_density - upper_density) / share, lower, upper);
        variance = 1 + (lower * lower_density - upper * upper_density) / share - middle * middle;
      }
      lower_density = upper_density;
      const double most = std::min(1.0, (upper - lower) * (upper - lower) / 12);
      variance = std::clamp(variance, 0.0, most) * tilt.variance_x;
      const double sigma = std::sqrt(tilt.variance_z + tilt.slope * tilt.slope * variance);
      const double centre = part.z + tilt.slope * tilt.sigma_x * middle;
      const double wide = rest * upright_sigma + std::abs(tilt.slope) * width;
      Cells_Between(centre - wide, centre + wide, spacing_z_, points_z_, from, to);
      if (from <= to) fill(centre, sigma, from, to);
    }
    lower = upper;
    below = upto;
    if (from > to || share <= 0) continue;
    first_row_ = std::min(first_row_, i);
    last_row_ = std::max(last_row_, i);
    first_column_ = std::min(first_column_, from);
    last_column_ = std::max(last_column_, to);
    double* row = values_.data() + Index(i, 0);
    const double strip_height = height * share;
    for (int k = from; k <= to; ++k) row[k] += strip_height * strip_[static_cast<std::size_t>(k)];
  }
}

/// Shares of a normal distribution in cells that are narrow beside it: the mean of the density's
/// series about a cell's middle, and from cell to cell the density by its own ratio. 1e-6 of the
/// highest cell off at most.
void Raster::Fill_Narrow(double first, double width, double* shares, int cells) {
  const double squared = width * width;
  const double second = squared / 24, fourth = squared * squared / 1920;
  const double ratio_of_ratios = Exp(-squared);
  double density = width / std::sqrt(2 * kPi) * Exp(-0.5 * first * first);
  double ratio = Exp(-width * (first + 0.5 * width));
  for (int k = 0; k < cells; ++k) {
    const double u = first + k * width, uu = u * u;
    shares[k] = density * (1 + second * (uu - 1) + fourth * (uu * (uu - 6) + 3));
    density *= ratio;
    ratio *= ratio_of_ratios;
  }
}

double Raster::On_Grid() const {
  double sum = 0;
  for (int i = first_row_; i <= last_row_; ++i)
    for (int k = first_column_; k <= last_column_; ++k) sum += values_[Index(i, k)];
  return sum * spacing_x_ * spacing_z_;
}

double Raster::Above_Land(const Water& water) const {
  double sum = 0;
  for (int i = first_row_; i <= last_row_; ++i)
    for (int k = first_column_; k <= last_column_; ++k)
      if (water.Land_Point(i, k)) sum += values_[Index(i, k)];
  return sum * spacing_x_ * spacing_z_;
}

}  // namespace companion
