#include "material/solids_layout.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/format_pattern.h"
#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

constexpr unsigned kOfBarge = kWholeLoad | kSeparatedLoad;
constexpr unsigned kWithVolume = kWholeLoad | kHopperLoad;
constexpr char kNumberPattern[] = "####0.000";
constexpr char kStoredPattern[] = "0.0000";
constexpr int kHeadingHeight = 750;  // twips
constexpr Cell_Range kAllCells{1, 1, kSolidsRows, 8};
constexpr char kFont[] = "ariel";
constexpr int kFontPoints = 10;

template <auto Member>
Cell_Value Cell_Of_Solid(const ProjectRecord& record, int solid) {
  return Cell_Of(Entry_Of<Member, 0>(record, solid));
}

void Take_Name(const Table_Cell& cell, int solid, ProjectRecord& record) {
  Entry_Of<&ProjectRecord::SolidNames, 0>(record, solid) =
      Trimmed(cell.table.TextRC(cell.row, cell.col));
}

/// What is typed is kept to four decimals.
template <auto Member>
void Take_Number(const Table_Cell& cell, int solid, ProjectRecord& record) {
  const double typed = cell.table.NumberRC(cell.row, cell.col);
  Entry_Of<Member, 0>(record, solid) = Lenient_Number(Format_Number(typed, kStoredPattern));
}

template <auto Member>
Cell_Value Flag_Cell(const ProjectRecord& record, int solid) {
  return std::string(Entry_Of<Member, 0>(record, solid) == 0 ? "N" : "Y");
}

/// With one composition for the load exactly a letter counts, with separation also one with blanks
/// around it. Anything else leaves the flag as it was.
template <auto Member>
void Take_Letter(const Table_Cell& cell, int solid, ProjectRecord& record) {
  const std::string text = Upper_Case(cell.table.TextRC(cell.row, cell.col));
  if (text == "N") Entry_Of<Member, 0>(record, solid) = 0;
  if (text == "Y") Entry_Of<Member, 0>(record, solid) = 1;
}
template <auto Member>
void Take_Trimmed_Letter(const Table_Cell& cell, int solid, ProjectRecord& record) {
  const std::string text = Upper_Case(Trimmed(cell.table.TextRC(cell.row, cell.col)));
  if (text == "N") Entry_Of<Member, 0>(record, solid) = 0;
  if (text == "Y") Entry_Of<Member, 0>(record, solid) = 1;
}
/// On the hopper screen all that is not N is yes, an empty cell too.
template <auto Member>
void Take_No(const Table_Cell& cell, int solid, ProjectRecord& record) {
  const std::string text = Upper_Case(Trimmed(cell.table.TextRC(cell.row, cell.col)));
  Entry_Of<Member, 0>(record, solid) = text == "N" ? 0 : 1;
}

using Cells = Column_Cells<ProjectRecord>;

template <auto Member>
constexpr Cells kNumber = {kMaxSolids, Cell_Of_Solid<Member>, Take_Number<Member>};
constexpr Cells kName = {kMaxSolids, Cell_Of_Solid<&ProjectRecord::SolidNames>, Take_Name};
constexpr Cells kVolume = kNumber<&ProjectRecord::SolidVolFraction>;
constexpr Cells kFall = kNumber<&ProjectRecord::SolidFallVelocity>;
constexpr Cells kVoid = kNumber<&ProjectRecord::SolidVoidRatio>;
template <auto Member>
constexpr Cells kWholeFlag = {kMaxSolids, Flag_Cell<Member>, Take_Letter<Member>};
template <auto Member>
constexpr Cells kSeparatedFlag = {kMaxSolids, Flag_Cell<Member>, Take_Trimmed_Letter<Member>};
template <auto Member>
constexpr Cells kHopperFlag = {kMaxSolids, Flag_Cell<Member>, Take_No<Member>};

constexpr int kAuto = Spreadsheet_Table::kAutoWidth;
constexpr char kCohesiveHeading[] = "Cohesive?\nY or N";
constexpr char kStrippedHeading[] = "Stripped\nDuring Descent?\nY or N";

