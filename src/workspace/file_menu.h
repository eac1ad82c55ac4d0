#pragma once

#include "core/project_record.h"

namespace barvon {

/// The entries of the File menu by their index; separators are 3, 6 and 9.
enum File_Item {
  kFileNew = 0,
  kFileOpen = 1,
  kFileClose = 2,
  kFileSave = 4,
  kFileSaveAs = 5,
  kFilePrint = 7,
  kFilePrintSetup = 8,
  kFileExit = 10,
};

/// The File menu and the toolbar's file buttons. Separators and any other index do nothing.
void mnuFileItem_Click(int index, ProjectRecord& record);

/// A click on a recent-file entry, 1 to 4: opens it as the Open command does, or takes it out of
/// the list when it no longer exists; then refills the menu.
void mnuRecentFile_Click(int index, ProjectRecord& record);

}  // namespace barvon
