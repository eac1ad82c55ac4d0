#include "core/desk/load_record.h"

#include <cstring>

#include "core/desk/analysis_keys.h"
#include "core/failure.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "platform/ask/box_collector.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

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

std::unique_ptr<ProjectRecord> Fresh_Record() {
  auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  record->FileKind = kProjectKind;
  return record;
}

Loaded_Record Load_Record(const std::string& path) {
  std::string bytes;
  if (const int error = Read_Whole_File(path, bytes); error != 0) {
    return {nullptr, std::string("can't be read: ") + std::strerror(error), ""};
  }
  auto record = Fresh_Record();
  const Box_Collector boxes;
  const Load_Result result = Load_Project(path, bytes, *record);
  if (result.failure != Failure::None) {
    std::string text =
        result.told && !boxes.Texts().empty() ? boxes.Texts() : Load_Problem(result.failure);
    if (!result.remark.empty()) text += ". " + result.remark;
    return {nullptr, text, ""};
  }
  record->ProjectFileName = path;
  record->BaseFileName = Base_Name(path);
  Compute_Site_Density_From_Bulk(*record);
  Refresh_Record(*record);
  return {std::move(record), "", result.remark};
}

}  // namespace barvon
