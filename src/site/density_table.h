#pragma once

#include "core/project_record.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// The density table of frmDescription: depth (ft) and density (g/cc) by row, or depth, salinity
/// (ppt), temperature (deg C) and density where the density is computed.

/// Columns, headings, widths and formats.
void Lay_Out_Density_Table(bool computed, Spreadsheet_Table& F1Book1);

/// Fills rows 1 to `rows` from the record, at most as many as it has points.
void Fill_Density_Table(const ProjectRecord& record, int rows, bool computed,
                        Spreadsheet_Table& F1Book1);

/// Writes a row of the table to the record's point of that number, at most kMaxDensityPoints.
void Store_Density_Row(const Spreadsheet_Table& F1Book1, int row, bool computed,
                       ProjectRecord& record);

/// "Compute Density": the density of every row from its salinity and temperature. The table shows
/// four decimals, and the record takes what it shows. False, and told, when there are more rows
/// than points or a row's water has no density; nothing is changed then.
bool Compute_Density_Table(Spreadsheet_Table& F1Book1, ProjectRecord& record);

/// Tells that the water of a row has no density.
void Tell_No_Density(int row);

}  // namespace barvon
