#include "platform/files/safe_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "platform/files/folder_names.h"
#include "platform/files/foreign_files.h"
#include "platform/files/paths.h"
#include "platform/files/regular_file.h"

namespace barvon {
namespace {

// A working file is "<name>.<16 hex digits>.barvon-save"; a note of one is
// "<16 hex digits>.barvon-note" and holds the working file's path.
constexpr std::string_view kWorkingEnding = ".barvon-save";
constexpr std::string_view kNoteEnding = ".barvon-note";
constexpr std::size_t kMarkLength = 16;
constexpr std::size_t kWriteBuffer = 1u << 16;
constexpr off_t kLargestFile = off_t{1} << 28;

std::string& Notes_Folder() {
  static std::string folder;
  return folder;
}

std::string& Passing_Folder() {
  static std::string folder;
  return folder;
}

std::string Random_Mark() {
  static thread_local std::random_device device;
  static constexpr std::string_view kHex = "0123456789abcdef";
  std::string mark;
  for (std::size_t i = 0; i < kMarkLength; ++i) mark += kHex[device() % kHex.size()];
  return mark;
}

bool Ends_With(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

bool Is_Marked_Name(std::string_view name, std::string_view ending) {
  if (!Ends_With(name, ending)) return false;
  name.remove_suffix(ending.size());
  if (name.size() < kMarkLength) return false;
  const std::string_view mark = name.substr(name.size() - kMarkLength);
  if (mark.find_first_not_of("0123456789abcdef") != std::string_view::npos) return false;
  return name.size() == kMarkLength || name[name.size() - kMarkLength - 1] == '.';
}

/// Where a chain of symbolic links leads to, also when its end does not exist yet.
std::string Follow_Links(std::string path, int& error) {
  for (int steps = 0; steps < 40; ++steps) {
    std::error_code code;
    const auto target = std::filesystem::read_symlink(path, code);
    if (code) return path;
    if (Is_Put_By_A_Stranger(path)) {
      error = EACCES;
      return path;
    }
    path = target.is_absolute() ? target.string() : Join_Path(Folder_Of(path), target.string());
  }
  error = ELOOP;
  return path;
}

int Write_All(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    if (written == 0) return EIO;  // it would go on for ever
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

/// The renaming itself lasts only once the folder is on disk. File systems that can't sync a
/// folder say EINVAL, and one may let a person write into a folder and not look: neither is a
/// failure of the save.
int Sync_Folder(const std::string& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return errno == EACCES ? 0 : errno;
  const int error = ::fsync(descriptor) == 0 || errno == EINVAL ? 0 : errno;
  ::close(descriptor);
  return error;
}

/// A working file belongs to a living writer as long as that writer holds its lock. It is held
/// here until the file is gone: a writer that has just made it would lock it in between.
void Remove_If_Abandoned(const std::string& path, std::vector<std::string>& removed) {
  if (!Is_Marked_Name(Name_Of(path), kWorkingEnding)) return;
  const int descriptor = ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
  if (descriptor < 0) return;
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::unlink(path.c_str()) == 0) {
    removed.push_back(path);
  }
  ::close(descriptor);
}

}  // namespace

void Unsynced_Folders::Add(const std::string& folder) { folders_.insert(folder); }

std::map<std::string, int> Unsynced_Folders::Sync() {
  std::map<std::string, int> failed;
  for (const std::string& folder : std::exchange(folders_, {})) {
    if (const int error = Sync_Folder(folder); error != 0) failed[folder] = error;
  }
  return failed;
}

Safe_File::~Safe_File() { Discard(); }

int Safe_File::Fail(int error) {
  if (error_ == 0) error_ = error;
  Discard();
  return error_;
}

void Safe_File::Discard() {
  bool gone = true;
  if (descriptor_ >= 0) {
    gone = ::unlink(working_.c_str()) == 0 || errno == ENOENT;
    ::close(descriptor_);
    descriptor_ = -1;
  }
  settled_ = false;
  // By the note of a file that can't be removed the next start finds it.
  if (!note_.empty() && gone) ::unlink(note_.c_str());
  note_.clear();
}

int Safe_File::Make_Working_File(mode_t mode) {
  const std::string mark = Random_Mark();
  std::string name = Name_Of(target_);
  const std::string ending = "." + mark + std::string(kWorkingEnding);
  name.resize(std::min(name.size(), static_cast<std::size_t>(NAME_MAX) - ending.size()));
  working_ = Join_Path(Folder_Of(target_), name + ending);
  if (!Notes_Folder().empty()) {
    const std::string note = Join_Path(Notes_Folder(), mark + std::string(kNoteEnding));
    if (Write_Exclusive_File(note, Absolute_Path(working_)) == 0) note_ = note;
  }
  descriptor_ =
      ::open(working_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
  return descriptor_ < 0 ? errno : 0;
}

/// Locks the working file. False when a program that clears what killed ones left has come between
/// its making and the lock, and has taken it for abandoned.
bool Safe_File::Is_Own_Still() {
  while (::flock(descriptor_, LOCK_EX) != 0 && errno == EINTR) {
  }
  // Asked of the file itself: whether its name can be looked at says nothing.
  struct stat status {};
  return ::fstat(descriptor_, &status) != 0 || status.st_nlink > 0;
}

int Safe_File::Open(const std::string& path) {
  int error = path.empty() ? EINVAL : 0;
  target_ = Follow_Links(path, error);
  if (error != 0) return Fail(error);
  struct stat old {};
  const bool exists = ::stat(target_.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) return Fail(errno);
  if (exists && S_ISDIR(old.st_mode)) return Fail(EISDIR);
  if (exists && !S_ISREG(old.st_mode)) return Fail(ENOTSUP);
  // Renaming would put a new file over one that its owner has locked against writing.
  if (exists && ::access(target_.c_str(), W_OK) != 0) return Fail(errno);

  do {
    Discard();
    error = Make_Working_File(exists ? 0600 : 0666);
    if (error != 0) return Fail(error);
  } while (!Is_Own_Still());
  if (exists && ::fchmod(descriptor_, old.st_mode & 07777) != 0) return Fail(errno);
  pending_.reserve(kWriteBuffer);
  return 0;
}

int Safe_File::Write(std::string_view bytes) {
  if (error_ != 0) return error_;
  if (descriptor_ < 0) return Fail(EBADF);
  pending_.append(bytes);
  if (pending_.size() < kWriteBuffer) return 0;
  const int error = Write_All(descriptor_, pending_);
  pending_.clear();
  return error == 0 ? 0 : Fail(error);
}

int Safe_File::Settle() {
  if (error_ != 0) return error_;
  if (descriptor_ < 0) return Fail(EBADF);
  if (std::exchange(settled_, true)) return 0;
  if (const int error = Write_All(descriptor_, pending_); error != 0) return Fail(error);
  pending_.clear();
  if (Lasts() && ::fsync(descriptor_) != 0) return Fail(errno);
  return 0;
}

int Safe_File::Commit(Unsynced_Folders* later) {
  if (const int error = Settle(); error != 0) return error;
  // Closing may fail too, so it comes before the renaming. A second descriptor keeps the lock
  // until then: without it another start would take the file for abandoned.
  const int lock = ::fcntl(descriptor_, F_DUPFD_CLOEXEC, 0);
  if (lock < 0) return Fail(errno);
  if (::close(std::exchange(descriptor_, lock)) != 0) return Fail(errno);
  if (::rename(working_.c_str(), target_.c_str()) != 0) return Fail(errno);
  descriptor_ = -1;
  Discard();
  ::close(lock);
  if (!Lasts()) return 0;
  if (later == nullptr) return Sync_Folder(Folder());
  later->Add(Folder());
  return 0;
}

bool Safe_File::Lasts() const { return Folder() != Passing_Folder(); }

std::string Safe_File::Folder() const { return Folder_Of(target_); }

int Write_Whole_File(const std::string& path, std::string_view bytes) {
  Safe_File file;
  if (const int error = file.Open(path); error != 0) return error;
  if (const int error = file.Write(bytes); error != 0) return error;
  return file.Commit();
}

int Read_Whole_File(const std::string& path, std::string& bytes) {
  int descriptor = -1;
  struct stat status {};
  int error = Open_Regular_File(path, descriptor, status);
  if (error != 0) return error;
  bytes.clear();
  if (status.st_size > kLargestFile) error = EFBIG;
  std::string part(kWriteBuffer, '\0');
  while (error == 0) {
    const ssize_t got = ::read(descriptor, part.data(), part.size());
    if (got == 0) break;
    if (got > 0) {
      bytes.append(part, 0, static_cast<std::size_t>(got));
    } else if (errno != EINTR) {
      error = errno;
    }
  }
  ::close(descriptor);
  return error;
}

int Write_Exclusive_File(const std::string& path, std::string_view bytes, mode_t mode) {
  if (::unlink(path.c_str()) != 0 && errno != ENOENT) return errno;
  const int descriptor =
      ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
  if (descriptor < 0) return errno;
  int error = Write_All(descriptor, bytes);
  if (::close(descriptor) != 0 && error == 0) error = errno;
  if (error != 0) ::unlink(path.c_str());
  return error;
}

void Set_Save_Notes_Folder(std::string folder) { Notes_Folder() = std::move(folder); }

void Set_Passing_Folder(std::string folder) { Passing_Folder() = std::move(folder); }

std::vector<std::string> Remove_Leftover_Saves(const std::vector<std::string>& folders) {
  std::vector<std::string> removed;
  if (!Notes_Folder().empty()) {
    for (const std::string& name : Names_In_Folder(Notes_Folder())) {
      if (!Is_Marked_Name(name, kNoteEnding)) continue;
      const std::string note = Join_Path(Notes_Folder(), name);
      std::string working;
      if (Read_Whole_File(note, working) != 0) continue;
      Remove_If_Abandoned(working, removed);
      // A living writer's note stays until its save is over.
      const bool of_a_save = Is_Marked_Name(Name_Of(working), kWorkingEnding);
      if (!of_a_save || ::access(working.c_str(), F_OK) != 0) ::unlink(note.c_str());
    }
  }
  for (const std::string& folder : folders) {
    for (const std::string& name : Names_In_Folder(folder)) {
      if (Is_Marked_Name(name, kWorkingEnding)) {
        Remove_If_Abandoned(Join_Path(folder, name), removed);
      }
    }
  }
  return removed;
}

}  // namespace barvon
