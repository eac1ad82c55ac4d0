#include "run/run_driver.h"

namespace barvon {

bool Run_Report::Succeeded() const { return false; }
Run_Report Run_Model(ProjectRecord&) { return {}; }
void Set_Application_Directory() {}

}  // namespace barvon
