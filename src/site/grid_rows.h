#pragma once

#include <functional>

#include "platform/table/spreadsheet_table.h"
#include "site/grid_csv.h"

namespace barvon {

// Tables that show one number for every point of the grid.

/// Calls visit(row, column) for every cell of the table, row by row.
template <class Visit>
void For_Each_Cell(const Spreadsheet_Table& table, Visit visit) {
  for (int row = 1; row <= table.MaxRow(); ++row) {
    for (int column = 1; column <= table.MaxCol(); ++column) visit(row, column);
  }
}

/// Size and headings: "Row 1" and so on beside the rows, "Col 1" above the columns.
void Lay_Out_Grid(int rows, int columns, Spreadsheet_Table& table);

/// Writes the number into every cell; a step that can be undone is the caller's matter.
void Fill_Grid(double number, Spreadsheet_Table& table);

/// Whether a cell's number is such a one; an empty cell is 0.
bool Any_Cell(const Spreadsheet_Table& table, const std::function<bool(double)>& is_one);

/// All cells of a table, row by row; an empty one is 0.
Grid_Rows Rows_Of_Table(const Spreadsheet_Table& table);
/// Writes rows into a table that has room for them, as one step that can be undone.
void Put_Rows(const Grid_Rows& rows, Spreadsheet_Table& table);

}  // namespace barvon
