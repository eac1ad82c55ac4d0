#include "platform/qt/spreadsheet_view.h"

#include <QHeaderView>

#include "platform/qt/book_model.h"

namespace barvon {

F1Book::F1Book(const Cell_Numbers& numbers, QWidget* parent)
    : QTableView(parent), table_(numbers), model_(new Book_Model(table_, this)) {
  setModel(model_);
  table_.Watch({[this](const Cell_Range& range) { model_->Cells_Changed(range); },
                [this] { model_->Shape_Changed(); },
                [this] { model_->Headings_Changed(); },
                {}});
  connect(model_, &Book_Model::Typed, this, [this](const Cell_Range& cell) {
    emit Edited(cell.row1, cell.col1, cell.row2, cell.col2);
  });
}

F1Book::~F1Book() { table_.Watch({}); }

void F1Book::SetFocusCell(int, int) {}
void F1Book::SetNumberNote(Number_Note note) { model_->SetNumberNote(std::move(note)); }
void F1Book::SetNumberNote(int col, Number_Note note) {
  model_->SetNumberNote(col, std::move(note));
}
QString F1Book::NumberNoteOf(int row, int col) const { return model_->NumberNoteOf(row, col); }
void F1Book::Cut() {}
void F1Book::Copy() {}
void F1Book::Paste() {}
void F1Book::Clear() {}
void F1Book::Undo() {}
void F1Book::Redo() {}

}  // namespace barvon
