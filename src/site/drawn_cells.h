#pragma once

#include <limits>
#include <vector>

#include "platform/table/spreadsheet_table.h"
#include "site/grid_rows.h"

namespace barvon {

/// What a picture takes for a cell: its number, NaN where it is empty.
inline double Drawn_Cell(const Spreadsheet_Table& table, int row, int column) {
  return table.IsEmptyRC(row, column) ? std::numeric_limits<double>::quiet_NaN()
                                      : table.NumberRC(row, column);
}

/// The same for all cells, row by row.
inline std::vector<double> Drawn_Cells(const Spreadsheet_Table& table) {
  std::vector<double> cells;
  For_Each_Cell(table,
                [&](int row, int column) { cells.push_back(Drawn_Cell(table, row, column)); });
  return cells;
}

}  // namespace barvon
