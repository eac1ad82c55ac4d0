#pragma once

#include "core/model_input/model_text.h"
#include "core/project_record.h"

namespace barvon {

/// The lines of the continuous section (DisposalMethod 2). Its fields have no columns, so none is
/// too wide. Between the values of a line is nothing, but 5 blanks after the depth flag and 2
/// after names. Sets KEY2 and ContinuousTimeStart (0) in the record. Throws Run_Time_Failure
/// (Subscript) when a count is beyond the record's arrays.
void Continuous_Section(ProjectRecord& record, Model_Text& lines);

}  // namespace barvon
