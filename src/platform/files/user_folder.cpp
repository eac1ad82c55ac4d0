#include "platform/files/user_folder.h"

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/files/foreign_files.h"

namespace barvon {
namespace {

// A relative path would be another folder in every current folder.
std::filesystem::path Path_From_Root(const char* variable) {
  const char* const value = std::getenv(variable);
  const std::filesystem::path path = value ? value : "";
  return path.is_absolute() ? path : std::filesystem::path();
}

}  // namespace

std::optional<std::string> User_Folder() {
  std::filesystem::path base = Path_From_Root("XDG_DATA_HOME");
  if (base.empty()) {
    base = Path_From_Root("HOME");
    if (base.empty()) return std::nullopt;
    base /= ".local/share";
  }
  std::error_code error;
  std::filesystem::create_directories(base, error);
  const std::string folder = (base / "barvon").string();
  if (mkdir(folder.c_str(), S_IRWXU) == 0) return folder;
  if (!std::filesystem::is_directory(folder, error) || Is_Put_By_A_Stranger(folder)) {
    return std::nullopt;
  }
  return folder;
}

}  // namespace barvon
