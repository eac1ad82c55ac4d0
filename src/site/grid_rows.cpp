#include "site/grid_rows.h"

namespace barvon {

Grid_Rows Rows_Of_Table(const Spreadsheet_Table& table) {
  Grid_Rows rows;
  for (int row = 1; row <= table.MaxRow(); ++row) {
    std::vector<double>& cells = rows.emplace_back();
    for (int column = 1; column <= table.MaxCol(); ++column) {
      cells.push_back(table.NumberRC(row, column));
    }
  }
  return rows;
}

void Put_Rows(const Grid_Rows& rows, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  const Edit_Step step(table);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < rows[row].size(); ++column) {
      table.NumberRC(static_cast<int>(row) + 1, static_cast<int>(column) + 1, rows[row][column]);
    }
  }
}

}  // namespace barvon
