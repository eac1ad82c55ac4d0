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
  return Is_A_Strangers({entry.st_uid, folder.st_uid, folder.st_mode}, ::geteuid());
}

}  // namespace

bool Is_A_Strangers(const Folder_Entry& entry, uid_t user) {
  const bool open_to_all = (entry.folder_mode & S_IWOTH) != 0;
  return open_to_all && entry.owner != user && entry.owner != 0 &&
         entry.owner != entry.folder_owner;
}

bool Is_Put_By_A_Stranger(const std::string& path) {
  if (Entry_Is_A_Strangers(path)) return true;
  std::error_code error;
  const std::string real = std::filesystem::canonical(path, error).string();
  return !error && real != path && Entry_Is_A_Strangers(real);
}

}  // namespace barvon
