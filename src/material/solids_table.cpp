#include "material/solids_table.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <type_traits>

#include "core/desk/workspace_port.h"
#include "core/format_pattern.h"
#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/ask/message_box.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

constexpr int kFirstRow = kRowBase + 1;
constexpr int kNameColumn = 1;
constexpr int kVolumeColumn = 3;
constexpr int kVolumeWidth = 3400;

std::string Name_In(const Spreadsheet_Table& table, int row) {
  return Trimmed(table.TextRC(row, kNameColumn));
}

void Fill_Solids_Row(const Material_Record& material, int row, Solids_Layout layout,
                     Spreadsheet_Table& table) {
  const auto put = [&](Solids_Field field, const Cell_Value& value) {
    const int col = Column_Of(field, layout);
    if (col > 0) table.ValueRC(row, col, value);
  };
  using enum Solids_Field;
  put(Name, material.name);
  put(Gravity, Cell_Of(material.specific_gravity));
  put(Volume, Cell_Of(material.volume_fraction));
  put(Fall, Cell_Of(material.fall_velocity));
  put(Void, Cell_Of(material.void_ratio));
  put(Shear, Cell_Of(material.critical_shear));
  if (!material.cohesive.empty()) put(Cohesive, material.cohesive);
  if (!material.stripped.empty()) put(Stripped, material.stripped);
}

/// A fraction without a name that has values all the same.
bool Is_Nameless(const ProjectRecord& record, int solid) {
  const auto i = static_cast<std::size_t>(solid);
  return Trimmed(record.SolidNames[i]).empty() &&
         (record.SolidSG[i] != 0 || record.SolidVolFraction[i] != 0 ||
          record.SolidFallVelocity[i] != 0 || record.SolidVoidRatio[i] != 0 ||
          record.SolidCriticalShear[i] != 0);
}

std::vector<Cell_Value> Project_Cells(const Spreadsheet_Table& table) {
  std::vector<Cell_Value> cells;
  for (int row = kFirstRow; row < kFirstRow + kMostSolidsRows; ++row) {
    for (int col = 1; col <= table.MaxCol(); ++col) cells.push_back(table.ValueRC(row, col));
  }
  return cells;
}

/// The first row of the project for which the condition holds; 0 for none.
template <class Condition>
int Find_Row(int rows, Condition condition) {
  for (int row = kFirstRow; row < kFirstRow + rows; ++row) {
    if (condition(row)) return row;
  }
  return 0;
}

/// The record's fractions in the order of the rows, of which so many are the project's now. A new
/// one begins with zeros, not with what an earlier fraction left there, and one that went leaves
/// nothing behind, or the next opening would show it again.
void Arrange_Solids(const Solids_State& state, int count, ProjectRecord& record) {
  const auto arrange = [&](auto& values) {
    const auto former = values;
    for (int i = 1; i <= kMaxSolids; ++i) {
      const int solid = state.Row(kRowBase + i).solid;
      const auto at = static_cast<std::size_t>(i);
      const bool is_new = solid == 0 || (i <= count && solid > record.NumSolids);
      const bool is_gone = i > count && i <= record.NumSolids;
      values[at] = is_new || is_gone ? typename std::decay_t<decltype(values)>::value_type{}
                                     : former[static_cast<std::size_t>(solid)];
    }
  };
  arrange(record.SolidNames);
  arrange(record.SolidSG);
  arrange(record.SolidVolFraction);
  arrange(record.SolidFallVelocity);
  arrange(record.SolidVoidRatio);
  arrange(record.SolidCriticalShear);
  arrange(record.SolidCohesive);
  arrange(record.SolidStripped);
  arrange(record.SolidCohesiveText);
  arrange(record.SolidStrippedText);
  arrange(record.LayerSolidFraction);
}

}  // namespace

