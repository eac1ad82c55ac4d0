#include "run/solver_table.h"

namespace barvon {

Solver Solver_For(int) { return {}; }

}  // namespace barvon
