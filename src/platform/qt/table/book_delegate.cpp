#include "platform/qt/table/book_delegate.h"

#include <QKeyEvent>

#include "platform/qt/table/book_model.h"

namespace barvon {

Book_Move Move_Of(const QKeyEvent& key) {
  const bool shift = key.modifiers() & Qt::ShiftModifier;
  const bool control = key.modifiers() & Qt::ControlModifier;
  if (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return Book_Move::None;
  switch (key.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab: {
      const bool back = shift || key.key() == Qt::Key_Backtab;
      if (control) return back ? Book_Move::Out_Back : Book_Move::Out;
      return back ? Book_Move::Previous : Book_Move::Next;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return control ? Book_Move::None : shift ? Book_Move::Up : Book_Move::Down;
    default:
      return Book_Move::None;
  }
}

namespace {

/// The move of an arrow key out of the cell that is edited.
Book_Move Arrow_Move(const QKeyEvent& key, bool by_typing) {
  if (key.modifiers() & ~Qt::KeypadModifier) return Book_Move::None;
  switch (key.key()) {
    case Qt::Key_Up:
      return Book_Move::Up;
    case Qt::Key_Down:
      return Book_Move::Down;
    case Qt::Key_Left:
      return by_typing ? Book_Move::Left : Book_Move::None;
    case Qt::Key_Right:
      return by_typing ? Book_Move::Right : Book_Move::None;
    default:
      return Book_Move::None;
  }
}

}  // namespace

Book_Delegate::Book_Delegate(const Book_Model& model, QObject* parent)
    : QStyledItemDelegate(parent),
      model_(model),
      mark_(QStringLiteral(":/pictures/reads-as.svg")) {}

QWidget* Book_Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const {
  auto* editor = new QLineEdit(parent);
  editor->setFrame(false);
  editor->setAccessibleName(index.data(Qt::AccessibleDescriptionRole).toString());
  editor->setFont(index.data(Qt::FontRole).value<QFont>());
  if (Number_Note note = model_.Note_Of(index.column() + 1)) {
    // Nothing typed yet is nothing to remark on.
    Make_Number_Field(editor, [note](const std::string& typed) {
      return typed.empty() ? std::string() : note(typed);
    });
  }
  editor->setValidator(new Encoding_Validator(editor, letters_));
  editor_ = editor;
  return editor;
}

void Book_Delegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  // It is gone only some events later.
  if (editor == editor_) editor_ = nullptr;
  QStyledItemDelegate::destroyEditor(editor, index);
}

void Book_Delegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  // A cell that changes under the editor leaves alone what the user is typing.
  auto* line = static_cast<QLineEdit*>(editor);
  if (!line->isModified()) line->setText(index.data(Qt::EditRole).toString());
}

void Book_Delegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
  model->setData(index, static_cast<QLineEdit*>(editor)->text(), Qt::EditRole);
}

void Book_Delegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (model_.NumberNoteOf(index.row() + 1, index.column() + 1).isEmpty()) return;
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->icon = mark_;
  option->decorationPosition = QStyleOptionViewItem::Right;
  const int side = option->fontMetrics.height();
  option->decorationSize = QSize(side, side);
}

bool Book_Delegate::eventFilter(QObject* object, QEvent* event) {
  if (object == editor_ && event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    Book_Move move = Move_Of(key);
    if (move == Book_Move::None) move = Arrow_Move(key, by_typing_);
    if (move != Book_Move::None) {
      emit Leave(move);
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(object, event);
}

}  // namespace barvon
