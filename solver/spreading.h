#pragma once

#include <vector>

#include "solver/cloud.h"
#include "solver/model_input.h"
#include "solver/ode.h"
#include "solver/water.h"

namespace companion {

/// The equations of a cloud that spreads by its weight, at the level of its own density or on the
/// bed, from a cloud on: a box over its plan.
struct Spreading {
  /// What a state means.
  struct View {
    Cloud cloud;
    double area = 0, volume = 0, mass = 0;  // ft2, ft3, g/cc ft3
    double water_density = 0, bed = 0;      // on the bed at its middle, at a level over its height
    double squared_frequency = 0;           // 1/s2, at a level
    Velocity current;
  };

  const Model_Input& input;
  const Water& water;
  const Coefficients& coefficients;
  const std::vector<Solid>& kinds;
  const bool on_bed;
  const double mass_factor;
  const double slope_x, slope_z;  // sines
  Cloud origin;                   // where the integration began: at the start or the last joining

  Spreading(const Model_Input& the_input, const Water& the_water, Cloud start, bool bed);

  void Fit_Under_The_Surface();
  Integrator::Values State() const;
  Integrator::Values Floors() const;
  View Look(double time, const Integrator::Values& state) const;
  void Rates(double time, const Integrator::Values& state, Integrator::Values& rates) const;
  Ending Over(const View& seen) const;
  bool Fits_The_Hole(const View& seen) const;
  Cloud_State Row(const View& seen) const;

 private:
  double Push(const View& seen) const;
  double Spreading_Rate(const View& seen, double inflow) const;
  double Inflow(const View& seen) const;
  void Losses(const View& seen, Integrator::Values& rates) const;
  double Turbulence_Wins(const View& seen) const;
};

}  // namespace companion
