#include "core/record_columns.h"

#include <cmath>
#include <limits>

#include "core/number_text.h"

namespace barvon {
namespace {

/// The same number, or the end of the range of T that it is beyond. No number is 0.
template <class T>
T Within(double value) {
  using Limits = std::numeric_limits<T>;
  if (std::isnan(value)) return 0;
  return static_cast<T>(
      std::clamp(value, static_cast<double>(Limits::lowest()), static_cast<double>(Limits::max())));
}

}  // namespace

Cell_Value Cell_Of(double value) { return value; }
Cell_Value Cell_Of(float value) { return Widen(value); }
Cell_Value Cell_Of(std::int16_t value) { return static_cast<double>(value); }
Cell_Value Cell_Of(const std::string& value) {
  return value.empty() ? Cell_Value() : Cell_Value(value);
}

void Store_Cell(const Table_Cell& cell, double& value) {
  value = cell.table.NumberRC(cell.row, cell.col);
}
void Store_Cell(const Table_Cell& cell, float& value) {
  value = Within<float>(cell.table.NumberRC(cell.row, cell.col));
}
void Store_Cell(const Table_Cell& cell, std::int16_t& value) {
  value = Within<std::int16_t>(Round_Half_Even(cell.table.NumberRC(cell.row, cell.col)));
}
void Store_Cell(const Table_Cell& cell, std::string& value) {
  value = cell.table.TextRC(cell.row, cell.col);
}

void Number_Rows(const std::string& text, int count, Spreadsheet_Table& table) {
  for (int row = 1; row <= count; ++row) table.RowText(row, text + std::to_string(row));
}

void Number_Columns(const std::string& text, int count, Spreadsheet_Table& table) {
  for (int col = 1; col <= count; ++col) table.ColText(col, text + std::to_string(col));
}

}  // namespace barvon
