#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <optional>
#include <string>

namespace barvon {

/// What tells whether a file has been written since it was looked at: in place, or by another one
/// that took its name. The time is that of the last write, since 1970-01-01 UTC.
struct File_Trace {
  std::uint64_t device = 0, inode = 0, size = 0;
  std::int64_t seconds = 0, nanoseconds = 0;
  bool operator==(const File_Trace&) const = default;
};

File_Trace Trace_Of(const struct stat& status);
/// Of the file that the path leads to, over links. Nothing when it can't be looked at.
std::optional<File_Trace> Trace_Of(const std::string& path);

}  // namespace barvon
