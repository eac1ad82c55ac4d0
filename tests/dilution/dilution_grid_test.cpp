#include "dilution/dilution_grid.h"

#include "dilution/dilution_hints.h"
#include "dilution/dilution_support.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

using DilutionGrid = Dilution_Tables;

TEST_F(DilutionGrid, Has_Headings_Widths_And_Size_As_They_Are_Told) {
  for (const Dilution_Tab tab : {kBulkTab, kElutriateTab}) {
    EXPECT_EQ(grids(tab).MaxRow(), 500);
    EXPECT_EQ(grids(tab).MaxCol(), 7);
    EXPECT_EQ(grids(tab).ColHeadingHeight(), 1000);
    EXPECT_EQ(grids(tab).ColText(1), "Parameter");
    EXPECT_EQ(grids(tab).ColText(3), "Water Quality\nCriteria (ug/l)");
    EXPECT_EQ(grids(tab).ColText(4), "Background\n Concentration (ug/l)");
    const int widths[] = {2960, 4280, 3700, 3920, 4130};
    for (int col = 1; col <= 5; ++col) EXPECT_EQ(grids(tab).ColWidth(col), widths[col - 1]);
    EXPECT_FALSE(Can_Edit(grids(tab), 1, 5));
    EXPECT_TRUE(Can_Edit(grids(tab), 500, 4));
    EXPECT_FALSE(Can_Edit(grids(tab), 501, 1));
  }
  EXPECT_EQ(bulk.ColText(2), "Concentration in\nBulk Sediment (ug/kg)");
  EXPECT_EQ(elutriate.ColText(2), "Concentration in\nElutriate (ug/l)");
  EXPECT_EQ(bulk.ColText(5), "Bulk Sediment\nDilution Req'd");
  EXPECT_EQ(elutriate.ColText(5), "Elutriate\nDilution Req'd");
}

TEST_F(DilutionGrid, A_Tab_Is_Read_Column_By_Column_Into_Its_Own_Concentration) {
  Enter(kBulkTab, 1, 1, {{"Copper", "1", "2", "3"}, {"Lead", "4", "5", "6"}});
  Read_Dilute_Grid(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteRowCount, 2);
  EXPECT_EQ(record.DiluteParameterNames[2], "Lead");
  EXPECT_EQ(record.DiluteBulk[2], 4);
  EXPECT_EQ(record.DiluteCriteria[2], 5);
  EXPECT_EQ(record.DiluteBackground[2], 6);
  EXPECT_EQ(record.DiluteElutriate[2], 0);
  Enter(kElutriateTab, 1, 2, {{"7", "8", "9"}});
  Read_Dilute_Grid(kElutriateTab, grids, record);
  EXPECT_EQ(record.DiluteRowCount, 2);
  EXPECT_EQ(record.DiluteElutriate[1], 7);
  EXPECT_EQ(record.DiluteCriteria[1], 8);
  EXPECT_EQ(record.DiluteBackground[1], 9);
  EXPECT_EQ(record.DiluteBulk[1], 1);
}

TEST_F(DilutionGrid, A_Blank_Row_Cuts_Off_All_Rows_Below_It) {
  Enter(kBulkTab, 1, 1, {{"Copper"}, {"Lead"}});
  Enter(kBulkTab, 4, 1, {{"Zinc"}});
  Read_Dilute_Grid(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteRowCount, 2);
  EXPECT_EQ(bulk.TextRC(4, 1), "Zinc");
}

TEST_F(DilutionGrid, Without_A_Name_Only_The_Count_Is_Read) {
  Enter_Three();
  Clear(kBulkTab, {1, 1, 3, 1});
  const auto before = std::make_unique<ProjectRecord>(record);
  Read_Dilute_Grid(kBulkTab, grids, record);
  EXPECT_EQ(Differing_Fields(*before, record), Names{"DiluteRowCount"});
  EXPECT_EQ(record.DiluteRowCount, 0);
}

