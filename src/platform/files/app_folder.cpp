#include "platform/files/app_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/user_folder.h"

namespace barvon {
namespace {

/// What stands there is there for all users, also where root may write.
constexpr std::array<const char*, 2> kFoldersForAll{"/usr/lib/", "/usr/local/lib/"};

std::string& Folder() {
  static std::string folder = Program_Folder();
  return folder;
}

std::string& Other_Delivered_Folder() {
  static std::string folder;
  return folder;
}

using Identity = std::pair<dev_t, ino_t>;

/// What stands under a name, be it a link; nothing where the name is free.
std::optional<Identity> Identity_Of(const std::string& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
  return Identity(status.st_dev, status.st_ino);
}

}  // namespace

std::string Program_Folder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : program.parent_path().string();
}

const std::string& Application_Folder() { return Folder(); }

void Set_Application_Folder(std::string folder) { Folder() = std::move(folder); }

const std::string& Delivered_Folder() {
  return Other_Delivered_Folder().empty() ? Folder() : Other_Delivered_Folder();
}

void Set_Delivered_Folder(std::string folder) { Other_Delivered_Folder() = std::move(folder); }

std::string Folder_For_Own_Files(const std::string& program_folder) {
  const bool writable = ::faccessat(AT_FDCWD, program_folder.c_str(), W_OK, AT_EACCESS) == 0;
  const bool for_all = std::ranges::any_of(
      kFoldersForAll, [&](const char* folder) { return program_folder.starts_with(folder); });
  if (writable && !for_all) return program_folder;
  return User_Folder().value_or(program_folder);
}

void Take_Program_Folder(const std::string& program_folder) {
  Set_Application_Folder(Folder_For_Own_Files(program_folder));
  Set_Delivered_Folder(program_folder);
}

std::string Own_Or_Delivered(const std::string& name) {
  const std::string own = Join_Path(Application_Folder(), name);
  return Find_Path(own) ? own : Join_Path(Delivered_Folder(), name);
}

int Copy_If_Not_Own(const std::string& name) {
  const std::string own = Join_Path(Application_Folder(), name);
  if (Find_Path(own)) return 0;
  const auto delivered = Find_Path(Join_Path(Delivered_Folder(), name));
  if (!delivered) return 0;
  std::string bytes;
  const int error = Read_Whole_File(*delivered, bytes);
  return error != 0 ? error : Write_Whole_File(own, bytes);
}

Copies_Made Copy_Together(const std::vector<std::string>& names) {
  std::deque<Safe_File> files;
  for (const std::string& name : names) {
    const std::string own = Join_Path(Application_Folder(), name);
    std::string bytes;
    Safe_File& file = files.emplace_back();
    int error = Read_Whole_File(Path_To_Write(Join_Path(Delivered_Folder(), name)), bytes);
    if (error == 0) error = file.Open(own);
    // A link to nowhere is to a place of the user's that is not there now.
    if (error == 0 && file.Target() != own) error = EEXIST;
    if (error == 0) error = file.Write(bytes);
    if (error == 0) error = file.Settle();
    if (error != 0) return {error, name};
  }
  Unsynced_Folders folders;
  Copies_Made made;
  std::map<std::string, Identity> copies;
  for (std::size_t i = 0; i < names.size() && made.error == 0; ++i) {
    const std::string& path = files[i].Target();
    if (Identity_Of(path)) continue;  // another window has copied it meanwhile
    made = {files[i].Commit(&folders), names[i]};
    const auto copy = Identity_Of(path);
    if (made.error == 0 && copy) copies[path] = *copy;
  }
  for (const auto& [folder, error] : folders.Sync()) {
    if (made.error == 0) made.error = error;
  }
  if (made.error == 0) return {};
  for (const auto& [path, copy] : copies) {
    if (Identity_Of(path) == copy) ::unlink(path.c_str());
  }
  return made;
}

bool Change_Current_Folder(const std::string& folder) { return chdir(folder.c_str()) == 0; }

}  // namespace barvon
