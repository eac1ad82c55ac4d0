#include "graphs/watched_outputs.h"

#include <cstddef>
#include <utility>

#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"

namespace barvon {

Watched_Outputs::Traces Watched_Outputs::Traces_Now() const {
  static constexpr std::array<const char*, 4> kOutputs{"dut", "duc", "dup", "duo"};
  Traces traces;
  for (std::size_t i = 0; i < kOutputs.size(); ++i) {
    if (const auto found = Find_Path(With_Extension(path_, kOutputs[i]))) {
      traces[i] = Trace_Of(*found);
    }
  }
  return traces;
}

Results_Or_Problem Watched_Outputs::Read() {
  // Looked at before: what is written while it is read counts as news.
  read_ = looked_at_ = Traces_Now();
  return Read_Results(path_);
}

std::optional<Results_Or_Problem> Watched_Outputs::Look() {
  const Traces now = Traces_Now();
  const Traces before = std::exchange(looked_at_, now);
  if (now == read_ || now != before) return std::nullopt;
  Results_Or_Problem read = Read();
  if (Traces_Now() == read_) return read;
  // A run has come in between: what was read may be of both.
  read_ = {};
  return std::nullopt;
}

}  // namespace barvon
