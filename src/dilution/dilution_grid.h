#pragma once

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "core/project_record.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// The tabs of the calculator, each with a table of the list. Names, criteria and background are
/// common to both; only the concentration and the result differ.
enum Dilution_Tab { kBulkTab = 0, kElutriateTab = 1 };
inline constexpr std::size_t kDilutionTabs = 2;
inline constexpr Dilution_Tab kTabs[] = {kBulkTab, kElutriateTab};
constexpr Dilution_Tab Other_Tab(Dilution_Tab tab) {
  return tab == kBulkTab ? kElutriateTab : kBulkTab;
}

enum Dilution_Column {
  kNameColumn = 1,
  kConcentrationColumn,
  kCriteriaColumn,
  kBackgroundColumn,  // the last one that is read
  kDilutionColumn,    // the result, which can't be edited
  kLastColumn = 7     // what is behind the result is read by nobody
};
inline constexpr Cell_Range kDiluteCells{1, 1, kMaxDilutionRows, kLastColumn};

inline constexpr char kNameMissing[] =
    "A Parameter's Name Is Missing.  The First Row Without a Name Ends the List.";

/// What a row held when its result was computed.
struct Computed_Row {
  std::string name;
  double concentration = 0, criteria = 0, background = 0;
  double dilution = 0;
};

/// For every row of a table the one that it was; 0 for a new one.
using Row_Order = OneBased<int, kMaxDilutionRows>;
Row_Order Same_Order();

template <class Array>
void Arrange(Array& values, const Row_Order& order) {
  const Array former = values;
  for (std::size_t row = 1; row < values.size(); ++row) {
    const int from = order[row];
    values[row] = from == 0 ? typename Array::value_type{} : former[static_cast<std::size_t>(from)];
  }
}

/// By column: what the user has changed since the tab was read.
using Unread_Cells = std::array<bool, kBackgroundColumn + 1>;

/// What stood in a row's result before the row was emptied, and the list's name for it.
struct Emptied_Result {
  std::string name, result;
};

/// The two tables, and what the calculator keeps beside them while it is open.
struct Dilution_Grids {
  Dilution_Grids(Spreadsheet_Table& bulk, Spreadsheet_Table& elutriate)
      : tables{&bulk, &elutriate} {}

  Spreadsheet_Table& operator()(Dilution_Tab tab) const { return *tables[tab]; }

  std::array<Spreadsheet_Table*, kDilutionTabs> tables;
  /// Rows that got other names by a paste or were emptied since their tab was read: what the other
  /// tab holds for them goes by the name, not by the row.
  std::array<std::set<int>, kDilutionTabs> by_name;
  /// Concentrations of the tab whose names left the list that way. They come back with the name.
  std::array<std::map<std::string, double>, kDilutionTabs> put_aside;
  std::array<OneBased<Unread_Cells, kMaxDilutionRows>, kDilutionTabs> unread{};
  /// By row: an undo of the emptying brings the result back.
  std::array<std::map<int, Emptied_Result>, kDilutionTabs> emptied;
  /// Where the record has the rows of the tables: it follows their commands when a tab is read.
  Row_Order record_rows = Same_Order();

  std::array<OneBased<std::optional<Computed_Row>, kMaxDilutionRows>, kDilutionTabs> computed;
  double computed_solids = 0;  // g/L
  double solids = 0;           // g/L, what the screen shows now
};

/// Headings, widths and size of a tab's table.
void Define_Dilute_Grid(Dilution_Tab tab, Spreadsheet_Table& table);

/// The rows above the first one without a name.
int Dilute_Rows(const Spreadsheet_Table& table);
/// Whether anything that would be read is in the row; in any row below the list.
bool Row_Is_Filled(const Spreadsheet_Table& table, int row);
bool Holds_Rows_Below_List(const Spreadsheet_Table& table);

/// The list of a tab's table becomes the record's, with DiluteRowCount its length. Without a name
/// in the first row only the length does. What rows were inserted, deleted and moved before is done
/// in the record first.
void Read_Dilute_Grid(Dilution_Tab tab, Dilution_Grids& grids, ProjectRecord& record);

/// Shows the record's list in both tables, or initializes it when its first name is empty and no
/// cell holds anything. A cell that reads as its value is left as it was typed. With the tab that
/// was just read, its criteria and background go across as they were typed. A concentration of the
/// other tab that was never read stays, and no 0 takes the place of what was never read; where its
/// row has got another name, it is put aside.
void Fill_Dilute_Grids(Dilution_Grids& grids, ProjectRecord& record,
                       std::optional<Dilution_Tab> read = std::nullopt);

/// The dilution data and both tables to their defaults; the row count and the remarks stay.
void Initalize_Dilute_Info(Dilution_Grids& grids, ProjectRecord& record);
/// The part of it that concerns the tables.
void Clear_Dilute_Grids(Dilution_Grids& grids);

/// After a file has been read: a list of one or more leaves nothing behind its end.
void Show_Read_List(Dilution_Grids& grids, ProjectRecord& record);

/// The results of the list, as text.
void Show_Dilutions(const Dilution_Grids& grids, const ProjectRecord& record);

/// A tab is left: its list is read and shown in the other one. When there is no list although a
/// cell holds something, the user is told and the record stays as it is.
void Leave_Dilute_Tab(Dilution_Tab left, Dilution_Grids& grids, ProjectRecord& record);

/// The user has changed cells of a tab: rows that were emptied go in both tables, except for what
/// the other tab holds without having been in the list.
void Follow_Dilute_Edit(Dilution_Tab tab, const Cell_Range& range, Dilution_Grids& grids);

/// Whether reading the tab would change the record, or can't take all that is in it.
bool Holds_Untaken_Values(Dilution_Tab tab, const Dilution_Grids& grids,
                          const ProjectRecord& record);

}  // namespace barvon
