#pragma once

#include "platform/table/spreadsheet_table.h"
#include "site/velocity_data.h"

namespace barvon {

// The tables of frmVelocity. Filling one sets its size and headings and forgets its edits.

void Fill_Point_Table(const Velocity_Entry& entry, Spreadsheet_Table& table);
void Read_Point_Table(const Spreadsheet_Table& table, Velocity_Entry& entry);

void Fill_Tidal_Table(const Velocity_Entry& entry, Spreadsheet_Table& table);
void Read_Tidal_Table(const Spreadsheet_Table& table, Velocity_Entry& entry);

void Fill_Field_Table(const Grid& field, int rows, int columns, Spreadsheet_Table& table);
Grid Read_Field_Table(const Spreadsheet_Table& table);
/// Every cell gets the velocity, as one step that can be undone.
void Fill_Field_With(double velocity, Spreadsheet_Table& table);
/// Negative cells don't count.
bool Any_Cell_Above_0(const Spreadsheet_Table& table);
bool Any_Cell_Differs(const Spreadsheet_Table& table, double velocity);

}  // namespace barvon
