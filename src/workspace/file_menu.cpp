#include "workspace/file_menu.h"

namespace barvon {

void mnuFileItem_Click(int, ProjectRecord&) {}
void mnuRecentFile_Click(int, ProjectRecord&) {}

}  // namespace barvon
