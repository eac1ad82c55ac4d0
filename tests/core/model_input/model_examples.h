#pragma once

#include <string>
#include <vector>

#include "core/project_record.h"

namespace barvon::testing {

/// The projects behind the expected files in data/model_input.
ProjectRecord Hopper_Example();
ProjectRecord Barge_Example();
ProjectRecord Continuous_Example();

/// The model input of the record as it stands; a failure fails the test and gives an empty text.
std::string Written(ProjectRecord& record);

/// The lines without their CR LF.
std::vector<std::string> Whole_Lines(const std::string& text);
/// The lines of the record's model input; the record itself stays as it is.
std::vector<std::string> Written_Lines(ProjectRecord record);

}  // namespace barvon::testing
