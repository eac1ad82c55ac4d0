#include <algorithm>
#include <array>
#include <cmath>

#include "solver/det_math.h"
#include "solver/layer_place.h"
#include "solver/parts.h"

namespace companion {
namespace {

constexpr std::size_t kBands = 8;  // of depth, in each of which a body has a bound of its own

/// A column or a cloud in motion, as far as a bound wants to know: where its centres lie, the
/// largest variance, and the highest value in each band of depth.
struct Body {
  double x_low = 0, x_high = 0, z_low = 0, z_high = 0;
  double variance = 0;
  std::array<double, kBands> peaks{};
  std::array<double, kBands> around{};  // by all others
  bool Empty() const { return variance <= 0; }

  void Cover(const Part& part) {
    const Plan_Moments& s = part.spread;
    const double apart = 0.5 * (s.xx - s.zz);
    const double most =
        std::max(0.5 * (s.xx + s.zz) + std::sqrt(apart * apart + s.xz * s.xz), kLeastVariance);
    if (Empty()) {
      x_low = x_high = part.x;
      z_low = z_high = part.z;
    }
    x_low = std::min(x_low, part.x);
    x_high = std::max(x_high, part.x);
    z_low = std::min(z_low, part.z);
    z_high = std::max(z_high, part.z);
    variance = std::max(variance, most);
  }
};

struct Candidate {
  double bound = 0;
  double x = 0, z = 0, y = 0;
};

double Gap(double low, double high, double other_low, double other_high) {
  return std::max({0.0, other_low - high, low - other_high});
}

/// Not below exp(-u).
double Bound_Of_Decay(double u) { return 1 / (1 + u * (1 + u * (0.5 + u / 6))); }

std::size_t Band(double y, double deepest) {
  const double place = y / deepest * kBands;
  return place <= 0 ? 0 : std::min(static_cast<std::size_t>(place), kBands - 1);
}

}  // namespace

std::optional<Point_Value> Highest_Point(const std::vector<Column>& columns,
                                         const std::vector<Source>& moving, std::size_t species,
                                         double at_least,
                                         const std::function<bool(double x, double z)>& counts) {
  double deepest = 0;
  for (const Column& column : columns)
    if (column.species == species) deepest = std::max(deepest, column.depth);
  for (const Source& source : moving)
    if (source.species == species) deepest = std::max(deepest, source.foot);
  if (deepest <= 0) return {};

  std::vector<Body> bodies;
  struct Own {
    std::size_t body = 0;
    double peak = 0;
    double x = 0, z = 0, y = 0;
  };
  std::vector<Own> owns;
  for (const Column& column : columns) {
    if (column.species != species) continue;
    Body body;
    const int layers = static_cast<int>(column.layers.size());
    for (int l = 0; l < layers; ++l) {
      const Layer& layer = column.layers[static_cast<std::size_t>(l)];
      if (layer.amount <= 0) continue;
      const double height = column.depth * (Face_Share(l + 1, layers) - Face_Share(l, layers));
      const Part part{layer.amount / height, layer.x, layer.z, layer.spread};
      const double peak = Peak(part);
      body.Cover(part);
      // It counts up to the middles of its neighbours, at the ends up to the column's own.
      const double high = l + 1 < layers ? Middle_Share(l + 1, layers) : 1;
      const double low = l > 0 ? Middle_Share(l - 1, layers) : 0;
      for (std::size_t b = Band(column.depth * (1 - high), deepest);
           b <= Band(column.depth * (1 - low), deepest); ++b)
        body.peaks[b] = std::max(body.peaks[b], peak);
      owns.push_back(
          {bodies.size(), peak, layer.x, layer.z, column.depth * (1 - Middle_Share(l, layers))});
    }
    if (!body.Empty()) bodies.push_back(body);
  }
  for (const Source& source : moving) {
    const double height = source.foot - source.top;
    if (source.species != species || source.amount <= 0 || height <= 0) continue;
    Body body;
    const Part part{source.amount / height, source.x, source.z, source.spread};
    body.Cover(part);
    const double peak = Peak(part);
    for (std::size_t b = Band(source.top, deepest); b <= Band(source.foot, deepest); ++b)
      body.peaks[b] = peak;
    owns.push_back({bodies.size(), peak, source.x, source.z, 0.5 * (source.top + source.foot)});
    bodies.push_back(body);
  }

  // Two bodies add to each other no more than their peaks, less by the gap between their centres.
  for (std::size_t a = 0; a < bodies.size(); ++a)
    for (std::size_t b = a + 1; b < bodies.size(); ++b) {
      Body& one = bodies[a];
      Body& two = bodies[b];
      const double dx = Gap(one.x_low, one.x_high, two.x_low, two.x_high);
      const double dz = Gap(one.z_low, one.z_high, two.z_low, two.z_high);
      const double squared = 0.5 * (dx * dx + dz * dz);
      const double from_two = Bound_Of_Decay(squared / two.variance);
      const double from_one = Bound_Of_Decay(squared / one.variance);
      for (std::size_t d = 0; d < kBands; ++d) {
        one.around[d] += from_two * two.peaks[d];
        two.around[d] += from_one * one.peaks[d];
      }
    }

  std::vector<Candidate> candidates;
  for (const Own& own : owns) {
    const double bound = own.peak + bodies[own.body].around[Band(own.y, deepest)];
    if (bound <= at_least || (counts && !counts(own.x, own.z))) continue;
    candidates.push_back({bound, own.x, own.z, own.y});
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.bound > b.bound; });
  std::optional<Point_Value> highest;
  double known = at_least;
  for (const Candidate& candidate : candidates) {
    if (candidate.bound <= known) break;
    const double value = Value_At(columns, moving, species, candidate.x, candidate.z, candidate.y);
    if (value <= known) continue;
    known = value;
    highest = Point_Value{value, candidate.x, candidate.z, candidate.y};
  }
  return highest;
}

}  // namespace companion
