#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace companion {

/// Second moments in plan over their amount, ft2.
struct Plan_Moments {
  double xx = 0, xz = 0, zz = 0;
};

/// What becomes passive at one moment: an amount of one species (solids first, the tracer last),
/// spread evenly over depths, as a normal distribution in plan.
struct Source {
  double time = 0;        // s
  std::size_t cloud = 0;  // whose columns it joins
  std::size_t species = 0;
  double amount = 0;    // ft3 of solids; (mg/l) ft3 or % ft3 of tracer
  double x = 0, z = 0;  // ft
  Plan_Moments spread;
  double top = 0, foot = 0;  // depths, ft
  bool held = false;         // by the depression: it neither drifts nor strains
};

/// What settled on the way, straight onto the bed.
struct Deposit {
  double time = 0;
  std::size_t species = 0;
  double amount = 0;  // ft3
  double x = 0, z = 0;
  Plan_Moments spread;
};

}  // namespace companion
