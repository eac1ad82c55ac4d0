#pragma once

#include <string>

namespace barvon {

/// What stands out about a cell, beside how it is formatted.
struct Cell_Look {
  bool bold = false;
  bool warned = false;   // in the colours of a warning
  std::string tip = {};  // what is said of it, to a pointer and to assistive tools
  bool grey = false;     // what it shows does not hold at present

  bool operator==(const Cell_Look&) const = default;
};

}  // namespace barvon
