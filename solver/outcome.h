#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "solver/additions.h"
#include "solver/comparison.h"
#include "solver/model_input.h"
#include "solver/near_field.h"

namespace companion {

/// A map by cells: the rectangle of grid points (from 0, last below first: empty) outside which
/// every cell is the base.
struct Cell_Map {
  double time = 0;   // s
  int number = 0;    // of the species as the outputs count them, from 1; 0: all solids
  double depth = 0;  // ft
  double base = 0;
  int top = 0, bottom = -1, left = 0, right = -1;
  std::vector<double> values;  // of the rectangle, row by row

  bool Empty() const { return bottom < top; }
};

/// The largest means over cells at an output depth, and the largest values at any point, by area.
using Area_Spots = std::array<Spot, kAreas>;

/// A row of the series of maxima: means over cells at one output depth.
struct Maxima_Row {
  double time = 0;
  std::size_t species = 0;
  double depth = 0, inside = 0, outside = 0, outside_zid = 0;
};

struct Peak_Row {
  std::size_t species = 0;
  Spot spot;
};

/// Where a species is at a moment, in its amounts: ft3, (mg/l) ft3 or % ft3.
struct Mass_Row {
  double time = 0;
  std::size_t species = 0;
  double suspended = 0, on_grid = 0, off_grid = 0, released = 0;

  double Difference() const { return released - suspended - on_grid - off_grid; }
};

/// Less of anything is next to nothing: the listing shows it as 0, and a map of it is empty.
inline constexpr double kLeastShown = 1e-12;

/// Below this part of what was released a difference is the rounding of the sums.
inline constexpr double kRounding = 1e-12;

/// Where the middle of what is suspended is, all columns and clouds of a species together.
struct Drift_Row {
  double time = 0;
  std::size_t species = 0;
  double share = 0;     // of the release
  double x = 0, z = 0;  // ft
  double sigma = 0;     // ft, root of the mean variance in plan
};

/// What the listing tells of the deposit.
struct Bed_Summary {
  Spot thickest;                 // ft
  double volume = 0;             // ft3 on the grid, voids included
  std::vector<double> by_solid;  // ft3, voids included
  double area = 0;               // ft2 thicker than kNotableThickness
};
inline constexpr double kNotableThickness = 0.1;  // ft

/// Everything that the outputs tell.
struct Outcome {
  Near_Field near_field;
  std::vector<Maxima_Row> maxima;
  std::vector<Peak_Row> peaks;
  std::vector<Mass_Row> masses;
  std::vector<Drift_Row> drift;
  std::vector<Cell_Map> maps, beds, most;
  std::vector<std::vector<Area_Spots>> cell_spots;  // [species][output depth], over time
  std::vector<Area_Spots> point_spots;              // [species], over time
  std::vector<Comparison> comparisons;
  bool zone_computed = false, zid_computed = false;
  Zone zone, zid;
  Bed_Summary bed;
  std::vector<double> over_land;  // [species] share of the release, at the end
  double worst_balance = 0;       // of all rows, in parts of what was released
  std::size_t times_looked_at = 0;
  std::vector<std::string> notes;
};

}  // namespace companion