std::vector<int> Open_Solids(const std::string& section, Solids_Layout layout,
                             const ProjectRecord& record, Solids_State& state,
                             Spreadsheet_Table& table) {
  state = {layout, Read_Material_List(section)};
  state.lines = Show_Material_List(state.library, Reference_Names(layout));
  Define_Solids_Table(layout, table);
  const Table_Fill fill(table);
  std::vector<int> ticked;
  for (int i = 1; i <= kMaxSolids; ++i) {
    const auto at = static_cast<std::size_t>(i);
    Solids_Row& row = state.Row(kRowBase + i);
    row.solid = i;
    const std::string& name = record.SolidNames[at];
    if (i > record.NumSolids || (name.empty() && !Is_Nameless(record, i))) continue;
    row.saved_volume = Cell_Of(record.SolidVolFraction[at]);
    Solids_Columns(layout).Fill_Row(record, i, kRowBase + i, table);
    if (name.empty()) continue;
    const auto line = std::ranges::find_if(state.lines, [&](const std::string& text) {
      return !text.empty() && Same_Material(name, text);
    });
    if (line == state.lines.end()) continue;
    ticked.push_back(static_cast<int>(std::distance(state.lines.begin(), line)));
    ++state.SelectedCount;
  }
  state.opened = Project_Cells(table);
  table.ForgetEdits();
  return ticked;
}

bool Tick_Material(int line, Solids_State& state, Spreadsheet_Table& table) {
  const int searched =
      std::clamp<int>(static_cast<int>(state.library.entries.size()), kMaxSolids, kMostSolidsRows);
  const int row = Find_Row(searched, [&](int r) { return Name_In(table, r).empty(); });
  if (row == 0) {
    Show_Message({"There Is No Free Row for Another Solids Fraction.  Please Untick One First."});
    return false;
  }
  const Material_Record material =
      Parse_Material(state.library.entries.at(static_cast<std::size_t>(line)));
  table.ForgetEdits();
  Fill_Solids_Row(material, row, state.layout, table);
  Format_Solids_Rows(table);
  state.Row(row) = {0, Cell_Of(material.volume_fraction)};
  ++state.SelectedCount;
  return true;
}

void Untick_Material(int line, Solids_State& state, Spreadsheet_Table& table) {
  const std::string& name = state.lines.at(static_cast<std::size_t>(line));
  const int row =
      Find_Row(kMostSolidsRows, [&](int r) { return Same_Material(Name_In(table, r), name); });
  if (row == 0) return;
  table.DeleteShiftUp({row, 1, row, table.MaxCol()});
  const auto gone = state.rows.begin() + (row - kFirstRow);
  std::move(gone + 1, state.rows.end(), gone);
  state.rows.back() = {};
  --state.SelectedCount;
}

void Separate_Solids(bool separated, Solids_State& state, Spreadsheet_Table& table) {
  const Cell_Range column{1, kVolumeColumn, Spreadsheet_Table::kSheetRows, kVolumeColumn};
  const Table_Fill fill(table);
  table.MaxCol(Solids_Column_Count(separated ? kSeparatedLoad : kWholeLoad));
  if (separated) {
    for (int row = kFirstRow; row < kFirstRow + kMostSolidsRows; ++row) {
      state.Row(row).saved_volume = table.ValueRC(row, kVolumeColumn);
      state.Row(row).volume_was_shown = true;
    }
    table.DeleteShiftLeft(column);
  } else {
    table.InsertShiftRight(column);
    table.ColText(kVolumeColumn, kVolumeHeading);
    table.ColWidth(kVolumeColumn, kVolumeWidth);
    Format_Solids_Rows(table);
    for (int row = kFirstRow; row < kFirstRow + kMostSolidsRows; ++row) {
      table.ValueRC(row, kVolumeColumn, state.Row(row).saved_volume);
    }
  }
  state.layout = separated ? kSeparatedLoad : kWholeLoad;
}

int Filled_Solids(const Spreadsheet_Table& table) {
  int filled = 0;
  for (int row = kFirstRow; row <= kSolidsRows; ++row) filled += !Name_In(table, row).empty();
  return filled;
}

