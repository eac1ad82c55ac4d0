#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// The lines of the hopper section (DisposalMethod 1) and the barge section (3) from a prepared
/// record, each ended by CR LF, in UTF-8. For type 5 the average velocity takes the tidal values
/// and VelocityProfileType becomes 1 in the record. Throws Run_Time_Failure (Subscript) when a
/// count is beyond the record's arrays. A line whose count is 0 is an empty line.
std::string Hopper_Section(ProjectRecord& record);
std::string Barge_Section(ProjectRecord& record);

}  // namespace barvon
