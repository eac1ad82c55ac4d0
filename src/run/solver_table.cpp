#include "run/solver_table.h"

namespace barvon {

Solver Solver_For(int disposal_method) {
  switch (disposal_method) {
    case 1:  // hopper
    case 3:  // barge
      return {"DOS4GW MERAK32.EXE", true};
    case 2:  // continuous: chosen, and not started
      return {"TOLIN.EXE", false};
    case 4:
      return {"MERAK4.EXE", false};
    default:
      return {};
  }
}

}  // namespace barvon
