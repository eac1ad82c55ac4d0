// Stands before the system's calls about files, for a program and all its libraries, and lets them
// fail as planned. Everything is handed on to the kernel itself.

#include "file_calls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <time.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <set>
#include <utility>

using barvon::testing::Call_Plan;
using barvon::testing::Fault;
using barvon::testing::kMostCalls;
using barvon::testing::Span;

namespace {

constexpr std::size_t kPathSize = PATH_MAX;

Call_Plan plan;
char folder[kPathSize];
std::size_t folder_size = 0;
std::atomic<bool> counting{false};
std::atomic<int> calls{0}, failed{0}, writes{0};
const char* names[kMostCalls + 1];

std::mutex files_mutex;
// Known by what they are: a working file is renamed.
std::set<std::pair<dev_t, ino_t>> written;  // and not closed since
std::set<std::pair<dev_t, ino_t>> unsynced;

bool Is_Inside(const char* path) {
  return std::strncmp(path, folder, folder_size) == 0 &&
         (path[folder_size] == '/' || path[folder_size] == '\0' || path[folder_size] == ' ');
}

bool Link_Is_Inside(const char* link, const char* rest) {
  char path[2 * kPathSize];
  const long size = ::syscall(SYS_readlinkat, AT_FDCWD, link, path, kPathSize - 1);
  if (size < 0) return false;
  path[size] = '\0';
  if (*rest != '\0')
    std::snprintf(path + size, sizeof path - static_cast<std::size_t>(size), "/%s", rest);
  return Is_Inside(path);
}

bool Counts(int descriptor, const char* rest = "") {
  if (!counting) return false;
  char link[32];
  std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
  return Link_Is_Inside(link, rest);
}

bool Counts_Path(int at, const char* path) {
  if (!counting || path == nullptr) return false;
  if (*path == '/') return Is_Inside(path);
  return at == AT_FDCWD ? Link_Is_Inside("/proc/self/cwd", path) : Counts(at, path);
}

std::pair<dev_t, ino_t> Identity(int descriptor) {
  struct stat status {};
  ::syscall(SYS_fstat, descriptor, &status);
  return {status.st_dev, status.st_ino};
}

void Note_Written(int descriptor) {
  const std::lock_guard lock(files_mutex);
  written.insert(Identity(descriptor));
}

void Note_Sync(int descriptor, bool done) {
  const std::pair<dev_t, ino_t> identity = Identity(descriptor);
  const std::lock_guard lock(files_mutex);
  if (done) {
    unsynced.erase(identity);
  } else {
    unsynced.insert(identity);
  }
}

[[noreturn]] void Die() {
  ::syscall(SYS_kill, ::syscall(SYS_getpid), SIGKILL);
  for (;;) ::pause();
}

/// Counts the call and says whether its fault is due.
bool Is_Due(const char* name, bool is_write) {
  const int number = ++calls;
  if (number <= kMostCalls) names[number] = name;
  if (plan.first == 0) return false;
  const bool due = plan.span == Span::Once ? number == plan.first : number >= plan.first;
  if (!due || (plan.span == Span::Writes_Only && !is_write)) return false;
  ++failed;
  return true;
}

/// Hands a call on or lets it fail. `real` does it and returns as the system does.
template <class Real>
long Pass(const char* name, bool counts, Real real, bool is_write = false) {
  if (!counts || !Is_Due(name, is_write)) return real();
  switch (plan.fault) {
    case Fault::Kill:
      Die();
    case Fault::Kill_After:
      real();
      Die();
    case Fault::Error:
      errno = plan.error;
      return -1;
    default:
      return real();
  }
}

template <class Real>
int Call(const char* name, bool counts, Real real, bool is_write = false) {
  return static_cast<int>(Pass(name, counts, real, is_write));
}

/// A write of `size` bytes; `real` writes as many as it is told.
template <class Real>
ssize_t Pass_Write(const char* name, int descriptor, std::size_t size, Real real) {
  if (!Counts(descriptor)) return real(size);
  Note_Written(descriptor);
  if (!Is_Due(name, true)) return real(size);
  const std::size_t half = size > 1 ? size / 2 : size;
  switch (plan.fault) {
    case Fault::Kill:
      real(half);
      Die();
    case Fault::Kill_After:
      real(size);
      Die();
    case Fault::Short:
      return real(half);
    case Fault::Fill:
      if (writes++ == 0) return real(half);
      [[fallthrough]];
    default:
      errno = plan.error;
      return -1;
  }
}

template <class Real>
int Pass_Sync(const char* name, int descriptor, Real real) {
  const bool counts = Counts(descriptor);
  const int result = Call(name, counts, real, true);
  const int error = errno;
  if (counts) Note_Sync(descriptor, result == 0);
  errno = error;
  return result;
}

long Open_At(const char* name, int at, const char* path, int flags, mode_t mode) {
  return Pass(name, Counts_Path(at, path),
              [=] { return ::syscall(SYS_openat, at, path, flags, mode); });
}

long Status_At(const char* name, int at, const char* path, struct stat* status, int flags) {
  const bool of_descriptor = path == nullptr || *path == '\0';
  return Pass(name, of_descriptor ? Counts(at) : Counts_Path(at, path), [=] {
    return of_descriptor ? ::syscall(SYS_fstat, at, status)
                         : ::syscall(SYS_newfstatat, at, path, status, flags);
  });
}

template <class Function>
Function Next(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

void Begin_File_Calls(const Call_Plan* wanted) {
  plan = *wanted;
  std::snprintf(folder, sizeof folder, "%s", wanted->folder);
  folder_size = std::strlen(folder);
  calls = failed = writes = 0;
  written.clear();
  unsynced.clear();
  counting = true;
}

int End_File_Calls() {
  counting = false;
  return calls;
}

const char* File_Call_Name(int number) {
  return number >= 1 && number <= kMostCalls && names[number] != nullptr ? names[number] : "?";
}

int File_Calls_Failed() { return failed; }

bool Is_Unsynced(const char* path) {
  struct stat status {};
  const bool is_there = ::syscall(SYS_newfstatat, AT_FDCWD, path, &status, 0) == 0;
  const std::lock_guard lock(files_mutex);
  return is_there && unsynced.contains({status.st_dev, status.st_ino});
}

// The last is not always there; what is read in its place then goes unused.
#define BARVON_LAST(named, Type)        \
  va_list list;                         \
  va_start(list, named);                \
  const auto last = va_arg(list, Type); \
  va_end(list)

int open(const char* path, int flags, ...) {
  BARVON_LAST(flags, unsigned);
  return static_cast<int>(Open_At("open", AT_FDCWD, path, flags, last));
}
int openat(int at, const char* path, int flags, ...) {
  BARVON_LAST(flags, unsigned);
  return static_cast<int>(Open_At("openat", at, path, flags, last));
}
int creat(const char* path, mode_t mode) {
  return static_cast<int>(Open_At("creat", AT_FDCWD, path, O_CREAT | O_WRONLY | O_TRUNC, mode));
}
int close(int descriptor) {
  // The system closes even where it tells of a failure.
  if (!Counts(descriptor)) return static_cast<int>(::syscall(SYS_close, descriptor));
  const std::pair<dev_t, ino_t> identity = Identity(descriptor);
  const long closed = ::syscall(SYS_close, descriptor);
  const int result = Call("close", true, [closed] { return closed; });
  const int error = errno;
  // Of a file that is open twice the first close tells what became of its bytes.
  const std::unique_lock lock(files_mutex);
  if (written.erase(identity) > 0 && result != 0) unsynced.insert(identity);
  errno = error;
  return result;
}
ssize_t write(int descriptor, const void* bytes, std::size_t size) {
  return Pass_Write("write", descriptor, size, [=](std::size_t count) -> ssize_t {
    return ::syscall(SYS_write, descriptor, bytes, count);
  });
}
ssize_t pwrite(int descriptor, const void* bytes, std::size_t size, off_t at) {
  return Pass_Write("pwrite", descriptor, size, [=](std::size_t count) -> ssize_t {
    return ::syscall(SYS_pwrite64, descriptor, bytes, count, at);
  });
}
ssize_t writev(int descriptor, const struct iovec* parts, int count) {
  std::size_t size = 0;
  for (int i = 0; i < count; ++i) size += parts[i].iov_len;
  return Pass_Write("writev", descriptor, size, [=](std::size_t wanted) -> ssize_t {
    if (wanted == size) return ::syscall(SYS_writev, descriptor, parts, count);
    const std::size_t first = parts[0].iov_len < wanted ? parts[0].iov_len : wanted;
    return ::syscall(SYS_write, descriptor, parts[0].iov_base, first);
  });
}
ssize_t read(int descriptor, void* bytes, std::size_t size) {
  return Pass("read", Counts(descriptor),
              [=] { return ::syscall(SYS_read, descriptor, bytes, size); });
}
ssize_t pread(int descriptor, void* bytes, std::size_t size, off_t at) {
  return Pass("pread", Counts(descriptor),
              [=] { return ::syscall(SYS_pread64, descriptor, bytes, size, at); });
}

int fsync(int descriptor) {
  return Pass_Sync("fsync", descriptor, [=] { return ::syscall(SYS_fsync, descriptor); });
}
int fdatasync(int descriptor) {
  return Pass_Sync("fdatasync", descriptor, [=] { return ::syscall(SYS_fdatasync, descriptor); });
}
int ftruncate(int descriptor, off_t size) noexcept {
  return Call(
      "ftruncate", Counts(descriptor), [=] { return ::syscall(SYS_ftruncate, descriptor, size); },
      true);
}
int fchmod(int descriptor, mode_t mode) noexcept {
  return Call("fchmod", Counts(descriptor),
              [=] { return ::syscall(SYS_fchmod, descriptor, mode); });
}
int flock(int descriptor, int operation) noexcept {
  return Call("flock", Counts(descriptor),
              [=] { return ::syscall(SYS_flock, descriptor, operation); });
}
int fcntl(int descriptor, int command, ...) {
  BARVON_LAST(command, void*);
  return Call("fcntl", Counts(descriptor),
              [=] { return ::syscall(SYS_fcntl, descriptor, command, last); });
}
int renameat(int from_at, const char* from, int to_at, const char* to) noexcept {
  return Call("rename", Counts_Path(from_at, from) || Counts_Path(to_at, to),
              [=] { return ::syscall(SYS_renameat2, from_at, from, to_at, to, 0); });
}
int rename(const char* from, const char* to) noexcept {
  return renameat(AT_FDCWD, from, AT_FDCWD, to);
}
int linkat(int from_at, const char* from, int to_at, const char* to, int flags) noexcept {
  return Call("link", Counts_Path(from_at, from) || Counts_Path(to_at, to),
              [=] { return ::syscall(SYS_linkat, from_at, from, to_at, to, flags); });
}
int link(const char* from, const char* to) noexcept {
  return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}
int unlinkat(int at, const char* path, int flags) noexcept {
  return Call("unlink", Counts_Path(at, path),
              [=] { return ::syscall(SYS_unlinkat, at, path, flags); });
}
int unlink(const char* path) noexcept { return unlinkat(AT_FDCWD, path, 0); }
int rmdir(const char* path) noexcept { return unlinkat(AT_FDCWD, path, AT_REMOVEDIR); }
int remove(const char* path) noexcept {
  const int result = unlinkat(AT_FDCWD, path, 0);
  return result != 0 && errno == EISDIR ? rmdir(path) : result;
}
int mkdirat(int at, const char* path, mode_t mode) noexcept {
  return Call("mkdir", Counts_Path(at, path),
              [=] { return ::syscall(SYS_mkdirat, at, path, mode); });
}
int mkdir(const char* path, mode_t mode) noexcept { return mkdirat(AT_FDCWD, path, mode); }
int fstatat(int at, const char* path, struct stat* status, int flags) noexcept {
  return static_cast<int>(Status_At("stat", at, path, status, flags));
}
int stat(const char* path, struct stat* status) noexcept {
  return static_cast<int>(Status_At("stat", AT_FDCWD, path, status, 0));
}
int lstat(const char* path, struct stat* status) noexcept {
  return static_cast<int>(Status_At("stat", AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW));
}
int fstat(int descriptor, struct stat* status) noexcept {
  return static_cast<int>(Status_At("fstat", descriptor, "", status, 0));
}
// Both have one layout where a file's size has 64 bits anyway.
int stat64(const char* path, struct stat64* status) noexcept {
  return stat(path, reinterpret_cast<struct stat*>(status));
}
int lstat64(const char* path, struct stat64* status) noexcept {
  return lstat(path, reinterpret_cast<struct stat*>(status));
}
int fstat64(int descriptor, struct stat64* status) noexcept {
  return fstat(descriptor, reinterpret_cast<struct stat*>(status));
}
int statx(int at, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
  const bool of_descriptor = *path == '\0';
  return Call("statx", of_descriptor ? Counts(at) : Counts_Path(at, path),
              [=] { return ::syscall(SYS_statx, at, path, flags, mask, status); });
}
int access(const char* path, int mode) noexcept {
  return Call("access", Counts_Path(AT_FDCWD, path),
              [=] { return ::syscall(SYS_faccessat, AT_FDCWD, path, mode); });
}

// A save bears its time: all are done at one.
int clock_gettime(clockid_t clock, struct timespec* now) noexcept {
  const long result = ::syscall(SYS_clock_gettime, clock, now);
  if (counting && clock == CLOCK_REALTIME) *now = {1'700'000'000, 0};
  return static_cast<int>(result);
}

DIR* opendir(const char* path) {
  static const auto next = Next<DIR* (*)(const char*)>("opendir");
  DIR* made = nullptr;
  Pass("opendir", Counts_Path(AT_FDCWD, path), [&]() -> long {
    made = next(path);
    return made == nullptr ? -1 : 0;
  });
  return made;
}
struct dirent* readdir(DIR* open) {
  static const auto next = Next<struct dirent* (*)(DIR*)>("readdir");
  struct dirent* entry = nullptr;
  Pass("readdir", Counts(::dirfd(open)), [&]() -> long {
    entry = next(open);
    return entry == nullptr ? -1 : 0;
  });
  return entry;
}
// The same calls under the names of large files.
int open64(const char* path, int flags, ...) __attribute__((alias("open")));
int openat64(int at, const char* path, int flags, ...) __attribute__((alias("openat")));
int creat64(const char* path, mode_t mode) __attribute__((alias("creat")));
ssize_t pwrite64(int descriptor, const void* bytes, std::size_t size, off64_t at)
    __attribute__((alias("pwrite")));
ssize_t pread64(int descriptor, void* bytes, std::size_t size, off64_t at)
    __attribute__((alias("pread")));
int ftruncate64(int descriptor, off64_t size) noexcept __attribute__((alias("ftruncate")));
int fcntl64(int descriptor, int command, ...) __attribute__((alias("fcntl")));
struct dirent64* readdir64(DIR* open) {
  return reinterpret_cast<struct dirent64*>(readdir(open));
}

}  // extern "C"
