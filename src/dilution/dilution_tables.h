#pragma once

#include <array>
#include <numeric>
#include <optional>
#include <set>
#include <string>
#include <vector>

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

/// What a row held when its result was computed, and the result.
struct Computed_Row {
  std::string name;
  double concentration = 0, criteria = 0, background = 0;
  double dilution = 0;
  std::string remark;
  double bulk_in_water = 0;  // ug/L, of the sediment
};

/// What is known of the concentration in a row of a table, beside its cell.
struct Concentration_Note {
  /// The names that it has stood under. None: it stood alone in a row without a name and has not
  /// been read since.
  std::set<std::string> names;
  double taken = 0;  // what the record has for it
  /// The name has come without a concentration: one that is about to lose that name may come after.
  bool awaits = false;
  int lent_by = 0;  // the row that it came from like that; 0 for its own
};

/// A concentration whose name has left its row by an edit of the other tab.
struct Kept_Concentration {
  std::string name;
  int row = 0;  // 0 when rows have moved since
  Cell_Value shown;
  Concentration_Note note;
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

/// The two tables, and what the calculator keeps beside them while it is open. Both always show
/// the same names, criteria and background: what the user enters in one is written into the other
/// at once. The record follows when a tab is read.
struct Dilution_Grids {
  Dilution_Grids(Spreadsheet_Table& bulk, Spreadsheet_Table& elutriate)
      : tables{&bulk, &elutriate} {}

  Spreadsheet_Table& operator()(Dilution_Tab tab) const { return *tables[tab]; }

  std::array<Spreadsheet_Table*, kDilutionTabs> tables;
  std::array<OneBased<Concentration_Note, kMaxDilutionRows>, kDilutionTabs> notes;
  /// They come back with their names.
  std::array<std::vector<Kept_Concentration>, kDilutionTabs> kept;

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
