#include "platform/table/spreadsheet_edits.h"

#include "platform/text/counted.h"

namespace barvon {
namespace {

std::string Size_Text(std::size_t rows, std::size_t cols) {
  return Counted(rows, "row") + " and " + Counted(cols, "column");
}

/// Why the range can't be written to; "" when it can.
std::string Fixed_Refusal(const Spreadsheet_Table& table, const Cell_Range& range) {
  if (range.row1 > table.FixedRows()) return "";
  if (table.FixedRows() == 1) return "The first row of the table can't be changed.";
  return "The first " + std::to_string(table.FixedRows()) + " rows of the table can't be changed.";
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
      if (text == table.EntryRC(row, col)) continue;
      table.TextRC(row, col, text);
      outcome.changed = range;
    }
  }
  return outcome;
}

std::optional<Cell_Range> In_Table(const Spreadsheet_Table& table, const Cell_Range& range) {
  return Shared(range, {1, 1, table.MaxRow(), table.MaxCol()});
}

}  // namespace

bool Can_Edit(const Spreadsheet_Table& table, int row, int col) {
  return row > table.FixedRows() && In_Table(table, {row, col, row, col}).has_value();
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

Edit_Outcome Paste_Cells(Spreadsheet_Table& table, const Cell_Range& range,
                         const Text_Block& cells) {
  const std::optional<Cell_Range> target = In_Table(table, range);
  const std::size_t rows = cells.size();
  const std::size_t cols = Width_Of(cells);
  if (!target || cols == 0) return {};
  const std::string empty;
  const auto text_of = [&](int row, int col) -> const std::string& {
    const auto& texts = cells[static_cast<std::size_t>(row) % rows];
    const std::size_t at = static_cast<std::size_t>(col) % cols;
    return at < texts.size() ? texts[at] : empty;
  };
  if (static_cast<std::size_t>(target->rows()) % rows == 0 &&
      static_cast<std::size_t>(target->cols()) % cols == 0) {
    return Write(table, *target, text_of);
  }
  const auto rows_left = static_cast<std::size_t>(table.MaxRow() - target->row1) + 1;
  const auto cols_left = static_cast<std::size_t>(table.MaxCol() - target->col1) + 1;
  if (rows > rows_left || cols > cols_left) {
    return {std::nullopt, "What is to be pasted has " + Size_Text(rows, cols) +
                              ".  From the chosen cell on the table has " +
                              Size_Text(rows_left, cols_left) + ".  Nothing was pasted."};
  }
  const Cell_Range written{target->row1, target->col1, target->row1 + static_cast<int>(rows) - 1,
                           target->col1 + static_cast<int>(cols) - 1};
  return Write(table, written, text_of);
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
