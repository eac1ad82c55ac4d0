#pragma once

#include <string>

namespace barvon {

/// One solver by DisposalMethod.
struct Solver {
  std::string command_line;  // "DOS4GW MERAK32.EXE"; empty when the method has none
  bool started = false;      // only hopper and barge are
};

Solver Solver_For(int disposal_method);

}  // namespace barvon
