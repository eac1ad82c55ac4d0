#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/book_numbers.h"
#include "dilution/dilution_grid.h"
#include "dilution/dilution_marks.h"
#include "dilution/dilution_mirror.h"
#include "dilution/dilution_rules.h"
#include "platform/table/spreadsheet_edits.h"
#include "support/plain_support.h"

namespace barvon::testing {

using Names = std::vector<std::string>;

/// Both tables of the calculator without a screen.
class Dilution_Tables : public ::testing::Test {
 protected:
  Dilution_Tables() {
    for (const Dilution_Tab tab : {kBulkTab, kElutriateTab}) Define_Dilute_Grid(tab, grids(tab));
  }

  /// As a user types or pastes it: cells of a row from a column on.
  void Enter(Dilution_Tab tab, int row, int col, const Text_Block& cells) {
    const Cell_Range start{row, col, row, col};
    ASSERT_EQ(Paste_Cells(grids(tab), start, cells).refusal, "");
    const auto rows = static_cast<int>(cells.size());
    const auto cols = static_cast<int>(Width_Of(cells));
    Follow_Dilute_Edit(tab, {row, col, row + rows - 1, col + cols - 1}, grids);
  }
  void Clear(Dilution_Tab tab, const Cell_Range& range) {
    ASSERT_EQ(Clear_Cells(grids(tab), range).refusal, "");
    Follow_Dilute_Edit(tab, range, grids);
  }
  /// Three parameters on both tabs: 1000, 2000 and 3000 ug/kg, 11, 12 and 13 ug/L.
  void Enter_Three() {
    Enter(
        kBulkTab, 1, 1,
        {{"Copper", "1000", "10", "2"}, {"Lead", "2000", "10", "2"}, {"Zinc", "3000", "10", "2"}});
    Leave_Dilute_Tab(kBulkTab, grids, record);
    Enter(kElutriateTab, 1, 2, {{"11"}, {"12"}, {"13"}});
    Leave_Dilute_Tab(kElutriateTab, grids, record);
  }
  Names Column(Dilution_Tab tab, int col, int rows) {
    Names texts;
    for (int row = 1; row <= rows; ++row) texts.push_back(grids(tab).TextRC(row, col));
    return texts;
  }
  void Compute(double solids = 50) {
    grids.solids = solids;
    ASSERT_TRUE(Compute_Dilutions(solids, record));
    Keep_Computed(grids, record);
    Show_Dilutions(grids, record);
  }

  Spreadsheet_Table bulk{kBookNumbers}, elutriate{kBookNumbers};
  Dilution_Grids grids{bulk, elutriate};
  std::unique_ptr<ProjectRecord> owner = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *owner;
};

}  // namespace barvon::testing
