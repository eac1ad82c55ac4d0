#pragma once

#include <string>

#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"

namespace barvon {

/// How a status line tells of an accepted screen.
struct Status_Words {
  std::string text = kDataSupplied;
  Status_Colour colour = Status_Colour::Blue;
};

/// The line and the element of ScreenDataSupplied alone, without the mark and the refresh: what a
/// screen tells that calls its data supplied although it stays open.
void Supply_Screen(const Screen_Row& row, ProjectRecord& record, const Status_Words& words = {});

/// The end of OK, the same for every input screen: what the screen's row says is told to the main
/// window and to ScreenDataSupplied, and the main window shows the record, whoever opened the
/// screen. It is said once the record holds what was entered and, if the screen goes, after it has
/// gone.
void Accept_Screen(const Screen_Row& row, ProjectRecord& record, const Status_Words& words = {});

}  // namespace barvon