bool Check_Solids_Table(Spreadsheet_Table& table) {
  table.Col(kNameColumn);
  // Every pass looks at the row under the cursor, not at the project's rows in turn.
  for (int pass = 1; pass <= kMaxSolids; ++pass) {
    if (!Name_In(table, table.Row()).empty()) continue;
    for (int col = 1; col <= table.MaxCol(); ++col) {
      if (table.IsEmptyRC(table.Row(), col)) continue;
      Show_Message({"No Parameter Name Has Been Supplied for Solids Fraction.  Please Correct."});
      table.SetActiveCell(pass, 1);
      return false;
    }
  }
  for (int i = 1; i <= kMostSolidsRows; ++i) {
    if (Name_In(table, kRowBase + i).empty()) return true;
    if (i <= kMaxSolids) continue;
    const std::string most = Format_Number(kMaxSolids, "##");
    return Ask(std::string("More Than ")
                   .append(most)
                   .append(" Solids Fractions Specified.  Do You Wish to Only Select The First ")
                   .append(most)
                   .append("?"),
               Buttons::OkCancel) == Answer::Ok;
  }
  return true;
}

bool Are_Solids_Untouched(const Solids_State& state, const Spreadsheet_Table& table) {
  for (int i = 1; i <= kMaxSolids; ++i) {
    if (state.Row(kRowBase + i).solid != i) return false;
  }
  return Project_Cells(table) == state.opened;
}

void Store_Solids(const Solids_State& state, const Spreadsheet_Table& table,
                  ProjectRecord& record) {
  bool nameless = false;
  for (int i = 1; i <= std::min<int>(record.NumSolids, kMaxSolids); ++i) {
    nameless = nameless || Is_Nameless(record, i);
  }
  if (nameless && Are_Solids_Untouched(state, table)) return;
  const int count = Filled_Solids(table);
  Arrange_Solids(state, count, record);
  record.NumSolids = static_cast<std::int16_t>(count);
  Solids_Columns(state.layout).Store(table, record.NumSolids, record, kRowBase);
  if (record.NumSolids == 0) {
    Port().board.show_note({"The material has no solids fraction.", ""});
  }
  if (state.layout != kHopperLoad) return;
  const int cohesive = Column_Of(Solids_Field::Cohesive, state.layout);
  for (int i = 1; i <= record.NumSolids; ++i) {
    const auto at = static_cast<std::size_t>(i);
    record.SolidCohesiveText[at] = table.TextRC(kRowBase + i, cohesive);
    record.SolidStrippedText[at] = table.TextRC(kRowBase + i, cohesive + 1);
  }
}

void Clean_Solids_Names(Spreadsheet_Table& table) {
  for (int row = kFirstRow; row <= kSolidsRows; ++row) {
    const std::string name = table.TextRC(row, kNameColumn);
    const std::string clean = Material_Name(name);
    if (clean != name) table.TextRC(row, kNameColumn, clean);
  }
}

Cell_Look Look_Of_Letter(Solids_Layout layout, const Spreadsheet_Table& table, int row, int col) {
  const bool is_letter = col == Column_Of(Solids_Field::Cohesive, layout) ||
                         col == Column_Of(Solids_Field::Stripped, layout);
  const bool of_project = row >= kFirstRow && row <= kSolidsRows;
  if (layout != kHopperLoad || !is_letter || !of_project || Name_In(table, row).empty() ||
      !table.TextRC(row, col).empty()) {
    return {};
  }
  return {.warned = true, .tip = "empty " + Letter_Note(layout, "")};
}

std::string Letter_Note(Solids_Layout layout, const std::string& typed) {
  const std::string letter = layout == kWholeLoad ? Upper_Case(typed) : Upper_Case(Trimmed(typed));
  if (letter == "N" || letter == "Y") return "";
  return layout == kHopperLoad ? "counts as Y" : "leaves the fraction as it was";
}

}  // namespace barvon
