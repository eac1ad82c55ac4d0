#pragma once

#include <memory>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// A project that was read without a window.
struct Loaded_Record {
  std::unique_ptr<ProjectRecord> record;  // null: it could not be read
  std::string problem;                    // why not, in one line
  std::string remark;                     // what is odd about a file that loaded
};

/// A new project that has no file yet.
std::unique_ptr<ProjectRecord> Fresh_Record();

/// Reads a project file as the window opens it; nobody is asked anything.
Loaded_Record Load_Record(const std::string& path);

}  // namespace barvon
