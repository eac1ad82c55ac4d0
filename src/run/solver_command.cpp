#include "run/solver_command.h"

namespace barvon {

Solver_Command Find_Solver_Command(const std::string&, const std::string&) { return {}; }

}  // namespace barvon
