#pragma once

#include "results/results.h"

namespace barvon::testing {

/// A run of two species at two depths and four times, small enough for the head. It has a site,
/// and a limit of 2 mg/l outside of it for the tracer, whose background is 0.5 mg/l.
inline Results Small_Results() {
  Results results;
  results.path = "/work/small.DUI";
  results.solver = "COMPANION SOLVER 1.0";
  results.label = "COMPANION SOLVER 1.0 - a model of its own; not a validated code for permits.";
  results.title = "SMALL BAY";
  results.input_sum = 1;
  results.species = {{"Sand", "mg/l"}, {"Ammonia", "mg/l"}};
  // time, species, depth, inside, outside, outside the ZID
  results.maxima = {
      {100, 1, 5, 40, 0, 40},      {100, 1, 20, 90, 0, 90},  {100, 2, 5, 3, 0.5, 3},
      {100, 2, 20, 6, 0.5, 6},     {200, 1, 5, 10, 2, 10},   {200, 1, 20, 30, 8, 30},
      {200, 2, 5, 2, 1, 2},        {200, 2, 20, 4, 3, 4},    {300, 1, 5, 0, 1, 1},
      {300, 1, 20, 4, 6, 6},       {300, 2, 5, 1, 1.5, 1.5}, {300, 2, 20, 2, 1, 2},
      {400, 1, 5, 0, 0, 0},        {400, 1, 20, 1, 2, 2},    {400, 2, 5, 0.5, 1, 1},
      {400, 2, 20, 0.5, 0.7, 0.7},
  };
  results.peaks = {{100, 1, 120, 50, 100, 21}, {200, 1, 50, 60, 100, 20}, {100, 2, 9, 50, 100, 21}};
  // time, species, suspended, on the grid, beyond it, released
  results.masses = {
      {100, 1, 600, 200, 0, 800},    {100, 2, 1000, 0, 0, 1000},    {200, 1, 500, 400, 100, 1000},
      {200, 2, 1000, 0, 0, 1000},    {300, 1, 200, 650, 150, 1000}, {300, 2, 900, 0, 0, 1000},
      {400, 1, 100, 700, 200, 1000}, {400, 2, 800, 0, 0, 1000},
  };
  results.grid = {.rows = 3, .columns = 4, .spacing_x = 50, .spacing_z = 20};
  const auto map = [](double time, int species, double depth, double base) {
    Result_Map one;
    one.time = time;
    one.species = species;
    one.depth = depth;
    one.base = base;
    one.top = one.bottom = 2;
    one.left = 2;
    one.right = 3;
    one.values = {base + 1, base + 2};
    return one;
  };
  for (const double time : {200.0, 400.0}) {
    for (const double depth : {5.0, 20.0}) {
      results.maps.push_back(map(time, 1, depth, 0));
      results.maps.push_back(map(time, 2, depth, 0.5));
    }
    results.beds.push_back(map(time, 0, 0, 0));
  }
  results.site = {.top = 25, .left = 10, .bottom = 75, .right = 50};
  results.limits = {{.species = 2,
                     .where = Result_Where::outside,
                     .value = 2,
                     .from = 0,
                     .exceeded = true,
                     .first = 140,
                     .last = 260,
                     .worst = 3.4,
                     .worst_time = 210,
                     .of = "criterion outside the disposal site"}};
  results.verdicts = {"criterion outside the disposal site, 2 mg/l:",
                      "  exceeded from 140 s to 260 s"};
  return results;
}

}  // namespace barvon::testing
