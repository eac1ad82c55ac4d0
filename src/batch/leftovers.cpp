#include "batch/leftovers.h"

#include <filesystem>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "batch/scratch_application.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

/// Where a save of the file puts its working file: beside it, or beside what a link leads to. A
/// folder is its own.
std::string Working_Folder(const std::string& file) {
  std::error_code error;
  const auto real = std::filesystem::weakly_canonical(Absolute_Path(file), error);
  const std::string path = error ? Absolute_Path(file) : real.string();
  return std::filesystem::is_directory(path, error) ? path : Folder_Of(path);
}

}  // namespace

void Clear_Leftovers(const Batch_Options& options) {
  Scratch_Application::Remove_Abandoned();
  std::set<std::string> folders;
  for (const std::string& file : options.files) {
    folders.insert(Folder_Of(Absolute_Path(file)));
    folders.insert(Working_Folder(file));
  }
  if (!options.output.empty()) folders.insert(Working_Folder(options.output));
  if (!options.folder.empty()) folders.insert(Working_Folder(options.folder));
  Remove_Leftover_Saves({folders.begin(), folders.end()});
}

}  // namespace barvon
