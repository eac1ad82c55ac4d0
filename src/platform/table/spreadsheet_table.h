#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/table/cell_range.h"

namespace barvon {

/// What a cell's text is taken as.
struct Cell_Reading {
  double value = 0;    // the leading number, 0 if there is none
  bool whole = false;  // nothing but that number is there
};

/// How a table reads and shows numbers; who makes a table hands it in. Both are required.
struct Cell_Numbers {
  Cell_Reading (*read)(std::string_view text);
  /// The number in a digit pattern such as "####0.0000"; its plain text for "".
  std::string (*show)(double value, std::string_view pattern);
};

/// What a cell holds: nothing, a text as it was written, or a number at full precision.
using Cell_Value = std::variant<std::monostate, std::string, double>;

/// How a cell is shown.
struct Cell_Style {
  std::string format;  // digit pattern; "" for plain
  bool centred = false;
  std::string font;   // "" for the table's own
  int font_size = 0;  // points; 0 for the table's own
  bool operator==(const Cell_Style&) const = default;
};

/// What a table tells the one who shows it. Nobody hears of changes by the table's setters while a
/// Table_Fill lives; its end is one `shape`.
struct Table_Watcher {
  std::function<void(const Cell_Range&)> cells;  // these cells may hold or show something else
  std::function<void()> shape;                   // anything at all may have changed
  std::function<void()> headings;                // a heading, a width or a height
  std::function<void()> cursor;                  // the active cell or the selection
};

/// A spreadsheet table as plain data: cells, headings, a cursor, a selection and the history of
/// edits. Rows and columns count from 1. A property is read by its name and set by the name with
/// the new value: `MaxRow()`, `MaxRow(12)`.
///
/// The table is a window of MaxRow x MaxCol cells on a sheet of kSheetRows x kSheetCols: cells
/// outside the window can be read and written like the others, and keep what they hold when the
/// window shrinks, but are not shown. Outside the sheet a read gives the empty cell and a write
/// does nothing.
class Spreadsheet_Table {
 public:
  static constexpr int kSheetRows = 1024;
  static constexpr int kSheetCols = 256;
  static constexpr Cell_Range kSheet{1, 1, kSheetRows, kSheetCols};

  explicit Spreadsheet_Table(const Cell_Numbers& numbers) : numbers_(numbers) {}
  Spreadsheet_Table(const Spreadsheet_Table&) = delete;
  Spreadsheet_Table& operator=(const Spreadsheet_Table&) = delete;

  // Size. 1 x 1 at first; a number outside 0 to the sheet's is brought in. The cursor and the
  // selection stay inside the table when it shrinks. The history of edits is dropped with rows that
  // go and with any other number of columns: what was typed belongs to the columns as they were.
  int MaxRow() const { return max_row_; }
  void MaxRow(int rows);
  int MaxCol() const { return max_col_; }
  void MaxCol(int cols);
  /// The first rows that the user can't change; code can. 0 at first.
  int FixedRows() const { return fixed_rows_; }
  void FixedRows(int rows);
  /// The same for the first columns.
  int FixedCols() const { return fixed_cols_; }
  void FixedCols(int cols);
  /// A column that only code changes, wherever it is: what the user does to a range that holds it
  /// leaves its cells alone. None at first.
  bool IsLockedCol(int col) const { return locked_cols_.contains(col); }
  void LockCol(int col) { locked_cols_.insert(col); }

  // Cells.
  /// A number in its cell's format; a text as it was written, whatever the format; "" when empty.
  std::string TextRC(int row, int col) const;
  /// Writes the text as it stands; "" empties the cell.
  void TextRC(int row, int col, const std::string& text);
  /// A number as it was written, at full precision, however it is shown; the leading number of a
  /// text, 0 if there is none; 0 when empty.
  double NumberRC(int row, int col) const;
  void NumberRC(int row, int col, double number);
  /// What the cell shows: as TextRC, but a text that is nothing but a number is in the format too.
  std::string ShownRC(int row, int col) const;
  /// What is in the cell while it is edited, and what is copied from it: a number plain, a
  /// text as it was written.
  std::string EntryRC(int row, int col) const;
  /// A number, or a text that is nothing but a number.
  bool IsNumberRC(int row, int col) const;
  bool IsEmptyRC(int row, int col) const;
  const Cell_Value& ValueRC(int row, int col) const;
  void ValueRC(int row, int col, Cell_Value value);
  const Cell_Style& StyleRC(int row, int col) const;
  /// The points of the largest font that any cell was ever given; 0 without one.
  int LargestFont() const;

  // The cursor is the active cell. 1, 1 at first; a number outside the sheet is brought in.
  int Row() const { return row_; }
  void Row(int row) { SetActiveCell(row, col_); }
  int Col() const { return col_; }
  void Col(int col) { SetActiveCell(row_, col); }
  std::string Text() const { return TextRC(row_, col_); }
  void Text(const std::string& text) { TextRC(row_, col_, text); }
  double Number() const { return NumberRC(row_, col_); }
  void Number(double number) { NumberRC(row_, col_, number); }
  /// Moves the cursor, which becomes the whole selection.
  void SetActiveCell(int row, int col);

  // Selection: one range, cut to the sheet. The cursor goes to its first cell unless it is in it.
  /// The range text, "A1:B3"; "C2" for one cell.
  std::string Selection() const { return Range_Text(selection_); }
  /// False, and nothing changes, when the text is no range.
  bool Selection(std::string_view range);
  const Cell_Range& SelectedRange() const { return selection_; }
  void SelectRange(const Cell_Range& range);
  void SelectAll() { SelectRange(TableRange()); }
  /// All cells of the table; the first cell when it has none.
  Cell_Range TableRange() const;

