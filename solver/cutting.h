#pragma once

#include <cstddef>
#include <vector>

#include "solver/column.h"
#include "solver/model_input.h"
#include "solver/water.h"

namespace companion {

inline constexpr double kCutEvery = 30;         // s between two generations
inline constexpr double kCutOutlook = 3600;     // s that the curvature of a current is looked ahead
inline constexpr double kCutLimit = 0.25;       // of sigma: what the curvature may displace
inline constexpr double kCutShare = 0.2109;     // of the amount in each of the outer parts
inline constexpr double kCutDistance = 1.0888;  // sigma from the middle to the outer parts
inline constexpr std::size_t kMostCut = 200;    // columns that cutting may add

/// Cuts columns that a curved current would bend before `outlook` seconds are over: those where the
/// second difference of the velocity over one sigma, over that time, passes a quarter of sigma.
/// Each becomes three along its longer axis, a three-part split of a normal distribution (as
/// DeMars, Bishop and Jah 2013): amount, centre and second moments of each layer stay. Theirs
/// (0.2252 at 1.0575 sigma) lowers the peak by 1.3 % each time; here share and distance are those
/// that halve the variance and keep the peak. No cloud that is narrower than a cell is cut. First
/// come those of the largest bend times share of what their family received (200 columns in eddies
/// of 2400 ft: 11 % off the exact means, 14 % by the bend alone), up to kMostCut columns above one
/// a family. Returns whether any was cut.
bool Cut(std::vector<Column>& columns, std::size_t families, const Model_Input& input,
         const Water& water, double time, double outlook);

}  // namespace companion
