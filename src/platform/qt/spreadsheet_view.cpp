#include "platform/qt/spreadsheet_view.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "platform/message_box.h"
#include "platform/qt/book_delegate.h"
#include "platform/qt/book_model.h"
#include "platform/qt/encoding_validator.h"

namespace barvon {
namespace {

constexpr int kLargestHintWidth = 640;
constexpr int kLargestHintHeight = 360;
constexpr int kDefaultDigits = 9;

/// The clipboard's cells, without what the files' encoding does not hold.
Text_Block Clipboard_Cells() {
  Text_Block cells = Read_Tab_Text(QApplication::clipboard()->text().toStdString());
  const Encoding_Validator validator;
  for (auto& row : cells) {
    for (std::string& cell : row) {
      QString text = QString::fromStdString(cell);
      int position = 0;
      validator.validate(text, position);
      cell = text.toStdString();
    }
  }
  return cells;
}

}  // namespace

F1Book::F1Book(const Cell_Numbers& numbers, QWidget* parent)
    : QTableView(parent),
      table_(numbers),
      model_(new Book_Model(table_, this)),
      delegate_(new Book_Delegate(*model_, this)) {
  setSelectionMode(ContiguousSelection);
  setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setWordWrap(false);
  setAccessibleDescription(tr("Ctrl+Tab leaves the table"));
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setItemDelegate(delegate_);
  setModel(model_);
  table_.Watch({[this](const Cell_Range& range) {
                  model_->Cells_Changed(range);
                  Lay_Out_Later();
                },
                [this] { Follow_Shape(); },
                [this] {
                  model_->Headings_Changed();
                  Lay_Out_Later();
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
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int col, int, int width) {
    if (!laying_out_) dragged_widths_[col + 1] = width;
  });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    // Another window that takes it gives it back.
    if (now != nullptr && now->window() == window()) {
      has_focus_ = now == this || isAncestorOf(now);
    }
  });
  Show_Cursor();
  Lay_Out();
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

QString F1Book::NumberNoteOf(int row, int col) const { return model_->NumberNoteOf(row, col); }

// Commands

struct F1Book::Command {
  const char* name;
  const char* caption;
  QList<QKeySequence> keys;
  void (F1Book::*run)();
  bool (*possible)(const Spreadsheet_Table&);
};

const std::vector<F1Book::Command>& F1Book::Commands() {
  static const auto always = [](const Spreadsheet_Table& table) {
    return table.MaxRow() > 0 && table.MaxCol() > 0;
  };
  static const auto editable = [](const Spreadsheet_Table& table) {
    return Can_Edit(table, table.SelectedRange().row1, table.SelectedRange().col1);
  };
  static const std::vector<Command> commands = {
      {"Undo",
       "&Undo",
       {Qt::CTRL | Qt::Key_Z},
       &F1Book::Undo,
       [](const Spreadsheet_Table& table) { return table.CanUndo(); }},
      {"Redo",
       "&Redo",
       {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
       &F1Book::Redo,
       [](const Spreadsheet_Table& table) { return table.CanRedo(); }},
      {"Cut", "Cu&t", QKeySequence::keyBindings(QKeySequence::Cut), &F1Book::Cut, editable},
      {"Copy", "&Copy", QKeySequence::keyBindings(QKeySequence::Copy), &F1Book::Copy, always},
      {"Paste", "&Paste", QKeySequence::keyBindings(QKeySequence::Paste), &F1Book::Paste, editable},
      {"Clear", "C&lear", {Qt::Key_Delete, Qt::Key_Backspace}, &F1Book::Clear, editable},
      {"Select_All", "Select &All", QKeySequence::keyBindings(QKeySequence::SelectAll),
       &F1Book::selectAll, always},
  };
  return commands;
}

const F1Book::Command* F1Book::Command_Of(const QKeyEvent& key) {
  const QKeySequence pressed(key.keyCombination());
  for (const Command& command : Commands()) {
    if (command.keys.contains(pressed)) return &command;
  }
  return nullptr;
}

void F1Book::Cut() {
  const Text_Block cells = Copied_Cells(table_, table_.SelectedRange());
  const Edit_Outcome outcome = Clear_Cells(table_, table_.SelectedRange());
  if (outcome.refusal.empty() && !cells.empty()) {
    QApplication::clipboard()->setText(QString::fromStdString(Write_Tab_Text(cells)));
  }
  Finish(outcome);
}

void F1Book::Copy() {
  const Text_Block cells = Copied_Cells(table_, table_.SelectedRange());
  if (cells.empty()) return;
  QApplication::clipboard()->setText(QString::fromStdString(Write_Tab_Text(cells)));
}

void F1Book::Paste() {
  if (QApplication::clipboard()->text().isEmpty()) return;
  const Edit_Outcome outcome = Paste_Cells(table_, table_.SelectedRange(), Clipboard_Cells());
  if (outcome.changed) table_.SelectRange(*outcome.changed);
  Finish(outcome);
}

void F1Book::Clear() { Finish(Clear_Cells(table_, table_.SelectedRange())); }

void F1Book::Undo() {
  const std::optional<Cell_Range> changed = table_.Undo();
  if (changed) table_.SelectRange(*changed);
  Finish({changed, ""});
}

void F1Book::Redo() {
  const std::optional<Cell_Range> changed = table_.Redo();
  if (changed) table_.SelectRange(*changed);
  Finish({changed, ""});
}

void F1Book::Finish(const Edit_Outcome& outcome) {
  if (!outcome.refusal.empty()) Show_Message({outcome.refusal});
  if (!outcome.changed) return;
  edit_ = outcome.changed;
  Tell_Edit();
}

void F1Book::Tell_Edit() {
  const std::optional<Cell_Range> edit = std::exchange(edit_, std::nullopt);
  if (edit) emit Edited(edit->row1, edit->col1, edit->row2, edit->col2);
}

void F1Book::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const Command& command : Commands()) {
    QAction* action = menu->addAction(tr(command.caption), this, command.run);
    action->setObjectName(QLatin1String(command.name));
    action->setShortcuts(command.keys);
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(command.possible(table_));
    if (command.run == &F1Book::Redo || command.run == &F1Book::Clear) menu->addSeparator();
  }
  const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
  menu->popup(by_mouse ? event->globalPos()
                       : viewport()->mapToGlobal(visualRect(currentIndex()).center()));
}

