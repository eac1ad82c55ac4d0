#include <QKeyEvent>
#include <algorithm>

#include "platform/qt/table/book_delegate.h"
#include "platform/qt/table/book_model.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "platform/table/filled_block.h"

namespace barvon {
namespace {

bool Is_Arrow(int key) {
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

}  // namespace

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

QModelIndex F1Book::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  Cell_Way way;
  switch (action) {
    case MoveUp:
      way = {-1, 0};
      break;
    case MoveDown:
      way = {1, 0};
      break;
    case MoveLeft:
      way = {0, -1};
      break;
    case MoveRight:
      way = {0, 1};
      break;
    default:
      break;
  }
  const QModelIndex current = currentIndex();
  if (!(modifiers & Qt::ControlModifier) || way == Cell_Way{} || !current.isValid()) {
    return QTableView::moveCursor(action, modifiers);
  }
  const Cell_Place edge = Block_Edge(table_, {current.row() + 1, current.column() + 1}, way);
  return model_->index(edge.row - 1, edge.col - 1);
}

QItemSelectionModel::SelectionFlags F1Book::selectionCommand(const QModelIndex& index,
                                                             const QEvent* event) const {
  // The toolkit's own gives up selecting when Ctrl is down too, as in Ctrl+Shift+End.
  if (event != nullptr && event->type() == QEvent::KeyPress) {
    const auto held = static_cast<const QKeyEvent*>(event)->modifiers();
    if (held.testFlags(Qt::ControlModifier | Qt::ShiftModifier)) {
      return QItemSelectionModel::SelectCurrent;
    }
    // Nor does it take Ctrl and an arrow for a move of the selection.
    if (held.testFlag(Qt::ControlModifier) &&
        Is_Arrow(static_cast<const QKeyEvent*>(event)->key())) {
      return QItemSelectionModel::ClearAndSelect;
    }
  }
  return QTableView::selectionCommand(index, event);
}

}  // namespace barvon
