#include <QApplication>
#include <QPointer>
#include <QScopedValueRollback>

#include "platform/qt/table/book_delegate.h"
#include "platform/qt/table/spreadsheet_view.h"

namespace barvon {

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
  // A mnemonic of the screen, Alt+O for OK, leaves the focus in the cell, and so does a click on
  // a button that takes none: what is typed there must be in the table before the button acts.
  if (event->type() == QEvent::Shortcut) FinishEdit();
  if (event->type() == QEvent::MouseButtonPress && object->isWidgetType()) {
    const auto* pressed = static_cast<QWidget*>(object);
    if (pressed->window() == window() && pressed != this && !isAncestorOf(pressed)) FinishEdit();
  }
  return QTableView::eventFilter(object, event);
}

}  // namespace barvon
