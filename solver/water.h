#pragma once

#include <array>
#include <vector>

#include "solver/additions.h"
#include "solver/model_input.h"

namespace companion {

struct Velocity {
  double x = 0, z = 0;  // ft/s
};

/// Depth, density and current at every place and time. Places are in ft from the first grid point,
/// y is depth below the surface, times are seconds of the run.
class Water {
 public:
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

  double Density(double y) const;                        // g/cc
  double Squared_Frequency(double y0, double y1) const;  // N2 between two depths, 1/s2, not below 0

  Velocity Current(double x, double z, double y, double t) const;
  Velocity Mean_Current(double x, double z, double t) const;  // over the depth
  /// The current at a share p of the depth above the bed (0 bed, 1 surface).
  Velocity Current_At_Share(double x, double z, double p, double t) const;
  double Shear_Velocity(double x, double z, double t) const;  // ft/s
  double Bed_Stress(double x, double z, double t) const;      // lb/ft2
  /// There is a strain to act: a field, or a mean current over a depth grid.
  bool Strains() const;
  /// du/dx, du/dz, dw/dx, dw/dz at a share of the depth, 1/s, over a cell; 0 where it would touch
  /// a cell with a land corner.
  std::array<double, 4> Strain(double x, double z, double p, double t) const;
};

}  // namespace companion
