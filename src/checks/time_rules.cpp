#include "checks/time_rules.h"

namespace barvon {

void Check_Time(const ProjectRecord&, Error_List&) {}

}  // namespace barvon
