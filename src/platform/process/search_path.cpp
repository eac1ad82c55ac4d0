#include "platform/process/search_path.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "platform/files/foreign_files.h"
#include "platform/files/paths.h"

namespace barvon {
namespace {

bool Is_Program(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         ::access(path.c_str(), X_OK) == 0;
}

}  // namespace

std::vector<std::string> Search_Folders() {
  std::vector<std::string> folders;
  const char* path = std::getenv("PATH");
  std::istringstream stream(path == nullptr ? "" : path);
  for (std::string folder; std::getline(stream, folder, ':');) {
    const bool is_new = std::ranges::find(folders, folder) == folders.end();
    if (!folder.empty() && folder.front() == '/' && is_new) folders.push_back(folder);
  }
  return folders;
}

std::optional<std::string> Lasting_Search_Path() {
  std::optional<std::string> path;
  for (const std::string& folder : Search_Folders()) {
    path = path ? *path + ":" + folder : folder;
  }
  return path;
}

void Keep_Lasting_Search_Path() {
  if (const auto path = Lasting_Search_Path()) {
    ::setenv("PATH", path->c_str(), 1);
  } else {
    // Without one the system's own holds, which has no current folder in it.
    ::unsetenv("PATH");
  }
}

std::optional<std::string> Find_Program(const std::string& name) {
  for (const std::string& folder : Search_Folders()) {
    const std::string path = Join_Path(folder, name);
    if (Is_Program(path) && !Is_Put_By_A_Stranger(path)) return path;
  }
  return std::nullopt;
}

}  // namespace barvon
