#pragma once

#include "core/desk/screen_table.h"
#include "core/project_record.h"

namespace barvon {

/// Whether an input screen is in view that does not block the others.
bool Any_Input_Screen_Is_Open();

/// Opens an input screen as ShowMode says. It tells the user and opens nothing when it would block
/// while an input screen is open without blocking. A screen that this version does not have is
/// named in the status area.
void Show_Screen(const Screen_Row& screen, const ProjectRecord& record);

}  // namespace barvon
