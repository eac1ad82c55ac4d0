#include "dilution/dilution_grid.h"

#include <algorithm>
#include <cstdint>

#include "core/format_pattern.h"
#include "core/project_defaults.h"
#include "dilution/dilution_arrange.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

constexpr int kHeadingHeight = 1000;  // twips
constexpr std::array<int, kLastColumn> kWidths = {2960, 4280, 3700, 3920, 4130, 1280, 1280};
constexpr std::array<std::array<const char*, kDilutionColumn>, kDilutionTabs> kHeadings = {
    {{"Parameter", "Concentration in\nBulk Sediment (ug/kg)", "Water Quality\nCriteria (ug/l)",
      "Background\n Concentration (ug/l)", "Bulk Sediment\nDilution Req'd"},
     {"Parameter", "Concentration in\nElutriate (ug/l)", "Water Quality\nCriteria (ug/l)",
      "Background\n Concentration (ug/l)", "Elutriate\nDilution Req'd"}}};
constexpr char kFilledPattern[] = "#.00";
constexpr char kComputedPattern[] = "#######.00";

std::size_t At(int row) { return static_cast<std::size_t>(row); }

const OneBased<double, kMaxDilutionRows>& Dilutions(Dilution_Tab tab, const ProjectRecord& record) {
  return tab == kBulkTab ? record.DiluteBulkDilution : record.DiluteElutDilution;
}

void Show_Number(double value, int row, int col, Spreadsheet_Table& table) {
  if (table.IsEmptyRC(row, col) || table.NumberRC(row, col) != value) {
    table.NumberRC(row, col, value);
  }
}

bool Is_Unread(Dilution_Tab tab, int row, int col, const Dilution_Grids& grids) {
  return grids.unread[tab][At(row)][At(col)] && !grids(tab).IsEmptyRC(row, col);
}

/// Whether the row holds what was never read and had no name in the list.
bool Is_Apart(Dilution_Tab tab, int row, const Dilution_Grids& grids) {
  if (!grids(tab).IsEmptyRC(row, kNameColumn) && !Is_Unread(tab, row, kNameColumn, grids)) {
    return false;
  }
  for (int col = kNameColumn; col <= kBackgroundColumn; ++col) {
    if (Is_Unread(tab, row, col, grids)) return true;
  }
  return false;
}

void Show_Name(Dilution_Tab tab, int row, const std::string& name, Dilution_Grids& grids) {
  Spreadsheet_Table& table = grids(tab);
  const std::string former = table.TextRC(row, kNameColumn);
  if (!former.empty() && former != name) {
    if (Is_Unread(tab, row, kConcentrationColumn, grids)) {
      grids.put_aside[tab][former] = table.NumberRC(row, kConcentrationColumn);
    }
    grids.unread[tab][At(row)] = {};
  }
  table.TextRC(row, kNameColumn, name);
}

/// Criteria and background. What is typed in the tab that was read counts for both as it stands,
/// with its mark.
void Show_Common(double value, int row, int col, Dilution_Tab tab, std::optional<Dilution_Tab> read,
                 Dilution_Grids& grids) {
  if (value == 0 && Is_Unread(tab, row, col, grids)) return;
  Spreadsheet_Table& table = grids(tab);
  if (read && *read != tab) {
    const Spreadsheet_Table& source = grids(*read);
    const bool is_text = !source.IsEmptyRC(row, col) && !source.IsNumberRC(row, col);
    if (is_text && source.NumberRC(row, col) == value) {
      table.ValueRC(row, col, source.ValueRC(row, col));
      return;
    }
    if (!table.IsNumberRC(row, col)) table.NumberRC(row, col, value);
  }
  Show_Number(value, row, col, table);
}

bool Is_Empty(const Spreadsheet_Table& table, const Cell_Range& range) {
  for (int row = range.row1; row <= range.row2; ++row) {
    for (int col = range.col1; col <= range.col2; ++col) {
      if (!table.IsEmptyRC(row, col)) return false;
    }
  }
  return true;
}

/// A result alone is nothing that anybody entered.
bool Grids_Are_Empty(const Dilution_Grids& grids) {
  return std::ranges::all_of(grids.tables, [](const Spreadsheet_Table* table) {
    return Is_Empty(*table, {1, kNameColumn, kMaxDilutionRows, kBackgroundColumn}) &&
           Is_Empty(*table, {1, kDilutionColumn + 1, kMaxDilutionRows, kLastColumn});
  });
}