  // How cells are shown. The setters work on the selection; the readers on the active cell.
  std::string NumberFormat() const { return StyleRC(row_, col_).format; }
  void NumberFormat(const std::string& pattern);
  bool Centred() const { return StyleRC(row_, col_).centred; }
  void Centred(bool centred);
  void Font(const std::string& name, int points);
  /// The same for any range, which leaves the selection alone.
  void NumberFormat(const Cell_Range& range, const std::string& pattern);
  void Centred(const Cell_Range& range, bool centred);
  void Font(const Cell_Range& range, const std::string& name, int points);

  // Headings. Without a text of its own a row is headed by its number, a column by its letters.
  // Headings outside the table are kept as cells are. A line break parts the lines of a heading.
  std::string RowText(int row) const;
  void RowText(int row, const std::string& text);
  std::string ColText(int col) const;
  void ColText(int col, const std::string& text);

  // Widths are in 1/256 of a digit's width, heights in twips (1/1440 inch). 0 is what fits the
  // headings; a heading is never cut, so nothing gets narrower or lower than that.
  static constexpr int kAutoWidth = -1;
  /// kAutoWidth: what fits headings and, up to 60 digits, cells, anew whenever they change.
  int ColWidth(int col) const;
  void ColWidth(int col, int width);
  /// Every column gets that width, those that a later MaxCol adds too.
  void ColWidths(int width);
  /// Every column takes the width of what is in it.
  void AutoColWidth() { ColWidths(kAutoWidth); }
  int RowHeadingWidth() const { return row_heading_width_; }
  void RowHeadingWidth(int width);
  int ColHeadingHeight() const { return col_heading_height_; }
  void ColHeadingHeight(int twips);

  // Whole ranges. Clearing leaves formats as they are.
  void ClearAll();  // every cell of the sheet; the history of edits is dropped
  void ClearRange(const Cell_Range& range);
  // A shift moves cells with their formats, those outside the table too; what is pushed off the
  // sheet is gone. When it spans all rows of the table, the columns' headings and widths move with
  // it; when it spans all columns, the rows' headings. The history of edits is dropped.
  void DeleteShiftUp(const Cell_Range& range);
  void DeleteShiftLeft(const Cell_Range& range);
  void InsertShiftRight(const Cell_Range& range);
  void InsertShiftDown(const Cell_Range& range);

  // History of edits. What is written inside an Edit_Step can be undone as one; other writes leave
  // the history as it is, and an undo puts back only the cells of its step. The last 100 steps are
  // kept.
  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  /// Puts back what the cells of the last step held before it. The cells, or nothing when there
  /// was no step.
  std::optional<Cell_Range> Undo() { return Swap_Step(undo_, redo_); }
  std::optional<Cell_Range> Redo() { return Swap_Step(redo_, undo_); }
  void ForgetEdits();

  void Watch(Table_Watcher watcher) { watcher_ = std::move(watcher); }

 private:
  friend class Table_Fill;
  friend class Edit_Step;

  struct Cell {
    Cell_Value value;
    std::uint16_t style = 0;  // index into styles_
  };
  struct Saved_Cell {
    int row, col;
    Cell_Value value;
  };
  using Step = std::vector<Saved_Cell>;

  static std::size_t Index(int number) { return static_cast<std::size_t>(number - 1); }
  const Cell& At(int row, int col) const;
  Cell& Reach(int row, int col);
  template <class Change>
  void Restyle(const Cell_Range& range, Change change);
  void Resize(int& count, int new_count);
  void Shift_Rows(const Cell_Range& range, int by);
  void Shift_Cols(const Cell_Range& range, int by);
  std::optional<Cell_Range> Swap_Step(std::vector<Step>& from, std::vector<Step>& to);
  void End_Step();

  void Tell_Cells(const Cell_Range& range);
  void Tell_Shape();
  void Tell_Headings();
  void Tell_Cursor();

  Cell_Numbers numbers_;
  int max_row_ = 1, max_col_ = 1, fixed_rows_ = 0, fixed_cols_ = 0;
  std::set<int> locked_cols_;
  int row_ = 1, col_ = 1;
  Cell_Range selection_;
  std::vector<std::vector<Cell>> rows_;  // as far as something was written, from index 0
  std::vector<Cell_Style> styles_{Cell_Style{}};
  std::map<int, std::string> row_texts_, col_texts_;  // those that are not the default
  std::map<int, int> col_widths_;                     // those that differ from all_widths_
  int all_widths_ = 0;
  int row_heading_width_ = 0, col_heading_height_ = 0;
  std::vector<Step> undo_, redo_;
  Step step_;                            // of the open step: what was written, in order
  std::optional<Cell_Range> step_told_;  // and where, told at its end
  int open_steps_ = 0;
  int fills_ = 0;
  Table_Watcher watcher_;
};

/// While it lives the table is filled: its watcher hears of nothing, and of one change of shape at
/// the end. Fills may be inside each other.
class Table_Fill {
 public:
  explicit Table_Fill(Spreadsheet_Table& table);
  ~Table_Fill();
  Table_Fill(const Table_Fill&) = delete;
  Table_Fill& operator=(const Table_Fill&) = delete;

 private:
  Spreadsheet_Table& table_;
};

/// While it lives, what is written into cells is one step of the history, for a command that a
/// person must be able to undo. A step that changes nothing is none. Steps may be inside each
/// other; the outermost counts.
class Edit_Step {
 public:
  explicit Edit_Step(Spreadsheet_Table& table);
  ~Edit_Step();
  Edit_Step(const Edit_Step&) = delete;
  Edit_Step& operator=(const Edit_Step&) = delete;

 private:
  Spreadsheet_Table& table_;
};

}  // namespace barvon
