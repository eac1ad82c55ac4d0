#include "wizard/grid_from_typical_data.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/number_text.h"

namespace barvon {
namespace {

constexpr float kUsualIntervals = 60, kMostIntervals = 80;
constexpr float kFewerIntervals =
    15;  // by which a grid that is too fine for the speed is coarsened
constexpr float kMarginPoints = 5;
constexpr int kFewestPoints = 8;

constexpr char kNoVelocity[] = "Please Provide a Typical Velocity Other Than Zero.";
constexpr char kNoGrid[] =
    "No Grid Can Be Computed From These Values.  Please Check Distance, Duration, Velocities "
    "and Depth.";

/// Rounded half to even; nothing beyond 16 bits and for what is no number.
std::optional<float> Whole16(float value) {
  const auto whole = static_cast<float>(Round_Half_Even(value));
  const bool fits = whole >= std::numeric_limits<std::int16_t>::min() &&
                    whole <= std::numeric_limits<std::int16_t>::max();
  return fits ? std::optional<float>(whole) : std::nullopt;
}

/// The whole part, within 16 bits.
std::optional<float> Whole_Part16(float value) {
  return Whole16(static_cast<float>(Int(static_cast<double>(value))));
}

struct Spacings {
  float x = 0, z = 0;  // before they are rounded up to the ladder
  float intervals = 0;
};

/// The intervals of the grid and their sizes. Nothing where the arithmetic stops.
std::optional<Spacings> Compute_Spacings(const Typical_Data& data) {
  const float required = data.plume_distance / data.duration;
  const float typical =
      std::sqrt(data.velocity_x * data.velocity_x + data.velocity_z * data.velocity_z);
  const float travelled = typical * data.duration;
  const bool leaves = travelled > data.plume_distance;
  std::optional<float> n = kUsualIntervals;
  if (leaves) n = Whole16(kUsualIntervals * travelled / data.plume_distance);
  if (!n) return std::nullopt;
  if (*n > kMostIntervals) n = kMostIntervals;
  float spacing = leaves ? travelled / *n : data.plume_distance / *n;
  while (required <= typical) {
    const auto k =
        Whole_Part16(data.plume_distance / (2 * spacing * (required + typical) * typical));
    if (!k) return std::nullopt;
    if (*k <= kMostIntervals) break;
    n = *n - kFewerIntervals;
    // Without intervals there is no spacing to go on with.
    if (*n == 0) return std::nullopt;
    spacing = data.plume_distance / *n;
    if (spacing < 0) break;
  }
  return Spacings{std::fabs(data.velocity_x) / typical * spacing,
                  std::fabs(data.velocity_z) / typical * spacing, *n};
}

/// A spacing of the ladder, or what stood there before. Nothing when it is none.
std::optional<double> Spacing(float computed, double former) {
  if (!std::isfinite(computed)) return std::nullopt;
  if (computed > 500 && !RoundHundred(computed)) return std::nullopt;
  const std::optional<float> up = SpacingUp(computed);
  const double spacing = up ? static_cast<double>(*up) : former;
  return spacing > 0 ? std::optional<double>(spacing) : std::nullopt;
}

}  // namespace

std::optional<float> RoundHundred(float spacing) {
  const std::optional<float> hundreds = Whole16(spacing / 100 + 0.499999F);
  if (!hundreds) return std::nullopt;
  return *hundreds * 100;
}

std::optional<float> SpacingUp(float spacing) {
  struct Step {
    float from, to, result;
  };
  constexpr Step kSteps[] = {{101, 125, 125}, {126, 150, 150}, {151, 175, 175}, {201, 250, 250},
                             {251, 300, 300}, {301, 350, 350}, {351, 400, 400}, {401, 450, 450}};
  if (spacing < 100) return static_cast<float>(Int(static_cast<double>(spacing / 10 + 1))) * 10;
  for (const Step& step : kSteps) {
    if (spacing >= step.from && spacing <= step.to) return step.result;
  }
  // Two steps begin without a gap behind the one before.
  if (spacing > 175 && spacing <= 200) return 200;
  if (spacing > 450 && spacing <= 500) return 500;
  const bool in_hundreds = spacing < 101 || (spacing > 200 && spacing < 201) || spacing > 500;
  return in_hundreds ? RoundHundred(spacing) : std::nullopt;
}

std::string ComputeGridFromTypicalData(const Typical_Data& data, ProjectRecord& record) {
  if (data.velocity_x == 0 && data.velocity_z == 0) return kNoVelocity;
  if (!(data.duration > 0) || !(data.depth > 0)) return kNoGrid;
  const std::optional<Spacings> computed = Compute_Spacings(data);
  if (!computed || computed->intervals + kMarginPoints < kFewestPoints) return kNoGrid;
  const std::optional<double> x = Spacing(computed->x, record.DX0);
  const std::optional<double> z = Spacing(computed->z, record.DZ0);
  if (!x || !z) return kNoGrid;
  record.NMAX0 = record.MMAX0 = static_cast<std::int16_t>(computed->intervals + kMarginPoints);
  record.DX0 = *x;
  record.DZ0 = *z;
  return "";
}

}  // namespace barvon
