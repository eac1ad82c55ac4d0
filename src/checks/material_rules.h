#pragma once

#include "checks/error_entries.h"
#include "core/project_record.h"

namespace barvon {

/// Runs the material rules in order and adds what they find.
void Check_Material(const ProjectRecord& record, Error_List& errors);

}  // namespace barvon
