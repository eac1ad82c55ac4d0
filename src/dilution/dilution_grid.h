#pragma once

#include <optional>

#include "dilution/dilution_tables.h"

namespace barvon {

inline constexpr char kNameMissing[] =
    "A Parameter's Name Is Missing.  The First Row Without a Name Ends the List.";

/// Headings, widths and size of a tab's table.
void Define_Dilute_Grid(Dilution_Tab tab, Spreadsheet_Table& table);

/// The rows above the first one without a name.
int Dilute_Rows(const Spreadsheet_Table& table);
/// Whether anything that would be read is in the row; in any row below the list.
bool Row_Is_Filled(const Spreadsheet_Table& table, int row);
bool Holds_Rows_Below_List(const Spreadsheet_Table& table);

/// The list of a tab's table becomes the record's, with DiluteRowCount its length. Without a name
/// in the first row only the length does. What rows were inserted, deleted and moved before is done
/// in the record first.
void Read_Dilute_Grid(Dilution_Tab tab, Dilution_Grids& grids, ProjectRecord& record);

/// Shows the record's list in both tables, or initializes it when its first name is empty and no
/// cell holds anything. A cell that reads as its value is left as it was typed. With the tab that
/// was just read, its criteria and background go across as they were typed. A concentration of the
/// other tab that was never read stays, and no 0 takes the place of what was never read; where its
/// row has got another name, it is put aside.
void Fill_Dilute_Grids(Dilution_Grids& grids, ProjectRecord& record,
                       std::optional<Dilution_Tab> read = std::nullopt);

/// The dilution data and both tables to their defaults; the row count and the remarks stay.
void Initalize_Dilute_Info(Dilution_Grids& grids, ProjectRecord& record);
/// The part of it that concerns the tables.
void Clear_Dilute_Grids(Dilution_Grids& grids);

/// After a file has been read: a list of one or more leaves nothing behind its end.
void Show_Read_List(Dilution_Grids& grids, ProjectRecord& record);

/// The results of the list, as text.
void Show_Dilutions(const Dilution_Grids& grids, const ProjectRecord& record);

/// A tab is left: its list is read and shown in the other one. When there is no list although a
/// cell holds something, the user is told and the record stays as it is.
void Leave_Dilute_Tab(Dilution_Tab left, Dilution_Grids& grids, ProjectRecord& record);

/// The user has changed cells of a tab: rows that were emptied go in both tables, except for what
/// the other tab holds without having been in the list.
void Follow_Dilute_Edit(Dilution_Tab tab, const Cell_Range& range, Dilution_Grids& grids);

/// Whether reading the tab would change the record, or can't take all that is in it.
bool Holds_Untaken_Values(Dilution_Tab tab, const Dilution_Grids& grids,
                          const ProjectRecord& record);

}  // namespace barvon