constexpr Table_Column<ProjectRecord> kColumns[] = {
    {"Solids\nFraction", kAuto, "", kName},
    {"Specific\nGravity", kAuto, kNumberPattern, kNumber<&ProjectRecord::SolidSG>},
    {kVolumeHeading, kAuto, kNumberPattern, kVolume, kWithVolume},
    {"Fall\nVelocity \n(Ft/Sec)", kAuto, kNumberPattern, kFall, kWholeLoad},
    {"Fall\nVelocity\n (Ft/Sec)", kAuto, kNumberPattern, kFall, kSeparatedLoad},
    {"Fall\nVelocity (Ft/Sec)", kAuto, kNumberPattern, kFall, kHopperLoad},
    {"Void Ratio\nAfter Deposition", kAuto, kNumberPattern, kVoid, kOfBarge},
    {"Deposition\nVoid Ratio", kAuto, kNumberPattern, kVoid, kHopperLoad},
    {"Critical\nShear Stress\nLbs/Ft^2", kAuto, kNumberPattern,
     kNumber<&ProjectRecord::SolidCriticalShear>},
    {kCohesiveHeading, kAuto, "", kWholeFlag<&ProjectRecord::SolidCohesive>, kWholeLoad},
    {kCohesiveHeading, kAuto, "", kSeparatedFlag<&ProjectRecord::SolidCohesive>, kSeparatedLoad},
    {kCohesiveHeading, kAuto, "", kHopperFlag<&ProjectRecord::SolidCohesive>, kHopperLoad},
    {kStrippedHeading, kAuto, "", kWholeFlag<&ProjectRecord::SolidStripped>, kWholeLoad},
    {kStrippedHeading, kAuto, "", kSeparatedFlag<&ProjectRecord::SolidStripped>, kSeparatedLoad},
    {kStrippedHeading, kAuto, "", kHopperFlag<&ProjectRecord::SolidStripped>, kHopperLoad},
};

/// Typical values, by Solids_Field; the volumetric fraction has none.
using Reference_Row = std::array<const char*, 8>;
constexpr Reference_Row kReference[kReferenceRows] = {
    {"Clumps", "1.6", "", "3.0", "0.4", "99", "N", "N"},
    {"Gravel", "2.7", "", "1.0", "0.5", "99", "N", "N"},
    {"Coarse_Sand", "2.7", "", "0.5", "0.55", "0.02-0.03", "N", "Y or N"},
    {"Medium_Sand", "2.7", "", "0.1", "0.6", "0.01-0.03", "N", "Y or N"},
    {"Fine_Sand", "2.7", "", "0.02", "0.7", "0.01-0.02", "N", "Y"},
    {"Silt", "2.65", "", "0.01", "3-6", "0.007-0.01", "Y", "Y"},
    {"Clay", "2.65", "", "0.002", "5-10", "0.0006-0.007", "Y", "Y"}};

constexpr const char* kNames[] = {"Clumps",    "Gravel", "Coarse_Sand", "Medium_Sand",
                                  "Fine_Sand", "Silt",   "Clay"};
constexpr const char* kNamesWithBlanks[] = {"Clumps",    "Gravel", "Coarse Sand", "Medium Sand",
                                            "Fine Sand", "Silt",   "Clay"};

Cell_Range Centred_Range(Solids_Layout layout) {
  return {1, 1, layout == kWholeLoad ? kRowBase : kReferenceRows, 8};
}

}  // namespace

Shown_Columns<ProjectRecord> Solids_Columns(Solids_Layout layout) {
  return Shown_Columns(kColumns, layout);
}

int Solids_Column_Count(Solids_Layout layout) { return Column_Of(Solids_Field::Stripped, layout); }

int Column_Of(Solids_Field field, Solids_Layout layout) {
  const int col = static_cast<int>(field) + 1;
  if (layout != kSeparatedLoad || field < Solids_Field::Volume) return col;
  return field == Solids_Field::Volume ? 0 : col - 1;
}

std::span<const char* const> Reference_Names(Solids_Layout layout) {
  return layout == kSeparatedLoad ? kNamesWithBlanks : kNames;
}

void Define_Solids_Table(Solids_Layout layout, Spreadsheet_Table& table) {
  const Table_Fill fill(table);
  table.MaxRow(kSolidsRows);
  table.FixedRows(kRowBase);
  Solids_Columns(layout).Lay_Out(kRowBase + 1, kSolidsRows, table);
  table.ColHeadingHeight(kHeadingHeight);
  for (int row = 1; row <= kReferenceRows; ++row) {
    const auto at = static_cast<std::size_t>(row - 1);
    for (std::size_t field = 1; field < kReference[at].size(); ++field) {
      const int col = Column_Of(static_cast<Solids_Field>(field), layout);
      if (col > 0) table.TextRC(row, col, kReference[at][field]);
    }
    table.TextRC(row, 1, Reference_Names(layout)[at]);
    const int volume = Column_Of(Solids_Field::Volume, layout);
    if (volume > 0) table.TextRC(row, volume, layout == kHopperLoad ? "-" : "  -  ");
  }
  table.Centred(Centred_Range(layout), true);
  table.Font(kAllCells, kFont, kFontPoints);
  table.AutoColWidth();
  Format_Solids_Rows(table);
}

void Format_Solids_Rows(Spreadsheet_Table& table) {
  constexpr int kLast = kRowBase + kMostSolidsRows, kMostColumns = 8;
  table.Centred({kRowBase + 1, 1, kLast, kMostColumns}, true);
  // A fraction that is named "100" is no number.
  table.NumberFormat({kRowBase + 1, 2, kLast, kMostColumns}, kNumberPattern);
}

}  // namespace barvon
