#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// The Edit menu's entries that open a screen, by their index: 1 site, 2 velocity, 4 material by
/// DisposalMethod, 5 operation, 6 coefficients, 9 water density. Ends with the refresh, as does
/// every other index, which opens nothing. Index 3 is the main window's own.
void mnuEditItem_Click(int index, ProjectRecord& record);

/// Opens an input screen as ShowMode says. It tells the user and opens nothing when it would block
/// while an input screen stands open without blocking. A screen that this version does not have is
/// named in the status area.
void Show_Screen(const std::string& name, const ProjectRecord& record);
void Show_Blocking_Screen(const std::string& name);

}  // namespace barvon
