#include "platform/files/file_trace.h"

namespace barvon {

File_Trace Trace_Of(const struct stat& status) {
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

std::optional<File_Trace> Trace_Of(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return Trace_Of(status);
}

}  // namespace barvon
