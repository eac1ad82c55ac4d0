#include "results/summary.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>

namespace barvon {
namespace {

constexpr double kRounding = 1e-6;  // of what was released; the outputs have seven digits

Species_Balance Balance_Of(const Result_Mass& row) {
  return {row.species, row.time, row.released, row.suspended, row.on_grid, row.off_grid};
}

Species_Balance Between(const Result_Mass& before, const Result_Mass& after, double time) {
  const double part = (time - before.time) / (after.time - before.time);
  const auto mixed = [&](double Result_Mass::*amount) {
    return before.*amount + part * (after.*amount - before.*amount);
  };
  return {before.species,
          time,
          mixed(&Result_Mass::released),
          mixed(&Result_Mass::suspended),
          mixed(&Result_Mass::on_grid),
          mixed(&Result_Mass::off_grid)};
}

std::map<int, std::vector<Result_Mass>> Masses_By_Species(const Results& results) {
  std::map<int, std::vector<Result_Mass>> rows;
  for (const Result_Mass& row : results.masses) rows[row.species].push_back(row);
  for (auto& [species, own] : rows) {
    std::ranges::stable_sort(own, {}, &Result_Mass::time);
  }
  return rows;
}

void Raise(std::optional<Largest_Value>& kept, const Result_Maxima& row, Result_Where where) {
  const double value = Value_In(row, where);
  if (kept && !(value > kept->value)) return;
  if (std::isfinite(value)) kept = {value, row.time, row.depth};
}

// The outputs tell their areas: those of before tell no sum of their input either.
bool Tells_Areas(const Results& results) {
  return results.site || results.zid || results.input_sum.has_value();
}

}  // namespace

double Species_Balance::Missing() const {
  const double missing = released - suspended - on_grid - off_grid;
  return std::abs(missing) <= kRounding * std::abs(released) ? 0 : missing;
}

std::vector<Species_Balance> Balance_At_End(const Results& results) {
  std::vector<Species_Balance> balances;
  for (const auto& [species, rows] : Masses_By_Species(results)) {
    balances.push_back(Balance_Of(rows.back()));
  }
  return balances;
}

std::vector<Species_Balance> Balance_At(const Results& results, double time) {
  std::vector<Species_Balance> balances;
  for (const auto& [species, rows] : Masses_By_Species(results)) {
    const auto after = std::ranges::lower_bound(rows, time, {}, &Result_Mass::time);
    if (after == rows.end()) continue;
    if (after->time == time) {
      balances.push_back(Balance_Of(*after));
    } else if (after != rows.begin()) {
      balances.push_back(Between(*std::prev(after), *after, time));
    }
  }
  return balances;
}

std::vector<double> Balance_Times(const Results& results) {
  std::vector<double> times;
  for (const Result_Mass& row : results.masses) times.push_back(row.time);
  std::ranges::sort(times);
  times.erase(std::unique(times.begin(), times.end()), times.end());
  return times;
}

Largest_Values Largest_Of(const Results& results, int species) {
  Largest_Values largest;
  const bool site = Has_Site(results), zid = Has_Zid(results);
  for (const Result_Maxima& row : results.maxima) {
    if (row.species != species) continue;
    if (site) Raise(largest.inside, row, Result_Where::inside);
    Raise(largest.outside, row, Result_Where::outside);
    if (zid) Raise(largest.outside_zid, row, Result_Where::outside_zid);
  }
  return largest;
}

std::optional<Result_Peak> Largest_Peak(const Results& results, int species) {
  std::optional<Result_Peak> largest;
  for (const Result_Peak& peak : results.peaks) {
    if (peak.species != species || !std::isfinite(peak.value)) continue;
    if (!largest || peak.value > largest->value) largest = peak;
  }
  return largest;
}

bool Has_Site(const Results& results) { return results.site || !Tells_Areas(results); }

bool Has_Zid(const Results& results) {
  if (Tells_Areas(results)) return results.zid.has_value();
  return std::ranges::any_of(results.maxima, [](const Result_Maxima& row) {
    return row.outside_zid != std::max(row.inside, row.outside);
  });
}

double Background_Of(const Results& results, int species) {
  for (const auto* maps : {&results.maps, &results.most}) {
    const auto map = std::ranges::find(*maps, species, &Result_Map::species);
    if (map != maps->end()) return map->base;
  }
  return 0;
}

double Value_In(const Result_Maxima& row, Result_Where where) {
  switch (where) {
    case Result_Where::inside:
      return row.inside;
    case Result_Where::outside:
      return row.outside;
    case Result_Where::outside_zid:
      return row.outside_zid;
    case Result_Where::anywhere:
      break;
  }
  return std::max(row.inside, row.outside);
}

std::vector<Timed_Value> Series_Of(const Results& results, int species, Result_Where where,
                                   std::optional<double> depth) {
  std::map<double, double> largest;
  for (const Result_Maxima& row : results.maxima) {
    if (row.species != species || (depth && row.depth != *depth)) continue;
    const double value = Value_In(row, where);
    const auto [at, is_new] = largest.try_emplace(row.time, value);
    if (!is_new && !(at->second >= value)) at->second = value;
  }
  std::vector<Timed_Value> series;
  for (const auto& [time, value] : largest) series.push_back({time, value});
  return series;
}

std::vector<Time_Span> Spans_Above(const std::vector<Timed_Value>& series, double limit) {
  std::vector<Time_Span> spans;
  bool is_above = false;
  const Timed_Value* before = nullptr;
  for (const Timed_Value& now : series) {
    if (!std::isfinite(now.value)) {
      is_above = false;
      before = nullptr;
      continue;
    }
    const auto crossing = [&] {
      const double part = (limit - before->value) / (now.value - before->value);
      return before->time + part * (now.time - before->time);
    };
    if (now.value > limit) {
      if (!is_above) spans.push_back({before ? crossing() : now.time, now.time});
      spans.back().to = now.time;
      is_above = true;
    } else if (is_above) {
      spans.back().to = crossing();
      is_above = false;
    }
    before = &now;
  }
  return spans;
}

Deposit_Totals Totals_Of(const Result_Grid& grid, const Result_Map& bed) {
  Deposit_Totals totals;
  const Cell_Values cells = Whole_Grid(grid, bed);
  const double cell = grid.spacing_x * grid.spacing_z;
  for (int row = 1; row <= cells.rows; ++row) {
    for (int column = 1; column <= cells.columns; ++column) {
      const double thickness = cells.At(row, column);
      totals.volume += thickness * cell;
      if (thickness <= totals.thickest) continue;
      totals.thickest = thickness;
      totals.x = (row - 1) * grid.spacing_x;
      totals.z = (column - 1) * grid.spacing_z;
    }
  }
  return totals;
}

const Result_Map* Last_Bed(const Results& results) {
  const Result_Map* last = nullptr;
  for (const Result_Map& bed : results.beds) {
    if (bed.species == 0 && (last == nullptr || bed.time >= last->time)) last = &bed;
  }
  return last;
}

std::vector<double> Output_Depths(const Results& results) {
  std::vector<double> depths;
  for (const Result_Maxima& row : results.maxima) depths.push_back(row.depth);
  std::ranges::sort(depths);
  depths.erase(std::unique(depths.begin(), depths.end()), depths.end());
  return depths;
}

}  // namespace barvon
