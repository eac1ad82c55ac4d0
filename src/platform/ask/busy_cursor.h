#pragma once

#include <functional>

namespace barvon {

/// Shows the wait cursor for as long as it lives. Nests.
class Busy_Cursor {
 public:
  Busy_Cursor();
  ~Busy_Cursor();
  Busy_Cursor(const Busy_Cursor&) = delete;
  Busy_Cursor& operator=(const Busy_Cursor&) = delete;
};

/// Called with true when the outermost wait cursor goes up, with false when it comes down.
using Cursor_Presenter = std::function<void(bool)>;
Cursor_Presenter Set_Cursor_Presenter(Cursor_Presenter presenter);

}  // namespace barvon