// Cursor and selection

void F1Book::Show_Cursor() {
  if (following_) return;
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

void F1Book::Move(Book_Move move) {
  const int row = table_.Row();
  const int col = table_.Col();
  const bool empty = table_.MaxRow() == 0 || table_.MaxCol() == 0;
  const auto step = [&](int rows, int cols) {
    table_.SetActiveCell(std::clamp(row + rows, 1, std::max(table_.MaxRow(), 1)),
                         std::clamp(col + cols, 1, std::max(table_.MaxCol(), 1)));
  };
  switch (move) {
    case Book_Move::Up:
      return step(-1, 0);
    case Book_Move::Down:
      return step(1, 0);
    case Book_Move::Left:
      return step(0, -1);
    case Book_Move::Right:
      return step(0, 1);
    case Book_Move::Next:
      if (!empty && col < table_.MaxCol()) return step(0, 1);
      if (!empty && row < table_.MaxRow()) return table_.SetActiveCell(row + 1, 1);
      QTableView::focusNextPrevChild(true);
      return;
    case Book_Move::Previous:
      if (col > 1) return step(0, -1);
      if (row > 1) return table_.SetActiveCell(row - 1, table_.MaxCol());
      QTableView::focusNextPrevChild(false);
      return;
    case Book_Move::Out:
    case Book_Move::Out_Back:
      QTableView::focusNextPrevChild(move == Book_Move::Out);
      return;
    case Book_Move::None:
      return;
  }
}

bool F1Book::focusNextPrevChild(bool next) {
  Move(next ? Book_Move::Next : Book_Move::Previous);
  return true;
}

void F1Book::keyPressEvent(QKeyEvent* event) {
  if (const Command* command = Command_Of(*event)) {
    (this->*command->run)();
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
      Command_Of(*static_cast<QKeyEvent*>(event)) != nullptr) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void F1Book::focusInEvent(QFocusEvent* event) {
  const bool is_new = !has_focus_;
  QTableView::focusInEvent(event);
  if (!is_new) return;
  if (focus_row_ > 0 && event->reason() != Qt::MouseFocusReason) {
    table_.SetActiveCell(focus_row_, focus_col_);
  }
  emit Got_Focus();
}

void F1Book::hideEvent(QHideEvent* event) {
  has_focus_ = false;
  QTableView::hideEvent(event);
}

// Editing

bool F1Book::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  delegate_->Start_By_Typing(trigger == AnyKeyPressed);
  const bool was_editing = state() == EditingState;
  if (!QTableView::edit(index, trigger, event)) return false;
  if (state() == EditingState && !was_editing && delegate_->editor() != nullptr) {
    qApp->installEventFilter(this);
    if (trigger != AnyKeyPressed) delegate_->editor()->end(false);
  }
  return true;
}

void F1Book::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  qApp->removeEventFilter(this);
  QTableView::closeEditor(editor, hint);
  if (!leaving_editor_) Tell_Edit();
}

