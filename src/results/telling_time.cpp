#include "results/telling_time.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <optional>

#include "results/summary.h"

namespace barvon {
namespace {

constexpr double kAboveBackground = 1e-6;  // of the background; the outputs have seven digits

std::optional<Largest_Value> Largest_In(const Largest_Values& values, Result_Where where) {
  switch (where) {
    case Result_Where::inside:
      return values.inside;
    case Result_Where::outside:
      return values.outside;
    case Result_Where::outside_zid:
      return values.outside_zid;
    case Result_Where::anywhere:
      break;
  }
  if (!values.inside) return values.outside;
  return !values.outside || values.inside->value > values.outside->value ? values.inside
                                                                         : values.outside;
}

constexpr double kAnyTime = std::numeric_limits<double>::lowest();

/// A largest value, the area that it is of, and from which time on it was looked for.
struct Found {
  Largest_Value largest;
  Result_Where where;
  double from = kAnyTime;
};

/// The first of the areas with a value above the background from that time on.
std::optional<Found> First_Above(const Results& results, int species,
                                 std::initializer_list<Result_Where> areas,
                                 double from = kAnyTime) {
  const Largest_Values largest = Largest_Of(results, species, from);
  const double background = Background_Of(results, species);
  for (const Result_Where where : areas) {
    const auto found = Largest_In(largest, where);
    if (found && found->value > background * (1 + kAboveBackground))
      return Found{*found, where, from};
  }
  return std::nullopt;
}

double Tightness(const Result_Limit& limit) { return limit.worst / limit.value; }

const Result_Limit* Tightest(const Results& results) {
  const Result_Limit* tightest = nullptr;
  for (const Result_Limit& limit : results.limits) {
    const bool is_one = limit.value > 0 && std::isfinite(Tightness(limit)) && limit.species > 0;
    if (is_one && (tightest == nullptr || Tightness(limit) > Tightness(*tightest))) {
      tightest = &limit;
    }
  }
  return tightest;
}

void Take(Telling_Moment& moment, int species, const Largest_Value& largest) {
  moment.species = species;
  moment.depth = largest.depth;
  moment.time = largest.time;
}

// The species with the largest number in the first area where any has one.
std::optional<Found> Take_Largest(const Results& results, Telling_Moment& moment) {
  for (const Result_Where where : {Result_Where::outside, Result_Where::inside}) {
    std::optional<Found> known;
    for (int species = 1; species <= static_cast<int>(results.species.size()); ++species) {
      const auto found = First_Above(results, species, {where});
      if (!found || (known && !(found->largest.value > known->largest.value))) continue;
      known = found;
      Take(moment, species, found->largest);
    }
    if (known) return known;
  }
  return std::nullopt;
}

void Take_Last_Row(const Results& results, Telling_Moment& moment) {
  if (results.maxima.empty()) return;
  const auto last = std::ranges::max_element(results.maxima, {}, &Result_Maxima::time);
  Take(moment, last->species, {0, last->time, last->depth});
}

bool Is_Meant(const Result_Map& map, const Telling_Moment& moment) {
  return map.species == moment.species && map.depth == moment.depth;
}

// Maps are fewer than output times: the nearest one may come when all is over.
const Result_Map* Fullest_Map(const Results& results, const Telling_Moment& moment,
                              const Found& found) {
  const Result_Map* fullest = nullptr;
  double known = 0;
  for (const Result_Map& map : results.maps) {
    if (!Is_Meant(map, moment) || map.values.empty() || map.time < found.from) continue;
    for (const Result_Maxima& row : results.maxima) {
      if (row.species != map.species || row.depth != map.depth || row.time != map.time) continue;
      const double value = Value_In(row, found.where);
      if (fullest != nullptr && !(value > known)) continue;
      fullest = &map;
      known = value;
    }
  }
  return fullest;
}

const Result_Map* Nearest_Map(const Results& results, const Telling_Moment& moment) {
  const Result_Map* nearest = nullptr;
  for (const Result_Map& map : results.maps) {
    if (!Is_Meant(map, moment)) continue;
    if (nearest == nullptr ||
        std::abs(map.time - moment.time) < std::abs(nearest->time - moment.time)) {
      nearest = &map;
    }
  }
  return nearest;
}

}  // namespace

Telling_Moment Telling_Moment_Of(const Results& results) {
  Telling_Moment moment;
  std::optional<Found> found;
  if (const Result_Limit* limit = Tightest(results)) {
    found = First_Above(results, limit->species, {limit->where}, limit->from);
    if (!found) {
      found = First_Above(results, limit->species, {Result_Where::outside, Result_Where::inside});
    }
    if (found) Take(moment, limit->species, found->largest);
  }
  if (!found) found = Take_Largest(results, moment);
  if (!found) Take_Last_Row(results, moment);
  const Result_Map* map = found ? Fullest_Map(results, moment, *found) : nullptr;
  if (map == nullptr) map = Nearest_Map(results, moment);
  moment.map_time = map != nullptr ? map->time : moment.time;
  if (const Result_Map* bed = Last_Bed(results)) moment.bed_time = bed->time;
  return moment;
}

}  // namespace barvon
