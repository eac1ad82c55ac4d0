#include "dilution/dilution_rows.h"

#include "dilution/dilution_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

/// Three computed parameters on both tabs.
class DilutionRows : public Dilution_Tables {
 protected:
  DilutionRows() {
    Enter_Three();
    Compute();
  }
  Names All(int col, int rows) {
    Names texts = Column(kBulkTab, col, rows);
    const Names others = Column(kElutriateTab, col, rows);
    texts.insert(texts.end(), others.begin(), others.end());
    return texts;
  }
};

TEST_F(DilutionRows, Deleted_Ones_Go_In_Both_Tables_And_At_The_Next_Read_In_The_Record) {
  Delete_Dilute_Rows({1, 2, 1, 2}, grids);
  EXPECT_EQ(record.DiluteRowCount, 3);
  EXPECT_EQ(record.DiluteElutriate[1], 11);
  EXPECT_TRUE(Holds_Untaken_Values(kBulkTab, grids, record));
  Read_Dilute_Grid(kBulkTab, grids, record);
  EXPECT_EQ(All(1, 3), (Names{"Lead", "Zinc", "", "Lead", "Zinc", ""}));
  EXPECT_EQ(All(5, 2), (Names{"11.25", "17.50", ".25", ".38"}));
  EXPECT_EQ(record.DiluteRowCount, 2);
  EXPECT_EQ(record.DiluteElutriate[2], 13);
  EXPECT_EQ(record.DiluteElutDilution[1], 0.25);  // (12 - 10) / 8
  EXPECT_FALSE(Has_Changed(kBulkTab, 1, grids));
  EXPECT_FALSE(Has_Changed(kElutriateTab, 2, grids));
  EXPECT_FALSE(bulk.CanUndo());
}

TEST_F(DilutionRows, Inserted_Ones_Are_Empty_In_Both) {
  ASSERT_TRUE(Insert_Dilute_Rows({2, 1, 3, 1}, grids));
  EXPECT_EQ(Column(kBulkTab, 1, 5), (Names{"Copper", "", "", "Lead", "Zinc"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 5), (Names{"11", "", "", "12", "13"}));
  EXPECT_EQ(record.DiluteParameterNames[2], "Lead") << "no empty row gets into the record";
  EXPECT_EQ(record.DiluteRowCount, 3);
  Enter(kBulkTab, 2, 1, {{"Tin"}, {"Iron"}});
  Read_Dilute_Grid(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteElutriate[5], 13);
  EXPECT_EQ(record.DiluteElutriate[2], 0);
  EXPECT_EQ(record.DiluteRowCount, 5);
}

TEST_F(DilutionRows, An_Empty_First_One_Loses_Nothing) {
  ASSERT_TRUE(Insert_Dilute_Rows({1, 1, 1, 1}, grids));
  const auto before = std::make_unique<ProjectRecord>(record);
  Scripted_Messages messages({Answer::Ok});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(messages.shown.at(0).text, kNameMissing);
  EXPECT_EQ(Differing_Fields(*before, record), Names{});
  Delete_Dilute_Rows({1, 1, 1, 1}, grids);
  EXPECT_FALSE(Holds_Untaken_Values(kBulkTab, grids, record));
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"11", "12", "13"}));
}

