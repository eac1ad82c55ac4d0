#include "site/density_table.h"

#include <array>

#include "core/format_pattern.h"
#include "core/number_text.h"
#include "core/record_columns.h"
#include "material/amden.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

enum Layout : unsigned { kTyped = 1, kComputed = 2 };

constexpr int kWidth = 3650;
constexpr char kDensityPattern[] = "###0.0000";
constexpr Table_Column<ProjectRecord> kColumns[] = {
    {"Depth (ft)", kWidth, "###0.0", kCells<&ProjectRecord::DensityDepths>},
    {"Salinity (ppt)", kWidth, "###0.0", kCells<&ProjectRecord::DensitySalinities>, kComputed},
    {"Temp (celsius)", kWidth, "###0.0", kCells<&ProjectRecord::DensityTemperatures>, kComputed},
    {"Density (g/cc)", kWidth, kDensityPattern, kCells<&ProjectRecord::Densities>}};
constexpr int kDepthColumn = 1, kSalinityColumn = 2, kTemperatureColumn = 3, kDensityColumn = 4;

Shown_Columns<ProjectRecord> Columns(bool computed) {
  return Shown_Columns(kColumns, computed ? kComputed : kTyped);
}

}  // namespace

void Lay_Out_Density_Table(bool computed, Spreadsheet_Table& F1Book1) {
  Columns(computed).Lay_Out(1, kMaxDensityPoints, F1Book1);
}

void Fill_Density_Table(const ProjectRecord& record, int rows, bool computed,
                        Spreadsheet_Table& F1Book1) {
  Columns(computed).Fill(record, rows, F1Book1);
}

void Store_Density_Row(const Spreadsheet_Table& F1Book1, int row, bool computed,
                       ProjectRecord& record) {
  Columns(computed).Store_Row(F1Book1, row, row, record);
}

bool Compute_Density_Table(Spreadsheet_Table& F1Book1, ProjectRecord& record) {
  const int rows = F1Book1.MaxRow();
  if (rows > kMaxDensityPoints) {
    Show_Message({"Density Is Computed for at Most " + Plain_Number(kMaxDensityPoints) +
                  " Points.  Please Correct the Number of Density Points First."});
    return false;
  }
  std::array<std::string, kMaxDensityPoints + 1> shown;
  for (int row = 1; row <= rows; ++row) {
    const auto density =
        AMDEN(F1Book1.NumberRC(row, kSalinityColumn), F1Book1.NumberRC(row, kTemperatureColumn),
              F1Book1.NumberRC(row, kDepthColumn));
    if (!density) {
      Tell_No_Density(row);
      return false;
    }
    shown[static_cast<std::size_t>(row)] = Format_Number(*density, kDensityPattern);
  }
  for (int row = 1; row <= rows; ++row) {
    F1Book1.TextRC(row, kDensityColumn, shown[static_cast<std::size_t>(row)]);
    Store_Density_Row(F1Book1, row, true, record);
  }
  record.DensityComputeFlag = kTrue;
  return true;
}

void Tell_No_Density(int row) {
  Show_Message({"The Density of Point " + Plain_Number(row) +
                " Can Not Be Computed.  Please Correct Its Salinity or Temperature."});
}

}  // namespace barvon
