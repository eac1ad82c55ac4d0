#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "results/cell_values.h"

namespace barvon {

// What the companion solver left of a run, as plain data. Lengths are feet, times seconds from the
// start of the release, numbers of species count from 1 and stand for the solids first, then for
// the tracer. X grows from top to bottom, Z from left to right, depths downward. Texts are UTF-8.

struct Result_Species {
  std::string name, unit;  // unit "mg/l" or "%"
};

/// The largest means over cells at an output depth and a time.
struct Result_Maxima {
  double time = 0;
  int species = 0;
  double depth = 0;
  double inside = 0, outside = 0, outside_zid = 0;  // of the site, of the site, of the ZID
};

/// The largest value at any point and depth at a time.
struct Result_Peak {
  double time = 0;
  int species = 0;
  double value = 0, x = 0, z = 0, depth = 0;
};

/// Where a species is at a time: ft3 of a solid, (mg/l) ft3 or % ft3 of the tracer.
struct Result_Mass {
  double time = 0;
  int species = 0;
  double suspended = 0, on_grid = 0, off_grid = 0, released = 0;
};

/// Cells of maps are written with so many digits; their bases, like all else, with seven.
inline constexpr int kMapDigits = 5;

/// Values of a window of the grid; every cell outside it has the base.
struct Result_Map {
  double time = 0;
  int species = 0;  // 0 in a map of thickness: all solids together
  double depth = 0, base = 0;
  int top = 1, bottom = 0, left = 1, right = 0;  // rows and columns from 1; last below first: none
  std::vector<double> values;                    // of the window, row by row
};

struct Result_Grid {
  int rows = 0, columns = 0;
  double spacing_x = 0, spacing_z = 0;
};

/// An upright rectangle; X from top to bottom, Z from left to right.
struct Result_Area {
  double top = 0, left = 0, bottom = 0, right = 0;
};

struct Result_Point {
  double x = 0, z = 0;
};

enum class Result_Where { inside, outside, outside_zid, anywhere };

/// A limit that a species was held against by the solver, which looks at more times than the
/// outputs hold.
struct Result_Limit {
  int species = 0;
  Result_Where where = Result_Where::outside;
  double value = 0;  // in the species' unit
  double from = 0;   // earlier times do not count
  bool exceeded = false;
  double first = 0, last = 0;        // when it was exceeded
  double worst = 0, worst_time = 0;  // the largest value looked at
  std::string of;                    // "criterion outside the disposal site"
};

/// A solver's outputs of one run.
struct Results {
  std::string path;                        // of the project or output that was asked for
  std::string solver;                      // "COMPANION SOLVER 1.0"
  std::string label;                       // the whole first line
  std::string title;                       // of the project
  std::int64_t made = 0;                   // when the series were written, seconds since 1970 (UTC)
  std::optional<std::uint64_t> input_sum;  // of the model input; outputs of before have none

  std::vector<Result_Species> species;
  std::vector<Result_Maxima> maxima;
  std::vector<Result_Peak> peaks;
  std::vector<Result_Mass> masses;

  Result_Grid grid;
  std::vector<Result_Map> maps, beds, most;  // concentrations, thickness (ft), largest over time

  std::optional<Result_Area> site, zid;
  bool mixing_zone = false;  // the site is one
  std::optional<Result_Point> disposal;
  std::vector<Result_Limit> limits;
  std::vector<std::string> verdicts;  // lines as the listing has them
};

/// The base as a cell of the window would have it.
double Cell_Base(const Result_Map& map);

/// All cells of a map.
Cell_Values Whole_Grid(const Result_Grid& grid, const Result_Map& map);

}  // namespace barvon
