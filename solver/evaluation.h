#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "solver/additions.h"
#include "solver/column.h"
#include "solver/comparison.h"
#include "solver/model_input.h"
#include "solver/near_field.h"
#include "solver/outcome.h"
#include "solver/raster.h"
#include "solver/water.h"

namespace companion {

/// Looks at what is in the water from time to time, and keeps the largest values by area: means
/// over cells at the output depths, and values at any point. Both go with the background.
class Evaluation_Keeper {
 public:
  Evaluation_Keeper(const Model_Input& input, const Water& water,
                    std::vector<Comparison> comparisons);

  /// What the columns and the clouds in motion hold at a time. `series` asks for rows of the
  /// series, `map` for maps.
  void Look(double time, const std::vector<Column>& columns, const Moving& moving, bool series,
            bool map);

  /// What has been kept: spots, rows, maps, comparisons, computed zones.
  void Finish(const Additions& additions, Outcome& outcome);

 private:
  void Look_At_Cells(double time, const std::vector<Column>& columns, const Moving& moving,
                     std::size_t species, std::size_t depth, bool series, bool map);
  void Look_At_Points(double time, const std::vector<Column>& columns, const Moving& moving,
                      std::size_t species, bool series);
  Spot Highest(double time, const std::vector<Column>& columns, const Moving& moving,
               std::size_t species, Area area, double at_least) const;
  bool Counts_At(Area area, double x, double z) const;
  std::size_t Cell(int i, int k) const;

  const Model_Input& input_;
  const Water& water_;
  Areas areas_;
  Raster raster_;
  std::vector<Part> parts_;
  std::vector<std::uint8_t> masks_;                     // of each cell, a bit an area; none of land
  std::vector<std::vector<std::vector<double>>> most_;  // [species][depth][cell], over the base
  std::vector<Area_Spots> largest_now_;                 // [species], cells of all depths
  Outcome kept_;
};

/// The rectangle of a map outside which every value is the base to a millionth of the largest.
Cell_Map Windowed(const std::vector<double>& values, int points_x, int points_z, double scale,
                  double base);

inline constexpr double kWindowShare = 1e-6;  // of a map's largest value: outside, it is the base

}  // namespace companion
