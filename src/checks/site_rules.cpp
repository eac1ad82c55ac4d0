#include "checks/site_rules.h"

namespace barvon {

void Check_Site(const ProjectRecord&, Error_List&) {}

}  // namespace barvon
