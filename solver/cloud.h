#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "solver/model_input.h"
#include "solver/near_field.h"
#include "solver/sources.h"
#include "solver/water.h"

namespace companion {

inline constexpr double kAllLost = 50;            // of `lost` in Left_Of, from which on it is all
inline constexpr double kPlanMoments = 2;         // of a handed-over cloud, times its own
inline constexpr double kLeastMassFactor = 0.01;  // CM below it counts as this

/// What is left of an amount after losses whose rates over it sum up to `lost`.
double Left_Of(double amount, double lost);

/// A cloud at one moment, between its phases. Its plan is a rectangle of `length` by twice `radius`
/// with a half disk at each end.
struct Cloud {
  std::size_t batch = 0, cloud = 0;                     // from 0; the cloud within its batch
  std::size_t number = 0;                               // from 0, in the run
  double time = 0;                                      // s
  double x = 0, z = 0, y = 0;                           // ft, of the centre
  double velocity_x = 0, velocity_z = 0, downward = 0;  // ft/s
  double radius = 0, height = 0;                        // ft
  double spreading = 0;                                 // ft/s, of the rim
  double length = 0, axis_x = 1, axis_z = 0;            // ft; direction of the straight part
  double fluid_volume = 0, fluid_mass = 0;              // ft3; g/cc ft3
  std::vector<double> solids;                           // ft3
  double tracer = 0;
  double inflow_factor = 1;  // of the entrainment, by the moisture

  double Volume() const;  // ft3
  /// Of the species of the run: the solids, and the tracer where there is one.
  std::vector<double> Amounts(bool with_tracer) const;
};

/// g/cc ft3 of fluid and solids.
double Cloud_Mass(double fluid_mass, const std::vector<Solid>& kinds,
                  const std::vector<double>& solids);

/// Radius of a capsule of a volume and a straight length, ft.
double Radius_Of_Volume(double volume, double length);
/// Plan area of a capsule, ft2, and the radius that has it, ft.
double Plan_Area(double radius, double length);
double Plan_Radius(double area, double length);
/// Second moments of that area about its centre, over the area, ft2.
Plan_Moments Moments_Of_Plan(double radius, double length, double axis_x, double axis_z);

/// The depth, from `foot` upwards, at which the water has a density; 0 where all of it is heavier,
/// `foot` where the water there is not.
double Level_Of(const Model_Input& input, double density, double foot);

/// The water over a range of depths: its mean density and N2 of the straight line that fits its
/// densities best, not below 0. A body of one density that floats there is pushed apart as by that
/// line; and nothing jumps when its edge passes a jump of the profile.
struct Layering {
  double density = 0;            // g/cc
  double squared_frequency = 0;  // 1/s2
};
Layering Layering_Of(const Model_Input& input, double top, double foot);

/// What hands a cloud over: every amount over its height, as a normal distribution with twice the
/// moments of its plan, so that the peak is the cloud's own concentration.
void Hand_Over(const Cloud& cloud, bool with_tracer, double bed, bool held,
               std::vector<Source>& sources);
/// The same of a cloud that is lighter than the water: the tracer reaches from the cloud's foot up
/// to the depth at which the water has the density of the cloud's fluid, or to the cloud's top.
void Hand_Over_Light(const Cloud& cloud, const Model_Input& input, double bed,
                     std::vector<Source>& sources);

/// Why a phase is over, or what is nearest to ending it. Reasons are told in the order of their
/// rank: the first that holds stays.
struct Ending {
  double past = -1e30;  // at least 0: over
  const char* why = "";

  bool Over() const { return past >= 0; }
  void Consider(double how_far, const char* reason) {
    if (Over() || !(how_far > past)) return;
    past = how_far;
    why = reason;
  }
};

/// Keeps some hundred rows of a phase, evenly: every second one goes when there are too many.
class Row_Keeper {
 public:
  static constexpr std::size_t kMostRows = 200;
  void Add(Cloud_State row);
  /// With the last row that came, whatever was kept.
  std::vector<Cloud_State> Take();

 private:
  std::vector<Cloud_State> rows_;
  Cloud_State last_;
  std::size_t seen_ = 0, every_ = 1;
  bool last_kept_ = false;
};

}  // namespace companion
