#include "platform/table/spreadsheet_edits.h"

#include <utility>

#include "platform/text/counted.h"

namespace barvon {
namespace {

std::string Size_Text(std::size_t rows, std::size_t cols) {
  return Counted(rows, "row") + " and " + Counted(cols, "column");
}

/// Why the range can't be written to; "" when it can.
std::string Fixed_Refusal(const Spreadsheet_Table& table, const Cell_Range& range) {
  if (range.row1 <= table.FixedRows()) {
    if (table.FixedRows() == 1) return "The first row of the table can't be changed.";
    return "The first " + std::to_string(table.FixedRows()) +
           " rows of the table can't be changed.";
  }
  if (range.col1 <= table.FixedCols()) {
    if (table.FixedCols() == 1) return "The first column of the table can't be changed.";
    return "The first " + std::to_string(table.FixedCols()) +
           " columns of the table can't be changed.";
  }
  if (range.cols() == 1 && table.IsLockedCol(range.col1)) {
    return "This column of the table can't be changed.";
  }
  return "";
}

/// Writes a text into every cell of the range; `text_of` gets row and column within it.
template <class Text_Of>
Edit_Outcome Write(Spreadsheet_Table& table, const Cell_Range& range, Text_Of text_of) {
  Edit_Outcome outcome;
  outcome.refusal = Fixed_Refusal(table, range);
  if (!outcome.refusal.empty()) return outcome;
  const Edit_Step step(table);
  for (int row = range.row1; row <= range.row2; ++row) {
    for (int col = range.col1; col <= range.col2; ++col) {
      const std::string& text = text_of(row - range.row1, col - range.col1);
      if (table.IsLockedCol(col) || text == table.EntryRC(row, col)) continue;
      table.TextRC(row, col, text);
      outcome.changed = range;
    }
  }
  return outcome;
}

std::optional<Cell_Range> In_Table(const Spreadsheet_Table& table, const Cell_Range& range) {
  return Shared(range, {1, 1, table.MaxRow(), table.MaxCol()});
}

/// The cells that a paste would write, or why it can't be done.
Edit_Outcome Paste_Target(const Spreadsheet_Table& table, const Cell_Range& range,
                          const Text_Block& cells) {
  const std::optional<Cell_Range> selected = In_Table(table, range);
  const std::size_t rows = cells.size();
  const std::size_t cols = Width_Of(cells);
  if (!selected || cols == 0) return {};
  if (std::string refusal = Fixed_Refusal(table, *selected); !refusal.empty()) {
    return {std::nullopt, std::move(refusal)};
  }
  if (static_cast<std::size_t>(selected->rows()) % rows == 0 &&
      static_cast<std::size_t>(selected->cols()) % cols == 0) {
    return {selected, ""};
  }
  const auto rows_left = static_cast<std::size_t>(table.MaxRow() - selected->row1) + 1;
  const auto cols_left = static_cast<std::size_t>(table.MaxCol() - selected->col1) + 1;
  if (rows > rows_left || cols > cols_left) {
    return {std::nullopt, "What is to be pasted has " + Size_Text(rows, cols) +
                              ".  From the chosen cell on the table has " +
                              Size_Text(rows_left, cols_left) + ".  Nothing was pasted."};
  }
  return {Cell_Range{selected->row1, selected->col1, selected->row1 + static_cast<int>(rows) - 1,
                     selected->col1 + static_cast<int>(cols) - 1},
          ""};
}

}  // namespace

bool Can_Edit(const Spreadsheet_Table& table, int row, int col) {
  return row > table.FixedRows() && col > table.FixedCols() && !table.IsLockedCol(col) &&
         In_Table(table, {row, col, row, col}).has_value();
}

Edit_Outcome Type_Cell(Spreadsheet_Table& table, int row, int col, const std::string& text) {
  const Cell_Range cell{row, col, row, col};
  if (!In_Table(table, cell)) return {};
  return Write(table, cell, [&](int, int) -> const std::string& { return text; });
}

Edit_Outcome Clear_Cells(Spreadsheet_Table& table, const Cell_Range& range) {
  const std::optional<Cell_Range> cells = In_Table(table, range);
  if (!cells) return {};
  return Write(table, *cells, [](int, int) { return std::string(); });
}

std::string Paste_Refusal(const Spreadsheet_Table& table, const Cell_Range& range,
                          const Text_Block& cells) {
  return Paste_Target(table, range, cells).refusal;
}

Edit_Outcome Paste_Cells(Spreadsheet_Table& table, const Cell_Range& range,
                         const Text_Block& cells) {
  Edit_Outcome target = Paste_Target(table, range, cells);
  if (!target.changed) return target;
  const std::size_t rows = cells.size();
  const std::size_t cols = Width_Of(cells);
  const std::string empty;
  return Write(table, *target.changed, [&](int row, int col) -> const std::string& {
    const auto& texts = cells[static_cast<std::size_t>(row) % rows];
    const std::size_t at = static_cast<std::size_t>(col) % cols;
    return at < texts.size() ? texts[at] : empty;
  });
}

Text_Block Copied_Cells(const Spreadsheet_Table& table, const Cell_Range& range) {
  Text_Block copied;
  const std::optional<Cell_Range> cells = In_Table(table, range);
  if (!cells) return copied;
  for (int row = cells->row1; row <= cells->row2; ++row) {
    copied.emplace_back();
    for (int col = cells->col1; col <= cells->col2; ++col) {
      copied.back().push_back(table.EntryRC(row, col));
    }
  }
  return copied;
}

}  // namespace barvon
