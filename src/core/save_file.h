#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// Saves by kind: 1 dilution file, 2 project and its model input export, 3 the export alone,
/// 4 the text of the active viewer window. True when the file of that kind is on disk; the user
/// has been told otherwise. The old file is whole after any failure.
bool Save_File(const std::string& path, int kind, ProjectRecord& record);

}  // namespace barvon
