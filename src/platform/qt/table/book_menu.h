#pragma once

#include <QKeyEvent>
#include <QMenu>
#include <functional>

#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// What the user can do with the selection of a table.
enum class Book_Command { None, Undo, Redo, Cut, Copy, Paste, Clear, Select_All };

/// The command of a key; None for other keys.
Book_Command Command_Of(const QKeyEvent& key);

/// The context menu of a table. An action bears the command's name ("Select_All"), shows its keys,
/// and is enabled when the command can do something now. The menu deletes itself when it is closed.
QMenu* Make_Book_Menu(const Spreadsheet_Table& table, QWidget* parent,
                      const std::function<void(Book_Command)>& run);

}  // namespace barvon
