#include "report/report_rows.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <variant>

#include "core/keys.h"
#include "core/model_input/fluid_values.h"
#include "core/model_input/model_input.h"
#include "core/number_text.h"
#include "core/record_member.h"
#include "core/text_tools.h"
#include "report/report_numbers.h"

namespace barvon {
namespace {

constexpr char kNoWords[] = "-";  // of an empty text

/// Two blanks and line breaks are for the screen.
std::string On_One_Line(const std::string& text) {
  std::string line;
  for (const char c : text) {
    const char blank_or_c = c == '\n' ? ' ' : c;
    if (blank_or_c == ' ' && line.ends_with(' ')) continue;
    line += blank_or_c;
  }
  return Trimmed(line);
}

std::string Lines_Without_Blanks(const std::string& heading) {
  std::string text, line;
  for (const char c : heading + '\n') {
    if (c != '\n') {
      line += c;
      continue;
    }
    if (!text.empty()) text += '\n';
    text += Trimmed(std::exchange(line, {}));
  }
  return text;
}

const void* Address_Of(const Field_Row& row, const ProjectRecord& record) {
  const void* address = nullptr;
  With_Member(row.member, record, [&](const auto& value) { address = &value; });
  return address;
}

constexpr double ProjectRecord::*kFluidValues[] = {&ProjectRecord::TracerConcentration,
                                                   &ProjectRecord::BackgroundConcentration,
                                                   &ProjectRecord::CriterionConcentration,
                                                   &ProjectRecord::SedimentConcentration,
                                                   &ProjectRecord::ToxicityDilution,
                                                   &ProjectRecord::ZidToxicityDilution,
                                                   &ProjectRecord::ZCRIT};
constexpr double ProjectRecord::*kZidCorners[] = {&ProjectRecord::ZidTop, &ProjectRecord::ZidLeft,
                                                  &ProjectRecord::ZidBottom,
                                                  &ProjectRecord::ZidRight};
/// What a pipeline's model input does not have.
constexpr double ProjectRecord::*kOfVesselsOnly[] = {
    &ProjectRecord::RHDA0,        &ProjectRecord::SLOPEX0,         &ProjectRecord::SLOPEZ0,
    &ProjectRecord::SiteDensity,  &ProjectRecord::MoistureContent, &ProjectRecord::AvgVelocityDepth,
    &ProjectRecord::AvgVelocityX, &ProjectRecord::AvgVelocityZ};

bool Is_In_The_Model_Input(const void* value, const ProjectRecord& record) {
  const auto is_one_of = [&](const auto& members) {
    return std::ranges::any_of(members, [&](auto member) { return &(record.*member) == value; });
  };
  for (double ProjectRecord::*const fluid : kFluidValues) {
    if (&(record.*fluid) == value) return Is_In_The_Fluid_Lines(record, fluid);
  }
  if (is_one_of(kZidCorners)) return Has_Zid(record) && Has_Vessel(record);
  return Has_Vessel(record) || !is_one_of(kOfVesselsOnly);
}

Failure Prepare_Model(ProjectRecord& record) {
  std::string text;
  return Write_Model_Input(record, text);
}

/// A table's row heading that says no more than which row it is.
bool Has_Own_Heading(const Spreadsheet_Table& table, int row) {
  return table.RowText(row) != std::to_string(row);
}

bool Is_Number(const Cell_Value& value) { return std::holds_alternative<double>(value); }

/// The cells of a column as texts; the column holds numbers when all that is not empty does.
std::vector<std::string> Cells_Of(const Spreadsheet_Table& table, int col, bool& numbers) {
  std::vector<double> values;
  numbers = true;
  for (int row = 1; row <= table.MaxRow(); ++row) {
    const Cell_Value& cell = table.ValueRC(row, col);
    const bool counts = Is_Number(cell) || table.IsNumberRC(row, col);
    numbers = numbers && (counts || table.IsEmptyRC(row, col));
    if (counts) values.push_back(table.NumberRC(row, col));
  }
  numbers = numbers && !values.empty();
  const std::vector<std::string> texts = Column_Texts(values);
  std::vector<std::string> cells;
  auto next = texts.begin();
  for (int row = 1; row <= table.MaxRow(); ++row) {
    const bool number = numbers && !table.IsEmptyRC(row, col);
    cells.push_back(number ? *next++ : table.TextRC(row, col));
  }
  return cells;
}

}  // namespace

std::string Label_Without_Unit(const std::string& label, const std::string& unit) {
  std::string text = On_One_Line(label);
  if (!unit.empty()) {
    const std::string told = " (" + unit + ")";
    if (const auto at = text.find(told); at != std::string::npos) text.erase(at, told.size());
  }
  if (text.ends_with('.')) text.pop_back();
  return text;
}

Report_Maker::Report_Maker(const ProjectRecord& record, Run_Results run)
    : record(record),
      run(std::move(run)),
      prepared(std::make_unique<ProjectRecord>(record)),
      failure(Prepare_Model(*prepared)) {}

void Report_Maker::Heading(int level, const std::string& text) {
  document.parts.emplace_back(Report_Heading{level, text});
}

void Report_Maker::Paragraph(const std::string& text) {
  if (!Trimmed(text).empty()) document.parts.emplace_back(Report_Paragraph{On_One_Line(text)});
}

void Report_Maker::Warning(const std::string& text) {
  document.parts.emplace_back(Report_Paragraph{On_One_Line(text), true});
}
void Report_Maker::Picture(Shape_List picture) {
  if (picture.shapes.empty()) return;
  document.parts.emplace_back(Report_Picture{std::move(picture)});
}

void Report_Maker::Table(Report_Table table) {
  if (!table.rows.empty()) document.parts.emplace_back(std::move(table));
}

void Report_Maker::Table(const std::string& caption, const Spreadsheet_Table& table,
                         const std::set<int>& without) {
  Report_Table made{Table_Kind::plain, caption, {}, {}};
  made.rows.resize(static_cast<std::size_t>(std::max(0, table.MaxRow())));
  const bool headed = table.MaxRow() > 0 && Has_Own_Heading(table, 1);
  if (headed) {
    made.columns.push_back({});
    for (int row = 1; row <= table.MaxRow(); ++row) {
      made.rows[static_cast<std::size_t>(row - 1)].cells.push_back(On_One_Line(table.RowText(row)));
    }
  }
  for (int col = 1; col <= table.MaxCol(); ++col) {
    if (without.contains(col)) continue;
    Report_Column column{Lines_Without_Blanks(table.ColText(col))};
    std::size_t row = 0;
    for (std::string& cell : Cells_Of(table, col, column.numbers)) {
      made.rows[row++].cells.push_back(std::move(cell));
    }
    made.columns.push_back(column);
  }
  Table(std::move(made));
}

Report_Table& Report_Maker::Values() {
  Report_Table* last =
      document.parts.empty() ? nullptr : std::get_if<Report_Table>(&document.parts.back());
  if (last == nullptr || last->kind != Table_Kind::values) {
    frame_.clear();
    by_field_ = false;
    // Label, value, unit.
    document.parts.emplace_back(Report_Table{Table_Kind::values, "", {{}, {"", true}, {}}, {}});
    last = &std::get<Report_Table>(document.parts.back());
  }
  return *last;
}

void Report_Maker::Group(const std::string& text, bool joined) {
  Values().rows.push_back({{Label_Without_Unit(text, "")}, true, false, joined});
  frame_ = text;
  by_field_ = false;
}

void Report_Maker::Fields(Field_Table table) {
  std::vector<Control_Name> done;
  for (const Field_Row& row : table) {
    if (std::find(done.begin(), done.end(), row.control) != done.end()) continue;
    const Field_Row* counts = Find_Row(table, row.control, record);
    if (counts == nullptr) continue;
    done.push_back(row.control);
    Put_If_Held(*counts);
  }
}

void Report_Maker::Field(Field_Table table, const Control_Name& control) {
  if (const Field_Row* row = Find_Row(table, control, record)) Put_If_Held(*row);
}

void Report_Maker::Field_Of(Field_Table table, const double& value) {
  if (const Field_Row* row = Row_Of(table, &value)) Put_If_Held(*row);
}

void Report_Maker::Field_Of(Field_Table table, const std::string& value) {
  if (const Field_Row* row = Row_Of(table, &value)) Put_If_Held(*row);
}

void Report_Maker::Kept(Field_Table table, const double& value) {
  if (Is_In_The_Model_Input(&value, record)) return;
  if (const Field_Row* row = Row_Of(table, &value)) Put(*row);
}

/// The row that is shown for the project, before any other of the value.
const Field_Row* Report_Maker::Row_Of(Field_Table table, const void* value) const {
  const Field_Row* found = nullptr;
  for (const Field_Row& row : table) {
    if (Address_Of(row, record) != value) continue;
    if (row.shown_for == nullptr || row.shown_for(record)) return &row;
    if (found == nullptr) found = &row;
  }
  return found;
}

void Report_Maker::Put_If_Held(const Field_Row& row) {
  if (Is_In_The_Model_Input(Address_Of(row, record), record)) Put(row);
}

void Report_Maker::Put(const Field_Row& row) {
  if (row.enabled_for != nullptr && !row.enabled_for(record)) return;
  const void* address = Address_Of(row, record);
  if (address == nullptr || !Tell_Once(address)) return;
  Values();
  if (*row.frame != '\0' && frame_ != row.frame) {
    Group(row.frame);
    by_field_ = true;
  } else if (*row.frame == '\0' && by_field_) {
    frame_.clear();
  }
  With_Member(row.member, record, [&](const auto& value) {
    using Value = std::decay_t<decltype(value)>;
    const std::string label = Label_Without_Unit(row.label, row.unit);
    if constexpr (std::is_same_v<Value, std::string>) {
      Words(label, value);
    } else if constexpr (std::is_same_v<Value, float>) {
      Number(label, Widen(value), row.pattern, row.unit);
    } else {
      Number(label, value, row.pattern, row.unit);
    }
  });
}

void Report_Maker::Number(const std::string& label, double value, const std::string& pattern,
                          const std::string& unit) {
  Put_Row({label, Whole_Number_Text(value, pattern), unit});
}

void Report_Maker::Number_Of_Row(Field_Table table, const Control_Name& control, double value) {
  const Field_Row* row = Find_Row(table, control, record);
  if (row == nullptr) return;
  Number(Label_Without_Unit(row->label, row->unit), value, row->pattern, row->unit);
}

void Report_Maker::Put_Row(std::vector<std::string> cells) {
  Report_Table& table = Values();
  table.rows.push_back({std::move(cells), false, !frame_.empty()});
}

void Report_Maker::Words(const std::string& label, const std::string& words) {
  Put_Row({label, Trimmed(words).empty() ? kNoWords : Trimmed(words)});
}

void Report_Maker::Shown_Of(int shown, double count) {
  if (count <= shown) return;
  Paragraph(std::to_string(shown) + " of " + Plain_Number(count) + " shown.");
}

void Report_Maker::Yes_Or_No(const std::string& label, bool yes) {
  Words(label, yes ? "Yes" : "No");
}

}  // namespace barvon
