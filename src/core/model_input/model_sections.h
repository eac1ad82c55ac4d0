#pragma once

#include "core/model_input/model_text.h"
#include "core/project_record.h"

namespace barvon {

/// The lines of the hopper section (DisposalMethod 1) and the barge section (3) from a prepared
/// record. For type 5 the average velocity takes the tidal values
/// and VelocityProfileType becomes 1 in the record. Throws Run_Time_Failure (Subscript) when a
/// count is beyond the record's arrays. A line whose count is 0 is an empty line.
void Hopper_Section(ProjectRecord& record, Model_Text& lines);
void Barge_Section(ProjectRecord& record, Model_Text& lines);

}  // namespace barvon
