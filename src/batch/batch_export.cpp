#include "batch/batch_export.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <map>
#include <system_error>

#include "batch/batch_findings.h"
#include "batch/batch_output.h"
#include "batch/batch_project.h"
#include "batch/interrupts.h"
#include "batch/target_key.h"
#include "core/failure.h"
#include "core/model_input/model_input.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

bool Is_Folder(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

std::string Target_Of(const std::string& file, const std::string& output) {
  const std::string beside = With_Extension(Project_Path(file), "DUE");
  if (output.empty()) return Path_To_Write(beside);
  const std::string path = Absolute_Path(output);
  return Path_To_Write(Is_Folder(path) ? Join_Path(path, Name_Of(beside)) : path);
}

int Export(const std::string& file, const std::string& target) {
  const auto record = Open_Project(file);
  if (!record) return kNotDone;
  Say_Remarks(file, *record);
  std::string text;
  if (const Failure failure = Make_Model_Input(*record, text); failure != Failure::None) {
    Say_Problem(file, std::string("the model input can't be written: ") + Failure_Name(failure));
    return kNotDone;
  }
  if (text.empty()) {
    Say_Problem(file, "there is no model input for its disposal method");
    return kNotDone;
  }
  if (const int error = Write_Whole_File(target, text); error != 0) {
    Say_Problem(file, target + " can't be written: " + std::strerror(error));
    return kNotDone;
  }
  Say({file, "written", target});
  return kDone;
}

}  // namespace

int Export_Projects(const Batch_Options& options) {
  const bool to_folder = !options.output.empty() && Is_Folder(Absolute_Path(options.output));
  if (options.files.size() > 1 && !options.output.empty() && !to_folder) {
    Say_Problem(options.output, "several projects can only be exported into an existing folder");
    return kNotDone;
  }
  int worst = kDone;
  std::map<std::string, std::string> sources;  // by what they write
  for (const std::string& file : options.files) {
    if (Interrupt_Seen() != 0) return kNotDone;
    const std::string target = Target_Of(file, options.output);
    const auto [other, first] = sources.emplace(Target_Key(target), file);
    if (!first && Target_Key(Project_Path(other->second)) == Target_Key(Project_Path(file))) {
      continue;  // the same project again: it is written
    }
    if (!first) {
      Say_Problem(file, "its model input would overwrite that of " + other->second);
      worst = kNotDone;
      continue;
    }
    if (Is_Project_Name(target)) {
      Say_Problem(file, "a model input is not written over a project: " + target);
      worst = kNotDone;
      continue;
    }
    worst = std::max(worst, Export(file, target));
  }
  return worst;
}

}  // namespace barvon
