#include "site/density_endpoints.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/number_text.h"
#include "platform/ask/message_box.h"
#include "site/depth_grid.h"

namespace barvon {
namespace {

constexpr int kSurfaceIsRight = 1, kBottomIsRight = 2, kBothAreRight = 3;
constexpr int kShifted = 2;  // columns that a new first row pushes down

bool Agrees(const char* question) {
  return Ask(question, Buttons::YesNo, Icon::Information, "BARVON Information") == Answer::Yes;
}

void AskFirstDepthIsSurface(Spreadsheet_Table& table) {
  if (!Agrees("It is Required That the First Density Point be at the Surface.  Do You Wish to Have "
              "BARVON Automatically Make the First Depth the Fluid Surface?")) {
    return;
  }
  const Edit_Step step(table);
  table.NumberRC(1, 1, 0);
}

void AskLastDepthIsBottom(float bottom, Spreadsheet_Table& table) {
  if (!Agrees("It is Required That the Last Density Point be at the Bottom.  Do You Wish to Have "
              "BARVON Automatically Make the Last Depth the Bottom?")) {
    return;
  }
  const double feet = Round_Half_Even(Widen(bottom));
  if (feet > std::numeric_limits<std::int16_t>::max()) {
    Show_Message({"The Bottom Depth Is Too Large to be Taken in Whole Feet.  Please Correct It."});
  } else if (feet > 0) {
    const Edit_Step step(table);
    table.NumberRC(table.MaxRow(), 1, feet);
  } else {
    Show_Message({"Please Provide Value for Bottom Depth."});
  }
}

/// A row more at the end, all of it empty, whatever the sheet holds below the table.
void Add_Row(Site_Entry& entry, Spreadsheet_Table& table) {
  const int row = table.MaxRow() + 1;
  table.ClearRange({row, 1, row, table.MaxCol()});
  table.MaxRow(row);
  entry.texts("Text1", kDensityPoints) = Plain_Number(row);
}

bool AddSurfaceRow(Site_Entry& entry, Spreadsheet_Table& table) {
  if (!Agrees("It is Required That the First Density Point be at the Surface.  Do You Wish to Have "
              "BARVON Automatically Add a Row and Make the First Depth the Surface?")) {
    return false;
  }
  Add_Row(entry, table);
  // Columns 3 and 4 stay where they are, also where they hold temperature and density: the user
  // goes through the rows anyway before the next OK.
  for (int row = table.MaxRow(); row > 1; --row) {
    for (int column = 1; column <= kShifted; ++column) {
      table.ValueRC(row, column, table.ValueRC(row - 1, column));
    }
  }
  table.NumberRC(1, 1, 0);
  table.TextRC(1, 2, "");
  // A step of the history knows its cells by their place, and what was typed stands a row lower.
  table.ForgetEdits();
  return true;
}

bool AddBottomRow(float bottom, Site_Entry& entry, Spreadsheet_Table& table) {
  if (!Agrees("It is Required That the Last Density Point be at the Bottom.  Do You Wish to Have "
              "BARVON Automatically Add a Row and Make the Last Depth the Bottom?")) {
    return false;
  }
  if (!std::isfinite(bottom)) {
    Show_Message({"The Bottom Depth Is Too Large.  Please Correct It."});
    return false;
  }
  Add_Row(entry, table);
  // Not rounded, other than where no row is free.
  table.NumberRC(table.MaxRow(), 1, Widen(bottom));
  return true;
}

}  // namespace

double Bottom_Depth(const Site_Entry& entry, const ProjectRecord& record) {
  if (entry.variable_depth) return MaxGridDepth(record);
  return Entered_Number(Site_Fields(), {"Text1", kConstantDepth}, entry.texts, record);
}

Density_Ends Check_Depths(const Site_Entry& entry, const Spreadsheet_Table& F1Book1,
                          const ProjectRecord& record) {
  const auto first = static_cast<float>(F1Book1.NumberRC(1, 1));
  const auto last = static_cast<float>(F1Book1.NumberRC(F1Book1.MaxRow(), 1));
  Density_Ends ends{0, static_cast<float>(Bottom_Depth(entry, record))};
  if (first == 0) ends.result += kSurfaceIsRight;
  if (last >= ends.BottomDepth) ends.result += kBottomIsRight;
  return ends;
}

bool EnsureDensityEndpoints(Site_Entry& entry, Spreadsheet_Table& F1Book1,
                            const ProjectRecord& record) {
  const int n = Density_Rows(entry.texts("Text1", kDensityPoints));
  if (n < 2 || n > kMaxDensityPoints) return true;
  const auto [result, bottom] = Check_Depths(entry, F1Book1, record);
  if (result == kBothAreRight) return true;
  const bool bottom_is_wrong = result != kBottomIsRight;
  const bool surface_is_wrong = result != kSurfaceIsRight;
  if (n == kMaxDensityPoints) {
    if (bottom_is_wrong) AskLastDepthIsBottom(bottom, F1Book1);
    if (surface_is_wrong) AskFirstDepthIsSurface(F1Book1);
    return true;
  }
  bool added = false;
  if (bottom_is_wrong) added = AddBottomRow(bottom, entry, F1Book1);
  // With four points there is room for one row, and it is the bottom's, whatever the answer.
  if (surface_is_wrong && !(n == 4 && bottom_is_wrong)) {
    added = AddSurfaceRow(entry, F1Book1) || added;
  }
  return !added;
}

}  // namespace barvon
