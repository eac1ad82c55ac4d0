#pragma once

#include <string>

#include "solver/due_fields.h"
#include "solver/model_input.h"

namespace companion {

/// Reads the hopper or the barge section from the input's bytes, the whole of it. Throws Refusal,
/// and No_Physics for a continuous discharge.
Model_Input Read_Model_Input(const std::string& file, const std::string& bytes);

}  // namespace companion
