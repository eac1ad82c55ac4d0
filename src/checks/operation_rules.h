#pragma once

#include "checks/error_entries.h"
#include "core/project_record.h"

namespace barvon {

/// Runs the operation rules in order and adds what they find.
void Check_Operation(const ProjectRecord& record, Error_List& errors);

}  // namespace barvon
