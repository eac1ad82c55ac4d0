#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// Opens a file by its extension: a .DUI project, a .DUD dilution file; anything else is opened
/// and not loaded. After a .DUI the bulk density rule runs. True when it went through.
/// On a failure the user has been told and asked; the record is as it was before, or reset when
/// the user agreed to start afresh.
bool Open_File(const std::string& path, ProjectRecord& record);

}  // namespace barvon
