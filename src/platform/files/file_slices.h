#pragma once

#include <cstdint>
#include <string>

#include "platform/files/file_trace.h"

namespace barvon {

/// A regular file that is read slice by slice, up to the size that it has when it is opened. One
/// that is replaced meanwhile is read on as it was; one that is cut short ends there.
/// Errors are errno values; 0 is success.
class File_Slices {
 public:
  File_Slices() = default;
  ~File_Slices();
  File_Slices(const File_Slices&) = delete;
  File_Slices& operator=(const File_Slices&) = delete;

  int Open(const std::string& path);
  std::uint64_t size() const { return trace_.size; }
  /// Of the file when it was opened.
  const File_Trace& trace() const { return trace_; }
  /// The next bytes, `most` at the most; none behind the last. After an error those before it.
  int Read(std::size_t most, std::string& slice);
  bool At_End() const { return left_ == 0; }

 private:
  int descriptor_ = -1;
  File_Trace trace_;
  std::uint64_t left_ = 0;
};

}  // namespace barvon
