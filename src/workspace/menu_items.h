#pragma once

namespace barvon {

// The entries of the menus by their index; what is not named here is a separator. Those of the Edit
// menu are in core/desk/edit_entries.h, those of the Tools menu are screens.

enum File_Item {
  kFileNew = 0,
  kFileOpen = 1,
  kFileClose = 2,
  kFileSave = 4,
  kFileSaveAs = 5,
  kFilePrint = 7,
  kFilePrintSetup = 8,
  kFileExit = 10
};

enum View_Item { kViewOutputFile = 1, kViewToolbar = 3, kViewStatusBar = 4, kViewMultiple = 6 };

enum Option_Item { kWizardHelp = 0, kSaveBeforeRun = 1 };

enum Help_Item { kHelpContents = 0, kHelpSearch = 1, kHelpAbout = 3 };

enum Window_Item {
  kWindowCascade,
  kWindowTileHorizontal,
  kWindowTileVertical,
  kWindowArrangeIcons
};

/// The buttons of the toolbar by their index.
enum Tool_Button {
  kToolNew = 1,
  kToolOpen = 2,
  kToolSave = 3,
  kToolPrint = 5,
  kToolRun = 6,
  kToolGraphics = 8,
  kToolCheck = 9,
  kToolHelp = 11
};

}  // namespace barvon
