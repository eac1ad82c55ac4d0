#pragma once

#include <cstddef>
#include <limits>
#include <variant>
#include <vector>

#include "platform/table/spreadsheet_table.h"
#include "site/grid_rows.h"

namespace barvon {

/// What a picture takes for a cell: its number, NaN where it is empty.
inline double Drawn_Cell(const Spreadsheet_Table& table, int row, int column) {
  // Looked up once: a picture follows each key with all cells of its table.
  const Cell_Value& value = table.ValueRC(row, column);
  if (const auto* number = std::get_if<double>(&value)) return *number;
  return std::holds_alternative<std::monostate>(value) ? std::numeric_limits<double>::quiet_NaN()
                                                       : table.NumberRC(row, column);
}

/// The same for all cells, row by row.
inline std::vector<double> Drawn_Cells(const Spreadsheet_Table& table) {
  std::vector<double> cells;
  cells.reserve(static_cast<std::size_t>(table.MaxRow()) *
                static_cast<std::size_t>(table.MaxCol()));
  For_Each_Cell(table,
                [&](int row, int column) { cells.push_back(Drawn_Cell(table, row, column)); });
  return cells;
}

/// What has become of a range, in the cells that were drawn of the table before: one that is typed
/// into a large table asks for that one alone.
inline void Follow_Cells(const Spreadsheet_Table& table, const Cell_Range& range,
                         std::vector<double>& cells) {
  const auto shared = Shared(range, {1, 1, table.MaxRow(), table.MaxCol()});
  if (!shared) return;
  for (int row = shared->row1; row <= shared->row2; ++row) {
    for (int column = shared->col1; column <= shared->col2; ++column) {
      const int index = (row - 1) * table.MaxCol() + column - 1;
      cells[static_cast<std::size_t>(index)] = Drawn_Cell(table, row, column);
    }
  }
}

}  // namespace barvon
