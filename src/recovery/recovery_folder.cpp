#include "recovery/recovery_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <set>
#include <string_view>
#include <utility>

#include "platform/files/folder_names.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/files/user_folder.h"

namespace barvon {
namespace {

constexpr std::string_view kCopy = ".barvon-copy";
constexpr std::string_view kPart = ".barvon-part";
constexpr std::string_view kLock = ".barvon-lock";
constexpr int kMostNames = 100;

std::string Stem_Of(std::string_view path) {
  for (const std::string_view ending : {kCopy, kPart, kLock}) {
    if (path.ends_with(ending)) return std::string(path.substr(0, path.size() - ending.size()));
  }
  return {};
}

std::string With_Ending(const std::string& stem, std::string_view ending) {
  return std::string(stem).append(ending);
}

/// Made when it is missing; nothing when it can't be, or is not the user's alone.
std::optional<std::string> Recovery_Folder() {
  const std::optional<std::string> base = User_Folder();
  if (!base) return std::nullopt;
  const std::string folder = Join_Path(*base, "recovery");
  struct stat status {};
  ::mkdir(folder.c_str(), S_IRWXU);
  if (::lstat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
  if (status.st_uid != ::geteuid()) return std::nullopt;
  if ((status.st_mode & 077) != 0 && ::chmod(folder.c_str(), S_IRWXU) != 0) return std::nullopt;
  return folder;
}

bool Exists(const std::string& path) { return ::access(path.c_str(), F_OK) == 0; }

/// What can't be looked at for a moment is still there.
bool Is_Gone(const std::string& path) { return !Exists(path) && errno == ENOENT; }

}  // namespace

int Own_Copy::Take_Name() {
  const std::optional<std::string> folder = Recovery_Folder();
  if (!folder) return EACCES;
  const std::string name =
      std::to_string(::getpid()) + "-" + std::to_string(std::time(nullptr)) + "-";
  for (int i = 0; i < kMostNames; ++i) {
    const std::string stem = Join_Path(*folder, name + std::to_string(i));
    if (Exists(With_Ending(stem, kCopy))) continue;
    const auto outcome = lock_.Take(With_Ending(stem, kLock));
    if (outcome == Lock_File::Outcome::Not_Possible) return lock_.Error();
    if (outcome == Lock_File::Outcome::Held) continue;
    path_ = With_Ending(stem, kCopy);
    return 0;
  }
  return EEXIST;
}

int Own_Copy::Write(const std::string& bytes) {
  // Somebody may have removed the folder: a copy without its lock would be another window's.
  if (!lock_.Is_Held() || Is_Gone(lock_.Path())) {
    if (const int error = Take_Name(); error != 0) return error;
  }
  const std::string part = With_Ending(Stem_Of(path_), kPart);
  int error = Write_Exclusive_File(part, bytes, S_IRUSR | S_IWUSR);
  if (error == 0 && ::rename(part.c_str(), path_.c_str()) != 0) {
    error = errno;
    ::unlink(part.c_str());
  }
  if (error == 0) stands_ = true;
  return error;
}

bool Own_Copy::Stands() const { return stands_ && !Is_Gone(path_); }

void Own_Copy::Remove() {
  if (stands_) ::unlink(path_.c_str());
  Leave();
}

void Own_Copy::Leave() {
  stands_ = false;
  lock_.Release();
}

std::vector<Left_Copy> Take_Left_Copies() {
  std::vector<Left_Copy> found;
  const std::optional<std::string> folder = Recovery_Folder();
  if (!folder) return found;
  std::set<std::string> stems;
  for (const std::string& name : Names_In_Folder(*folder)) stems.insert(Stem_Of(name));
  stems.erase("");
  for (const std::string& name : stems) {
    const std::string stem = Join_Path(*folder, name);
    Left_Copy left{With_Ending(stem, kCopy), {}, 0, std::nullopt};
    // A host's name may have changed since. A living window's lock the system still has.
    const auto outcome =
        left.lock.Take(With_Ending(stem, kLock), Lock_File::Foreign::Goes_When_Let_Go_Of);
    if (outcome == Lock_File::Outcome::Held) continue;
    ::unlink(With_Ending(stem, kPart).c_str());
    struct stat status {};
    if (::lstat(left.path.c_str(), &status) != 0) continue;
    left.written = status.st_mtime;
    std::string bytes;
    if (Read_Whole_File(left.path, bytes) == 0) left.copy = Read_Copy(bytes);
    found.push_back(std::move(left));
  }
  std::ranges::stable_sort(found, std::greater(), &Left_Copy::written);
  return found;
}

bool Remove_Left_Copy(Left_Copy& left) {
  if (::unlink(left.path.c_str()) != 0 && errno != ENOENT) return false;
  left.lock.Release();
  return true;
}

}  // namespace barvon
