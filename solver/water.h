#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "solver/additions.h"
#include "solver/model_input.h"

namespace companion {

inline constexpr double kVonKarman = 0.41;         // of the logarithmic law
inline constexpr double kRoughnessDivisor = 30;    // z0 is the Nikuradse height over this
inline constexpr double kLeastRoughness = 3.3e-7;  // ft, z0 of a smooth bed
inline constexpr double kRoughnessOfDepth = 30;    // z0 is at most the depth over this
inline constexpr double kLeastDepthRatio = 0.2;    // of the flow through another depth
inline constexpr double kGreatestDepthRatio = 5;   // of the flow through another depth

struct Velocity {
  double x = 0, z = 0;  // ft/s
};

/// Depth, density and current at every place and time. Places are in ft from the first grid point,
/// y is depth below the surface, times are seconds of the run. Beyond the grid what holds at its
/// edge goes on.
class Water {
 public:
  /// Asks for what the refusals have made sure of: spacings and a constant depth above 0, a grid of
  /// 2 points and more each way, a density point. Of the additions it takes the tide, for velocity
  /// type 5, and the depths, for a depth grid, if they have its size.
  Water(const Model_Input& input, const Additions& additions);

  /// Depth by the grid alone, land filled from its wet neighbours; held at the grid's edge.
  double Depth(double x, double z) const;
  /// The same with the depression.
  double Bed(double x, double z) const;
  bool In_Depression(double x, double z) const;
  /// The cell around a place has four land corners.
  bool Land_Cell(double x, double z) const;
  /// A corner of the cell around a place is land.
  bool Touches_Land(double x, double z) const;
  /// The grid point (from 0) is land.
  bool Land_Point(int i, int k) const;

  /// g/cc; straight between the points of the profile, constant beyond. At a jump the upper one.
  double Density(double y) const;
  /// N2 between two depths in any order, 1/s2: g times the difference of the densities over their
  /// mean and the distance; 0 for heavy water over light.
  double Squared_Frequency(double y0, double y1) const;

  Velocity Current(double x, double z, double y, double t) const;
  Velocity Mean_Current(double x, double z, double t) const;  // over the depth
  /// The current at a share p of the depth above the bed (0 bed, 1 surface).
  Velocity Current_At_Share(double x, double z, double p, double t) const;
  /// z0 of the logarithmic law, ft.
  double Roughness(double x, double z) const;
  /// By the logarithmic law of the mean current: 0.41 |u|/(ln(H/z0) - 1), ft/s.
  double Shear_Velocity(double x, double z, double t) const;
  double Bed_Stress(double x, double z, double t) const;  // lb/ft2
  /// There is a strain to act: a field, or a mean current over a depth grid.
  bool Strains() const { return strains_; }
  /// du/dx, du/dz, dw/dx, dw/dz at a share of the depth, 1/s, over a cell; 0 where it would touch
  /// a cell with a land corner.
  std::array<double, 4> Strain(double x, double z, double p, double t) const;

 private:
  struct Cell {
    std::size_t corner = 0;  // of the least subscripts
    double share_x = 0, share_z = 0;
  };
  struct Two_Points {
    double upper_depth = 0, lower_depth = 0, upper = 0, lower = 0;
    double At(double y) const;
    double Mean(double depth) const;
  };

  Cell Locate(double x, double z) const;
  double Between(const std::vector<double>& values, const Cell& cell) const;
  double Depth_In(const Cell& cell) const;
  Velocity Given_Mean(double depth, double t) const;
  Velocity Current_In(const Cell& cell, double depth, double height, double t) const;
  double Roughness_Of(double depth) const;
  double Log_Of_Depth(double depth) const;
  void Fill_Land();

  int points_x_, points_z_;
  double spacing_x_, spacing_z_;
  double per_spacing_x_, per_spacing_z_;
  bool constant_depth_ = true, has_land_ = false, strains_ = false;
  double depth_ = 0, log_of_depth_ = 0;
  std::vector<double> depths_, field_x_, field_z_;  // [x][z] in one row, land filled
  std::vector<char> land_;
  double vessel_x_, vessel_z_, half_hole_x_, half_hole_z_, hole_depth_;
  double least_roughness_;
  std::vector<double> profile_depths_, densities_;
  int velocity_type_;
  Velocity mean_;
  double mean_depth_;
  Two_Points profile_x_, profile_z_;
  bool tidal_ = false;
  Tide tide_;
};

}  // namespace companion
