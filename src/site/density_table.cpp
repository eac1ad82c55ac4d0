#include "site/density_table.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/format_pattern.h"
#include "core/number_text.h"
#include "material/amden.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

using Points = OneBased<double, kMaxDensityPoints>;

struct Density_Column {
  const char* heading;
  const char* pattern;
  Points ProjectRecord::*points;
};

constexpr char kDensityPattern[] = "###0.0000";
constexpr Density_Column kDepth = {"Depth (ft)", "###0.0", &ProjectRecord::DensityDepths};
constexpr Density_Column kDensity = {"Density (g/cc)", kDensityPattern, &ProjectRecord::Densities};
constexpr std::array<Density_Column, 2> kTyped = {kDepth, kDensity};
constexpr std::array<Density_Column, 4> kComputed = {
    kDepth,
    {"Salinity (ppt)", "###0.0", &ProjectRecord::DensitySalinities},
    {"Temp (celsius)", "###0.0", &ProjectRecord::DensityTemperatures},
    kDensity};
constexpr int kColumnWidth = 3650;
constexpr int kDepthColumn = 1, kSalinityColumn = 2, kTemperatureColumn = 3, kDensityColumn = 4;

std::span<const Density_Column> Columns(bool computed) {
  if (computed) return kComputed;
  return kTyped;
}

}  // namespace

void Lay_Out_Density_Table(bool computed, Spreadsheet_Table& F1Book1) {
  const auto columns = Columns(computed);
  F1Book1.MaxCol(static_cast<int>(columns.size()));
  int column = 0;
  for (const Density_Column& shown : columns) {
    ++column;
    F1Book1.ColText(column, shown.heading);
    F1Book1.NumberFormat({1, column, kMaxDensityPoints, column}, shown.pattern);
  }
  F1Book1.ColWidths(kColumnWidth);
}

void Fill_Density_Table(const ProjectRecord& record, int rows, bool computed,
                        Spreadsheet_Table& F1Book1) {
  const Table_Fill fill(F1Book1);
  for (int row = 1; row <= std::min(rows, kMaxDensityPoints); ++row) {
    int column = 0;
    for (const Density_Column& shown : Columns(computed)) {
      F1Book1.NumberRC(row, ++column, (record.*shown.points)[row]);
    }
  }
}

void Take_Density_Row(const Spreadsheet_Table& F1Book1, int row, bool computed,
                      ProjectRecord& record) {
  int column = 0;
  for (const Density_Column& shown : Columns(computed)) {
    (record.*shown.points)[row] = F1Book1.NumberRC(row, ++column);
  }
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
    shown[row] = Format_Number(*density, kDensityPattern);
  }
  for (int row = 1; row <= rows; ++row) {
    F1Book1.TextRC(row, kDensityColumn, shown[row]);
    Take_Density_Row(F1Book1, row, true, record);
  }
  record.DensityComputeFlag = kTrue;
  return true;
}

void Tell_No_Density(int row) {
  Show_Message({"The Density of Point " + Plain_Number(row) +
                " Can Not Be Computed.  Please Correct Its Salinity or Temperature."});
}

}  // namespace barvon
