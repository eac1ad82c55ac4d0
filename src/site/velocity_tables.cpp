#include "site/velocity_tables.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "core/number_text.h"
#include "site/grid_rows.h"

namespace barvon {
namespace {

constexpr int kPointHeadingWidth = 2800;
constexpr int kFieldHeadingWidth = 2000;
constexpr int kTidalHeadingWidth = 4500;
constexpr int kTidalHeadingHeight = 550;

template <class Rows>
void Fill(const Rows& rows, int count, int columns, Spreadsheet_Table& table) {
  table.MaxRow(count);
  table.MaxCol(columns);
  for (int row = 1; row <= count; ++row) {
    for (int column = 1; column <= columns; ++column) {
      table.NumberRC(row, column, rows[row][column]);
    }
  }
  table.ForgetEdits();
}

template <class Rows>
Rows Read(const Spreadsheet_Table& table) {
  Rows rows{};
  const int count = std::min(table.MaxRow(), static_cast<int>(rows.size()) - 1);
  const int columns = std::min(table.MaxCol(), static_cast<int>(rows[0].size()) - 1);
  for (int row = 1; row <= count; ++row) {
    for (int column = 1; column <= columns; ++column) {
      rows[row][column] = table.NumberRC(row, column);
    }
  }
  return rows;
}

bool Any_Cell(const Spreadsheet_Table& table, const std::function<bool(double)>& is_one) {
  for (int row = 1; row <= table.MaxRow(); ++row) {
    for (int column = 1; column <= table.MaxCol(); ++column) {
      if (is_one(table.NumberRC(row, column))) return true;
    }
  }
  return false;
}

}  // namespace

void Fill_Point_Table(const Two_Points& points, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  Fill(points, 2, 4, table);
  int column = 0;
  for (const char* heading : {"X-Depth", "X-Velocity", "Z-Depth", "Z-Velocity"}) {
    table.ColText(++column, heading);
  }
  table.RowText(1, "Point 1");
  table.RowText(2, "Point 2");
  table.RowHeadingWidth(kPointHeadingWidth);
}

Two_Points Read_Point_Table(const Spreadsheet_Table& table) { return Read<Two_Points>(table); }

void Fill_Tidal_Table(const Tidal_Rows& rows, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  Fill(rows, kTidalRows, kDirections, table);
  table.ColText(1, "X-Velocity\n(Fps)");
  table.ColText(2, "Z-Velocity\n(Fps)");
  table.ColHeadingHeight(kTidalHeadingHeight);
  table.RowHeadingWidth(kTidalHeadingWidth);
  for (int row = 1; row <= kTidalRows; ++row) {
    const double hour = (row - 1) * double{kPatternStep};
    table.RowText(row, "Point " + std::to_string(row) + " (t=" + Plain_Number(hour) + " Hrs)");
  }
}

Tidal_Rows Read_Tidal_Table(const Spreadsheet_Table& table) { return Read<Tidal_Rows>(table); }

void Fill_Field_Table(const Grid& field, int rows, int columns, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  Fill(field, rows, columns, table);
  for (int column = 1; column <= columns; ++column) {
    table.ColText(column, "Col " + std::to_string(column));
  }
  for (int row = 1; row <= rows; ++row) table.RowText(row, "Row " + std::to_string(row));
  table.RowHeadingWidth(kFieldHeadingWidth);
}

Grid Read_Field_Table(const Spreadsheet_Table& table) { return Read<Grid>(table); }

void Fill_Field_With(double velocity, Spreadsheet_Table& table) {
  const auto columns = static_cast<std::size_t>(table.MaxCol());
  Put_Rows(Grid_Rows(static_cast<std::size_t>(table.MaxRow()), std::vector(columns, velocity)),
           table);
}

bool Any_Cell_Above_0(const Spreadsheet_Table& table) {
  return Any_Cell(table, [](double cell) { return cell > 0; });
}

bool Any_Cell_Differs(const Spreadsheet_Table& table, double velocity) {
  return Any_Cell(table, [velocity](double cell) { return cell != velocity; });
}

}  // namespace barvon
