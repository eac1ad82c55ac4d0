#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "solver/model_input.h"
#include "solver/water.h"

namespace companion {

inline constexpr int kCloudsOfABatch = 12;  // the most clouds that a batch is cut into
inline constexpr int kCloudsOfARun = 36;    // the most clouds of all batches, unless those are more

/// A part of the load as it leaves the vessel: a capsule, a cylinder of `length` with a half ball
/// of `radius` at each end, or a ball where `length` is 0. Its volume is pi r2 l + 4/3 pi r3.
struct Cloud_Start {
  std::size_t batch = 0, cloud = 0;       // from 0; the cloud within its batch
  double time = 0;                        // s
  double x = 0, z = 0, y = 0;             // ft, of the centre; y is depth
  double radius = 0, length = 0;          // ft; length of the straight part
  double axis_x = 1, axis_z = 0;          // direction of the straight part
  double velocity_x = 0, velocity_z = 0;  // ft/s, the vessel's
  double downward = 0;                    // ft/s
  double fluid_volume = 0;                // ft3
  double fluid_mass = 0;                  // g/cc ft3
  std::vector<double> solids;             // ft3
  double tracer = 0;                      // (mg/l) ft3 or % ft3, over the background
  double moisture = 0;                    // multiple of the liquid limit; 0: not given
  bool aboard = false;                    // its time is not before the end: it is not run

  double Volume() const;                        // ft3
  double Mass(const Model_Input& input) const;  // g/cc ft3, solids by its own batch's densities
};

/// How a batch leaves.
struct Batch_Start {
  double begin = 0, duration = 0;  // s
  double x = 0, z = 0;             // ft, of the vessel at `begin`
  double draft = 0;                // ft, at the middle of its volume
  double fall_time = 0;            // s, of the whole batch as one cloud; 0: it leaves at once
  int clouds = 0;
};

struct Release {
  std::vector<Cloud_Start>
      clouds;  // in the order of their times, those that stay aboard at the end
  std::vector<Batch_Start> batches;
};

/// What the fluid of a batch carries over the background, by the evaluation: (mg/l) ft3, or % ft3
/// for the toxicity evaluations; 0 where there is none, and where it holds less than the water.
double Tracer_Amount(const Model_Input& input, const Batch& batch);

/// Radius of a capsule of a volume, ft3, that is `whole` ft long from end to end; of a ball where
/// the volume is too large for that. Any volume, 0 gives 0.
double Capsule_Radius(double volume, double whole);

/// Cuts the load into clouds that leave one after the other. `fall_time` tells how long a cloud
/// falls, s, as if the run had no end; it is asked about each batch as one cloud that leaves at the
/// middle of its time. What is not above 0 is not for cutting by.
Release Release_Load(const Model_Input& input, const Water& water,
                     const std::function<double(const Cloud_Start&)>& fall_time);

}  // namespace companion
