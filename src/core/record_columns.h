#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <tuple>
#include <vector>

#include "platform/table/spreadsheet_table.h"

namespace barvon {

// A table of values as rows of a constant table, one for each column: what it is headed, how it is
// shown, and the array whose entries its cells hold.
//
//     constexpr Table_Column<ProjectRecord> kColumns[] = {
//         {"X-Direction", Width_Of_Twips(2400), "##0.00", kCells<&ProjectRecord::LayerVelX>},
//         {"Z-Direction", Width_Of_Twips(2400), "##0.00", kCells<&ProjectRecord::LayerVelZ>}};
//     const Shown_Columns columns(kColumns);
//     columns.Lay_Out(1, kMaxLayers, F1Book1);
//     Number_Rows("Set ", kMaxLayers, F1Book1);
//     columns.Fill(record, record.NOPENS, F1Book1);
//     ...
//     columns.Store(F1Book1, record.NOPENS, record);

/// A cell that is read.
struct Table_Cell {
  const Spreadsheet_Table& table;
  int row = 0;
  int col = 0;
};

/// What a cell holds for a value: a number at full precision, a text as it is. A 32-bit number is
/// the one that its own shortest text gives.
Cell_Value Cell_Of(double value);
Cell_Value Cell_Of(float value);
Cell_Value Cell_Of(std::int16_t value);
Cell_Value Cell_Of(const std::string& value);

/// Reads a cell into a value; what is beyond the value's range becomes the end of the range, and a
/// fraction is rounded, half to even, where the value has none.
void Store_Cell(const Table_Cell& cell, double& value);
void Store_Cell(const Table_Cell& cell, float& value);
void Store_Cell(const Table_Cell& cell, std::int16_t& value);
void Store_Cell(const Table_Cell& cell, std::string& value);

/// Where the cells of a column come from and go to. A column whose cells are no plain array brings
/// its own two procedures.
template <class Owner>
struct Column_Cells {
  int entries = 0;  // 1 to entries; 0: code shows what it likes, nothing is filled or read
  Cell_Value (*get)(const Owner& owner, int entry) = nullptr;
  void (*take)(const Table_Cell& cell, int entry, Owner& owner) = nullptr;
};

template <class Member>
struct Member_Parts;
template <class Whole, class Part>
struct Member_Parts<Part Whole::*> {
  using Owner = Whole;
  using Array = Part;
};
template <auto Member>
using Owner_Of = typename Member_Parts<decltype(Member)>::Owner;

/// An entry of an array that is used from 1; with a second subscript, that entry of the entry.
template <auto Member, std::size_t Second, class Owner>
auto& Entry_Of(Owner& owner, int entry) {
  auto& found = (owner.*Member)[static_cast<std::size_t>(entry)];
  if constexpr (Second == 0) {
    return found;
  } else {
    return found[Second];
  }
}

/// The cells of an array: kCells<&ProjectRecord::LayerVolume>. With a second subscript a column of
/// an array of arrays: kCells<&ProjectRecord::LayerSolidFraction, 2> is layer 2 of every solid.
template <auto Member, std::size_t Second = 0>
inline constexpr Column_Cells<Owner_Of<Member>> kCells = {
    static_cast<int>(std::tuple_size_v<typename Member_Parts<decltype(Member)>::Array>) - 1,
    [](const Owner_Of<Member>& owner, int entry) {
      return Cell_Of(Entry_Of<Member, Second>(owner, entry));
    },
    [](const Table_Cell& cell, int entry, Owner_Of<Member>& owner) {
      Store_Cell(cell, Entry_Of<Member, Second>(owner, entry));
    }};

inline constexpr unsigned kEveryLayout = ~0U;

/// A column of a table.
template <class Owner>
struct Table_Column {
  const char* heading = "";  // a line break parts its lines
  int width = 0;             // as Spreadsheet_Table::ColWidth; Width_Of_Twips for one told in twips
  const char* pattern = "";  // the digits that are shown; the cell keeps them all
  Column_Cells<Owner> cells = {};
  unsigned shown_for = kEveryLayout;  // a bit for every layout that has the column
  bool centred = false;
};

/// The columns that a layout of a table has.
template <class Owner>
class Shown_Columns {
 public:
  using Column = Table_Column<Owner>;

  explicit Shown_Columns(std::span<const Column> columns, unsigned layout = kEveryLayout) {
    for (const Column& column : columns) {
      if ((column.shown_for & layout) != 0) shown_.push_back(&column);
    }
  }

  /// Gives the table these columns with headings and widths, and the cells of the rows from
  /// `first` to `last` their patterns and places. The table's history of edits ends: what was typed
  /// into other columns means nothing in these.
  void Lay_Out(int first, int last, Spreadsheet_Table& table) const {
    table.MaxCol(static_cast<int>(shown_.size()));
    table.ForgetEdits();
    int col = 0;
    for (const Column* column : shown_) {
      ++col;
      table.ColText(col, column->heading);
      table.ColWidth(col, column->width);
      table.NumberFormat({first, col, last, col}, column->pattern);
      table.Centred({first, col, last, col}, column->centred);
    }
  }

  /// Shows an entry in a row.
  void Fill_Row(const Owner& owner, int entry, int row, Spreadsheet_Table& table) const {
    int col = 0;
    for (const Column* column : shown_) {
      ++col;
      if (Has(*column, entry)) table.ValueRC(row, col, column->cells.get(owner, entry));
    }
  }

  /// Shows the entries from 1 to `count`, as far as there are so many, in the rows behind `above`.
  void Fill(const Owner& owner, int count, Spreadsheet_Table& table, int above = 0) const {
    const Table_Fill fill(table);
    for (int entry = 1; entry <= std::min(count, Entries()); ++entry) {
      Fill_Row(owner, entry, above + entry, table);
    }
  }

  /// Reads a row into an entry. A cell that still holds the entry's value leaves it alone.
  void Store_Row(const Spreadsheet_Table& table, int row, int entry, Owner& owner) const {
    int col = 0;
    for (const Column* column : shown_) {
      ++col;
      if (!Has(*column, entry)) continue;
      if (table.ValueRC(row, col) == column->cells.get(owner, entry)) continue;
      column->cells.take({table, row, col}, entry, owner);
    }
  }

  /// Reads the rows behind `above` into the entries from 1 to `count`, as far as the table has
  /// such rows and the owner such entries.
  void Store(const Spreadsheet_Table& table, int count, Owner& owner, int above = 0) const {
    const int last = std::min({count, Entries(), table.MaxRow() - above});
    for (int entry = 1; entry <= last; ++entry) Store_Row(table, above + entry, entry, owner);
  }

  /// The entries of the longest column.
  int Entries() const {
    int entries = 0;
    for (const Column* column : shown_) entries = std::max(entries, column->cells.entries);
    return entries;
  }

 private:
  static bool Has(const Column& column, int entry) {
    return entry >= 1 && entry <= column.cells.entries;
  }

  std::vector<const Column*> shown_;
};

template <class Owner, std::size_t N>
Shown_Columns(const Table_Column<Owner> (&)[N], unsigned = kEveryLayout) -> Shown_Columns<Owner>;

/// Heads the first `count` rows or columns by a text and their number: "Set 1", "Set 2".
void Number_Rows(const std::string& text, int count, Spreadsheet_Table& table);
void Number_Columns(const std::string& text, int count, Spreadsheet_Table& table);

}  // namespace barvon
