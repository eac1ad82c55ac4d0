#pragma once

#include <optional>
#include <string>

#include "platform/table/spreadsheet_table.h"
#include "platform/table/tab_text.h"

namespace barvon {

/// What came of something that the user did to a table. Either all of it was done, as one step of
/// the history, or nothing.
struct Edit_Outcome {
  std::optional<Cell_Range> changed;  // nothing when all cells hold what they held
  std::string refusal;                // words for the user; "" when it was done
};

/// Whether the user may write into the cell: it is in the table, in no fixed row and in no locked
/// column.
bool Can_Edit(const Spreadsheet_Table& table, int row, int col);

/// The cell takes the text as it was typed.
Edit_Outcome Type_Cell(Spreadsheet_Table& table, int row, int col, const std::string& text);

/// Empties the cells of the range that are in the table.
Edit_Outcome Clear_Cells(Spreadsheet_Table& table, const Cell_Range& range);

/// Writes the cells from the first cell of the range on, beyond the range too. A range that takes
/// them some times over, in rows and in columns, is filled with them; a single cell fills any.
Edit_Outcome Paste_Cells(Spreadsheet_Table& table, const Cell_Range& range,
                         const Text_Block& cells);

/// Why Paste_Cells would refuse; "" when it would not.
std::string Paste_Refusal(const Spreadsheet_Table& table, const Cell_Range& range,
                          const Text_Block& cells);

/// What is copied from the cells of the range that are in the table: numbers plain, at full
/// precision as far as 15 digits go, texts as they were written.
Text_Block Copied_Cells(const Spreadsheet_Table& table, const Cell_Range& range);

}  // namespace barvon
