#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// The lines of the continuous section (DisposalMethod 2), each ended by CR LF, in UTF-8. Values
/// that follow each other on a line have nothing between them but where blanks are told. Adjusts
/// KEY2 and sets ContinuousTimeStart to 0 in the record. Throws Run_Time_Failure (Subscript) when
/// a count is beyond the record's arrays.
std::string Continuous_Section(ProjectRecord& record);

}  // namespace barvon