void Empty_Result(Dilution_Tab tab, int row, Dilution_Grids& grids) {
  Spreadsheet_Table& table = grids(tab);
  const std::string result = table.TextRC(row, kDilutionColumn);
  if (result.empty()) return;
  grids.emptied[tab][row] = {grids(Other_Tab(tab)).TextRC(row, kNameColumn), result};
  table.ValueRC(row, kDilutionColumn, {});
}

void Restore_Result(Dilution_Tab tab, int row, Dilution_Grids& grids) {
  Spreadsheet_Table& table = grids(tab);
  const auto former = grids.emptied[tab].find(row);
  if (former == grids.emptied[tab].end()) return;
  if (former->second.name != table.TextRC(row, kNameColumn)) return;
  table.TextRC(row, kDilutionColumn, former->second.result);
  grids.emptied[tab].erase(former);
}

void Forget_Rows(Dilution_Grids& grids) {
  for (const Dilution_Tab tab : kTabs) {
    grids.by_name[tab].clear();
    grids.put_aside[tab].clear();
    grids.computed[tab] = {};
    grids.unread[tab] = {};
    grids.emptied[tab].clear();
    grids(tab).ForgetEdits();
  }
  grids.record_rows = Same_Order();
}

}  // namespace

void Define_Dilute_Grid(Dilution_Tab tab, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  table.MaxRow(kMaxDilutionRows);
  table.MaxCol(kLastColumn);
  table.LockCol(kDilutionColumn);
  for (int col = 1; col <= kDilutionColumn; ++col) {
    table.ColText(col, kHeadings[tab][At(col - 1)]);
  }
  for (int col = 1; col <= kLastColumn; ++col) table.ColWidth(col, kWidths[At(col - 1)]);
  table.ColHeadingHeight(kHeadingHeight);
}

int Dilute_Rows(const Spreadsheet_Table& table) {
  int rows = 0;
  while (rows < kMaxDilutionRows && !table.IsEmptyRC(rows + 1, kNameColumn)) ++rows;
  return rows;
}

bool Row_Is_Filled(const Spreadsheet_Table& table, int row) {
  return !Is_Empty(table, {row, kNameColumn, row, kBackgroundColumn});
}

bool Holds_Rows_Below_List(const Spreadsheet_Table& table) {
  for (int row = Dilute_Rows(table) + 1; row <= kMaxDilutionRows; ++row) {
    if (Row_Is_Filled(table, row)) return true;
  }
  return false;
}

void Read_Dilute_Grid(Dilution_Tab tab, Dilution_Grids& grids, ProjectRecord& record) {
  Spreadsheet_Table& table = grids(tab);
  const int count = Dilute_Rows(table);
  record.DiluteRowCount = static_cast<std::int16_t>(count);
  if (count == 0) return;
  Arrange_By_Row(grids, record);
  Arrange_By_Name(tab, count, grids, record);
  for (int row = 1; row <= count; ++row) {
    record.DiluteParameterNames[At(row)] = table.TextRC(row, kNameColumn);
    Concentrations(tab, record)[At(row)] = table.NumberRC(row, kConcentrationColumn);
    record.DiluteCriteria[At(row)] = table.NumberRC(row, kCriteriaColumn);
    record.DiluteBackground[At(row)] = table.NumberRC(row, kBackgroundColumn);
    grids.unread[tab][At(row)] = {};
  }
  grids.emptied[tab].clear();
  table.Selection("A1");
}

void Fill_Dilute_Grids(Dilution_Grids& grids, ProjectRecord& record,
                       std::optional<Dilution_Tab> read) {
  if (record.DiluteParameterNames[1].empty()) {
    if (Grids_Are_Empty(grids)) Initalize_Dilute_Info(grids, record);
    return;
  }
  for (const Dilution_Tab tab : kTabs) {
    Spreadsheet_Table& table = grids(tab);
    const Table_Fill fill(table);
    for (int row = 1; row <= record.DiluteRowCount; ++row) {
      Show_Name(tab, row, record.DiluteParameterNames[At(row)], grids);
      if (!Is_Unread(tab, row, kConcentrationColumn, grids)) {
        Show_Number(Concentrations(tab, record)[At(row)], row, kConcentrationColumn, table);
      }
      Show_Common(record.DiluteCriteria[At(row)], row, kCriteriaColumn, tab, read, grids);
      Show_Common(record.DiluteBackground[At(row)], row, kBackgroundColumn, tab, read, grids);
      table.TextRC(row, kDilutionColumn,
                   Format_Number(Dilutions(tab, record)[At(row)], kFilledPattern));
    }
    table.Centred(kDiluteCells, true);
  }
}

