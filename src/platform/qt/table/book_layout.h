#pragma once

#include <QObject>
#include <QTableView>
#include <map>

#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// Gives rows, columns and headings of a view their sizes: what the table asks for, by the font and
/// the display, but never less than the headings need. A column that the user has dragged keeps
/// its width.
class Book_Layout : public QObject {
 public:
  /// The view shows the table from the start, and owns this.
  Book_Layout(QTableView& view, const Spreadsheet_Table& table);

  void Lay_Out();
  /// The same when the events at hand are done; any number of wishes is met once.
  void Lay_Out_Later();
  /// The same when cells have changed, if any of that hangs on them: columns as wide as their
  /// contents, and rows as high as the largest letters.
  void Follow_Cells(const Cell_Range& range);
  /// Room for a small table as a whole; a large one scrolls.
  QSize Size_Hint() const;
  /// From now on the hint has room for that many rows, also while there are fewer.
  void Ask_For_Rows(int rows);
  /// From now on the hint has room for all rows, however many.
  void Ask_For_All_Rows();
  /// From now on the view is never too narrow for its first columns, as wide as the table asks.
  void Keep_In_Sight(int cols);

 private:
  int Row_Pixels() const;
  int Column_Pixels(int col) const;
  void Tell_Size();
  void Set_Least_Width();

  QTableView& view_;
  const Spreadsheet_Table& table_;
  int largest_height_;
  int asked_rows_ = 0;
  int cols_in_sight_ = 0;
  int laid_out_font_ = 0;  // points of the largest letters then
  bool due_ = false;
  bool laying_out_ = false;
  std::map<int, int> dragged_;  // pixels, by column from 1
};

}  // namespace barvon
