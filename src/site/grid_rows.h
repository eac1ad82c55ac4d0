#pragma once

#include "platform/table/spreadsheet_table.h"
#include "site/grid_csv.h"

namespace barvon {

/// All cells of a table, row by row; an empty one is 0.
Grid_Rows Rows_Of_Table(const Spreadsheet_Table& table);
/// Writes rows into a table that has room for them, as one step that can be undone.
void Put_Rows(const Grid_Rows& rows, Spreadsheet_Table& table);

}  // namespace barvon
