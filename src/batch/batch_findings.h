#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// A line on standard output for each finding of the project. Returns kFindings or kDone.
int Say_Findings(const std::string& file, const ProjectRecord& record);

/// A line on standard output for each remark on the project. The exit code knows none.
void Say_Remarks(const std::string& file, const ProjectRecord& record);

}  // namespace barvon
