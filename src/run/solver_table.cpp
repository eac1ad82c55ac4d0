#include "run/solver_table.h"

#include "core/keys.h"

namespace barvon {

Solver Solver_For(int disposal_method) {
  switch (disposal_method) {
    case kHopper:
    case kBarge:
      return {"DOS4GW MERAK32.EXE", true};
    case kContinuous:  // chosen, and not started
      return {"TOLIN.EXE", false};
    case kMethodOfSolvers:
      return {"MERAK4.EXE", false};
    default:
      return {};
  }
}

}  // namespace barvon
