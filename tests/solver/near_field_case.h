#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "solver/near_field.h"

namespace companion {

/// Every ten minutes and at the moments just behind a few odd ones.
inline std::vector<double> Test_Stops(const Model_Input& input) {
  std::vector<double> stops;
  for (const double share : {0.0003, 0.0011, 0.0029, 0.006, 0.011, 0.02, 0.033, 0.05, 0.08, 0.13,
                             0.2, 0.3, 0.45, 0.6, 0.8, 1.0})
    stops.push_back(input.duration * share);
  return stops;
}

inline Near_Field Followed(const Model_Input& input) {
  return Follow_Clouds(input, Water(input, {}), Test_Stops(input));
}

/// What the clouds in motion, the sources and the deposits of a species hold at a stop.
inline double Held_At(const Near_Field& field, std::size_t stop, std::size_t species) {
  const Moving& moving = field.moving[stop];
  double sum = 0;
  for (const Source& source : field.sources)
    if (source.species == species && source.time <= moving.time) sum += source.amount;
  for (const Deposit& deposit : field.deposits)
    if (deposit.species == species && deposit.time <= moving.time) sum += deposit.amount;
  for (const std::vector<Source>* clouds : {&moving.falling, &moving.collapsing})
    for (const Source& source : *clouds)
      if (source.species == species) sum += source.amount;
  return sum;
}

/// How far that is from what was released, worst of all stops and species, in parts of the load.
inline double Worst_Balance(const Model_Input& input, const Near_Field& field) {
  double worst = 0;
  for (std::size_t species = 0; species < input.Species(); ++species) {
    const double load = std::abs(field.released[species]) + std::abs(field.aboard[species]);
    if (load == 0) continue;
    for (std::size_t stop = 0; stop < field.moving.size(); ++stop) {
      const double off = Held_At(field, stop, species) - field.moving[stop].released[species];
      worst = std::max(worst, std::abs(off) / load);
    }
    const double left = field.moving.back().released[species] - field.released[species];
    worst = std::max(worst, std::abs(left) / load);
  }
  return worst;
}

inline void Expect_Sound_Plan(const Plan_Moments& spread) {
  EXPECT_GT(spread.xx, 0);
  EXPECT_GT(spread.zz, 0);
  EXPECT_GE(spread.xx * spread.zz - spread.xz * spread.xz, 0);
}

inline void Expect_Sound_Source(const Model_Input& input, const Water& water,
                                const Source& source) {
  const bool tracer = source.species == input.Solids();
  EXPECT_TRUE(std::isfinite(source.amount));
  EXPECT_GE(source.amount, 0);
  EXPECT_TRUE(tracer || source.amount > 0);
  Expect_Sound_Plan(source.spread);
  EXPECT_GE(source.top, 0);
  EXPECT_LE(source.top, source.foot);
  EXPECT_LE(source.foot, water.Bed(source.x, source.z) + input.hole_depth + 1e-6 * input.depth);
}

/// Nothing negative, nothing that is no number, nothing out of the water or out of its time.
inline void Expect_Sound(const Model_Input& input, const Near_Field& field) {
  const Water water(input, {});
  double last = 0;
  for (const Source& source : field.sources) {
    EXPECT_GE(source.time, last);
    last = source.time;
    if (input.constant_depth) Expect_Sound_Source(input, water, source);
  }
  EXPECT_LE(last, input.duration);
  last = 0;
  for (const Deposit& deposit : field.deposits) {
    EXPECT_GE(deposit.time, last);
    EXPECT_GT(deposit.amount, 0);
    Expect_Sound_Plan(deposit.spread);
    last = deposit.time;
  }
  for (const Moving& moving : field.moving)
    for (const std::vector<Source>* clouds : {&moving.falling, &moving.collapsing})
      for (const Source& source : *clouds) {
        EXPECT_EQ(source.time, moving.time);
        if (input.constant_depth) Expect_Sound_Source(input, water, source);
      }
  for (const Phase& phase : field.phases) {
    EXPECT_LE(phase.rows.size(), 201u);
    for (std::size_t i = 0; i < phase.rows.size(); ++i) {
      const Cloud_State& row = phase.rows[i];
      EXPECT_GE(row.t, phase.rows[i > 0 ? i - 1 : 0].t);
      for (const double value : {row.radius, row.height, row.density, row.volume})
        EXPECT_GT(value, 0);
      for (const double value : {row.x, row.z, row.y, row.speed, row.downward})
        EXPECT_TRUE(std::isfinite(value));
      for (const double solid : row.solids) EXPECT_GE(solid, 0);
    }
  }
}

/// The first phase of a kind; the load's own descent where there is none.
inline const Phase& First(const Near_Field& field, Phase_Kind kind) {
  for (const Phase& phase : field.phases)
    if (phase.kind == kind) return phase;
  ADD_FAILURE() << "no such phase";
  return field.phases.front();
}

inline bool Has_Note(const Near_Field& field, const char* part) {
  return std::any_of(field.notes.begin(), field.notes.end(), [part](const std::string& note) {
    return note.find(part) != std::string::npos;
  });
}

}  // namespace companion
