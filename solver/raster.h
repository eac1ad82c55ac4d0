#pragma once

#include <vector>

#include "solver/sources.h"
#include "solver/water.h"

namespace companion {

inline constexpr double kLeastOfMap = 1e-6;  // of the largest part's highest cell: goes no further
inline constexpr double kDepositReach = 7;   // standard deviations
inline constexpr double kLeastVariance = 1e-6;  // ft2, of a part on the grid

/// One normal distribution in plan on its way to the grid: what there is of it in all, of whatever
/// unit; over an area it becomes that unit per ft2.
struct Part {
  double weight = 0;
  double x = 0, z = 0;
  Plan_Moments spread;
};

/// Greatest density of a part, per ft2.
double Peak(const Part& part);

/// Means over cells centred on the grid points. Rows are X, columns Z, both from 0.
class Raster {
 public:
  Raster(int points_x, int points_z, double spacing_x, double spacing_z);

  void Clear();
  /// Each part as far as its density is above `least` of the largest part's highest cell.
  void Add(const std::vector<Part>& parts, double least = kLeastOfMap);
  /// A part to seven standard deviations.
  void Add_Deposit(const Part& part);

  int Points_X() const { return points_x_; }
  int Points_Z() const { return points_z_; }
  double Value(int i, int k) const { return values_[Index(i, k)]; }  // per ft2
  const std::vector<double>& Values() const { return values_; }      // [x][z] in one row

  /// Rows and columns outside which every value is 0; the last is below the first in an empty grid.
  int First_Row() const { return first_row_; }
  int Last_Row() const { return last_row_; }
  int First_Column() const { return first_column_; }
  int Last_Column() const { return last_column_; }

  /// What lies on the grid in all, of the parts' unit; what is missing of the weights lies outside.
  double On_Grid() const;
  /// Of that, what lies in cells of land.
  double Above_Land(const Water& water) const;

 private:
  std::size_t Index(int i, int k) const {
    return static_cast<std::size_t>(i) * static_cast<std::size_t>(points_z_) +
           static_cast<std::size_t>(k);
  }
  double Highest_Cell(const Part& part) const;
  /// `whole`: the shares add up to all there is over the grid.
  void Put(const Part& part, double squared_reach, bool whole);
  static void Fill_Narrow(double first, double width, double* shares, int cells);

  int points_x_, points_z_;
  double spacing_x_, spacing_z_;
  std::vector<double> values_;
  int first_row_, last_row_, first_column_, last_column_;
  std::vector<double> strip_;
};

}  // namespace companion
