#include "params/coefficients_data.h"

#include <vector>

#include "core/coefficients.h"
#include "core/desk/screen_table.h"
#include "core/number_text.h"
#include "core/record_columns.h"

namespace barvon {
namespace {

constexpr char kFiveDecimals[] = "0.00000";
constexpr Table_Column<ProjectRecord> kColumns[] = {
    {"DESCRIPTION", 8600},
    {.heading = "KEYWORD", .width = 3100, .centred = true},
    {.heading = "DEFAULT VALUE", .width = 4800, .pattern = kFiveDecimals, .centred = true},
    {.heading = "CURRENT VALUE", .width = 4500, .pattern = kFiveDecimals, .centred = true}};

bool Were_Accepted(const ProjectRecord& record) {
  constexpr int kSupplied = *Row_Of_Screen("frmCoefficients").supplied;
  return record.ScreenDataSupplied[kSupplied] != kFalse;
}

}  // namespace

void List_Coefficients(const ProjectRecord& record, Spreadsheet_Table& table) {
  const std::vector<Coefficient> coefficients = Coefficients_Of(record.DisposalMethod);
  table.MaxRow(static_cast<int>(coefficients.size()));
  Shown_Columns(kColumns).Lay_Out(1, table.MaxRow(), table);
  int row = 0;
  for (const Coefficient& one : coefficients) {
    ++row;
    table.TextRC(row, kDescriptionColumn, one.description);
    table.TextRC(row, kKeywordColumn, one.keyword);
    table.NumberRC(row, kDefaultColumn, one.default_value);
    table.NumberRC(row, kCurrentColumn, record.*one.member);
  }
}

void Fill_Coefficients(const ProjectRecord& record, Spreadsheet_Table& F1Book1) {
  const Table_Fill fill(F1Book1);
  const std::vector<Coefficient> coefficients = Coefficients_Of(record.DisposalMethod);
  const bool accepted = Were_Accepted(record), loaded = record.WizardAccepted != kFalse;
  F1Book1.ClearAll();
  F1Book1.MaxRow(static_cast<int>(coefficients.size()));
  Shown_Columns(kColumns).Lay_Out(1, F1Book1.MaxRow(), F1Book1);
  F1Book1.FixedCols(kDefaultColumn);
  int row = 0;
  for (const Coefficient& one : coefficients) {
    ++row;
    F1Book1.TextRC(row, kDescriptionColumn, one.description);
    F1Book1.TextRC(row, kKeywordColumn, one.keyword);
    if (accepted || !loaded) F1Book1.NumberRC(row, kDefaultColumn, one.default_value);
    F1Book1.NumberRC(row, kCurrentColumn,
                     accepted || loaded ? record.*one.member : one.default_value);
  }
  F1Book1.SetActiveCell(1, kCurrentColumn);
}

void Fill_Defaults(const ProjectRecord& record, Spreadsheet_Table& F1Book1) {
  const Edit_Step step(F1Book1);
  int row = 0;
  for (const Coefficient& one : Coefficients_Of(record.DisposalMethod)) {
    ++row;
    for (const int col : {kDefaultColumn, kCurrentColumn}) {
      F1Book1.NumberRC(row, col, one.default_value);
    }
  }
  F1Book1.SetActiveCell(1, kCurrentColumn);
}

Cell_Look Look_Of_Coefficient(const Spreadsheet_Table& F1Book1, const ProjectRecord& record,
                              int row, int col) {
  const std::vector<Coefficient> coefficients = Coefficients_Of(record.DisposalMethod);
  if (col != kCurrentColumn || row < 1 || row > static_cast<int>(coefficients.size())) return {};
  const Coefficient& one = coefficients[static_cast<std::size_t>(row - 1)];
  const double value = F1Book1.NumberRC(row, col);
  Cell_Look look;
  if (F1Book1.IsEmptyRC(row, col)) return {true, true, "Empty, stored as 0"};
  if (value != one.default_value) {
    look.bold = true;
    look.tip = Plain_Number(value) + " is not the default, " + Plain_Number(one.default_value);
  }
  if (!Makes_Sense(one, value)) {
    look.warned = true;
    if (!look.tip.empty()) look.tip += ". ";
    look.tip += value < one.least ? "Below " + Plain_Number(one.least) + " it has no physical sense"
                                  : "This is no number to compute with";
  }
  return look;
}

void Choose_Pritchard(bool chosen, ProjectRecord& record) {
  record.PritchardFlag = chosen ? 1 : 0;
  record.DataSaved = kFalse;
}

void Save_Data(const Spreadsheet_Table& F1Book1, ProjectRecord& record) {
  record.DataSaved = kFalse;
  int row = 0;
  for (const Coefficient& one : Coefficients_Of(record.DisposalMethod)) {
    record.*one.member = F1Book1.NumberRC(++row, kCurrentColumn);
  }
}

}  // namespace barvon