void Clear_Dilute_Grids(Dilution_Grids& grids) {
  for (Spreadsheet_Table* table : grids.tables) {
    const Table_Fill fill(*table);
    table->ClearRange(kDiluteCells);
  }
  Forget_Rows(grids);
}

void Initalize_Dilute_Info(Dilution_Grids& grids, ProjectRecord& record) {
  Set_Dilution_Defaults(record);
  Clear_Dilute_Grids(grids);
}

void Show_Read_List(Dilution_Grids& grids, ProjectRecord& record) {
  if (record.DiluteRowCount > 0) {
    for (Spreadsheet_Table* table : grids.tables) {
      const Table_Fill fill(*table);
      // What reads as its value would else stand as it was typed for another list.
      table->ClearRange({1, 1, record.DiluteRowCount, kDilutionColumn});
      table->ClearRange({record.DiluteRowCount + 1, 1, kMaxDilutionRows, kLastColumn});
    }
    Forget_Rows(grids);
  }
  Fill_Dilute_Grids(grids, record);
}

void Show_Dilutions(const Dilution_Grids& grids, const ProjectRecord& record) {
  for (const Dilution_Tab tab : kTabs) {
    const Table_Fill fill(grids(tab));
    for (int row = 1; row <= record.DiluteRowCount; ++row) {
      grids(tab).TextRC(row, kDilutionColumn,
                        Format_Number(Dilutions(tab, record)[At(row)], kComputedPattern));
    }
  }
}

void Leave_Dilute_Tab(Dilution_Tab left, Dilution_Grids& grids, ProjectRecord& record) {
  const bool holds_list = Dilute_Rows(grids(left)) > 0;
  if (!holds_list && !Grids_Are_Empty(grids)) {
    Show_Warning(kNameMissing);
    return;
  }
  Read_Dilute_Grid(left, grids, record);
  if (holds_list) {
    Fill_Dilute_Grids(grids, record, left);
  } else {
    Initalize_Dilute_Info(grids, record);
  }
}

void Follow_Dilute_Edit(Dilution_Tab tab, const Cell_Range& range, Dilution_Grids& grids) {
  Spreadsheet_Table& table = grids(tab);
  Spreadsheet_Table& other = grids(Other_Tab(tab));
  // One cell is typed: the parameter is called something else now.
  const bool other_names = range.col1 == kNameColumn && range.rows() * range.cols() > 1;
  for (int row = range.row1; row <= std::min(range.row2, kMaxDilutionRows); ++row) {
    for (int col = range.col1; col <= std::min<int>(range.col2, kBackgroundColumn); ++col) {
      grids.unread[tab][At(row)][At(col)] = true;
    }
    const bool emptied = !Row_Is_Filled(table, row);
    if (emptied || other_names) grids.by_name[tab].insert(row);
    if (!emptied) {
      Restore_Result(tab, row, grids);
      continue;
    }
    Empty_Result(tab, row, grids);
    if (Is_Apart(Other_Tab(tab), row, grids)) continue;
    other.ClearRange({row, kNameColumn, row, kDilutionColumn});
    other.ForgetEdits();
  }
}

bool Holds_Untaken_Values(Dilution_Tab tab, const Dilution_Grids& grids,
                          const ProjectRecord& record) {
  const Spreadsheet_Table& table = grids(tab);
  const int count = Dilute_Rows(table);
  if (count != record.DiluteRowCount || Holds_Rows_Below_List(table)) return true;
  for (int row = 1; row <= count; ++row) {
    if (table.TextRC(row, kNameColumn) != record.DiluteParameterNames[At(row)] ||
        table.NumberRC(row, kConcentrationColumn) != Concentrations(tab, record)[At(row)] ||
        table.NumberRC(row, kCriteriaColumn) != record.DiluteCriteria[At(row)] ||
        table.NumberRC(row, kBackgroundColumn) != record.DiluteBackground[At(row)]) {
      return true;
    }
  }
  return false;
}

}  // namespace barvon
