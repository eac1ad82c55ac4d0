#include "dilution/dilution_grid.h"

#include <algorithm>
#include <cstdint>

#include "core/format_pattern.h"
#include "core/project_defaults.h"
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

void Forget_Rows(Dilution_Grids& grids) {
  for (const Dilution_Tab tab : kTabs) {
    grids.notes[tab] = {};
    grids.kept[tab].clear();
    grids.computed[tab] = {};
    grids(tab).ForgetEdits();
  }
}

bool Record_Is_Empty(const ProjectRecord& record) {
  for (int row = 1; row <= record.DiluteRowCount; ++row) {
    if (!record.DiluteParameterNames[At(row)].empty() || record.DiluteBulk[At(row)] != 0 ||
        record.DiluteElutriate[At(row)] != 0 || record.DiluteCriteria[At(row)] != 0 ||
        record.DiluteBackground[At(row)] != 0) {
      return false;
    }
  }
  return true;
}

/// A row that shows no result has none: it was emptied, and holds another parameter now.
void Read_Results(int row, Dilution_Grids& grids, ProjectRecord& record) {
  const auto result_of = [&](Dilution_Tab tab) {
    std::optional<Computed_Row>& computed = grids.computed[tab][At(row)];
    if (grids(tab).IsEmptyRC(row, kDilutionColumn)) computed.reset();
    return computed.value_or(Computed_Row{});
  };
  const Computed_Row sediment = result_of(kBulkTab), elutriate = result_of(kElutriateTab);
  record.DiluteBulkWaterConc[At(row)] = sediment.bulk_in_water;
  record.DiluteBulkDilution[At(row)] = sediment.dilution;
  record.DiluteBulkRemark[At(row)] = sediment.remark;
  record.DiluteElutDilution[At(row)] = elutriate.dilution;
  record.DiluteElutRemark[At(row)] = elutriate.remark;
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
  const Dilution_Tab other = Other_Tab(tab);
  for (int row = 1; row <= count; ++row) {
    const std::string name = table.TextRC(row, kNameColumn);
    Concentration_Note& note = grids.notes[tab][At(row)];
    note.taken = table.NumberRC(row, kConcentrationColumn);
    if (note.names.empty()) note.names.insert(name);
    record.DiluteParameterNames[At(row)] = name;
    Concentrations(tab, record)[At(row)] = note.taken;
    Concentrations(other, record)[At(row)] = grids.notes[other][At(row)].taken;
    record.DiluteCriteria[At(row)] = table.NumberRC(row, kCriteriaColumn);
    record.DiluteBackground[At(row)] = table.NumberRC(row, kBackgroundColumn);
    Read_Results(row, grids, record);
  }
  table.Selection("A1");
}

void Read_Both_Grids(Dilution_Tab front, Dilution_Grids& grids, ProjectRecord& record) {
  Read_Dilute_Grid(Other_Tab(front), grids, record);
  Read_Dilute_Grid(front, grids, record);
}

void Fill_Dilute_Grids(Dilution_Grids& grids, ProjectRecord& record) {
  if (record.DiluteParameterNames[1].empty() && Record_Is_Empty(record)) {
    if (Grids_Are_Empty(grids)) Initalize_Dilute_Info(grids, record);
    return;
  }
  for (const Dilution_Tab tab : kTabs) {
    Spreadsheet_Table& table = grids(tab);
    const Table_Fill fill(table);
    for (int row = 1; row <= record.DiluteRowCount; ++row) {
      const std::string& name = record.DiluteParameterNames[At(row)];
      Concentration_Note& note = grids.notes[tab][At(row)];
      note.taken = Concentrations(tab, record)[At(row)];
      if (note.names.empty()) note.names.insert(name);
      table.TextRC(row, kNameColumn, name);
      Show_Number(note.taken, row, kConcentrationColumn, table);
      Show_Number(record.DiluteCriteria[At(row)], row, kCriteriaColumn, table);
      Show_Number(record.DiluteBackground[At(row)], row, kBackgroundColumn, table);
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
    table->NumberFormat(kDiluteCells, {});
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

std::string Result_Text(double dilution) { return Format_Number(dilution, kComputedPattern); }

void Show_Dilutions(const Dilution_Grids& grids, const ProjectRecord& record) {
  for (const Dilution_Tab tab : kTabs) {
    const Table_Fill fill(grids(tab));
    for (int row = 1; row <= record.DiluteRowCount; ++row) {
      grids(tab).TextRC(row, kDilutionColumn, Result_Text(Dilutions(tab, record)[At(row)]));
    }
  }
}

void Leave_Dilute_Tab(Dilution_Tab left, Dilution_Grids& grids, ProjectRecord& record) {
  const bool holds_list = Dilute_Rows(grids(left)) > 0;
  if (!holds_list && !Grids_Are_Empty(grids)) {
    Show_Warning(kNameMissing);
    return;
  }
  Read_Both_Grids(left, grids, record);
  if (holds_list) {
    Fill_Dilute_Grids(grids, record);
  } else {
    Initalize_Dilute_Info(grids, record);
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
