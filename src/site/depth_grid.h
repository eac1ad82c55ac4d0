#pragma once

#include <optional>
#include <string>

#include "core/field_table.h"
#include "core/project_record.h"
#include "core/typed_number.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// The size of the depth grid's table, both from 1 to kMaxGridPoints.
struct Depth_Grid_Size {
  int columns = 0;  // points in Z
  int rows = 0;     // points in X
};

/// The size that the open site screen asks for, the whole parts of its counts. Nothing when the
/// grid can't hold it: the user has been told then.
std::optional<Depth_Grid_Size> Ask_Depth_Grid_Size(const ProjectRecord& record);

/// The table of frmGridDescrip: in Text1 the one depth. SaveDepthGrid reads it.
Field_Table Depth_Grid_Fields();

/// What frmGridDescrip holds beside its table.
struct Depth_Grid_Entry {
  bool Check3D2 = false;  // initialize the grid to a constant
  Typed_Number Text1;     // the depth (ft) for it
};

/// Lays out the table for that size and fills it: with DEPTHI when the grid is initialized to it,
/// otherwise with DepthGrid.
void ShowDepthGrid(const Depth_Grid_Size& size, bool Check3D2, const ProjectRecord& record,
                   Spreadsheet_Table& F1Book1);

/// Fills every cell with the depth (ft), which can be undone; nothing unless the depth is above 0
/// and the box is checked.
void Initialize_Depth_Grid(double InitialDepth, bool Check3D2, Spreadsheet_Table& F1Book1);

/// Writes the table and DEPTHI to the record. A depth of 0 to initialize to is told, and leaves
/// DEPTHI as it was; the table is stored all the same.
void SaveDepthGrid(const Depth_Grid_Entry& entry, const Spreadsheet_Table& F1Book1,
                   ProjectRecord& record);

/// The largest depth (ft), 0 when none is above it. See the source on which cells it looks at.
double MaxGridDepth(const ProjectRecord& record);

/// What is not to be seen in the table: that the next opening would show one depth instead, and
/// that a table that is not square does not reach the solver as a whole. "" for neither.
std::string Depth_Grid_Remark(const Depth_Grid_Entry& entry, const Spreadsheet_Table& F1Book1);

}  // namespace barvon