TEST_F(DilutionGrid, Five_Hundred_Rows_Are_A_List) {
  Text_Block cells;
  for (int i = 1; i <= 500; ++i) cells.push_back({"P" + std::to_string(i), std::to_string(i)});
  Enter(kBulkTab, 1, 1, cells);
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteRowCount, 500);
  EXPECT_EQ(record.DiluteBulk[500], 500);
  EXPECT_EQ(elutriate.TextRC(500, 1), "P500");
}

TEST_F(DilutionGrid, A_Paste_Beyond_The_Last_Row_Is_Refused_Whole) {
  const Edit_Outcome outcome =
      Paste_Cells(bulk, {499, 1, 499, 1}, {{"a", "1"}, {"b", "2"}, {"c", "3"}});
  EXPECT_EQ(outcome.refusal,
            "What is to be pasted has 3 rows and 2 columns.  From the chosen cell on the table has "
            "2 rows and 7 columns.  Nothing was pasted.");
  EXPECT_TRUE(bulk.IsEmptyRC(499, 1));
}

TEST_F(DilutionGrid, A_Change_Of_Tab_Carries_Names_Criteria_And_Background_Across) {
  Enter_Three();
  EXPECT_EQ(Column(kElutriateTab, 1, 4), (Names{"Copper", "Lead", "Zinc", ""}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"11", "12", "13", ""}));
  EXPECT_EQ(Column(kElutriateTab, 3, 2), (Names{"10", "10"}));
  EXPECT_EQ(Column(kElutriateTab, 4, 2), (Names{"2", "2"}));
  EXPECT_EQ(Column(kBulkTab, 2, 3), (Names{"1000", "2000", "3000"}));
  EXPECT_EQ(Column(kBulkTab, 5, 2), (Names{".00", ".00"}));
  EXPECT_TRUE(bulk.StyleRC(500, 7).centred);
}

