#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// The lines of the continuous section (DisposalMethod 2), each ended by CR LF, in UTF-8. Between
/// the values of a line is nothing, but 5 blanks after the depth flag and 2 after names. Sets
/// KEY2 and ContinuousTimeStart (0) in the record. Throws Run_Time_Failure (Subscript) when
/// a count is beyond the record's arrays.
std::string Continuous_Section(ProjectRecord& record);

}  // namespace barvon
