#pragma once

#include "core/project_record.h"
#include "workspace/menu_items.h"

namespace barvon {

/// The File menu and the toolbar's file buttons, by File_Item. Separators and any other index do
/// nothing.
void mnuFileItem_Click(int index, ProjectRecord& record);

/// A click on a recent-file entry, 1 to 4: opens it as the Open command does, or takes it out of
/// the list when it no longer exists; then refills the menu.
void mnuRecentFile_Click(int index, ProjectRecord& record);

}  // namespace barvon
