#include "results/telling_time.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
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

/// The first of the areas with a value above the background.
std::optional<Largest_Value> First_Above(const Results& results, int species,
                                         std::initializer_list<Result_Where> areas) {
  const Largest_Values largest = Largest_Of(results, species);
  const double background = Background_Of(results, species);
  for (const Result_Where where : areas) {
    const auto found = Largest_In(largest, where);
    if (found && found->value > background * (1 + kAboveBackground)) return found;
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
bool Take_Largest(const Results& results, Telling_Moment& moment) {
  for (const Result_Where where : {Result_Where::outside, Result_Where::inside}) {
    std::optional<double> known;
    for (int species = 1; species <= static_cast<int>(results.species.size()); ++species) {
      const auto largest = First_Above(results, species, {where});
      if (!largest || (known && !(largest->value > *known))) continue;
      known = largest->value;
      Take(moment, species, *largest);
    }
    if (known) return true;
  }
  return false;
}

void Take_Last_Row(const Results& results, Telling_Moment& moment) {
  if (results.maxima.empty()) return;
  const auto last = std::ranges::max_element(results.maxima, {}, &Result_Maxima::time);
  Take(moment, last->species, {0, last->time, last->depth});
}

const Result_Map* Nearest_Map(const Results& results, const Telling_Moment& moment) {
  const Result_Map* nearest = nullptr;
  const auto is_better = [&](const Result_Map& map) {
    if (nearest == nullptr) return true;
    const bool empty = map.values.empty(), known_empty = nearest->values.empty();
    if (empty != known_empty) return known_empty;
    return std::abs(map.time - moment.time) < std::abs(nearest->time - moment.time);
  };
  for (const Result_Map& map : results.maps) {
    if (map.species == moment.species && map.depth == moment.depth && is_better(map)) {
      nearest = &map;
    }
  }
  return nearest;
}

}  // namespace

Telling_Moment Telling_Moment_Of(const Results& results) {
  Telling_Moment moment;
  std::optional<Largest_Value> largest;
  if (const Result_Limit* limit = Tightest(results)) {
    largest = First_Above(results, limit->species,
                          {limit->where, Result_Where::outside, Result_Where::inside});
    if (largest) Take(moment, limit->species, *largest);
  }
  if (!largest && !Take_Largest(results, moment)) Take_Last_Row(results, moment);
  const Result_Map* map = Nearest_Map(results, moment);
  moment.map_time = map != nullptr ? map->time : moment.time;
  if (const Result_Map* bed = Last_Bed(results)) moment.bed_time = bed->time;
  return moment;
}

const Result_Map* Telling_Map(const Results& results, const Telling_Moment& moment) {
  for (const Result_Map& map : results.maps) {
    if (map.species == moment.species && map.depth == moment.depth && map.time == moment.map_time) {
      return &map;
    }
  }
  return nullptr;
}

}  // namespace barvon
