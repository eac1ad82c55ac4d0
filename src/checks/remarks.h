#pragma once

#include <string>
#include <vector>

#include "core/project_record.h"

namespace barvon {

/// What is worth a look in a project that may well be as it should be. Unlike a finding a remark
/// is never in the way of a save or a run. One line each, in this order:
/// - a value that is wider than its columns in the model input and moves the rest of its line,
///   with line, field and value;
/// - a value of the record that is no number or infinite;
/// - solids that take up more than a whole layer, or more than the whole load.
/// Of a grid or an array the first such value is told, with the count of the others. Nothing of
/// the record changes.
std::vector<std::string> Remarks_On(const ProjectRecord& record);

/// "1 remark", "2 remarks"; empty for none.
std::string Remark_Count(const std::vector<std::string>& remarks);

/// One line each.
std::string Remark_Lines(const std::vector<std::string>& remarks);

}  // namespace barvon
