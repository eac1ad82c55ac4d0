#pragma once

#include <array>
#include <vector>

#include "solver/column.h"
#include "solver/model_input.h"
#include "solver/water.h"

namespace companion {

inline constexpr double kDiffusionWidth = 4;   // standard deviations in the 4/3 law's width
inline constexpr double kGreatestTurn = 0.25;  // of an entry of the strain over one part of a step
inline constexpr int kMostParts = 64;          // of a step that is cut
inline constexpr double kThinnest = 1e-8;      // of a determinant over its variances' product
inline constexpr double kSmallest = 1e-6;      // ft2, the root of a determinant

/// Growth of a variance over a time by the 4/3 law (Richardson 1926; Okubo 1971), ft2: diffusivity
/// ALAMDA (4 sigma)^(4/3), solved exactly for a round cloud, sigma2 the root of the determinant.
double Growth(double determinant, double dissipation, double seconds);

/// What acts within the layers of a column: drift, strain, horizontal diffusion.
class Drift {
 public:
  Drift(const Model_Input& input, const Water& water, int layers);

  /// Moves the centres by the midpoint rule, the spread by the strain of the current and by
  /// diffusion. Over land, and in a column that the depression holds, diffusion alone acts. The
  /// column's depth follows its centre unless that lies over land.
  void Move(Column& column, double time, double seconds);

 private:
  void Drift_Uniform(Column& column, double time, double seconds);
  void Drift_Layer(Layer& layer, double share, double time, double seconds);
  void Find_Land();
  int Cells_To_Land(double x, double z) const;

  const Model_Input& input_;
  const Water& water_;
  bool uniform_, level_;
  double widest_ = 0;  // ft2 to which strain may stretch a variance: the grid's diagonal
  std::vector<int> cells_to_land_;  // of each cell between four points, in rows; empty: no land
  std::vector<double> middles_;
  std::vector<Velocity> currents_;  // of uniform water
  double known_time_ = -1;          // of the currents
};

}  // namespace companion
