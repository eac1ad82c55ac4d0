#include "platform/files/lock_file.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/files/paths.h"

namespace barvon {
namespace {

constexpr int kMostTries = 100;
constexpr mode_t kMode = 0644;  // whoever comes next may read whose it is

/// 0 or an errno value.
int Write_Lines(int descriptor) {
  const std::string lines = Holder_Lines(This_Program());
  const ssize_t written = ::write(descriptor, lines.data(), lines.size());
  if (written < 0) return errno;
  return written == static_cast<ssize_t>(lines.size()) ? 0 : ENOSPC;
}

/// Whether the name still leads to the open file, not to another's that took its place.
bool Is_Under_Its_Name(int descriptor, const std::string& path) {
  struct stat open {
  }, named{};
  return ::fstat(descriptor, &open) == 0 && ::lstat(path.c_str(), &named) == 0 &&
         open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

}  // namespace

Lock_File::Lock_File(Lock_File&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)),
      path_(std::move(other.path_)),
      holder_(std::move(other.holder_)) {}

Lock_File& Lock_File::operator=(Lock_File&& other) noexcept {
  if (this == &other) return *this;
  Release();
  descriptor_ = std::exchange(other.descriptor_, -1);
  path_ = std::move(other.path_);
  holder_ = std::move(other.holder_);
  return *this;
}

Lock_File::Outcome Lock_File::Take(const std::string& path, Foreign foreign) {
  Release();
  path_ = path;
  holder_.reset();
  for (int i = 0; i < kMostTries; ++i) {
    Step step = Make();
    if (step == Step::There_Is_One) step = Look_At_Former(foreign);
    if (step == Step::Taken) return Outcome::Taken;
    if (step == Step::Held) return Outcome::Held;
    if (step == Step::Not_Possible) return Outcome::Not_Possible;
    ::sched_yield();
  }
  return Outcome::Held;
}

/// The file gets its name when it is whole. It has none before, so that a kill leaves nothing.
Lock_File::Step Lock_File::Make() {
  const int descriptor = ::open(Folder_Of(path_).c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kMode);
  if (descriptor < 0) return Make_In_Steps();
  ::flock(descriptor, LOCK_EX | LOCK_NB);
  const std::string nameless = "/proc/self/fd/" + std::to_string(descriptor);
  const int unwritten = Write_Lines(descriptor);
  if (unwritten == 0 &&
      ::linkat(AT_FDCWD, nameless.c_str(), AT_FDCWD, path_.c_str(), AT_SYMLINK_FOLLOW) == 0) {
    descriptor_ = descriptor;
    return Step::Taken;
  }
  const int error = errno;
  ::close(descriptor);
  if (unwritten != 0) return Impossible(unwritten);
  return error == EEXIST ? Step::There_Is_One : Make_In_Steps();
}

/// Where a file system knows no files without a name.
Lock_File::Step Lock_File::Make_In_Steps() {
  const int descriptor =
      ::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kMode);
  if (descriptor < 0) return errno == EEXIST ? Step::There_Is_One : Impossible(errno);
  ::flock(descriptor, LOCK_EX);
  descriptor_ = descriptor;
  if (!Is_Under_Its_Name(descriptor, path_)) {
    ::close(std::exchange(descriptor_, -1));
    return Step::Again;
  }
  const int unwritten = Write_Lines(descriptor);
  if (unwritten == 0) return Step::Taken;
  Release();
  return Impossible(unwritten);
}

/// Whoever removes a former lock holds the system's lock on that very file and has seen that it
/// still has the name: of two that find it abandoned, the second finds the first one's.
Lock_File::Step Lock_File::Look_At_Former(Foreign foreign) {
  constexpr int kFlags = O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
  int descriptor = ::open(path_.c_str(), O_RDWR | kFlags);
  if (descriptor < 0) descriptor = ::open(path_.c_str(), O_RDONLY | kFlags);
  if (descriptor < 0) return errno == ENOENT ? Step::Again : Impossible(errno);
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    ::close(descriptor);
    return Impossible(EEXIST);
  }
  // Where the file system knows no locks, nothing tells that one was let go of.
  const bool let_go_of = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
  const bool in_use = !let_go_of && errno == EWOULDBLOCK;
  std::array<char, 4096> bytes{};
  const ssize_t read = ::read(descriptor, bytes.data(), bytes.size());
  holder_ = Read_Holder({bytes.data(), static_cast<std::size_t>(read < 0 ? 0 : read)});
  Step step = Step::Held;
  if (!Is_Under_Its_Name(descriptor, path_)) {
    step = Step::Again;
  } else {
    const Holder_State state = holder_ ? State_Of(*holder_) : Holder_State::Elsewhere;
    const bool ended = state == Holder_State::Has_Ended;
    if (in_use) {
      // Somebody is just taking it over, or has not written all of it.
      if (ended || !holder_) step = Step::Again;
    } else if (ended || (foreign == Foreign::Goes && state == Holder_State::Elsewhere) ||
               (foreign == Foreign::Goes_When_Let_Go_Of && let_go_of)) {
      step = ::unlink(path_.c_str()) == 0 ? Step::Again : Impossible(errno);
    }
  }
  ::close(descriptor);
  return step;
}

Lock_File::Step Lock_File::Impossible(int error) {
  error_ = error;
  return Step::Not_Possible;
}

bool Lock_File::Is_Under(const std::string& path) const {
  return descriptor_ >= 0 && Is_Under_Its_Name(descriptor_, path);
}

std::string Lock_File::Present_Path() const {
  if (descriptor_ < 0 || Is_Under(path_)) return descriptor_ < 0 ? std::string() : path_;
  // The system follows the folder. Of a file that was made without a name it tells another one.
  std::error_code error;
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor_);
  const std::string now = std::filesystem::read_symlink(link, error).string();
  if (error) return {};
  const std::string path = Join_Path(Folder_Of(now), Name_Of(path_));
  return Is_Under(path) ? path : std::string();
}

void Lock_File::Release() {
  if (descriptor_ < 0) return;
  if (const std::string path = Present_Path(); !path.empty()) ::unlink(path.c_str());
  ::close(std::exchange(descriptor_, -1));
}

}  // namespace barvon
