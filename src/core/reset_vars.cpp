#include "core/reset_vars.h"

namespace barvon {

bool Reset_Vars(ProjectRecord&) { return true; }

}  // namespace barvon
