#include "platform/qt/table/book_menu.h"

#include <QCoreApplication>
#include <vector>

#include "platform/table/spreadsheet_edits.h"

namespace barvon {
namespace {

struct Command_Row {
  Book_Command command;
  const char* name;
  const char* caption;
  QList<QKeySequence> keys;
  bool ends_group = false;
};

const std::vector<Command_Row>& Commands() {
  using Keys = QKeySequence;
  static const std::vector<Command_Row> commands = {
      {Book_Command::Undo, "Undo", "&Undo", {Qt::CTRL | Qt::Key_Z}},
      {Book_Command::Redo,
       "Redo",
       "&Redo",
       {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
       true},
      {Book_Command::Cut, "Cut", "Cu&t", Keys::keyBindings(Keys::Cut)},
      {Book_Command::Copy, "Copy", "&Copy", Keys::keyBindings(Keys::Copy)},
      {Book_Command::Paste, "Paste", "&Paste", Keys::keyBindings(Keys::Paste)},
      {Book_Command::Clear, "Clear", "C&lear", {Qt::Key_Delete, Qt::Key_Backspace}, true},
      {Book_Command::Select_All, "Select_All", "Select &All", Keys::keyBindings(Keys::SelectAll)},
  };
  return commands;
}

bool Is_Possible(const Spreadsheet_Table& table, Book_Command command) {
  const Cell_Range& range = table.SelectedRange();
  switch (command) {
    case Book_Command::Undo:
      return table.CanUndo();
    case Book_Command::Redo:
      return table.CanRedo();
    case Book_Command::Cut:
    case Book_Command::Paste:
    case Book_Command::Clear:
      return Can_Edit(table, range.row1, range.col1);
    default:
      return table.MaxRow() > 0 && table.MaxCol() > 0;
  }
}

}  // namespace

Book_Command Command_Of(const QKeyEvent& key) {
  // The keypad's Delete is one too.
  const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
  const QKeySequence pressed(QKeyCombination(modifiers, static_cast<Qt::Key>(key.key())));
  for (const Command_Row& row : Commands()) {
    if (row.keys.contains(pressed)) return row.command;
  }
  return Book_Command::None;
}

QMenu* Make_Book_Menu(const Spreadsheet_Table& table, QWidget* parent,
                      const std::function<void(Book_Command)>& run) {
  auto* menu = new QMenu(parent);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const Command_Row& row : Commands()) {
    QAction* action = menu->addAction(QCoreApplication::translate("Book_Menu", row.caption));
    QObject::connect(action, &QAction::triggered, parent,
                     [run, command = row.command] { run(command); });
    action->setObjectName(QLatin1String(row.name));
    action->setShortcuts(row.keys);
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(Is_Possible(table, row.command));
    if (row.ends_group) menu->addSeparator();
  }
  return menu;
}

}  // namespace barvon
