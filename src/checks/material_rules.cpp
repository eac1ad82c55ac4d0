#include "checks/material_rules.h"

namespace barvon {

void Check_Material(const ProjectRecord&, Error_List&) {}

}  // namespace barvon
