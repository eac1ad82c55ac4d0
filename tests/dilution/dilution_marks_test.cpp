#include "dilution/dilution_marks.h"

#include "dilution/dilution_support.h"

namespace barvon::testing {
namespace {

class DilutionMarks : public Dilution_Tables {
 protected:
  DilutionMarks() { Enter_Three(); }
  Cell_Look Look(Dilution_Tab tab, int row, int col = 2) {
    return Look_Of_Dilution(tab, row, col, grids);
  }
};

const Cell_Look kPlain{};
const Cell_Look kGrey{.tip = "Changed since the last Compute", .grey = true};

TEST_F(DilutionMarks, Rows_Are_Grey_Until_They_Are_Computed_And_When_They_Change) {
  EXPECT_EQ(Look(kBulkTab, 1), kGrey);
  Compute();
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(Look(kBulkTab, row), kPlain);
  Enter(kBulkTab, 2, 4, {{"3"}});
  EXPECT_EQ(Look(kBulkTab, 2, 1), kGrey);
  EXPECT_EQ(Look(kBulkTab, 2, 5), kGrey);
  EXPECT_EQ(Look(kBulkTab, 1), kPlain);
  EXPECT_EQ(Look(kElutriateTab, 2), kGrey) << "at once";
  Enter(kBulkTab, 2, 4, {{"2.0"}});
  EXPECT_EQ(Look(kBulkTab, 2), kPlain) << "as it was computed";
}

TEST_F(DilutionMarks, Another_Solids_Concentration_Changes_The_Sediment_Only) {
  Compute(50);
  grids.solids = 60;
  EXPECT_EQ(Look(kBulkTab, 1), kGrey);
  EXPECT_EQ(Look(kElutriateTab, 1), kPlain);
}

TEST_F(DilutionMarks, Rows_Below_A_Missing_Name_Are_Told) {
  Compute();
  Clear(kBulkTab, {2, 1, 2, 1});
  EXPECT_EQ(Look(kBulkTab, 1), kPlain);
  EXPECT_EQ(Look(kBulkTab, 2, 1),
            (Cell_Look{.warned = true, .tip = "A name is missing here: the list ends above"}));
  EXPECT_EQ(Look(kBulkTab, 3),
            (Cell_Look{.tip = "Not in the list: a name is missing above", .grey = true}));
}

TEST_F(DilutionMarks, The_Picture_Shows_Each_Dilution_On_A_Logarithmic_Axis) {
  Enter(kBulkTab, 2, 3, {{"0"}});
  Enter(kBulkTab, 3, 3, {{"150"}});
  Read_Dilute_Grid(kBulkTab, grids, record);
  Compute();
  const Bar_Chart chart = Dilution_Bars(kBulkTab, grids);
  EXPECT_TRUE(chart.logarithmic);
  EXPECT_EQ(chart.title, "Dilution required for bulk sediment");
  EXPECT_EQ(chart.value_label, "parts of ambient water");
  ASSERT_EQ(chart.bars.size(), 3U);
  EXPECT_EQ(Bar_Words(chart.bars[0]), "Copper: 5");
  EXPECT_EQ(Bar_Words(chart.bars[1]), "Lead: cannot be met");
  EXPECT_TRUE(chart.bars[1].endless);
  EXPECT_EQ(Bar_Words(chart.bars[2]), "Zinc: met undiluted");
  EXPECT_EQ(Draw_Bars(chart).note, "");
  EXPECT_EQ(Changed_Rows_Note(kBulkTab, grids), "");
}

TEST_F(DilutionMarks, A_Dilution_Beyond_Every_Number_Is_Told_In_The_Picture) {
  Enter(kBulkTab, 1, 2, {{"1E308"}});
  Read_Dilute_Grid(kBulkTab, grids, record);
  Compute(50000);
  const Bar_Chart chart = Dilution_Bars(kBulkTab, grids);
  EXPECT_EQ(Bar_Words(chart.bars.at(0)), "Copper: beyond every number");
  EXPECT_TRUE(chart.bars[0].endless);
}

TEST_F(DilutionMarks, Rows_That_Have_Changed_Stay_Out_Of_The_Picture) {
  Compute();
  Enter(kElutriateTab, 1, 2, {{"99"}});
  const Bar_Chart chart = Dilution_Bars(kElutriateTab, grids);
  EXPECT_EQ(chart.title, "Dilution required for elutriate");
  ASSERT_EQ(chart.bars.size(), 2U);
  EXPECT_EQ(chart.bars[0].label, "Lead");
  EXPECT_EQ(Changed_Rows_Note(kElutriateTab, grids),
            "1 row changed since the last Compute: not shown");
  EXPECT_EQ(Dilution_Bars(kBulkTab, grids).bars.size(), 3U);
}

TEST_F(DilutionMarks, Five_Hundred_Bars_Are_Drawn) {
  Text_Block cells;
  for (int i = 1; i <= 500; ++i) cells.push_back({"P" + std::to_string(i), "1000", "10", "2"});
  Enter(kBulkTab, 1, 1, cells);
  Read_Dilute_Grid(kBulkTab, grids, record);
  Compute();
  const Bars_Drawing drawing = Draw_Bars(Dilution_Bars(kBulkTab, grids));
  EXPECT_EQ(drawing.chart.bars.size(), 500U);
  EXPECT_EQ(drawing.left_out, 0);
}

TEST_F(DilutionMarks, Results_That_The_Record_Brings_Along_Are_Known) {
  Compute();
  Dilution_Grids fresh(bulk, elutriate);
  fresh.solids = record.DiluteSolidsConc;
  record.DiluteElutDilution[2] = 7;
  Keep_Computed(fresh, record);
  EXPECT_FALSE(Has_Changed(kBulkTab, 2, fresh));
  EXPECT_TRUE(Has_Changed(kElutriateTab, 2, fresh));
}

}  // namespace
}  // namespace barvon::testing
