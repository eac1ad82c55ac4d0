#pragma once

#include <QTableView>
#include <optional>

#include "platform/qt/number_field.h"
#include "platform/spreadsheet_table.h"

namespace barvon {

class Book_Model;

/// F1Book: a spreadsheet table on a screen. What is read and written is its `table()`; the widget
/// shows it and follows its changes, whoever makes them.
///
///     F1Book* F1Book1 = Named(new F1Book(kBookNumbers, this), "F1Book1");
///     ControlArray<F1Book> F1Book2{this, "F1Book2", 2, 0, kBookNumbers};
///     {
///       Table_Fill fill(F1Book1->table());  // one repaint, not one for each cell
///       F1Book1->table().MaxRow(96);
///       ...
///     }
///     connect(F1Book1, &F1Book::Edited, this, &frmVelocity::F1Book1_EndEdit);
///
/// Keys: typing replaces a cell, F2 edits it, Return goes down, Tab to the right and, like
/// Shift+Tab, out of the table at its last and first cell; Ctrl+Tab leaves it from anywhere.
/// Ctrl+C, X, V, Delete, Ctrl+A, Ctrl+Z, Ctrl+Y and Ctrl+Shift+Z are as everywhere, and in the
/// context menu. Cells go to and come from the clipboard as tab-separated text.
class F1Book : public QTableView {
  Q_OBJECT

 public:
  explicit F1Book(const Cell_Numbers& numbers, QWidget* parent = nullptr);
  /// The order in which a ControlArray makes its controls.
  F1Book(QWidget* parent, const Cell_Numbers& numbers) : F1Book(numbers, parent) {}
  ~F1Book() override;

  Spreadsheet_Table& table() { return table_; }
  const Spreadsheet_Table& table() const { return table_; }

  /// The cell that becomes the active one when the table gets the focus: by a key, a mnemonic or
  /// from code. A click ends on the cell that was clicked, and neither the end of typing in a cell
  /// nor a return from a menu, a message box or another window is a new focus. Row 0: the active
  /// cell stays where it is, which is how it starts.
  void SetFocusCell(int row, int col = 1);

  /// Marks cells whose text is read as another number; the note's kind for all columns, or for
  /// one. Empty cells and fixed rows have no mark. None at first; an empty function takes it away.
  void SetNumberNote(Number_Note note);
  void SetNumberNote(int col, Number_Note note);
  /// What the cell's mark says now; "" while it has none.
  QString NumberNoteOf(int row, int col) const;

  // The commands of the menu and the keys, as the user's own.
  void Cut();
  void Copy();
  void Paste();
  void Clear();
  void Undo();
  void Redo();

 signals:
  /// The user has changed these cells: by typing, which ends when the cell is left, by a cut, a
  /// paste, a clearing, an undo or a redo. Once for each, after the change. What code writes is no
  /// edit.
  void Edited(int row, int col, int last_row, int last_col);
  /// The table got the focus, in the sense of SetFocusCell, or by a click; the active cell is
  /// where it belongs by then.
  void Got_Focus();
  /// The active cell or the selection is another, whoever moved it.
  void Cursor_Moved(int row, int col);

 private:
  Spreadsheet_Table table_;
  Book_Model* model_;
};

}  // namespace barvon
