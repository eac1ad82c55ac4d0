#pragma once

#include <span>
#include <string>

#include "core/project_record.h"
#include "core/record_columns.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

// The solids table of the material screens: seven reference rows that can't be changed, an empty
// one, and from row 9 on the fractions of the project.
inline constexpr int kReferenceRows = 7;
inline constexpr int kRowBase = 8;                         // rows above the project's
inline constexpr int kSolidsRows = kRowBase + kMaxSolids;  // that are shown
inline constexpr int kMostSolidsRows = 30;                 // of the project that are looked at

/// The three layouts. Their texts differ in small things, and how the Y and N columns are read.
enum Solids_Layout : unsigned {
  kWholeLoad = 1,      // barge: one composition for all layers
  kSeparatedLoad = 2,  // barge: no column of volumetric fractions
  kHopperLoad = 4
};

inline constexpr char kVolumeHeading[] = "Volumetric\nFraction";

enum class Solids_Field { Name, Gravity, Volume, Fall, Void, Shear, Cohesive, Stripped };

/// The columns of a layout, with the record's arrays behind them.
Shown_Columns<ProjectRecord> Solids_Columns(Solids_Layout layout);
int Solids_Column_Count(Solids_Layout layout);
/// The column of a field; 0 in a layout without it.
int Column_Of(Solids_Field field, Solids_Layout layout);

/// The names of the reference rows, which seed an empty library.
std::span<const char* const> Reference_Names(Solids_Layout layout);

/// Headings, the reference rows and the look of the table. The fractions' rows are left alone.
void Define_Solids_Table(Solids_Layout layout, Spreadsheet_Table& table);

/// How the project's rows look, whatever is in them: three decimals, centred.
void Format_Solids_Rows(Spreadsheet_Table& table);

}  // namespace barvon