TEST_F(DilutionRows, The_Rows_Below_An_Empty_One_Keep_Both_Concentrations_Until_It_Is_Named) {
  ASSERT_TRUE(Insert_Dilute_Rows({2, 1, 2, 1}, grids));
  Read_Dilute_Grid(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteRowCount, 1);
  EXPECT_TRUE(Holds_Rows_Below_List(bulk));
  Enter(kBulkTab, 2, 1, {{"Tin", "500", "10", "2"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 1, 4), (Names{"Copper", "Tin", "Lead", "Zinc"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"11", "0", "12", "13"}));
}

TEST_F(DilutionRows, An_Inserted_One_That_Is_Filled_Joins_The_List) {
  ASSERT_TRUE(Insert_Dilute_Rows({1, 1, 1, 1}, grids));
  Enter(kBulkTab, 1, 1, {{"Tin", "500", "10", "2"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 1, 4), (Names{"Tin", "Copper", "Lead", "Zinc"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"0", "11", "12", "13"}));
}

TEST_F(DilutionRows, Moved_Ones_Take_All_That_Is_Known_Of_Them_Along) {
  ASSERT_TRUE(Move_Dilute_Rows({2, 1, 3, 1}, true, grids));
  EXPECT_EQ(All(1, 3), (Names{"Lead", "Zinc", "Copper", "Lead", "Zinc", "Copper"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"12", "13", "11"}));
  Read_Dilute_Grid(kElutriateTab, grids, record);
  EXPECT_EQ(record.DiluteElutriate[3], 11);
  EXPECT_EQ(record.DiluteBulk[3], 1000);
  EXPECT_EQ(record.DiluteBulkDilution[3], 5);
  for (int row = 1; row <= 3; ++row) EXPECT_FALSE(Has_Changed(kBulkTab, row, grids));
  ASSERT_TRUE(Move_Dilute_Rows({1, 1, 1, 1}, false, grids));
  EXPECT_EQ(Column(kBulkTab, 1, 3), (Names{"Zinc", "Lead", "Copper"}));
}

TEST_F(DilutionRows, At_The_Edge_Nothing_Moves) {
  EXPECT_FALSE(Move_Dilute_Rows({1, 1, 2, 1}, true, grids));
  EXPECT_FALSE(Move_Dilute_Rows({499, 1, 500, 1}, false, grids));
}

TEST_F(DilutionRows, Row_501_Is_Refused_In_Words) {
  Enter(kBulkTab, 500, 7, {{"x"}});
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Insert_Dilute_Rows({1, 1, 1, 1}, grids));
  EXPECT_EQ(messages.shown.at(0).text,
            "The Table Has 500 Rows.  Nothing Was Inserted, Since the Last Rows Would Be Lost.");
  EXPECT_EQ(bulk.TextRC(1, 1), "Copper");
}

TEST_F(DilutionRows, What_Is_Typed_And_Not_Taken_Moves_Along) {
  Enter(kBulkTab, 3, 2, {{"777"}});
  Delete_Dilute_Rows({1, 1, 1, 1}, grids);
  EXPECT_EQ(bulk.TextRC(2, 2), "777");
  EXPECT_EQ(record.DiluteBulk[3], 3000);
  EXPECT_TRUE(Holds_Untaken_Values(kBulkTab, grids, record));
}

TEST_F(DilutionRows, More_Than_One_Are_Asked_For) {
  Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Delete_Dilute_Rows({2, 1, 3, 1}, grids));
  EXPECT_EQ(messages.shown.at(0).text,
            "Deleted Rows Can't Be Brought Back.  Do You Wish to Delete All Chosen Rows?");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(messages.shown[0].icon, Icon::Warning);
  EXPECT_EQ(All(1, 3), (Names{"Copper", "Lead", "Zinc", "Copper", "Lead", "Zinc"}));
}

TEST_F(DilutionRows, Empty_Ones_Go_Without_A_Question) {
  EXPECT_TRUE(Delete_Dilute_Rows({4, 1, 500, 7}, grids));
}

TEST_F(DilutionRows, All_500_Can_Go) {
  Scripted_Messages messages({Answer::Yes});
  Delete_Dilute_Rows({1, 1, 500, 7}, grids);
  EXPECT_TRUE(Holds_Untaken_Values(kBulkTab, grids, record));
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteRowCount, 0);
  EXPECT_EQ(record.DiluteParameterNames[1], "");
  EXPECT_TRUE(bulk.IsEmptyRC(1, 1));
  EXPECT_TRUE(elutriate.IsEmptyRC(3, 2));
}

}  // namespace
}  // namespace barvon::testing
