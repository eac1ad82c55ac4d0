#include "site/depth_grid.h"

#include <algorithm>

#include "core/format_pattern.h"
#include "core/number_text.h"
#include "platform/ask/busy_cursor.h"
#include "platform/ask/message_box.h"
#include "site/grid_rows.h"
#include "site/open_site_boxes.h"

namespace barvon {
namespace {

constexpr char kStoredDepth[] = "##0.00";
constexpr char kOneDepth[] = "###0.00";
constexpr Field_Row kRows[] = {{.control = {"Text1"},
                                .label = "Depth (ft) to be used for Initializing the Grid",
                                .unit = "ft",
                                .pattern = kOneDepth,
                                .member = &ProjectRecord::DEPTHI,
                                .tag = "DEPTHI"}};

/// The whole part of a count; nothing, and told, when no grid has so many points.
std::optional<int> Grid_Count(const std::string& typed, const char* direction) {
  const double count = Int(Lenient_Number(typed));
  if (count >= 1 && count <= kMaxGridPoints) return static_cast<int>(count);
  Show_Message({std::string("A Depth Grid Has 1 to ") + Plain_Number(kMaxGridPoints) +
                " Points in the " + direction + "-Direction.  Please Correct the Number of Grid " +
                "Points First."});
  return std::nullopt;
}

void Fill_With(double depth, Spreadsheet_Table& table) {
  table.NumberFormat(table.TableRange(), kOneDepth);
  Fill_Grid(depth, table);
}

bool Is_Everywhere(double depth, const Spreadsheet_Table& table) {
  return !Any_Cell(table, [depth](double cell) { return cell != depth; });
}

void Save_Initial_Depth(const Depth_Grid_Entry& entry, ProjectRecord& record) {
  if (!entry.Check3D2) {
    record.DEPTHI = 0;
    return;
  }
  const double depth = entry.Text1.Number();
  if (depth > 0) record.DEPTHI = depth;
  if (depth == 0) Show_Critical("Depth Cannot Be Initialized to Zero");
}

}  // namespace

Field_Table Depth_Grid_Fields() { return kRows; }

std::optional<Depth_Grid_Size> Ask_Depth_Grid_Size(const ProjectRecord& record) {
  const Site_Boxes boxes = Open_Site_Boxes(record);
  const auto columns = Grid_Count(boxes.z_points, "Z");
  if (!columns) return std::nullopt;
  const auto rows = Grid_Count(boxes.x_points, "X");
  if (!rows) return std::nullopt;
  return Depth_Grid_Size{*columns, *rows};
}

void ShowDepthGrid(const Depth_Grid_Size& size, bool Check3D2, const ProjectRecord& record,
                   Spreadsheet_Table& F1Book1) {
  const Busy_Cursor cursor;
  const Table_Fill fill(F1Book1);
  Lay_Out_Grid(size.rows, size.columns, F1Book1);
  if (Check3D2 && record.DEPTHI != 0) {
    Fill_With(record.DEPTHI, F1Book1);
    return;
  }
  F1Book1.NumberFormat(F1Book1.TableRange(), kStoredDepth);
  For_Each_Cell(F1Book1, [&](int row, int column) {
    F1Book1.NumberRC(row, column, record.DepthGrid[column][row]);
  });
}

void Initialize_Depth_Grid(double InitialDepth, bool Check3D2, Spreadsheet_Table& F1Book1) {
  if (!Check3D2 || !(InitialDepth > 0)) return;
  const Busy_Cursor cursor;
  const Table_Fill fill(F1Book1);
  const Edit_Step step(F1Book1);
  Fill_With(InitialDepth, F1Book1);
}

void SaveDepthGrid(const Depth_Grid_Entry& entry, const Spreadsheet_Table& F1Book1,
                   ProjectRecord& record) {
  record.DataSaved = kFalse;
  Save_Initial_Depth(entry, record);
  const Busy_Cursor cursor;
  For_Each_Cell(F1Book1, [&](int row, int column) {
    if (row > kMaxGridPoints || column > kMaxGridPoints) return;
    record.DepthGrid[column][row] = F1Book1.NumberRC(row, column);
  });
}

double MaxGridDepth(const ProjectRecord& record) {
  // The table stores by column and row, and here the count of rows runs over the columns. On a
  // grid that is not square this looks at cells beside the table and misses some of its own; what
  // users answer to the questions on the profile's last depth rests on it.
  double greatest = 0;
  for (int i = 1; i <= std::min<int>(record.MMAX0, kMaxGridPoints); ++i) {
    for (int j = 1; j <= std::min<int>(record.NMAX0, kMaxGridPoints); ++j) {
      greatest = std::max(greatest, record.DepthGrid[i][j]);
    }
  }
  return greatest;
}

std::string Depth_Grid_Remark(const Depth_Grid_Entry& entry, const Spreadsheet_Table& F1Book1) {
  std::string remark;
  const double depth = entry.Text1.Number();
  if (entry.Check3D2 && depth > 0 && !Is_Everywhere(depth, F1Book1)) {
    remark = "While the box is checked, the next opening shows " + Format_Number(depth, kOneDepth) +
             " ft in every cell, not these depths.";
  }
  if (F1Book1.MaxCol() == F1Book1.MaxRow()) return remark;
  if (!remark.empty()) remark += "\n";
  return remark +
         "The solver takes \"Col a\", \"Row b\" as X point a and Z point b. This grid is " +
         "not square, so some of these depths never reach it.";
}

}  // namespace barvon
