#pragma once

#include "platform/table/spreadsheet_table.h"

namespace barvon {

struct Cell_Place {
  int row = 1, col = 1;
  bool operator==(const Cell_Place&) const = default;
};

/// One cell on: a row or a column, up or left below 0.
struct Cell_Way {
  int rows = 0, cols = 0;
  bool operator==(const Cell_Way&) const = default;
};

/// Where Ctrl and an arrow lead from a cell of the table: to the last filled cell of the block that
/// goes on that way; from its end and from an empty cell to the next filled one; to the edge of the
/// table where none follows.
Cell_Place Block_Edge(const Spreadsheet_Table& table, Cell_Place from, Cell_Way way);

}  // namespace barvon
