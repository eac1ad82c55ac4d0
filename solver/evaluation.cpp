#include "solver/evaluation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "solver/parts.h"

namespace companion {
namespace {

constexpr std::array<Area, kAreas> kEveryArea = {Area::Inside, Area::Outside, Area::Outside_Zid,
                                                 Area::Anywhere};

std::uint8_t Bit(Area area) { return static_cast<std::uint8_t>(1U << static_cast<unsigned>(area)); }
std::size_t At(Area area) { return static_cast<std::size_t>(area); }

}  // namespace

Evaluation_Keeper::Evaluation_Keeper(const Model_Input& input, const Water& water,
                                     std::vector<Comparison> comparisons)
    : input_(input),
      water_(water),
      areas_(input),
      raster_(input.points_x, input.points_z, input.spacing_x, input.spacing_z) {
  const auto cells =
      static_cast<std::size_t>(input.points_x) * static_cast<std::size_t>(input.points_z);
  masks_.assign(cells, 0);
  for (int i = 0; i < input.points_x; ++i) {
    for (int k = 0; k < input.points_z; ++k) {
      if (water.Land_Point(i, k)) continue;
      for (const Area area : kEveryArea) {
        if (areas_.Counts(area, i, k)) masks_[Cell(i, k)] |= Bit(area);
      }
    }
  }
  most_.assign(input.Species(), std::vector<std::vector<double>>(input.output_depths.size(),
                                                                 std::vector<double>(cells, 0.0)));
  kept_.cell_spots.assign(input.Species(), std::vector<Area_Spots>(input.output_depths.size()));
  kept_.point_spots.assign(input.Species(), {});
  kept_.comparisons = std::move(comparisons);
}

std::size_t Evaluation_Keeper::Cell(int i, int k) const {
  return static_cast<std::size_t>(i) * static_cast<std::size_t>(input_.points_z) +
         static_cast<std::size_t>(k);
}

bool Evaluation_Keeper::Counts_At(Area area, double x, double z) const {
  const int i = areas_.Row(x), k = areas_.Column(z);
  if (areas_.On_Grid(i, k)) return (masks_[Cell(i, k)] & Bit(area)) != 0;
  return areas_.Counts(area, i, k);
}

void Evaluation_Keeper::Look(double time, const std::vector<Column>& columns, const Moving& moving,
                             bool series, bool map) {
  ++kept_.times_looked_at;
  largest_now_.assign(input_.Species(), {});
  for (std::size_t species = 0; species < input_.Species(); ++species) {
    for (std::size_t depth = 0; depth < input_.output_depths.size(); ++depth) {
      Look_At_Cells(time, columns, moving, species, depth, series, map);
    }
    Look_At_Points(time, columns, moving, species, series);
  }
}

void Evaluation_Keeper::Look_At_Cells(double time, const std::vector<Column>& columns,
                                      const Moving& moving, std::size_t species, std::size_t depth,
                                      bool series, bool map) {
  const double y = input_.output_depths[depth];
  const double scale = Unit_Factor(input_, species), base = Base_Of(input_, species);
  raster_.Clear();
  parts_.clear();
  Parts_At_Depth(columns, species, y, parts_);
  Parts_At_Depth(moving.collapsing, species, y, parts_);
  raster_.Add(parts_);
  Area_Spots now;
  std::vector<double>& most = most_[species][depth];
  for (int i = raster_.First_Row(); i <= raster_.Last_Row(); ++i) {
    for (int k = raster_.First_Column(); k <= raster_.Last_Column(); ++k) {
      const double excess = raster_.Value(i, k) * scale;
      const std::size_t cell = Cell(i, k);
      if (masks_[cell] == 0 || excess <= 0) continue;
      most[cell] = std::max(most[cell], excess);
      for (const Area area : kEveryArea) {
        Spot& spot = now[At(area)];
        if ((masks_[cell] & Bit(area)) == 0 || (spot.found && excess + base <= spot.value))
          continue;
        spot = {true, excess + base, time, i * input_.spacing_x, k * input_.spacing_z, y};
      }
    }
  }
  for (const Area area : kEveryArea) {
    Raise(kept_.cell_spots[species][depth][At(area)], now[At(area)]);
    Raise(largest_now_[species][At(area)], now[At(area)]);
  }
  if (series) {
    const auto value = [&](Area area) {
      const Spot& spot = now[At(area)];
      return spot.found ? spot.value : base;
    };
    kept_.maxima.push_back(
        {time, species, y, value(Area::Inside), value(Area::Outside), value(Area::Outside_Zid)});
  }
  if (!map) return;
  parts_.clear();
  Parts_At_Depth(moving.falling, species, y, parts_);
  raster_.Add(parts_);
  Cell_Map shown = Windowed(raster_.Values(), input_.points_x, input_.points_z, scale, base);
  shown.time = time;
  shown.number = static_cast<int>(species) + 1;
  shown.depth = y;
  kept_.maps.push_back(std::move(shown));
}

Spot Evaluation_Keeper::Highest(double time, const std::vector<Column>& columns,
                                const Moving& moving, std::size_t species, Area area,
                                double at_least) const {
  const double scale = Unit_Factor(input_, species), base = Base_Of(input_, species);
  const auto found =
      Highest_Point(columns, moving.collapsing, species, std::max(0.0, (at_least - base) / scale),
                    [&](double x, double z) { return Counts_At(area, x, z); });
  if (!found) return {};
  return {true, found->value * scale + base, time, found->x, found->z, found->y};
}

void Evaluation_Keeper::Look_At_Points(double time, const std::vector<Column>& columns,
                                       const Moving& moving, std::size_t species, bool series) {
  const double base = Base_Of(input_, species);
  const bool compared = species == input_.Solids();
  for (const Area area : kEveryArea) {
    Spot& kept = kept_.point_spots[species][At(area)];
    double at_least = kept.found ? kept.value : base;
    if (series && area == Area::Anywhere) at_least = base;
    if (compared) {
      for (const Comparison& comparison : kept_.comparisons) {
        if (comparison.area != area || time < comparison.from) continue;
        const double known = comparison.worst.found ? comparison.worst.value : base;
        at_least = std::min({at_least, known, comparison.value});
      }
    }
    const Spot spot = Highest(time, columns, moving, species, area, at_least);
    Raise(kept, spot);
    if (compared) {
      Spot larger = largest_now_[species][At(area)];
      Raise(larger, spot);
      for (Comparison& comparison : kept_.comparisons) {
        if (comparison.area == area) comparison.Look(time, larger);
      }
    }
    if (!series || area != Area::Anywhere) continue;
    Spot row = spot;
    if (!row.found) row = {true, base, time, 0, 0, 0};
    kept_.peaks.push_back({species, row});
  }
}

void Evaluation_Keeper::Finish(const Additions& additions, Outcome& outcome) {
  outcome.times_looked_at = kept_.times_looked_at;
  outcome.maxima = std::move(kept_.maxima);
  outcome.peaks = std::move(kept_.peaks);
  outcome.maps = std::move(kept_.maps);
  outcome.comparisons = std::move(kept_.comparisons);
  if (outcome.times_looked_at == 0) return;
  const auto fill = [](Area_Spots& spots, double base) {
    for (Spot& spot : spots) {
      if (!spot.found) spot.value = base;
    }
  };
  for (std::size_t species = 0; species < input_.Species(); ++species) {
    const double base = Base_Of(input_, species);
    // The middles that were looked at may all lie beyond an area into which a cloud reaches: some
    // point of a cell has its mean at least.
    for (Area_Spots& spots : kept_.cell_spots[species]) {
      for (const Area area : kEveryArea)
        Raise(kept_.point_spots[species][At(area)], spots[At(area)]);
      fill(spots, base);
    }
    fill(kept_.point_spots[species], base);
    for (std::size_t depth = 0; depth < input_.output_depths.size(); ++depth) {
      Cell_Map map = Windowed(most_[species][depth], input_.points_x, input_.points_z, 1, base);
      map.time = input_.duration;
      map.number = static_cast<int>(species) + 1;
      map.depth = input_.output_depths[depth];
      outcome.most.push_back(std::move(map));
    }
  }
  outcome.cell_spots = std::move(kept_.cell_spots);
  outcome.point_spots = std::move(kept_.point_spots);
  if (!input_.Has_Tracer()) return;
  const double base = Base_Of(input_, input_.Solids());
  const double site = Limit_Of_Site(input_, additions), zid = Limit_Of_Zid(input_, additions);
  if (Mixing_Zone_Asked(input_) && site > 0) {
    outcome.zone_computed = true;
    outcome.zone = Smallest_Zone(input_, most_.back(), site - base);
  }
  if (Zid_Asked(input_) && zid > 0) {
    outcome.zid_computed = true;
    outcome.zid = Smallest_Zone(input_, most_.back(), zid - base);
  }
}

Cell_Map Windowed(const std::vector<double>& values, int points_x, int points_z, double scale,
                  double base) {
  Cell_Map map;
  map.base = base;
  double largest = 0;
  for (const double value : values) largest = std::max(largest, value);
  if (largest * scale < kLeastShown) return map;
  const double least = kWindowShare * largest;
  map.top = points_x;
  map.left = points_z;
  const auto at = [&](int i, int k) {
    return values[static_cast<std::size_t>(i) * static_cast<std::size_t>(points_z) +
                  static_cast<std::size_t>(k)];
  };
  for (int i = 0; i < points_x; ++i) {
    for (int k = 0; k < points_z; ++k) {
      if (at(i, k) <= least) continue;
      map.top = std::min(map.top, i);
      map.bottom = std::max(map.bottom, i);
      map.left = std::min(map.left, k);
      map.right = std::max(map.right, k);
    }
  }
  for (int i = map.top; i <= map.bottom; ++i) {
    for (int k = map.left; k <= map.right; ++k) map.values.push_back(base + at(i, k) * scale);
  }
  return map;
}

}  // namespace companion
