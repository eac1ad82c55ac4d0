#include "batch/batch_products.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>
#include <vector>

#include "batch/batch_output.h"
#include "batch/batch_project.h"
#include "batch/interrupts.h"
#include "batch/target_key.h"
#include "core/project_file/project_guard.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

bool Is_Folder(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

std::string Target_Of(const std::string& file, const std::string& output, const char* extension,
                      Known_Folders& folders) {
  const std::string beside = With_Extension(Project_Path(file, folders), extension);
  if (output.empty()) return Path_To_Write(beside, folders);
  const std::string path = Absolute_Path(output);
  return Path_To_Write(Is_Folder(path) ? Join_Path(path, Name_Of(beside)) : path, folders);
}

}  // namespace

int Write_Product(const std::string& file, const std::string& target, std::string_view bytes,
                  const May_Write& may_write) {
  Safe_File product;
  int error = product.Open(target);
  if (error == 0) error = product.Write(bytes);
  if (error == 0 && !may_write(product.Target())) return kNotDone;
  if (error == 0) error = product.Commit();
  if (error != 0) {
    Say_Problem(file, target + " can't be written: " + std::strerror(error));
    return kNotDone;
  }
  Say({file, "written", target});
  return kDone;
}

int Write_Products(const Batch_Options& options, const Batch_Product& product,
                   Known_Folders& folders) {
  const bool to_folder = !options.output.empty() && Is_Folder(Absolute_Path(options.output));
  if (options.files.size() > 1 && !options.output.empty() && !to_folder) {
    Say_Problem(options.output, product.to_folder);
    return kNotDone;
  }
  std::vector<std::string> projects;
  for (const std::string& file : options.files) projects.push_back(Project_Path(file, folders));
  const Project_Guard guard(std::move(projects), folders);
  int worst = kDone;
  std::map<std::string, std::string> sources;  // by what they write
  for (const std::string& file : options.files) {
    if (Interrupt_Seen() != 0) return kNotDone;
    const std::string target = Target_Of(file, options.output, product.extension, folders);
    const auto [other, first] = sources.emplace(Target_Key(target), file);
    if (!first && Target_Key(Project_Path(other->second, folders)) ==
                      Target_Key(Project_Path(file, folders))) {
      continue;  // the same project again: it is written
    }
    if (!first) {
      Say_Problem(file,
                  std::string("its ") + product.name + " would overwrite that of " + other->second);
      worst = kNotDone;
      continue;
    }
    const May_Write may_write = [&](const std::string& path) {
      if (!guard.Leads_To_A_Project(path)) return true;
      Say_Problem(file,
                  std::string("a ") + product.name + " is not written over a project: " + target);
      return false;
    };
    worst = std::max(
        worst, may_write(target) ? product.write(file, target, folders, may_write) : kNotDone);
  }
  return worst;
}

}  // namespace barvon
