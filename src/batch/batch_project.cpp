#include "batch/batch_project.h"

#include <cstring>
#include <utility>

#include "batch/batch_output.h"
#include "core/desk/analysis_keys.h"
#include "core/failure.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

/// Why a load failed, when no box said it.
std::string Load_Problem(Failure failure) {
  if (failure == Failure::Input_Past_End) {
    return "the file is cut off, or it is no project file";
  }
  return std::string(Failure_Name(failure)) + " (" + std::to_string(static_cast<int>(failure)) +
         ")";
}

}  // namespace

Box_Collector::Box_Collector() {
  former_ = Set_Message_Presenter([this](const Message& message) {
    if (message.buttons == Buttons::Ok) {
      if (!texts_.empty()) texts_ += "; ";
      texts_ += message.text;
      return Answer::Ok;
    }
    return answer_no_ ? Answer::No : Answer_On_Close(message);
  });
}

Box_Collector::~Box_Collector() { Set_Message_Presenter(std::move(former_)); }

std::string Project_Path(const std::string& file) {
  const std::string path = Absolute_Path(file);
  return Find_Path(path).value_or(path);
}

bool Is_Project_Name(const std::string& name) {
  return name.size() >= 4 && Equal_Ignoring_Case(name.substr(name.size() - 4), ".DUI");
}

std::unique_ptr<ProjectRecord> Fresh_Project() {
  auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  record->FileKind = kProjectKind;
  return record;
}

std::unique_ptr<ProjectRecord> Open_Project(const std::string& file) {
  if (!Is_Project_Name(file)) {
    Say_Problem(file, "not a project file: its name does not end in .DUI");
    return nullptr;
  }
  const std::string path = Project_Path(file);
  std::string bytes;
  if (const int error = Read_Whole_File(path, bytes); error != 0) {
    Say_Problem(file, std::string("can't be read: ") + std::strerror(error));
    return nullptr;
  }
  auto record = Fresh_Project();
  const Box_Collector boxes;
  const Load_Result result = Load_Project(path, bytes, *record);
  if (result.failure != Failure::None) {
    std::string text =
        result.told && !boxes.Texts().empty() ? boxes.Texts() : Load_Problem(result.failure);
    if (!result.remark.empty()) text += ". " + result.remark;
    Say_Problem(file, text);
    return nullptr;
  }
  if (!result.remark.empty()) Say_Warning(file, result.remark);
  record->ProjectFileName = path;
  record->BaseFileName = Base_Name(path);
  Compute_Site_Density_From_Bulk(*record);
  Refresh_Record(*record);
  return record;
}

}  // namespace barvon
