#pragma once

#include <string>

namespace barvon {

/// Why outputs can't be shown. `line` from 1; 0 where no line is meant. A foreign output is sound
/// as far as is known, but of another solver.
struct Result_Problem {
  std::string file;  // its path
  int line = 0;
  std::string reason;
  bool foreign = false;

  /// "NAME.dut, line 12: no number in columns 6 to 19".
  std::string Words() const;
};

}  // namespace barvon
