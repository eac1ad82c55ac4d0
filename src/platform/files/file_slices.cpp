#include "platform/files/file_slices.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/files/regular_file.h"

namespace barvon {

File_Slices::~File_Slices() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

int File_Slices::Open(const std::string& path) {
  if (descriptor_ >= 0) ::close(std::exchange(descriptor_, -1));
  trace_ = {};
  left_ = 0;
  int descriptor = -1;
  struct stat status {};
  if (const int error = Open_Regular_File(path, descriptor, status); error != 0) return error;
  descriptor_ = descriptor;
  trace_ = Trace_Of(status);
  left_ = trace_.size;
  return 0;
}

int File_Slices::Read(std::size_t most, std::string& slice) {
  slice.resize(static_cast<std::size_t>(std::min<std::uint64_t>(most, left_)));
  std::size_t filled = 0;
  int error = 0;
  while (filled < slice.size()) {
    const ssize_t got = ::read(descriptor_, slice.data() + filled, slice.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) error = errno;
    if (got <= 0) break;
    filled += static_cast<std::size_t>(got);
  }
  left_ = filled < slice.size() ? 0 : left_ - filled;
  slice.resize(filled);
  return error;
}

}  // namespace barvon
