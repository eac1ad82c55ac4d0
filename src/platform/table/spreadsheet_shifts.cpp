#include "platform/table/spreadsheet_table.h"

#include <algorithm>

namespace barvon {
namespace {

/// What is at and behind `first` moves by that many places; what is taken away is gone.
template <class Kept>
void Shift_Keys(std::map<int, Kept>& kept, int first, int by, int last) {
  std::map<int, Kept> shifted;
  for (auto& [key, value] : kept) {
    if (key >= first && by < 0 && key < first - by) continue;
    const int moved = key < first ? key : key + by;
    if (moved <= last) shifted.emplace(moved, std::move(value));
  }
  kept = std::move(shifted);
}

}  // namespace

void Spreadsheet_Table::Shift_Rows(const Cell_Range& range, int by) {
  const std::optional<Cell_Range> cells = Shared(range, kSheet);
  if (!cells) return;
  ForgetEdits();
  const int last = std::min(static_cast<int>(rows_.size()) + std::max(by, 0), kSheetRows);
  for (int col = cells->col1; col <= cells->col2; ++col) {
    const auto move_here = [&](int row, int from) {
      Cell moved = from < cells->row1 ? Cell() : At(from, col);
      Reach(row, col) = std::move(moved);
    };
    if (by < 0) {
      for (int row = cells->row1; row <= last; ++row) move_here(row, row - by);
    } else {
      for (int row = last; row >= cells->row1; --row) move_here(row, row - by);
    }
  }
  if (cells->col1 == 1 && cells->col2 >= max_col_) {
    Shift_Keys(row_texts_, cells->row1, by, kSheetRows);
  }
  Tell_Shape();
}

void Spreadsheet_Table::Shift_Cols(const Cell_Range& range, int by) {
  const std::optional<Cell_Range> cells = Shared(range, kSheet);
  if (!cells) return;
  ForgetEdits();
  const std::size_t first = Index(cells->col1);
  for (std::size_t row = Index(cells->row1); row < Index(cells->row2 + 1) && row < rows_.size();
       ++row) {
    std::vector<Cell>& line = rows_[row];
    if (first >= line.size()) continue;
    const auto at = line.begin() + static_cast<std::ptrdiff_t>(first);
    if (by < 0) {
      line.erase(at, at + std::min<std::ptrdiff_t>(-by, line.end() - at));
    } else {
      line.insert(at, static_cast<std::size_t>(by), Cell());
      line.resize(std::min(line.size(), static_cast<std::size_t>(kSheetCols)));
    }
  }
  if (cells->row1 == 1 && cells->row2 >= max_row_) {
    Shift_Keys(col_texts_, cells->col1, by, kSheetCols);
    Shift_Keys(col_widths_, cells->col1, by, kSheetCols);
  }
  Tell_Shape();
}

void Spreadsheet_Table::DeleteShiftUp(const Cell_Range& range) { Shift_Rows(range, -range.rows()); }
void Spreadsheet_Table::DeleteShiftLeft(const Cell_Range& range) {
  Shift_Cols(range, -range.cols());
}
void Spreadsheet_Table::InsertShiftRight(const Cell_Range& range) {
  Shift_Cols(range, range.cols());
}
void Spreadsheet_Table::InsertShiftDown(const Cell_Range& range) {
  Shift_Rows(range, range.rows());
}

}  // namespace barvon
