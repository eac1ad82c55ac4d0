#pragma once

#include <string>

#include "solver/additions.h"
#include "solver/model_input.h"

namespace companion {

/// Its name beside the model input, in whatever case of its letters.
inline constexpr char kAdditionsName[] = "Tmpfile.Add";
inline constexpr int kAdditionsVersion = 1;
inline constexpr int kTidePoints = 26;
inline constexpr double kTidePointSpacing = 1800;  // s between the points of the tide's pattern
inline constexpr double kSecondsPerHour = 3600;

/// Reads the additions to a model input from their bytes: lines "name: values" behind a line with
/// the version, numbers in the default text form with blanks between. The tide's times are turned
/// into seconds of the run. Throws Refusal with the line.
Additions Read_Additions(const std::string& file, const std::string& bytes,
                         const Model_Input& input);

}  // namespace companion
