#pragma once

#include "core/project_record.h"

namespace barvon {

/// Opens the screen that the table of screens has for the Edit menu's entry of that index; none for
/// any other index.
void Open_Edit_Screen(int index, const ProjectRecord& record);

}  // namespace barvon
