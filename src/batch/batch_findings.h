#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// A line on standard output for each finding of the project. Returns kFindings or kDone.
int Say_Findings(const std::string& file, const ProjectRecord& record);

}  // namespace barvon
