#pragma once

#include <string>

#include "solver/additions.h"
#include "solver/model_input.h"
#include "solver/outcome.h"

namespace companion {

inline constexpr double kFirstRunTolerance = 1e-6;  // of the run that finds the phases' ends
inline constexpr double kTolerance = 1e-8;          // of the run that counts

/// Follows the load from the vessel to the end of the run. `file` is what a refusal speaks of.
/// Throws Refusal, and No_Physics where there is nothing to follow.
Outcome Simulate(const std::string& file, const Model_Input& input, const Additions& additions);

}  // namespace companion
