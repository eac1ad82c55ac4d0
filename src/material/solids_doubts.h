#pragma once

#include <string>

#include "core/project_record.h"
#include "material/solids_table.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

// What OK stores otherwise than it looks, in lines for the user. Nothing is changed.

/// Numbers of the range that are read as other numbers. The cells are called by the row's heading,
/// or by `row_name` and its number, and by the column's.
std::string Number_Doubts(const Spreadsheet_Table& table, const Cell_Range& range,
                          const std::string& row_name = {}, int rows_above = 0);

/// The same for the rows of the project, with names that the files can't keep and fractions that
/// are lost, for want of a name or below an empty row.
std::string Solids_Doubts(Solids_Layout layout, const Spreadsheet_Table& table);

/// With separation, the volumetric fractions that were typed before their column went: OK does not
/// store them.
std::string Volume_Doubts(const Solids_State& state, const Spreadsheet_Table& table,
                          const ProjectRecord& record);

/// Whether OK may go on: nothing is doubtful, or the user has seen it.
bool Accept_Doubts(const std::string& doubts);

}  // namespace barvon