void F1Book::Leave_Editor(Book_Move move) {
  {
    const QScopedValueRollback leaving(leaving_editor_, true);
    if (QPointer<QLineEdit> editor = delegate_->editor()) {
      commitData(editor);
      if (editor) closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
  }
  Move(move);
  Tell_Edit();
}

void F1Book::Drop_Editor() {
  // Closed while its cell is still known, or the focus would go to whatever comes next.
  if (state() == EditingState && delegate_->editor() != nullptr) {
    closeEditor(delegate_->editor(), QAbstractItemDelegate::RevertModelCache);
  }
}

void F1Book::FinishEdit() {
  if (state() == EditingState) Leave_Editor(Book_Move::None);
}

bool F1Book::eventFilter(QObject* object, QEvent* event) {
  // A mnemonic of the screen, Alt+O for OK, leaves the focus in the cell: what is typed there must
  // be in the table before the button acts.
  if (event->type() == QEvent::Shortcut) FinishEdit();
  return QTableView::eventFilter(object, event);
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
  Lay_Out();
  horizontalScrollBar()->setValue(x);
  verticalScrollBar()->setValue(y);
  Tell_Cursor();
}

void F1Book::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled()) has_focus_ = false;
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Lay_Out_Later();
}

void F1Book::Lay_Out_Later() {
  if (std::exchange(layout_due_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (layout_due_) Lay_Out();
      },
      Qt::QueuedConnection);
}

void F1Book::Lay_Out() {
  layout_due_ = false;
  const QScopedValueRollback laying_out(laying_out_, true);
  const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
  verticalHeader()->setMinimumWidth(table_.RowHeadingWidth() * digit / 256);
  verticalHeader()->setDefaultSectionSize(Row_Pixels());
  horizontalHeader()->setMinimumHeight(table_.ColHeadingHeight() * logicalDpiY() / 1440);
  for (int col = 1; col <= table_.MaxCol(); ++col) {
    const auto dragged = dragged_widths_.find(col);
    setColumnWidth(col - 1,
                   dragged == dragged_widths_.end() ? Column_Pixels(col) : dragged->second);
  }
  updateGeometry();
}

int F1Book::Row_Pixels() const {
  QFont font = this->font();
  if (table_.LargestFont() > font.pointSize()) font.setPointSize(table_.LargestFont());
  const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameVMargin) + 2);
  return std::max(verticalHeader()->minimumSectionSize(), QFontMetrics(font).height() + margins);
}

int F1Book::Column_Pixels(int col) const {
  const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
  const int heading = horizontalHeader()->sectionSizeHint(col - 1);
  const int width = table_.ColWidth(col);
  if (width == Spreadsheet_Table::kAutoWidth) return std::max(heading, sizeHintForColumn(col - 1));
  if (width == 0) return std::max(heading, kDefaultDigits * digit);
  return std::max(heading, width * digit / 256);
}

QSize F1Book::sizeHint() const {
  const int width = verticalHeader()->sizeHint().width() + horizontalHeader()->length();
  const int height = horizontalHeader()->sizeHint().height() + verticalHeader()->length();
  // A table that scrolls in one direction must not do so in the other for the bar's sake.
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const QSize frame(2 * frameWidth(), 2 * frameWidth());
  return QSize(std::min(width + (height > kLargestHintHeight ? bar : 0), kLargestHintWidth),
               std::min(height + (width > kLargestHintWidth ? bar : 0), kLargestHintHeight)) +
         frame;
}

}  // namespace barvon
