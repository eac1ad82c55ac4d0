#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "solver/model_input.h"

namespace companion {

/// A fraction of quartz by its volume share and its fall velocity, ft/s.
inline Solid Test_Solid(std::string name, double fraction, double fall_velocity) {
  Solid solid;
  solid.name = std::move(name);
  solid.sg = 2.65;
  solid.fraction = fraction;
  solid.fall_velocity = fall_velocity;
  solid.void_ratio = 0.8;
  return solid;
}

/// A plain site to be varied: 41 by 41 points 100 ft apart, 60 ft of still sea water without
/// layers, and in its middle a barge that empties one batch of 1000 cu yd, a tenth of it silt, in
/// 10 s. No evaluation, the coefficients' defaults.
inline Model_Input Solver_Case() {
  Model_Input input;
  input.barge = true;
  input.title = "A plain site";
  input.points_x = input.points_z = 41;
  input.spacing_x = input.spacing_z = 100;
  input.depth = 60;
  input.output_depths = {30};
  input.vessel_x = input.vessel_z = 2000;
  input.roughness = 0.005;
  input.profile_depths = {0, 60};
  input.profile_densities = {1.02, 1.02};
  input.duration = 3600;
  input.step = 600;
  input.emptying = 10;
  input.length = 100;
  input.width = 30;
  input.draft_full = 10;
  input.draft_empty = 4;
  input.load_density = 1.02;
  Batch batch;
  batch.volume = 1000;
  batch.solids = {Test_Solid("SILT", 0.1, 0.01)};
  batch.fluid.density = 1.02;
  input.batches = {batch};
  return input;
}

/// The same load with a dissolved tracer, mg/l in its water.
inline void Give_Tracer(Model_Input& input, double concentration, double background = 0) {
  input.evaluation = Evaluation::Tracer;
  for (Batch& batch : input.batches) {
    batch.fluid.name = "TRACER";
    batch.fluid.concentration = concentration;
    batch.fluid.background = background;
  }
}

/// Cuts the load into equal layers, each its own batch.
inline void Cut_Into_Batches(Model_Input& input, std::size_t count) {
  Batch batch = input.batches.front();
  batch.volume /= static_cast<double>(count);
  input.batches.assign(count, batch);
}

}  // namespace companion
