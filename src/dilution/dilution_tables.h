#pragma once

#include <array>
#include <map>
#include <numeric>
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

/// What a row held when its result was computed.
struct Computed_Row {
  std::string name;
  double concentration = 0, criteria = 0, background = 0;
  double dilution = 0;
};

/// For every row of a table the one that it was; 0 for a new one.
using Row_Order = OneBased<int, kMaxDilutionRows>;
inline Row_Order Same_Order() {
  Row_Order order{};
  std::iota(order.begin(), order.end(), 0);
  return order;
}

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

/// The concentrations of a tab in the record, constant or not as that is.
template <class Record>
auto& Concentrations(Dilution_Tab tab, Record& record) {
  return tab == kBulkTab ? record.DiluteBulk : record.DiluteElutriate;
}

}  // namespace barvon
