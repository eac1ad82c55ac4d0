#pragma once

#include <utility>

#include "solver/columns.h"
#include "solver/model_input.h"
#include "solver/water.h"

namespace companion {

/// Still water of one depth without any coefficient that acts: a test turns on what it asks about.
inline Model_Input Still_Basin(int points = 41, double spacing = 100, double depth = 40) {
  Model_Input input;
  input.points_x = input.points_z = points;
  input.spacing_x = input.spacing_z = spacing;
  input.depth = depth;
  input.vessel_x = input.vessel_z = 0.5 * (points - 1) * spacing;
  input.profile_depths = {0};
  input.profile_densities = {1};
  input.mean_depth = depth;
  input.duration = 14400;
  input.step = 600;
  input.coefficients.ALAMDA = 0;
  input.coefficients.AKY0 = 0;
  Batch batch;
  batch.volume = 1000;
  Solid sand;
  sand.name = "SAND";
  sand.sg = 2.65;
  sand.fraction = 0.1;
  batch.solids.push_back(sand);
  input.batches.push_back(batch);
  return input;
}

/// A round source over the whole depth at the vessel's place, of variance sigma2.
inline Source Round_Source(const Model_Input& input, double sigma, double amount = 1000) {
  Source source;
  source.amount = amount;
  source.x = input.vessel_x;
  source.z = input.vessel_z;
  source.spread = {sigma * sigma, 0, sigma * sigma};
  source.foot = input.depth;
  return source;
}

}  // namespace companion
