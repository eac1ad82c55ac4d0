#include "platform/qt/table/spreadsheet_view.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <utility>

#include "platform/ask/message_box.h"
#include "platform/qt/fields/focus_entry.h"
#include "platform/qt/table/book_clipboard.h"
#include "platform/qt/table/book_delegate.h"
#include "platform/qt/table/book_layout.h"
#include "platform/qt/table/book_menu.h"
#include "platform/qt/table/book_model.h"

namespace barvon {

F1Book::F1Book(const Cell_Numbers& numbers, QWidget* parent)
    : QTableView(parent),
      table_(numbers),
      model_(new Book_Model(table_, this)),
      delegate_(new Book_Delegate(*model_, this)),
      layout_(new Book_Layout(*this, table_)),
      focus_entry_(new Focus_Entry(this)) {
  setSelectionMode(ContiguousSelection);
  setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setWordWrap(false);
  setAccessibleDescription(tr("Ctrl+Tab leaves the table"));
  setItemDelegate(delegate_);
  setModel(model_);
  table_.Watch({[this](const Cell_Range& range) {
                  model_->Cells_Changed(range);
                  layout_->Follow_Cells(range);
                },
                [this] { Follow_Shape(); },
                [this] {
                  model_->Headings_Changed();
                  layout_->Lay_Out_Later();
                },
                [this] {
                  Show_Cursor();
                  Tell_Cursor();
                }});
  connect(model_, &Book_Model::Typed, this, [this](const Cell_Range& cell) {
    edit_ = edit_ ? Joined(*edit_, cell) : cell;
    if (state() != EditingState) Tell_Edit();
  });
  connect(delegate_, &Book_Delegate::Leave, this, &F1Book::Leave_Editor);
  Show_Cursor();
  layout_->Lay_Out();
}

F1Book::~F1Book() { table_.Watch({}); }

void F1Book::SetFocusCell(int row, int col) {
  focus_row_ = row;
  focus_col_ = col;
}

void F1Book::SetNumberNote(Number_Note note) { model_->SetNumberNote(std::move(note)); }

void F1Book::SetNumberNote(int col, Number_Note note) {
  model_->SetNumberNote(col, std::move(note));
}

void F1Book::KeepAnyLetters() { delegate_->Keep_Any_Letters(); }

void F1Book::SetCellLook(std::function<Cell_Look(int row, int col)> look) {
  model_->SetCellLook(std::move(look));
}

QString F1Book::NumberNoteOf(int row, int col) const { return model_->NumberNoteOf(row, col); }

// Commands

void F1Book::Run(Book_Command command) {
  switch (command) {
    case Book_Command::Undo:
      return Undo();
    case Book_Command::Redo:
      return Redo();
    case Book_Command::Cut:
      return Cut();
    case Book_Command::Copy:
      return Copy();
    case Book_Command::Paste:
      return Paste();
    case Book_Command::Clear:
      return Clear();
    case Book_Command::Select_All:
      return selectAll();
    case Book_Command::None:
      return;
  }
}

void F1Book::Cut() {
  const Text_Block cells = Copied_Cells(table_, table_.SelectedRange());
  const Edit_Outcome outcome = Clear_Cells(table_, table_.SelectedRange());
  if (outcome.refusal.empty()) Set_Clipboard_Cells(cells);
  Finish(outcome);
}

void F1Book::Copy() { Set_Clipboard_Cells(Copied_Cells(table_, table_.SelectedRange())); }

void F1Book::Paste() {
  Text_Block cells = Clipboard_Cells(delegate_->letters());
  // What is refused is not asked about first.
  const bool fits = Paste_Refusal(table_, table_.SelectedRange(), cells).empty();
  if (fits && !Agree_On_Commas(cells)) return;
  Finish(Paste_Cells(table_, table_.SelectedRange(), cells));
}

void F1Book::Clear() { Finish(Clear_Cells(table_, table_.SelectedRange())); }

void F1Book::Undo() { Finish({table_.Undo(), ""}); }

void F1Book::Redo() { Finish({table_.Redo(), ""}); }

void F1Book::Finish(const Edit_Outcome& outcome) {
  if (!outcome.refusal.empty()) Show_Message({outcome.refusal});
  if (!outcome.changed) return;
  table_.SelectRange(*outcome.changed);
  edit_ = outcome.changed;
  Tell_Edit();
}

void F1Book::Tell_Edit() {
  const std::optional<Cell_Range> edit = std::exchange(edit_, std::nullopt);
  if (edit) emit Edited(edit->row1, edit->col1, edit->row2, edit->col2);
}

void F1Book::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = Make_Book_Menu(table_, this, [this](Book_Command command) { Run(command); });
  if (!actions().isEmpty()) {
    menu->addSeparator();
    menu->addActions(actions());
  }
  const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
  menu->popup(by_mouse ? event->globalPos()
                       : viewport()->mapToGlobal(visualRect(currentIndex()).center()));
}

