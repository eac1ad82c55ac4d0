#pragma once

#include <string>

#include "core/project_record.h"
#include "workspace/menu_items.h"

namespace barvon {

/// The File menu and the toolbar's file buttons, by File_Item. Separators and any other index do
/// nothing.
void mnuFileItem_Click(int index, ProjectRecord& record);

/// Opens the file as the Open command does, once it is chosen. False when nothing was loaded; not
/// when a person wants to keep what was typed in an input screen.
bool Open_From_Workspace(const std::string& path, ProjectRecord& record);

/// A click on a recent-file entry, 1 to 4: opens it as the Open command does, or takes it out of
/// the list when it no longer exists; then refills the menu.
void mnuRecentFile_Click(int index, ProjectRecord& record);

}  // namespace barvon
