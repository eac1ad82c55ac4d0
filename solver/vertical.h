#pragma once

#include <cstddef>
#include <vector>

#include "solver/column.h"
#include "solver/model_input.h"
#include "solver/water.h"

namespace companion {

inline constexpr double kMunkAndersonFactor = 3.33;    // of the Richardson number
inline constexpr double kMunkAndersonLimit = 1;        // the largest Richardson number counted
inline constexpr double kGradientShare = 0.05;         // of the depth, above and below a face
inline constexpr double kLeastHeightShare = 0.02;      // of the depth, in the shear of the law
inline constexpr double kPritchardFactor = 8.59e-3;    // of U y2 (H-y)2/H3
inline constexpr double kPritchardRichardson = 0.276;  // of the Richardson number
inline constexpr double kPritchardShear = 0.7;         // of U/H
inline constexpr double kPritchardLimit = 100;         // the largest Richardson number counted
inline constexpr double kPritchardLeast = 1e-5;        // ft2/s
inline constexpr double kTypicalOfPeak = 0.5;          // of a layer's peak: what grains feel

/// Vertical diffusion by the damping of turbulence in layered water, ft2/s:
/// AKY0 (1 + 3.33 Ri)^-1.5 (Munk and Anderson 1948), Ri = N2/S2 up to 1 (Odd and Rodger 1978).
double Munk_Anderson(double still, double squared_frequency, double squared_shear);

/// The same by Pritchard, ft2/s: 8.59e-3 U y2 (H-y)2/H3 (1 + 0.276 Ri)^-2, Ri = N2/(0.7 U/H)2 up
/// to 100, at least 1e-5 (Kent and Pritchard 1959; Pritchard 1960, as quoted in Officer 1976).
double Pritchard(double speed, double y, double depth, double squared_frequency);

/// What acts within a column: diffusion between its layers, settling, deposit on the bed.
class Vertical {
 public:
  Vertical(const Model_Input& input, const Water& water, int layers);

  /// Diffusivity and deposit at the place and time of a column, for the two that follow.
  void Prepare(const Column& column, double time);
  /// Implicit, so that every step moves shares of amounts alone.
  void Diffuse(Column& column, double seconds);
  /// Every face is followed back to where it fell from; between two such places the amounts lie
  /// straight within each layer (van Leer 1974), so no step is too long. What reaches the bed and
  /// may not stay there goes back into the lowest layer.
  void Settle(Column& column, double seconds);

  /// Of Prepare: at the faces between the layers from the bed up, ft2/s; the first is unused.
  const std::vector<double>& Diffusivity() const { return diffusivity_; }

 private:
  void Find_Diffusivity(const Column& column, const Layer& lowest, double time);
  void Departures(const Column& column, const Solid& solid, double seconds);

  const Model_Input& input_;
  const Water& water_;
  std::size_t layers_;
  bool uniform_;
  std::vector<double> faces_;    // shares of the depth above the bed, layers and one
  std::vector<double> middles_;  // the same, of the layers
  std::vector<double> diffusivity_;
  double known_depth_ = 0, known_time_ = -1;  // of the diffusivity
  double deposit_ = 1;                        // share of what reaches the bed that stays
  std::vector<double> up_, pivot_, slope_, fall_, departure_;
  std::vector<Layer> fresh_;
};

}  // namespace companion
