#include "site/grid_rows.h"

#include "core/record_columns.h"

namespace barvon {
namespace {

constexpr int kRowHeadingWidth = 2000;

}  // namespace

void Lay_Out_Grid(int rows, int columns, Spreadsheet_Table& table) {
  table.MaxRow(rows);
  table.MaxCol(columns);
  table.RowHeadingWidth(kRowHeadingWidth);
  Number_Rows("Row ", rows, table);
  Number_Columns("Col ", columns, table);
}

void Fill_Grid(double number, Spreadsheet_Table& table) {
  For_Each_Cell(table, [&](int row, int column) { table.NumberRC(row, column, number); });
}

bool Any_Cell(const Spreadsheet_Table& table, const std::function<bool(double)>& is_one) {
  bool any = false;
  For_Each_Cell(table,
                [&](int row, int column) { any = any || is_one(table.NumberRC(row, column)); });
  return any;
}

Grid_Rows Rows_Of_Table(const Spreadsheet_Table& table) {
  Grid_Rows rows(static_cast<std::size_t>(table.MaxRow()));
  For_Each_Cell(table, [&](int row, int column) {
    rows[static_cast<std::size_t>(row) - 1].push_back(table.NumberRC(row, column));
  });
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
