#include "checks/operation_rules.h"

namespace barvon {

void Check_Operation(const ProjectRecord&, Error_List&) {}

}  // namespace barvon