// Cursor and selection

void F1Book::Show_Cursor() {
  if (following_) return;
  // Who answers the edit may move the cursor once more.
  if (currentIndex() != model_->index(table_.Row() - 1, table_.Col() - 1)) FinishEdit();
  const QScopedValueRollback following(following_, true);
  const QModelIndex current = model_->index(table_.Row() - 1, table_.Col() - 1);
  const Cell_Range& range = table_.SelectedRange();
  const auto shown = Shared(range, {1, 1, table_.MaxRow(), table_.MaxCol()});
  // The view's own, so that Shift and an arrow select from here.
  if (current != currentIndex() || range.rows() * range.cols() == 1) setCurrentIndex(current);
  if (shown) {
    selectionModel()->select({model_->index(shown->row1 - 1, shown->col1 - 1),
                              model_->index(shown->row2 - 1, shown->col2 - 1)},
                             QItemSelectionModel::ClearAndSelect);
  } else {
    selectionModel()->clearSelection();
  }
}

void F1Book::Take_Cursor() {
  const QModelIndex current = currentIndex();
  if (following_ || !current.isValid()) return;
  Cell_Range range{current.row() + 1, current.column() + 1, current.row() + 1,
                   current.column() + 1};
  for (const QItemSelectionRange& part : selectionModel()->selection()) {
    range = Joined(range, {part.top() + 1, part.left() + 1, part.bottom() + 1, part.right() + 1});
  }
  {
    const QScopedValueRollback following(following_, true);
    table_.SetActiveCell(current.row() + 1, current.column() + 1);
    table_.SelectRange(range);
  }
  // A click beside the cells selects nothing; the cursor stays in sight.
  if (selectionModel()->selection().isEmpty()) Show_Cursor();
  Tell_Cursor();
}

void F1Book::Tell_Cursor() {
  if (following_) return;
  if (told_row_ == table_.Row() && told_col_ == table_.Col() &&
      told_selection_ == table_.SelectedRange()) {
    return;
  }
  told_row_ = table_.Row();
  told_col_ = table_.Col();
  told_selection_ = table_.SelectedRange();
  emit Cursor_Moved(told_row_, told_col_);
}

void F1Book::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  Take_Cursor();
}

void F1Book::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  Take_Cursor();
}

void F1Book::keyPressEvent(QKeyEvent* event) {
  // Of the keys that the editor of a cell passes on, these leave the cell.
  const bool leaves = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown ||
                      event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (leaves) FinishEdit();
  if (const Book_Command command = Command_Of(*event); command != Book_Command::None) {
    Run(command);
    return;
  }
  if (const Book_Move move = Move_Of(*event); move != Book_Move::None) {
    Move(move);
    return;
  }
  QTableView::keyPressEvent(event);
}

bool F1Book::event(QEvent* event) {
  // The table's own keys come before a shortcut of the window.
  if (event->type() == QEvent::ShortcutOverride &&
      Command_Of(*static_cast<QKeyEvent*>(event)) != Book_Command::None) {
    event->accept();
    return true;
  }
  // Tab is taken here and not where the toolkit moves the focus on: a table that is hidden or
  // disabled must pass the focus on from any cell.
  if (event->type() == QEvent::KeyPress) {
    const Book_Move move = Move_Of(*static_cast<QKeyEvent*>(event));
    if (move == Book_Move::Next || move == Book_Move::Previous) {
      Move(move);
      return true;
    }
  }
  return QTableView::event(event);
}

void F1Book::focusInEvent(QFocusEvent* event) {
  const bool is_new = focus_entry_->Is_New();
  QTableView::focusInEvent(event);
  if (!is_new) return;
  if (focus_row_ > 0 && event->reason() != Qt::MouseFocusReason) {
    table_.SetActiveCell(focus_row_, focus_col_);
  }
  emit Got_Focus();
}

// Layout

void F1Book::Follow_Shape() {
  Drop_Editor();
  const int x = horizontalScrollBar()->value();
  const int y = verticalScrollBar()->value();
  {
    const QScopedValueRollback following(following_, true);
    model_->Shape_Changed();
  }
  Show_Cursor();
  layout_->Lay_Out();
  if (told_row_ == table_.Row() && told_col_ == table_.Col()) {
    // A table that is filled again is still looked at in the same place.
    horizontalScrollBar()->setValue(x);
    verticalScrollBar()->setValue(y);
  }
  Tell_Cursor();
}

void F1Book::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    layout_->Lay_Out_Later();
  }
}

QSize F1Book::sizeHint() const { return layout_->Size_Hint(); }

void F1Book::Ask_For_Rows(int rows) { layout_->Ask_For_Rows(rows); }

void F1Book::Keep_In_Sight(int cols) { layout_->Keep_In_Sight(cols); }

void F1Book::Ask_For_All_Rows() { layout_->Ask_For_All_Rows(); }

}  // namespace barvon
