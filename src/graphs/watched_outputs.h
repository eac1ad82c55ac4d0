#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/files/file_trace.h"
#include "results/result_reader.h"

namespace barvon {

/// The outputs beside a project, which a run may write anew at any time.
class Watched_Outputs {
 public:
  /// `path` as Read_Results takes it.
  explicit Watched_Outputs(std::string path) : path_(std::move(path)) {}

  const std::string& path() const { return path_; }
  /// Reads what is there now.
  Results_Or_Problem Read();
  /// To be called every so often: what has been written since the last reading, once it is at rest
  /// between two calls. Nothing while all is as it was, or is still being written.
  std::optional<Results_Or_Problem> Look();

 private:
  /// Of .dut, .duc, .dup and the listing; those that are missing have none.
  using Traces = std::array<std::optional<File_Trace>, 4>;
  Traces Traces_Now() const;

  std::string path_;
  Traces read_, looked_at_;
};

}  // namespace barvon
