#pragma once

#include <string>
#include <vector>

#include "solver/additions.h"
#include "solver/model_input.h"
#include "solver/outcome.h"

namespace companion {

inline constexpr int kTableRows = 40;  // at most, of a phase's table in the listing

/// The listing (.duo): everything that a person reads about a run.
std::string Listing(const Model_Input& input, const Additions& additions, const Outcome& outcome);

/// One line a group of phases, for standard output.
std::vector<std::string> Phase_Groups(const Model_Input& input, const Outcome& outcome);

}  // namespace companion
