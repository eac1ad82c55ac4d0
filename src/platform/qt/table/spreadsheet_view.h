#pragma once

#include <QTableView>
#include <functional>
#include <optional>

#include "platform/qt/fields/number_field.h"
#include "platform/table/cell_look.h"
#include "platform/table/spreadsheet_edits.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

class Book_Delegate;
class Book_Layout;
class Book_Model;
class Focus_Entry;
enum class Book_Command;
enum class Book_Move;

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
/// Keys: typing replaces a cell, F2 edits it, Return goes down and stays in the last row, Tab goes
/// through the rows to the right. In the last cell Tab leads out of the table, as Shift+Tab does in
/// the first; Ctrl+Tab and Ctrl+Shift+Tab lead out from anywhere. Ctrl and an arrow go to the edge
/// of the filled block, and with Shift select as far. Ctrl+X, C, V, A, Delete, Ctrl+Z,
/// Ctrl+Y and Ctrl+Shift+Z are what they are everywhere, and are in the context menu. Cells go to
/// and come from the clipboard as tab-separated text. Actions that a screen adds are in the menu
/// too.
class F1Book : public QTableView {
  Q_OBJECT

 public:
  explicit F1Book(const Cell_Numbers& numbers, QWidget* parent = nullptr);
  /// The order in which a ControlArray makes its controls.
  F1Book(QWidget* parent, const Cell_Numbers& numbers) : F1Book(numbers, parent) {}
  ~F1Book() override;

  Spreadsheet_Table& table() { return table_; }
  const Spreadsheet_Table& table() const { return table_; }

  /// The cell that becomes the active one whenever the table gets the focus: by a key, a mnemonic
  /// or from code. A click ends on the cell that was clicked, and neither the end of typing in a
  /// cell nor a return from a menu, a message box or another window is a new focus. Row 0: the
  /// active cell stays where it is, which is how it starts.
  void SetFocusCell(int row, int col = 1);

  /// Marks cells whose text is read as another number; the note's kind for all columns, or for
  /// one. Empty cells, numbers that code wrote and fixed rows have no mark. None at first; an
  /// empty function takes it away.
  void SetNumberNote(Number_Note note);
  void SetNumberNote(int col, Number_Note note);
  /// What the cell's mark says now; "" while it has none.
  QString NumberNoteOf(int row, int col) const;

  /// Cells take letters that the files' encoding does not hold, which are left out otherwise. For
  /// whoever says what becomes of them.
  void KeepAnyLetters();

  /// Asked whenever a cell is shown: what it says may hang on other cells. Of the number note and a
  /// tip the cell shows both. An empty function takes it away.
  void SetCellLook(std::function<Cell_Look(int row, int col)> look);

  // The commands of the menu and the keys, as the user's own: a refusal is told in a message box.
  void Cut();
  void Copy();
  void Paste();
  void Clear();
  void Undo();
  void Redo();
  /// Ends the typing in a cell as leaving it would. It happens by itself when the focus goes, when
  /// a mnemonic or anything outside the table is pressed, and before a command of an Input_Screen.
  void FinishEdit();

  /// Room for a small table as a whole; a large one scrolls.
  QSize sizeHint() const override;
  /// For a table whose number of rows changes on the screen: it asks for room for that many, so
  /// that nothing moves when they come.
  void Ask_For_Rows(int rows);
  /// For a table that is the screen's main matter: it asks for room for all its rows, and the
  /// display is the limit.
  void Ask_For_All_Rows();
  /// For a table whose first columns must be read together: it is never narrower than they are.
  void Keep_In_Sight(int cols);
  void keyboardSearch(const QString&) override {}

 signals:
  /// The user has changed these cells: by typing, which ends when the cell is left, by a cut, a
  /// paste, a clearing, an undo or a redo. Once for each, when the change is made and the cursor
  /// is where it goes. Neither what code writes is an edit, nor what leaves all cells as they
  /// were.
  void Edited(int row, int col, int last_row, int last_col);
  /// The table got the focus, in the sense of SetFocusCell or by a click, and the active cell is
  /// the focus cell; the cell of a click follows as Cursor_Moved.
  void Got_Focus();
  /// The active cell or the selection is another, whoever moved it.
  void Cursor_Moved(int row, int col);

 protected:
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Run(Book_Command command);
  void Finish(const Edit_Outcome& outcome);
  void Tell_Edit();

  void Follow_Shape();
  void Show_Cursor();
  void Take_Cursor();
  void Tell_Cursor();
  void Move(Book_Move move);
  void Leave_Editor(Book_Move move);
  void Drop_Editor();

  Spreadsheet_Table table_;
  Book_Model* model_;
  Book_Delegate* delegate_;
  Book_Layout* layout_;
  Focus_Entry* focus_entry_;
  int focus_row_ = 0, focus_col_ = 1;
  bool following_ = false;          // the view follows the table, or the table the view
  bool leaving_editor_ = false;     // the edit is told when the cursor has moved
  std::optional<Cell_Range> edit_;  // made, not yet told
  Cell_Range told_selection_;
  int told_row_ = 1, told_col_ = 1;
};

}  // namespace barvon
