#pragma once

#include <string>

#include "solver/additions.h"
#include "solver/model_input.h"

namespace companion {

// What no site, vessel or load of this world reaches. Beyond it the arithmetic would give numbers
// that mean nothing, or would not end.
inline constexpr double kLargestLength = 1e6;       // ft
inline constexpr double kLargestDepth = 4e4;        // ft
inline constexpr double kLargestSpeed = 100;        // ft/s
inline constexpr double kLargestDensity = 30;       // g/cc
inline constexpr double kLargestVolume = 1e8;       // cu yd
inline constexpr double kLargestAmount = 1e12;      // mg/l, mg/kg, %
inline constexpr double kLargestFactor = 1e3;       // coefficients, void ratios, moisture
inline constexpr double kLeastApparentMass = 1e-3;  // CM divides
// What is above nothing, but so little that the arithmetic has no room for it.
inline constexpr double kLeastLength = 1e-2;          // ft, depths and spacings
inline constexpr double kLeastTime = 1e-2;            // s, the run and its step
inline constexpr double kLeastDensity = 1e-2;         // g/cc
inline constexpr double kLeastVolume = 1e-6;          // cu yd of a batch that has any
inline constexpr double kSteepestSlope = 90;          // degrees
inline constexpr double kLongestRun = 604800;         // s, seven days
inline constexpr double kMostTimes = 10000;           // times of the series
inline constexpr double kLongestTideStart = 24 * 31;  // hours

/// Refuses values that the model can't take. Throws Refusal with the line and the name.
void Check_Values(const std::string& file, const Model_Input& input);
/// The same for what stands in the additions, with the file alone.
void Check_Values(const std::string& file, const Additions& additions);
/// Throws No_Physics where there is nothing to follow: no volume, or neither solids nor an excess
/// of what the fluid carries. `tracer` is that excess of the whole load.
void Check_Load(const std::string& file, const Model_Input& input, double tracer);

/// Refuses a depth grid that is land alone, or land around the disposal point.
void Check_Land(const std::string& file, const Model_Input& input, const Additions& additions);

}  // namespace companion
