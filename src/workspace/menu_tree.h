#pragma once

#include <string>
#include <vector>

#include "core/desk/screen_table.h"

namespace barvon {

/// Which commands of the menus are there to be chosen.
enum class Menu_Mode {
  Closed,    // no type of analysis is chosen
  Project,   // a model input project
  Dilution,  // the dilution calculator
};

/// What an item's availability follows.
enum class Gate {
  None,     // it keeps its state at start
  Any,      // available in Project and Dilution
  Project,  // available in Project only
};

/// Whether an item behind this gate is available. Not to be asked for Gate::None.
bool Is_Available(Gate gate, Menu_Mode mode);

/// One entry of a menu. A separator has no caption.
struct Menu_Item {
  int index = 0;
  const char* caption = "";
  bool enabled = true;  // at start
  bool visible = true;  // at start
  Gate gate = Gate::None;
  bool has_mark = false;
  bool marked = false;  // at start
  const char* hint = "";
  const char* key = "";  // keys for the same, shown beside the caption
  const Screen_Row* screen =
      nullptr;  // what it opens; it shows as long as that screen is registered
};

/// One menu of the menu bar, or, without items, a command that is in the menu bar itself.
/// An item's name is the array's with its index: "mnuFileItem(4)".
struct Menu {
  const char* name = "";
  const char* caption = "";
  const char* array = "";
  bool visible = true;
  bool enabled = true;
  Gate gate = Gate::None;
  const char* hint = "";
  std::vector<Menu_Item> items;
  const char* key = "";  // of a command
};

/// The screen that the entry of the Tools menu opens; none for any other index.
const Screen_Row* Tool_Screen(int index);

/// The menu bar from left to right. The recent files are in the File menu, behind its items.
const std::vector<Menu>& Menu_Tree();

/// The caption of a recent-file entry, 1 to 4, with the path shown as it is.
std::string Recent_Caption(int index, const std::string& path);

}  // namespace barvon
