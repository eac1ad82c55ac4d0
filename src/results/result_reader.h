#pragma once

#include <string>
#include <variant>

#include "results/results.h"

namespace barvon {

/// Why outputs can't be shown. `line` from 1; 0 where no line is meant. A foreign output is sound
/// as far as is known, but of another solver.
struct Result_Problem {
  std::string file;
  int line = 0;
  std::string reason;
  bool foreign = false;

  /// "NAME.dut, line 12: no number in columns 6 to 19".
  std::string Words() const;
};

using Results_Or_Problem = std::variant<Results, Result_Problem>;

/// Reads ".dut", ".duc" and ".dup" beside a project, or beside the one of them that is given:
/// names are matched without regard to case. ".dup" may be missing. All must be whole and of one
/// run.
Results_Or_Problem Read_Results(const std::string& path);

/// The parts of it that take bytes, for tests and for who has them already.
std::optional<Result_Problem> Read_Series(const std::string& file, std::string_view bytes,
                                          Results& results);
std::optional<Result_Problem> Read_Maps(const std::string& file, std::string_view bytes,
                                        Results& results);

}  // namespace barvon
