#pragma once

#include <optional>
#include <string>
#include <vector>

namespace companion {

/// The current through the run: straight between the times, 0 before the first, the last one's
/// beyond the last.
struct Tide {
  std::vector<double> times;  // s from the start of the run, rising; the first may be negative
  std::vector<double> x, z;   // ft/s, whole depth
};

/// What the model input can't carry, from "Tmpfile.Add" beside it.
struct Additions {
  bool present = false;
  std::optional<double> criterion;     // mg/l, where sediment holds the contaminant (4)
  std::optional<double> zid_standard;  // mg/l, for the zone of initial dilution (5)
  std::optional<Tide> tide;
  std::vector<std::vector<double>> depths;  // [x][z] as entered; empty: none
};

}  // namespace companion
