#pragma once

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
/// in the first row only the length does. Of the other tab's concentrations each row gets what was
/// taken for it last, and results go with their rows.
void Read_Dilute_Grid(Dilution_Tab tab, Dilution_Grids& grids, ProjectRecord& record);
/// The same for both concentrations.
void Read_Both_Grids(Dilution_Tab front, Dilution_Grids& grids, ProjectRecord& record);

/// Shows the record's list in both tables; with nothing in any row of it, it is initialized when no
/// cell holds anything. A cell that reads as its value is left as it was typed.
void Fill_Dilute_Grids(Dilution_Grids& grids, ProjectRecord& record);

/// The dilution data and both tables to their defaults; the row count and the remarks stay.
void Initalize_Dilute_Info(Dilution_Grids& grids, ProjectRecord& record);
/// The part of it that concerns the tables.
void Clear_Dilute_Grids(Dilution_Grids& grids);

/// After a file has been read: a list of one or more leaves nothing behind its end.
void Show_Read_List(Dilution_Grids& grids, ProjectRecord& record);

std::string Result_Text(double dilution);
/// The results of the list, as text.
void Show_Dilutions(const Dilution_Grids& grids, const ProjectRecord& record);

/// A tab is left: the list is read with both concentrations, since the tab that comes may hold
/// some that were entered before they had a name. When there is no list although a cell holds
/// something, the user is told and the record stays as it is.
void Leave_Dilute_Tab(Dilution_Tab left, Dilution_Grids& grids, ProjectRecord& record);

/// Whether reading the tab would change the record, or can't take all that is in it.
bool Holds_Untaken_Values(Dilution_Tab tab, const Dilution_Grids& grids,
                          const ProjectRecord& record);

}  // namespace barvon
