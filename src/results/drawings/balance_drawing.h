#pragma once

#include <optional>
#include <string>

#include "pictures/shapes/bars.h"
#include "results/results.h"

namespace barvon {

/// Where each species is, a bar in parts of what was released up to then: in the water, on the
/// bottom, outside the grid, and what is in none of them. `other`, which may be null, has its bar
/// below that of the same species. At the end of each run unless a time is given; between output
/// times what lies on the straight line.
Bar_Chart Balance_Chart(const Results& own, const Results* other, std::optional<double> time);

/// The chart as a list of shapes.
Shape_List Balance_Shapes(const Bar_Chart& chart, const Canvas& canvas);

/// The amounts of all species as a table for other programs.
std::string Balance_Csv(const Results& own, const Results* other, std::optional<double> time);

/// The unit of a species' amounts: "ft3" of a solid, "mg/l ft3" or "% ft3" of the tracer.
std::string Amount_Unit(const Results& results, int species);

}  // namespace barvon
