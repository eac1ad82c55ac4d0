#pragma once

#include <string>
#include <vector>

#include "solver/additions.h"
#include "solver/model_input.h"
#include "solver/outcome.h"

namespace companion {

/// What a reader of the listing has to know of this input, whatever comes out: sentences.
std::vector<std::string> Input_Notes(const Model_Input& input, const Additions& additions);

/// What has to be told of the outcome: land, what stays aboard, what the phases noted.
void Append_Outcome_Notes(const Model_Input& input, Outcome& outcome);

}  // namespace companion
