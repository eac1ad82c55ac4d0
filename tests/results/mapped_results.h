#pragma once

#include <utility>
#include <vector>

#include "results/results.h"

namespace barvon::testing {

inline Result_Map Small_Map(double time, int species, double depth, std::vector<double> values) {
  Result_Map map;
  map.time = time;
  map.species = species;
  map.depth = depth;
  map.top = map.left = 1;
  map.bottom = map.right = 2;
  map.values = std::move(values);
  return map;
}

/// 2 x 2 cells of 100 ft; sand and copper at 10 and 20 ft after 600 and 1200 s, deposits of both
/// together and of sand, the largest of sand at 10 ft. Only the last cell has a value.
inline Results Mapped_Results() {
  Results results;
  results.path = "/p/own.DUI";
  results.species = {{"SAND", "mg/l"}, {"COPPER", "mg/l"}};
  results.grid = {.rows = 2, .columns = 2, .spacing_x = 100, .spacing_z = 100};
  double value = 1;
  for (const double time : {600.0, 1200.0}) {
    for (const int species : {1, 2}) {
      for (const double depth : {10.0, 20.0}) {
        results.maps.push_back(Small_Map(time, species, depth, {0, 0, 0, value}));
        value *= 2;  // 1, 2, 4, .. 128
      }
    }
    results.beds.push_back(Small_Map(time, 0, 0, {0, 0, 0, time / 1000}));
    results.beds.push_back(Small_Map(time, 1, 0, {0, 0, 0, time / 2000}));
  }
  results.most.push_back(Small_Map(1200, 1, 10, {0, 0, 0, 5000}));
  results.site = Result_Area{0, 0, 100, 100};
  return results;
}

}  // namespace barvon::testing
