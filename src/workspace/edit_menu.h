#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// Opens the screen that the table of screens has for the Edit menu's entry of that index, and ends
/// with the refresh; for any other index it only refreshes. Index 3 is the main window's own.
void mnuEditItem_Click(int index, ProjectRecord& record);

/// Opens an input screen as ShowMode says. It tells the user and opens nothing when it would block
/// while an input screen stands open without blocking. A screen that this version does not have is
/// named in the status area.
void Show_Screen(const std::string& name, const ProjectRecord& record);
void Show_Blocking_Screen(const std::string& name);

}  // namespace barvon
