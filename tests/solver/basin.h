#pragma once

#include <vector>

#include "solver/columns.h"
#include "solver/model_input.h"
#include "solver/solver_case.h"
#include "solver/sources.h"

namespace companion {

/// The plain site for four hours with nothing that mixes: a test turns on what it asks about.
inline Model_Input Still_Basin() {
  Model_Input input = Solver_Case();
  input.mean_depth = input.depth;
  input.duration = 14400;
  input.coefficients.ALAMDA = 0;
  input.coefficients.AKY0 = 0;
  input.batches.front().solids.front().fall_velocity = 0;
  return input;
}

/// A round source of a standard deviation at the vessel's place, between two depths.
inline Source Round_Source(const Model_Input& input, double sigma, double top, double foot) {
  Source source;
  source.amount = 1000;
  source.x = input.vessel_x;
  source.z = input.vessel_z;
  source.spread = {sigma * sigma, 0, sigma * sigma};
  source.top = top;
  source.foot = foot;
  return source;
}

/// The same over the whole depth.
inline Source Round_Source(const Model_Input& input, double sigma) {
  return Round_Source(input, sigma, 0, input.depth);
}

/// What a species has in the water.
inline double In_Water(const Passive& passive, std::size_t species = 0) {
  double sum = 0;
  for (const Column& column : passive.Columns())
    if (column.species == species) sum += Amount(column);
  return sum;
}

/// What settled of a species since it was last asked.
inline double Taken_Settled(Passive& passive, std::size_t species = 0) {
  double sum = 0;
  for (const Deposit& deposit : passive.Take_Settled())
    if (deposit.species == species) sum += deposit.amount;
  return sum;
}

}  // namespace companion
