#include "platform/table/filled_block.h"

namespace barvon {

Cell_Place Block_Edge(const Spreadsheet_Table& table, Cell_Place from, Cell_Way way) {
  const Cell_Range cells{1, 1, table.MaxRow(), table.MaxCol()};
  const auto next = [&](Cell_Place at) { return Cell_Place{at.row + way.rows, at.col + way.cols}; };
  const auto is_in = [&](Cell_Place at) { return cells.Holds(at.row, at.col); };
  const auto is_filled = [&](Cell_Place at) {
    return is_in(at) && !table.IsEmptyRC(at.row, at.col);
  };
  if (way.rows == 0 && way.cols == 0) return from;
  Cell_Place at = from;
  if (is_filled(at) && is_filled(next(at))) {
    while (is_filled(next(at))) at = next(at);
    return at;
  }
  while (is_in(next(at))) {
    at = next(at);
    if (is_filled(at)) return at;
  }
  return at;
}

}  // namespace barvon
