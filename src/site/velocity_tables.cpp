#include "site/velocity_tables.h"

#include "core/number_text.h"
#include "core/record_columns.h"
#include "site/grid_rows.h"

namespace barvon {
namespace {

using Column = Table_Column<Velocity_Entry>;

constexpr int kPointHeadingWidth = 2800;
constexpr Column kPointColumns[] = {{"X-Depth", 0, "", kCells<&Velocity_Entry::F1Book1, 1>},
                                    {"X-Velocity", 0, "", kCells<&Velocity_Entry::F1Book1, 2>},
                                    {"Z-Depth", 0, "", kCells<&Velocity_Entry::F1Book1, 3>},
                                    {"Z-Velocity", 0, "", kCells<&Velocity_Entry::F1Book1, 4>}};

constexpr int kTidalHeadingWidth = 4500;
constexpr int kTidalHeadingHeight = 550;
constexpr Column kTidalColumns[] = {
    {"X-Velocity\n(Fps)", 0, "", kCells<&Velocity_Entry::F1Book3, 1>},
    {"Z-Velocity\n(Fps)", 0, "", kCells<&Velocity_Entry::F1Book3, 2>}};

/// Size, headings and cells.
void Fill(const Shown_Columns<Velocity_Entry>& columns, const Velocity_Entry& entry,
          Spreadsheet_Table& table) {
  table.MaxRow(columns.Entries());
  columns.Lay_Out(1, columns.Entries(), table);
  columns.Fill(entry, columns.Entries(), table);
  table.ForgetEdits();
}

}  // namespace

void Fill_Point_Table(const Velocity_Entry& entry, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  Fill(Shown_Columns(kPointColumns), entry, table);
  table.RowHeadingWidth(kPointHeadingWidth);
  Number_Rows("Point ", table.MaxRow(), table);
}

void Read_Point_Table(const Spreadsheet_Table& table, Velocity_Entry& entry) {
  Shown_Columns(kPointColumns).Store(table, table.MaxRow(), entry);
}

void Fill_Tidal_Table(const Velocity_Entry& entry, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  Fill(Shown_Columns(kTidalColumns), entry, table);
  table.ColHeadingHeight(kTidalHeadingHeight);
  table.RowHeadingWidth(kTidalHeadingWidth);
  for (int row = 1; row <= kTidalRows; ++row) {
    const double hour = (row - 1) * double{kPatternStep};
    table.RowText(row, "Point " + std::to_string(row) + " (t=" + Plain_Number(hour) + " Hrs)");
  }
}

void Read_Tidal_Table(const Spreadsheet_Table& table, Velocity_Entry& entry) {
  Shown_Columns(kTidalColumns).Store(table, table.MaxRow(), entry);
}

void Fill_Field_Table(const Grid& field, int rows, int columns, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  Lay_Out_Grid(rows, columns, table);
  For_Each_Cell(table, [&](int row, int column) {
    table.NumberRC(row, column,
                   field[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
  });
  table.ForgetEdits();
}

Grid Read_Field_Table(const Spreadsheet_Table& table) {
  Grid field{};
  For_Each_Cell(table, [&](int row, int column) {
    if (row > kMaxGridPoints || column > kMaxGridPoints) return;
    field[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] =
        table.NumberRC(row, column);
  });
  return field;
}

void Fill_Field_With(double velocity, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  const Edit_Step step(table);
  Fill_Grid(velocity, table);
}

bool Any_Cell_Above_0(const Spreadsheet_Table& table) {
  return Any_Cell(table, [](double cell) { return cell > 0; });
}

bool Any_Cell_Differs(const Spreadsheet_Table& table, double velocity) {
  return Any_Cell(table, [velocity](double cell) { return cell != velocity; });
}

}  // namespace barvon
