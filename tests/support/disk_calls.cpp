#include "support/disk_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>

namespace {

std::atomic<int> waits{0};
std::atomic<int> questions{0};

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

}  // extern "C"

namespace barvon::testing {

Disk_Calls::Disk_Calls() : waits_before_(waits), questions_before_(questions) {}

int Disk_Calls::Waits() const { return waits - waits_before_; }
int Disk_Calls::Questions() const { return questions - questions_before_; }

}  // namespace barvon::testing