TEST_F(DilutionGrid, A_Text_That_Reads_As_Its_Value_Stays_As_It_Was_Typed) {
  Enter(kBulkTab, 1, 1, {{"Copper", "<0.5", "1,200", "ND"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(bulk.TextRC(1, 2), "<0.5");
  EXPECT_EQ(bulk.TextRC(1, 3), "1,200");
  EXPECT_EQ(bulk.TextRC(1, 4), "ND");
  EXPECT_EQ(record.DiluteCriteria[1], 1);
}

TEST_F(DilutionGrid, A_Change_Of_Tab_Keeps_All_Digits) {
  record.DiluteRowCount = 1;
  record.DiluteParameterNames[1] = "Copper";
  record.DiluteBulk[1] = 1.0 / 3;
  Fill_Dilute_Grids(grids, record);
  Leave_Dilute_Tab(kBulkTab, grids, record);
  Leave_Dilute_Tab(kElutriateTab, grids, record);
  EXPECT_EQ(record.DiluteBulk[1], 1.0 / 3);
}

TEST_F(DilutionGrid, A_Change_Of_Tab_With_Empty_Tables_Initializes) {
  Scripted_Messages messages;
  record.DiluteBulk[3] = 5;
  record.DiluteRowCount = 3;
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteBulk[3], 0);
}

TEST_F(DilutionGrid, A_Change_Of_Tab_Says_That_A_Name_Is_Missing_And_Clears_Nothing) {
  Enter(kBulkTab, 1, 2, {{"1000", "10", "2"}});
  Scripted_Messages messages({Answer::Ok});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(messages.shown.at(0).text,
            "A Parameter's Name Is Missing.  The First Row Without a Name Ends the List.");
  EXPECT_EQ(bulk.TextRC(1, 2), "1000");
}

TEST_F(DilutionGrid, What_Is_Typed_On_One_Tab_Before_Its_Name_Stands_When_The_Other_Gives_It) {
  Enter(kElutriateTab, 1, 2, {{"55", "12", "3"}});
  Scripted_Messages messages({Answer::Ok});
  Leave_Dilute_Tab(kElutriateTab, grids, record);
  Enter(kBulkTab, 1, 1, {{"Copper", "1000"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(elutriate.TextRC(1, 1), "Copper");
  EXPECT_EQ(elutriate.TextRC(1, 2), "55");
  EXPECT_EQ(elutriate.TextRC(1, 3), "12");
  Leave_Dilute_Tab(kElutriateTab, grids, record);
  EXPECT_EQ(record.DiluteElutriate[1], 55);
  EXPECT_EQ(record.DiluteCriteria[1], 12);
  EXPECT_EQ(bulk.TextRC(1, 3), "12");
}

TEST_F(DilutionGrid, A_Row_That_Was_Never_In_The_List_Is_Not_Emptied_By_The_Other_Tab) {
  Enter(kElutriateTab, 1, 2, {{"55"}});
  Enter(kBulkTab, 1, 1, {{"Copper"}});
  Clear(kBulkTab, {1, 1, 1, 1});
  EXPECT_EQ(elutriate.TextRC(1, 2), "55");
}

TEST_F(DilutionGrid, A_Concentration_Never_Read_Does_Not_Become_That_Of_Another_Name) {
  Enter(kElutriateTab, 2, 1, {{"Zinc", "5"}});
  Enter(kBulkTab, 1, 1, {{"Copper", "1"}, {"Lead", "2"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 1, 2), (Names{"Copper", "Lead"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"0", "0"}));
  Enter(kBulkTab, 2, 1, {{"Lead"}, {"Zinc"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(elutriate.TextRC(3, 2), "5");
}

TEST_F(DilutionGrid, Criteria_And_Background_Go_Across_As_They_Were_Typed) {
  Enter_Three();
  Enter(kBulkTab, 1, 3, {{"1,200", "ND"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(elutriate.TextRC(1, 3), "1,200");
  EXPECT_EQ(elutriate.TextRC(1, 4), "ND");
  Enter(kElutriateTab, 1, 3, {{"1", "0"}});
  Leave_Dilute_Tab(kElutriateTab, grids, record);
  EXPECT_EQ(bulk.TextRC(1, 3), "1");
  EXPECT_EQ(bulk.TextRC(1, 4), "0");
}

TEST_F(DilutionGrid, A_Result_Alone_Does_Not_Keep_The_Tables_From_Being_Empty) {
  record.DiluteBulk[3] = 5;
  bulk.TextRC(1, 5, "5.00");
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(record.DiluteBulk[3], 0);
  EXPECT_EQ(bulk.TextRC(1, 5), "");
}

TEST_F(DilutionGrid, A_Name_That_Is_Typed_Again_Keeps_The_Other_Concentration) {
  Enter_Three();
  Enter(kBulkTab, 2, 1, {{"Lead (total)"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"11", "12", "13"}));
}

TEST_F(DilutionGrid, After_A_Paste_Of_Names_The_Other_Concentration_Follows_Its_Name) {
  Enter_Three();
  Enter(kBulkTab, 1, 1, {{"Zinc"}, {"Tin"}, {"Copper"}, {"Lead"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 1, 4), (Names{"Zinc", "Tin", "Copper", "Lead"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"13", "0", "11", "12"}));
  Enter(kElutriateTab, 1, 1, {{"Copper"}, {"Lead"}, {"Tin"}, {"Zinc"}});
  Leave_Dilute_Tab(kElutriateTab, grids, record);
  // The bulk column was not pasted on the first tab, so it stood in its rows then.
  EXPECT_EQ(Column(kBulkTab, 2, 4), (Names{"3000", "0", "2000", "1000"}));
}

TEST_F(DilutionGrid, A_Concentration_Comes_Back_With_Its_Name) {
  Enter_Three();
  Enter(kBulkTab, 1, 1, {{"A"}, {"B"}, {"C"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"0", "0", "0"}));
  Enter(kBulkTab, 1, 1, {{"Lead"}, {"Zinc"}, {"Copper"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"12", "13", "11"}));
}

TEST_F(DilutionGrid, Concentrations_Of_One_Name_Keep_Their_Order) {
  Enter(kBulkTab, 1, 1, {{"A", "1"}, {"A", "2"}, {"B", "3"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  Enter(kElutriateTab, 1, 2, {{"11"}, {"12"}, {"13"}});
  Leave_Dilute_Tab(kElutriateTab, grids, record);
  Enter(kBulkTab, 1, 1, {{"B"}, {"A"}, {"A"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"13", "11", "12"}));
}

TEST_F(DilutionGrid, Rows_That_Are_Emptied_Go_In_Both_Tables) {
  Enter_Three();
  Compute();
  Clear(kBulkTab, {2, 1, 3, 7});
  EXPECT_EQ(bulk.TextRC(2, 5), "");
  for (int col = 1; col <= 5; ++col) EXPECT_EQ(elutriate.TextRC(3, col), "") << col;
  EXPECT_EQ(elutriate.TextRC(1, 2), "11");
  Leave_Dilute_Tab(kBulkTab, grids, record);
  Leave_Dilute_Tab(kElutriateTab, grids, record);
  EXPECT_EQ(record.DiluteRowCount, 1);
}

TEST_F(DilutionGrid, An_Undo_Of_The_Emptying_Brings_Both_Back) {
  Enter_Three();
  Clear(kBulkTab, {2, 1, 3, 7});
  const auto undone = bulk.Undo();
  ASSERT_TRUE(undone);
  Follow_Dilute_Edit(kBulkTab, *undone, grids);
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 1, 3), (Names{"Copper", "Lead", "Zinc"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"11", "12", "13"}));
}

TEST_F(DilutionGrid, An_Undo_Of_The_Emptying_Brings_The_Result_Back) {
  Enter_Three();
  Compute();
  Clear(kBulkTab, {2, 1, 2, 7});
  EXPECT_EQ(bulk.TextRC(2, 5), "");
  const auto undone = bulk.Undo();
  ASSERT_TRUE(undone);
  Follow_Dilute_Edit(kBulkTab, *undone, grids);
  EXPECT_EQ(bulk.TextRC(2, 5), "11.25");  // (100 - 10) / 8
}

TEST_F(DilutionGrid, The_Result_Of_An_Emptied_Row_Is_Not_That_Of_Another_Parameter) {
  Enter_Three();
  Compute();
  Clear(kBulkTab, {2, 1, 2, 7});
  Enter(kBulkTab, 2, 1, {{"Tin", "5"}});
  EXPECT_EQ(bulk.TextRC(2, 5), "");
}

TEST_F(DilutionGrid, Another_Parameter_In_An_Emptied_Row_Has_No_Concentration_Of_The_Former) {
  Enter_Three();
  Clear(kBulkTab, {2, 1, 2, 4});
  Enter(kBulkTab, 2, 1, {{"Tin"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"11", "0", "13"}));
}

TEST_F(DilutionGrid, A_Cut_And_A_Paste_Move_The_Other_Concentration_Along) {
  Enter_Three();
  const Text_Block cut = Copied_Cells(bulk, {1, 1, 1, 4});
  Clear(kBulkTab, {1, 1, 1, 4});
  Enter(kBulkTab, 4, 1, cut);
  Enter(kBulkTab, 1, 1, {{"Tin", "1", "1", "1"}});
  Leave_Dilute_Tab(kBulkTab, grids, record);
  EXPECT_EQ(Column(kElutriateTab, 1, 4), (Names{"Tin", "Lead", "Zinc", "Copper"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"0", "12", "13", "11"}));
}

TEST_F(DilutionGrid, A_List_From_A_File_Clears_Both_Tables_Behind_It) {
  Enter_Three();
  bulk.TextRC(1, 6, "note");
  bulk.TextRC(3, 6, "note");
  record.DiluteRowCount = 1;
  record.DiluteParameterNames[1] = "Tin";
  record.DiluteBulk[1] = 7;
  Show_Read_List(grids, record);
  EXPECT_EQ(Column(kBulkTab, 1, 4), (Names{"Tin", "", "", ""}));
  EXPECT_EQ(Column(kElutriateTab, 2, 3), (Names{"11", "", ""}));
  EXPECT_EQ(bulk.TextRC(1, 2), "7");
  EXPECT_EQ(bulk.TextRC(1, 6) + bulk.TextRC(3, 6), "note");
  EXPECT_FALSE(bulk.CanUndo());
}

TEST_F(DilutionGrid, An_Empty_List_From_A_File_Leaves_The_Tables) {
  Enter_Three();
  record.DiluteRowCount = 0;
  Show_Read_List(grids, record);
  EXPECT_EQ(Column(kBulkTab, 1, 3), (Names{"Copper", "Lead", "Zinc"}));
}

TEST_F(DilutionGrid, Initializing_Leaves_Count_And_Remarks) {
  Enter_Three();
  Compute();
  const std::string remark = record.DiluteBulkRemark[1];
  Initalize_Dilute_Info(grids, record);
  EXPECT_EQ(record.DiluteParameterNames[1], "");
  EXPECT_EQ(record.DiluteSolidsConc, 0);
  EXPECT_EQ(record.DiluteBulkDilution[1], 0);
  EXPECT_EQ(record.DiluteRowCount, 3);
  EXPECT_EQ(record.DiluteBulkRemark[1], remark);
  EXPECT_TRUE(bulk.IsEmptyRC(1, 1));
  EXPECT_TRUE(elutriate.IsEmptyRC(1, 5));
}

TEST_F(DilutionGrid, Results_Are_Shown_With_Two_Decimals) {
  Enter_Three();
  Compute();
  // W = 50, 100 and 150: (W - 10) / 8
  EXPECT_EQ(Column(kBulkTab, 5, 4), (Names{"5.00", "11.25", "17.50", ""}));
  // (11 - 10) / 8 = 0.125, half away from zero
  EXPECT_EQ(Column(kElutriateTab, 5, 3), (Names{".13", ".25", ".38"}));
}

TEST_F(DilutionGrid, Knows_What_Is_Not_Taken) {
  Enter_Three();
  EXPECT_FALSE(Holds_Untaken_Values(kBulkTab, grids, record));
  Enter(kBulkTab, 1, 6, {{"note"}});
  EXPECT_FALSE(Holds_Untaken_Values(kBulkTab, grids, record));
  Enter(kBulkTab, 3, 4, {{"2.5"}});
  EXPECT_TRUE(Holds_Untaken_Values(kBulkTab, grids, record));
  Read_Dilute_Grid(kBulkTab, grids, record);
  EXPECT_FALSE(Holds_Untaken_Values(kBulkTab, grids, record));
  Enter(kBulkTab, 9, 2, {{"77"}});
  EXPECT_TRUE(Holds_Untaken_Values(kBulkTab, grids, record)) << "a row without a name";
}

TEST(DilutionHints, Follow_The_Older_Order_Of_The_Buttons) {
  EXPECT_EQ(Button_Hint(0), "Press The Compute Button To Compute Dilution Requirements");
  EXPECT_EQ(Button_Hint(1),
            "Press Save To File Key To Save Data To Disk and To Create Output File");
  EXPECT_EQ(Button_Hint(2), "Press The Close Key To Return To Main BARVON Window");
  EXPECT_EQ(Button_Hint(3), "Press The Help Key For On-Line Help");
  EXPECT_EQ(Button_Hint(4) + Button_Hint(5), "");
}

TEST(DilutionHints, Tell_What_A_Column_Takes) {
  EXPECT_EQ(Column_Hint(kBulkTab, 1), "Enter The Name of a Parameter");
  EXPECT_EQ(Column_Hint(kBulkTab, 2),
            "Enter The Concentration of the Parameter in the Bulk Sediement");
  EXPECT_EQ(Column_Hint(kElutriateTab, 2),
            "Enter The Concentration of the Parameter in the Elutriate");
  EXPECT_EQ(Column_Hint(kElutriateTab, 3), "Enter The Water Quality Criteria");
  EXPECT_EQ(Column_Hint(kBulkTab, 4), "Enter The Background Concentration of the Parameter");
  EXPECT_EQ(Column_Hint(kBulkTab, 5),
            "Press the Compute Button To Determine the Required Dilution for Bulk Sediement");
  EXPECT_EQ(Column_Hint(kElutriateTab, 5),
            "Press the Compute Button To Determine the Required Dilution for Elutriate");
  EXPECT_EQ(Column_Hint(kBulkTab, 6) + Column_Hint(kBulkTab, 7), "");
}

}  // namespace
}  // namespace barvon::testing
