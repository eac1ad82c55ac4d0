#pragma once

#include "platform/table/spreadsheet_table.h"
#include "site/velocity_data.h"

namespace barvon {

// The tables of frmVelocity. Filling one sets its size and headings and forgets its edits.

using Two_Points = OneBased<OneBased<double, 4>, 2>;
void Fill_Point_Table(const Two_Points& points, Spreadsheet_Table& table);
Two_Points Read_Point_Table(const Spreadsheet_Table& table);

using Tidal_Rows = OneBased<OneBased<double, kDirections>, kTidalRows>;
void Fill_Tidal_Table(const Tidal_Rows& rows, Spreadsheet_Table& table);
Tidal_Rows Read_Tidal_Table(const Spreadsheet_Table& table);

void Fill_Field_Table(const Grid& field, int rows, int columns, Spreadsheet_Table& table);
Grid Read_Field_Table(const Spreadsheet_Table& table);
/// Every cell gets the velocity, as one step that can be undone.
void Fill_Field_With(double velocity, Spreadsheet_Table& table);
/// Negative cells don't count.
bool Any_Cell_Above_0(const Spreadsheet_Table& table);
bool Any_Cell_Differs(const Spreadsheet_Table& table, double velocity);

}  // namespace barvon
