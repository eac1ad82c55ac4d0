#include "dilution/dilution_rows.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <type_traits>
#include <vector>

#include "platform/ask/message_box.h"

namespace barvon {
namespace {

/// For every row from 1 on the one that it was; 0 for a new one.
using Row_Order = OneBased<int, kMaxDilutionRows>;

std::size_t At(int row) { return static_cast<std::size_t>(row); }

Row_Order Same_Order() {
  Row_Order order{};
  std::iota(order.begin(), order.end(), 0);
  return order;
}

template <class Array>
void Arrange(Array& values, const Row_Order& order) {
  const Array former = values;
  for (std::size_t row = 1; row < values.size(); ++row) {
    const int from = order[row];
    values[row] = from == 0 ? typename std::decay_t<Array>::value_type{} : former[At(from)];
  }
}

void Arrange_Table(Spreadsheet_Table& table, const Row_Order& order) {
  const Table_Fill fill(table);
  for (int col = 1; col <= kLastColumn; ++col) {
    OneBased<Cell_Value, kMaxDilutionRows> cells;
    for (int row = 1; row <= kMaxDilutionRows; ++row) cells[At(row)] = table.ValueRC(row, col);
    Arrange(cells, order);
    for (int row = 1; row <= kMaxDilutionRows; ++row) table.ValueRC(row, col, cells[At(row)]);
  }
  table.ForgetEdits();
}

void Arrange_Record(ProjectRecord& record, const Row_Order& order) {
  Arrange(record.DiluteParameterNames, order);
  Arrange(record.DiluteBulk, order);
  Arrange(record.DiluteElutriate, order);
  Arrange(record.DiluteCriteria, order);
  Arrange(record.DiluteBackground, order);
  Arrange(record.DiluteBulkWaterConc, order);
  Arrange(record.DiluteBulkDilution, order);
  Arrange(record.DiluteElutDilution, order);
  Arrange(record.DiluteBulkRemark, order);
  Arrange(record.DiluteElutRemark, order);
  int count = 0;
  for (int row = 1; row <= kMaxDilutionRows; ++row) {
    if (order[At(row)] > 0 && order[At(row)] <= record.DiluteRowCount) count = row;
  }
  record.DiluteRowCount = static_cast<std::int16_t>(count);
}

void Arrange_Rows(const Row_Order& order, Dilution_Grids& grids, ProjectRecord& record) {
  for (const Dilution_Tab tab : kTabs) {
    Arrange_Table(grids(tab), order);
    Arrange(grids.computed[tab], order);
    std::set<int> by_name;
    for (int row = 1; row <= kMaxDilutionRows; ++row) {
      if (grids.by_name[tab].contains(order[At(row)])) by_name.insert(row);
    }
    grids.by_name[tab] = by_name;
  }
  Arrange_Record(record, order);
}

bool Last_Rows_Are_Empty(int count, const Dilution_Grids& grids, const ProjectRecord& record) {
  const int last = kMaxDilutionRows - count;
  for (int row = last + 1; row <= kMaxDilutionRows; ++row) {
    for (const Spreadsheet_Table* table : grids.tables) {
      for (int col = 1; col <= kLastColumn; ++col) {
        if (!table->IsEmptyRC(row, col)) return false;
      }
    }
  }
  return record.DiluteRowCount <= last;
}

}  // namespace

bool Insert_Dilute_Rows(const Cell_Range& range, Dilution_Grids& grids, ProjectRecord& record) {
  const int count = range.rows();
  if (!Last_Rows_Are_Empty(count, grids, record)) {
    Show_Message(
        {"The Table Has 500 Rows.  Nothing Was Inserted, Since the Last Rows Would Be Lost."});
    return false;
  }
  Row_Order order = Same_Order();
  std::fill_n(order.begin() + range.row1, count, 0);
  for (int row = range.row2 + 1; row <= kMaxDilutionRows; ++row) order[At(row)] = row - count;
  Arrange_Rows(order, grids, record);
  return true;
}

void Delete_Dilute_Rows(const Cell_Range& range, Dilution_Grids& grids, ProjectRecord& record) {
  Row_Order order = Same_Order();
  for (int row = range.row1; row <= kMaxDilutionRows; ++row) {
    const int from = row + range.rows();
    order[At(row)] = from <= kMaxDilutionRows ? from : 0;
  }
  Arrange_Rows(order, grids, record);
}

bool Move_Dilute_Rows(const Cell_Range& range, bool up, Dilution_Grids& grids,
                      ProjectRecord& record) {
  if (up ? range.row1 <= 1 : range.row2 >= kMaxDilutionRows) return false;
  Row_Order order = Same_Order();
  const auto first = order.begin() + range.row1, behind = order.begin() + range.row2 + 1;
  if (up) {
    std::rotate(first - 1, first, behind);
  } else {
    std::rotate(first, behind, behind + 1);
  }
  Arrange_Rows(order, grids, record);
  return true;
}

}  // namespace barvon
