#include "support/disk_calls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>

namespace {

std::atomic<int> waits{0};
std::atomic<int> questions{0};
std::atomic<int> readings{0};

int Ask(int folder, const char* path, struct stat* status, int flags) {
  ++questions;
  return static_cast<int>(::syscall(SYS_newfstatat, folder, path, status, flags));
}

}  // namespace

// These stand before the system's own, for the program and for the libraries that it uses.
extern "C" {

int fsync(int descriptor) {
  ++waits;
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

int fdatasync(int descriptor) {
  ++waits;
  return static_cast<int>(::syscall(SYS_fdatasync, descriptor));
}

int stat(const char* path, struct stat* status) noexcept { return Ask(AT_FDCWD, path, status, 0); }

int lstat(const char* path, struct stat* status) noexcept {
  return Ask(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
  return Ask(folder, path, status, flags);
}

int access(const char* path, int mode) noexcept {
  ++questions;
  return static_cast<int>(::syscall(SYS_faccessat, AT_FDCWD, path, mode));
}

DIR* opendir(const char* path) {
  static const auto next = reinterpret_cast<DIR* (*)(const char*)>(::dlsym(RTLD_NEXT, "opendir"));
  ++readings;
  return next(path);
}

DIR* fdopendir(int descriptor) {
  static const auto next = reinterpret_cast<DIR* (*)(int)>(::dlsym(RTLD_NEXT, "fdopendir"));
  ++readings;
  return next(descriptor);
}

}  // extern "C"

namespace barvon::testing {

Disk_Calls::Disk_Calls()
    : waits_before_(waits), questions_before_(questions), readings_before_(readings) {}

int Disk_Calls::Waits() const { return waits - waits_before_; }
int Disk_Calls::Questions() const { return questions - questions_before_; }
int Disk_Calls::Readings() const { return readings - readings_before_; }

}  // namespace barvon::testing
