#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "solver/column.h"
#include "solver/raster.h"
#include "solver/sources.h"

namespace companion {

// By what two layers that go to the grid as one may differ: their peak is then 1e-4 off at most.
inline constexpr double kSamePlace = 0.2;    // standard deviations between their centres
inline constexpr double kSameSpread = 0.02;  // of their variances

/// Adds to `parts` what the columns of a species hold at a depth, amounts per ft of depth: straight
/// between the layers' middles, constant beyond the first and the last, nothing below a column's
/// own depth. Times 1e6 SG it is mg/l of a solid; of a tracer it is its own unit.
void Parts_At_Depth(const std::vector<Column>& columns, std::size_t species, double y,
                    std::vector<Part>& parts);

/// The same for clouds in motion, even over their heights.
void Parts_At_Depth(const std::vector<Source>& moving, std::size_t species, double y,
                    std::vector<Part>& parts);

/// What settled, amounts on the bed.
Part Part_Of(const Deposit& deposit);

/// Density of a part at a place, per ft2.
double Density_At(const Part& part, double x, double z);

/// A value at a place, in amounts per ft3.
struct Point_Value {
  double value = 0;
  double x = 0, z = 0, y = 0;  // ft
};

/// The sum of all distributions of a species at a place and depth, per ft3.
double Value_At(const std::vector<Column>& columns, const std::vector<Source>& moving,
                std::size_t species, double x, double z, double y);

/// The largest sum of the distributions of a species at the centres of its layers and of its clouds
/// in motion, if it is above `at_least`. With `counts` only places where that holds. Looks only
/// where a bound by the peaks of what is near passes the largest value known.
std::optional<Point_Value> Highest_Point(
    const std::vector<Column>& columns, const std::vector<Source>& moving, std::size_t species,
    double at_least = 0, const std::function<bool(double x, double z)>& counts = {});

}  // namespace companion
