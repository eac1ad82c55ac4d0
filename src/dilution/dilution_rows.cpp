#include "dilution/dilution_rows.h"

#include <algorithm>

#include "dilution/dilution_grid.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

std::size_t At(int row) { return static_cast<std::size_t>(row); }

void Arrange_Table(Spreadsheet_Table& table, const Row_Order& order) {
  const Table_Fill fill(table);
  for (int col = 1; col <= kLastColumn; ++col) {
    OneBased<Cell_Value, kMaxDilutionRows> cells;
    for (int row = 1; row <= kMaxDilutionRows; ++row) cells[At(row)] = table.ValueRC(row, col);
    Arrange(cells, order);
    for (int row = 1; row <= kMaxDilutionRows; ++row) table.ValueRC(row, col, cells[At(row)]);
  }
  // The pattern of a file's numbers stays with no cell: another value may be in it now.
  table.NumberFormat(kDiluteCells, {});
  table.ForgetEdits();
}

void Arrange_Rows(const Row_Order& order, Dilution_Grids& grids) {
  for (const Dilution_Tab tab : kTabs) {
    Arrange_Table(grids(tab), order);
    Arrange(grids.computed[tab], order);
    Arrange(grids.notes[tab], order);
    for (Kept_Concentration& kept : grids.kept[tab]) kept.row = 0;
    for (Concentration_Note& note : grids.notes[tab]) note.lent_by = 0;
  }
}

bool Holds_Anything(const Cell_Range& rows, const Dilution_Grids& grids) {
  for (int row = rows.row1; row <= rows.row2; ++row) {
    for (const Spreadsheet_Table* table : grids.tables) {
      for (int col = 1; col <= kLastColumn; ++col) {
        if (!table->IsEmptyRC(row, col)) return true;
      }
    }
  }
  return false;
}

}  // namespace

bool Insert_Dilute_Rows(const Cell_Range& range, Dilution_Grids& grids) {
  const int count = range.rows();
  if (Holds_Anything({kMaxDilutionRows - count + 1, 1, kMaxDilutionRows, kLastColumn}, grids)) {
    Show_Message(
        {"The Table Has 500 Rows.  Nothing Was Inserted, Since the Last Rows Would Be Lost."});
    return false;
  }
  Row_Order order = Same_Order();
  std::fill_n(order.begin() + range.row1, count, 0);
  for (int row = range.row2 + 1; row <= kMaxDilutionRows; ++row) order[At(row)] = row - count;
  Arrange_Rows(order, grids);
  return true;
}

bool Delete_Dilute_Rows(const Cell_Range& range, Dilution_Grids& grids) {
  if (range.rows() > 1 && Holds_Anything(range, grids) &&
      Ask("Deleted Rows Can't Be Brought Back.  Do You Wish to Delete All Chosen Rows?",
          Buttons::YesNo, Icon::Warning) != Answer::Yes) {
    return false;
  }
  Row_Order order = Same_Order();
  for (int row = range.row1; row <= kMaxDilutionRows; ++row) {
    const int from = row + range.rows();
    order[At(row)] = from <= kMaxDilutionRows ? from : 0;
  }
  Arrange_Rows(order, grids);
  return true;
}

bool Move_Dilute_Rows(const Cell_Range& range, bool up, Dilution_Grids& grids) {
  if (up ? range.row1 <= 1 : range.row2 >= kMaxDilutionRows) return false;
  Row_Order order = Same_Order();
  const auto first = order.begin() + range.row1, behind = order.begin() + range.row2 + 1;
  if (up) {
    std::rotate(first - 1, first, behind);
  } else {
    std::rotate(first, behind, behind + 1);
  }
  Arrange_Rows(order, grids);
  return true;
}

}  // namespace barvon
