#include "batch/batch_project.h"

#include "batch/batch_output.h"
#include "core/desk/load_record.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/text/letter_case.h"

namespace barvon {

std::string Project_Path(const std::string& file, Known_Folders& folders) {
  const std::string path = Absolute_Path(file);
  return Find_Path(path, folders).value_or(path);
}

bool Is_Project_Name(const std::string& name) {
  return name.size() >= 4 && Equal_Ignoring_Case(name.substr(name.size() - 4), ".DUI");
}

std::unique_ptr<ProjectRecord> Open_Project(const std::string& file, Known_Folders& folders) {
  if (!Is_Project_Name(file)) {
    Say_Problem(file, "not a project file: its name does not end in .DUI");
    return nullptr;
  }
  Loaded_Record loaded = Load_Record(Project_Path(file, folders));
  if (loaded.record == nullptr) Say_Problem(file, loaded.problem);
  if (!loaded.remark.empty()) Say_Warning(file, loaded.remark);
  return std::move(loaded.record);
}

}  // namespace barvon
