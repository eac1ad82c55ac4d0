#include "platform/files/foreign_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "platform/files/paths.h"

namespace barvon {
namespace {

bool Entry_Is_A_Strangers(const std::string& path) {
  struct stat entry {};
  struct stat folder {};
  if (::lstat(path.c_str(), &entry) != 0 || ::stat(Folder_Of(path).c_str(), &folder) != 0) {
    return false;
  }
  const bool open_to_all = (folder.st_mode & S_IWOTH) != 0;
  return open_to_all && entry.st_uid != ::geteuid() && entry.st_uid != 0 &&
         entry.st_uid != folder.st_uid;
}

}  // namespace

bool Is_Put_By_A_Stranger(const std::string& path) {
  if (Entry_Is_A_Strangers(path)) return true;
  std::error_code error;
  const std::string real = std::filesystem::canonical(path, error).string();
  return !error && real != path && Entry_Is_A_Strangers(real);
}

}  // namespace barvon
