#pragma once

#include <vector>

#include "solver/model_input.h"

namespace companion {

inline constexpr double kBehindPhase = 0.01;     // s, after a phase's end
inline constexpr double kFineSpacing = 10;       // s, until kFineUntil
inline constexpr double kFineUntil = 300;        // s after the last cloud has left
inline constexpr double kMiddleSpacing = 30;     // s, until kMiddleUntil
inline constexpr double kMiddleUntil = 600;      // s after the last cloud has left
inline constexpr double kCoarseSpacing = 60;     // s, until kCoarseUntil
inline constexpr double kCoarseUntil = 1200;     // s after the last cloud has left
inline constexpr double kLateGrowth = 1.05;      // of the time since the start, from then on
inline constexpr double kInitialMixing = 14400;  // s, four hours of mixing inside the site
inline constexpr double kMostFineTimes = 600;    // a longer release is looked at less often
inline constexpr double kSameTime = 1e-6;        // s, closer times are one

/// Times at which maps are kept, s: the print times within the run, quarters when there are none.
/// Rising, each once.
std::vector<double> Map_Times(const Model_Input& input);

/// Times at which the series have a row, s: multiples of the step, the times of maps, the end.
std::vector<double> Series_Times(const Model_Input& input);

/// Times at which the maxima are looked for, s: the series' own, and whatever the step those that
/// short-lived maxima ask for. `last_release` is when the last cloud leaves the vessel, `ends` when
/// phases end.
std::vector<double> Look_Times(const Model_Input& input, double last_release,
                               const std::vector<double>& ends);

/// The time is one of them.
bool Holds_Time(const std::vector<double>& times, double time);

}  // namespace companion
