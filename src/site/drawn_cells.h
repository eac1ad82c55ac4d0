#pragma once

#include <limits>
#include <vector>

#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// What a picture takes for a cell: its number, NaN where it is empty.
inline double Drawn_Cell(const Spreadsheet_Table& table, int row, int column) {
  return table.IsEmptyRC(row, column) ? std::numeric_limits<double>::quiet_NaN()
                                      : table.NumberRC(row, column);
}

/// The same for all cells, row by row.
inline std::vector<double> Drawn_Cells(const Spreadsheet_Table& table) {
  std::vector<double> cells;
  for (int row = 1; row <= table.MaxRow(); ++row) {
    for (int column = 1; column <= table.MaxCol(); ++column) {
      cells.push_back(Drawn_Cell(table, row, column));
    }
  }
  return cells;
}

}  // namespace barvon
