#pragma once

#include <memory>
#include <string>

#include "core/project_record.h"
#include "platform/files/known_folders.h"

namespace barvon {

/// The path of a project file on disk: from the root, with the letters' case that it has there.
std::string Project_Path(const std::string& file, Known_Folders& folders);

/// Opens a project as the window does, without one. Null when that failed, which standard error
/// has been told under the name `file`; what is odd about a file that loaded is told as a warning.
std::unique_ptr<ProjectRecord> Open_Project(const std::string& file, Known_Folders& folders);

/// True when the name's extension is DUI, in any case.
bool Is_Project_Name(const std::string& name);

}  // namespace barvon
