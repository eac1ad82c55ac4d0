#include "results/result_reader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <utility>

#include "platform/files/file_trace.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "results/phase_reader.h"
#include "results/result_lines.h"

namespace barvon {
namespace {

constexpr int kReadings = 3;  // of outputs that are written while they are read

/// An output as it was read, with what tells whether it has been written since.
struct Output {
  std::string path;  // where it was looked for, or found
  bool there = false;
  int error = 0;
  std::optional<File_Trace> trace;
  std::string bytes;
};

Output Read_Output(const std::string& base, const char* extension) {
  Output output;
  output.path = base + extension;
  const std::optional<std::string> found = Find_Path(output.path);
  if (!found) return output;
  output.there = true;
  output.path = *found;
  output.trace = Trace_Of(output.path);
  output.error = Read_Whole_File(output.path, output.bytes);
  return output;
}

struct Outputs {
  Output series, maps, phases;

  std::array<const Output*, 3> All() const { return {&series, &maps, &phases}; }
  const Output* Changed() const {
    for (const Output* output : All()) {
      if (output->there && Trace_Of(output->path) != output->trace) return output;
    }
    return nullptr;
  }
};

/// Another solver may leave outputs of its own kinds, but always a listing.
std::optional<Result_Problem> Foreign_Listing(const std::string& base) {
  const Output listing = Read_Output(base, ".duo");
  if (!listing.there || listing.error != 0 || Is_Companion_Output(listing.bytes)) {
    return std::nullopt;
  }
  return Result_Problem{listing.path, 1, "written by another solver", true};
}

bool Is_Of_Mixing_Zone(const Result_Limit& limit) {
  return limit.of.find("mixing zone") != std::string::npos;
}

Results_Or_Problem Made_Of(const std::string& path, const std::string& base,
                           const Outputs& outputs) {
  for (const Output* output : outputs.All()) {
    if (!output->there) {
      if (output == &outputs.phases) continue;
      if (auto foreign = Foreign_Listing(base)) return *foreign;
      return Result_Problem{output->path, 0, "there is no such file"};
    }
    if (output->error != 0) {
      return Result_Problem{output->path, 0,
                            std::string("can't be read: ") + std::strerror(output->error)};
    }
  }
  Results results;
  results.path = path;
  if (outputs.series.trace) results.made = outputs.series.trace->seconds;
  if (auto problem = Read_Series(outputs.series.path, outputs.series.bytes, results)) {
    if (outputs.series.bytes.empty()) {
      if (auto foreign = Foreign_Listing(base)) return *foreign;
    }
    return *problem;
  }
  auto problem = Read_Maps(outputs.maps.path, outputs.maps.bytes, results);
  if (!problem && outputs.phases.there) {
    problem = Check_Phases(outputs.phases.path, outputs.phases.bytes, results);
  }
  // Solvers of before told both as a site; the names of what they compared with tell which it is.
  if (std::ranges::any_of(results.limits, Is_Of_Mixing_Zone)) results.mixing_zone = true;
  if (!problem) return results;
  problem->foreign = false;  // one of them is the companion's
  return *problem;
}

}  // namespace

Results_Or_Problem Read_Results(const std::string& path) {
  const std::string base = Base_Name(path);
  for (int reading = 1;; ++reading) {
    const Outputs outputs{Read_Output(base, ".dut"), Read_Output(base, ".duc"),
                          Read_Output(base, ".dup")};
    const Output* const changed = outputs.Changed();
    if (changed == nullptr) return Made_Of(path, base, outputs);
    if (reading == kReadings) {
      return Result_Problem{changed->path, 0,
                            "outputs of different runs: written while they were read"};
    }
  }
}

}  // namespace barvon
