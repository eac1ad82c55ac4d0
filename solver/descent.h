#pragma once

#include <functional>
#include <string>
#include <vector>

#include "solver/cloud.h"
#include "solver/model_input.h"
#include "solver/near_field.h"
#include "solver/release.h"
#include "solver/water.h"

namespace companion {

inline constexpr int kPartsOfFall = 16;             // the way to the bed, for what leaves
inline constexpr double kCalmSpeed = 0.001;         // ft/s through the water: "calm"
inline constexpr double kCalmExcess = 1e-6;         // ft/s2 times g/cc: "calm"
inline constexpr double kWashedAway = 0.001;        // of the volume at the start
inline constexpr double kStrengthAtLimit = 35.5;    // lb/ft2 at the liquid limit (1.7 kPa)
inline constexpr double kStrengthPower = -6;        // of the moisture
inline constexpr double kLeastMoisture = 0.2;       // of the liquid limit
inline constexpr double kLeastInflowFactor = 0.05;  // of ALPHA0, for the stiffest load

/// What a cloud came to.
struct Fall {
  Phase phase;
  Cloud end;
  bool light = false;      // to be handed over as lighter than the water
  bool in_motion = false;  // the run ended before the fall
};

/// Told at every stop that comes while the cloud falls.
using Tell_Falling = std::function<void(std::size_t stop, const Cloud& cloud)>;

/// How a load's moisture adjusts inflow and drag, 1 for a load that mixes like water: 1/(1 +
/// strength/(1.94 g' r)), with the remoulded strength 35.5 M^-6 lb/ft2 (1.7 kPa at the liquid
/// limit: Wroth and Wood 1978). `reduced_gravity` in ft/s2 and `radius` in ft at the release.
double Inflow_Factor(double moisture, double reduced_gravity, double radius);

/// A cloud falls until its foot is on the bed, its excess of density is gone, it stands still, or
/// the time is `until`. Inflow in proportion to speed and surface (Morton, Taylor and Turner 1956);
/// grains leave once they outrun it (Buehler and Papantoniou 2001; Bush, Thurber and Blanchette
/// 2003). What leaves on the way goes into `sources`, cut at every stop.
Fall Fall_Of(const Model_Input& input, const Water& water, const Cloud_Start& start,
             std::size_t number, double until, const std::vector<double>& stops, double tolerance,
             const Tell_Falling& tell, std::vector<Source>& sources);

/// s that a cloud falls with no end of the run, 0 where it doesn't.
double Fall_Time(const Model_Input& input, const Water& water, const Cloud_Start& start,
                 double tolerance);

}  // namespace companion
