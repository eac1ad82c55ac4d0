#include "dilution/dilution_mirror.h"

#include "dilution/dilution_file.h"
#include "dilution/dilution_rows.h"
#include "dilution/dilution_support.h"

namespace barvon::testing {
namespace {

/// Four parameters on both tabs, as a file has them; solids 50.4 g/L.
class DilutionMirror : public Dilution_Tables {
 protected:
  DilutionMirror() {
    Put(1, "Copper total", 1000, 26, 10, 2);
    Put(2, "007", 500, 5, 0, 0);
    Put(3, "7440-50-8", 5, 9, 2, 2);
    Put(4, "2E5", 26, 26, 10, 2);
    record.DiluteRowCount = 4;
    Show_Read_List(grids, record);
    Compute_Bulk();
  }
  void Put(std::size_t i, const char* name, double bulk_value, double elutriate_value,
           double criteria, double background) {
    record.DiluteParameterNames[i] = name;
    record.DiluteBulk[i] = bulk_value;
    record.DiluteElutriate[i] = elutriate_value;
    record.DiluteCriteria[i] = criteria;
    record.DiluteBackground[i] = background;
  }
  /// As the button does.
  void Compute_Bulk() {
    Read_Dilute_Grid(kBulkTab, grids, record);
    Compute(50.4);
  }
  void Go(Dilution_Tab left) { Leave_Dilute_Tab(left, grids, record); }
  void Visit() {
    Go(kBulkTab);
    Go(kElutriateTab);
  }
  /// Cell by cell, as by hand.
  void Type_Row(Dilution_Tab tab, int row, const Names& texts) {
    for (int col = 1; const std::string& text : texts) Enter(tab, row, col++, {{text}});
  }
  void Undo(Dilution_Tab tab) { Follow(tab, grids(tab).Undo()); }
  void Redo(Dilution_Tab tab) { Follow(tab, grids(tab).Redo()); }
  Names Row(Dilution_Tab tab, int row) {
    Names texts;
    for (int col = 1; col <= 4; ++col) texts.push_back(grids(tab).TextRC(row, col));
    return texts;
  }

 private:
  void Follow(Dilution_Tab tab, const std::optional<Cell_Range>& range) {
    ASSERT_TRUE(range);
    Follow_Dilute_Edit(tab, *range, grids);
  }
};

TEST_F(DilutionMirror, Names_Criteria_And_Background_Stand_On_Both_Tabs_At_Once) {
  Type_Row(kBulkTab, 2, {"Tin", "7", "1,200", "ND"});
  EXPECT_EQ(Row(kElutriateTab, 2), (Names{"Tin", "5", "1,200", "ND"}));
  Enter(kElutriateTab, 3, 3, {{"4", "<1"}});
  EXPECT_EQ(Row(kBulkTab, 3), (Names{"7440-50-8", "5", "4", "<1"}));
  Clear(kElutriateTab, {3, 4, 3, 4});
  EXPECT_EQ(bulk.TextRC(3, 4), "");
  Undo(kElutriateTab);
  EXPECT_EQ(bulk.TextRC(3, 4), "<1");
}

TEST_F(DilutionMirror, A_Parameter_In_The_Row_Of_A_Deleted_One_Has_Nothing_Of_It) {
  Clear(kBulkTab, {4, 1, 4, 7});
  Compute_Bulk();
  Enter(kBulkTab, 4, 1, {{"Neu"}});
  Enter(kBulkTab, 4, 2, {{"100"}});
  Enter(kBulkTab, 4, 3, {{"1"}});
  Enter(kBulkTab, 4, 4, {{"0"}});
  EXPECT_EQ(elutriate.TextRC(4, 2), "");
  Compute_Bulk();
  EXPECT_EQ(record.DiluteParameterNames[4], "Neu");
  EXPECT_EQ(record.DiluteElutriate[4], 0);
  Go(kBulkTab);
  EXPECT_EQ(elutriate.TextRC(4, 2), "0");
}

TEST_F(DilutionMirror, A_Parameter_Entered_On_The_Other_Tab_Has_Nothing_Of_A_Deleted_One) {
  Clear(kBulkTab, {4, 1, 4, 7});
  Compute_Bulk();
  Go(kBulkTab);
  Enter(kElutriateTab, 4, 1, {{"New", "7", "1", "0"}});
  Go(kElutriateTab);
  Compute_Bulk();
  EXPECT_NE(Write_Dilution_File(record).find(
                "New\r\n              0              7              1              0\r\n"),
            std::string::npos);
}

TEST_F(DilutionMirror, A_Compute_Pairs_No_Parameter_With_The_Elutriate_Of_Another) {
  Go(kBulkTab);
  Enter(kElutriateTab, 1, 1, {{"New", "7", "1", "0"}});
  Compute_Bulk();
  EXPECT_EQ(record.DiluteParameterNames[1], "New");
  EXPECT_EQ(record.DiluteElutriate[1], 0) << "neither the former one nor what is not taken yet";
  Go(kElutriateTab);
  EXPECT_EQ(record.DiluteElutriate[1], 7);
}

TEST_F(DilutionMirror, The_Result_Of_An_Emptied_Row_Does_Not_Come_To_A_New_Parameter) {
  Clear(kBulkTab, {4, 1, 4, 4});
  Enter(kBulkTab, 4, 1, {{"Neu", "100", "1", "0"}});
  Visit();
  Visit();
  EXPECT_EQ(bulk.TextRC(4, 5), ".00");
  EXPECT_EQ(record.DiluteElutDilution[4], 0);
}

TEST_F(DilutionMirror, Nothing_Is_Undone_By_The_Word_That_A_Name_Is_Missing) {
  Clear(kBulkTab, {1, 1, 1, 1});
  Type_Row(kBulkTab, 2, {"Zinc", "4444", "77", "33"});
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Visit();
  EXPECT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(Row(kBulkTab, 2), (Names{"Zinc", "4444", "77", "33"}));
  EXPECT_EQ(Row(kElutriateTab, 2), (Names{"Zinc", "5", "77", "33"}));
  EXPECT_TRUE(Holds_Untaken_Values(kBulkTab, grids, record));
  EXPECT_EQ(record.DiluteParameterNames[1], "Copper total");
}

TEST_F(DilutionMirror, What_Is_Entered_Below_An_Empty_Name_Stays_On_Both_Tabs) {
  Clear(kBulkTab, {2, 1, 2, 1});
  Type_Row(kBulkTab, 3, {"Zinc", "4444", "77", "33"});
  Visit();
  Enter(kBulkTab, 2, 1, {{"Tin"}});
  Visit();
  EXPECT_EQ(Row(kBulkTab, 3), (Names{"Zinc", "4444", "77", "33"}));
  EXPECT_EQ(Row(kElutriateTab, 3), (Names{"Zinc", "9", "77", "33"}));
  EXPECT_EQ(Row(kElutriateTab, 2), (Names{"Tin", "5", "0", "0"}));
}

TEST_F(DilutionMirror, Names_Cleared_Together_And_Typed_Again_Keep_The_Concentrations) {
  Clear(kBulkTab, {1, 1, 4, 1});
  for (int row = 1; row <= 4; ++row) Enter(kBulkTab, row, 1, {{"N" + std::to_string(row)}});
  Visit();
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"26", "5", "9", "26"}));
}

TEST_F(DilutionMirror, A_Pasted_Name_That_Is_Corrected_By_Hand_Has_Its_Concentration) {
  Enter(kBulkTab, 1, 1, {{"007"}, {"Coper total"}});
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"5", ""}));
  Enter(kBulkTab, 2, 1, {{"Copper total"}});
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"5", "26"}));
  Undo(kBulkTab);
  Undo(kBulkTab);
  EXPECT_EQ(Column(kElutriateTab, 1, 2), (Names{"Copper total", "007"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"26", "5"}));
  Redo(kBulkTab);
  Redo(kBulkTab);
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"5", "26"}));
}

TEST_F(DilutionMirror, A_Row_Pasted_Over_Another_Parameter_Has_Its_Own_Concentration) {
  Enter(kBulkTab, 2, 1, {{"7440-50-8", "5", "2", "2"}});
  EXPECT_EQ(elutriate.TextRC(2, 2), "") << "not that of 007";
  Clear(kBulkTab, {3, 1, 3, 7});
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"26", "9", "", "26"}));
  Compute_Bulk();
  EXPECT_EQ(record.DiluteElutriate[2], 9);
  Undo(kBulkTab);
  Undo(kBulkTab);
  EXPECT_EQ(Column(kElutriateTab, 1, 4), (Names{"Copper total", "007", "7440-50-8", "2E5"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"26", "5", "9", "26"}));
}

TEST_F(DilutionMirror, A_List_Pasted_Again_Without_One_Row_Keeps_Each_Concentration) {
  Enter(kBulkTab, 1, 1, {{"Copper total", "1000"}, {"007", "500"}, {"2E5", "26"}});
  Clear(kBulkTab, {4, 1, 4, 7});
  EXPECT_EQ(Column(kElutriateTab, 1, 4), (Names{"Copper total", "007", "2E5", ""}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"26", "5", "26", ""}));
}

TEST_F(DilutionMirror, A_New_Parameter_Pasted_Over_Another_Has_Nothing_Of_It) {
  Enter(kBulkTab, 2, 1, {{"Tin", "7", "1", "0"}});
  EXPECT_EQ(Row(kElutriateTab, 2), (Names{"Tin", "", "1", "0"}));
  Enter(kBulkTab, 2, 1, {{"007"}});
  EXPECT_EQ(elutriate.TextRC(2, 2), "5");
}

TEST_F(DilutionMirror, The_Latest_Concentration_Is_The_One_That_Comes_Back) {
  Clear(kBulkTab, {1, 1, 1, 7});
  Enter(kElutriateTab, 1, 1, {{"Copper total", "22", "10", "2"}});
  Clear(kBulkTab, {1, 1, 1, 7});
  Undo(kBulkTab);
  EXPECT_EQ(elutriate.TextRC(1, 2), "22");
}

TEST_F(DilutionMirror, A_Row_That_Is_Cut_In_Two_Goes_Takes_Its_Concentration_Along) {
  Clear(kBulkTab, {2, 1, 2, 2});
  Enter(kBulkTab, 6, 1, {{"007", "500"}});
  Clear(kBulkTab, {2, 3, 2, 4});
  Enter(kBulkTab, 6, 3, {{"0", "0"}});
  EXPECT_EQ(Row(kElutriateTab, 6), (Names{"007", "5", "0", "0"}));
  EXPECT_EQ(elutriate.TextRC(2, 2), "");
}

TEST_F(DilutionMirror, Blanks_And_What_A_File_Cuts_Make_No_Other_Names) {
  Enter(kBulkTab, 1, 1, {{"Copper total "}, {" 007"}});
  EXPECT_EQ(Column(kElutriateTab, 1, 2), (Names{"Copper total ", " 007"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"26", "5"}));
  Enter(kBulkTab, 1, 1, {{"Benzo(a)anthracene s"}, {"Polychlorinated biph"}});
  Enter(kElutriateTab, 1, 2, {{"11"}, {"12"}});
  Enter(kBulkTab, 1, 1, {{"Benzo(a)anthracene sum total"}, {"Polychlorinated biphenyls"}});
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"11", "12"}));
  Enter(kBulkTab, 3, 1, {{"Polychlorinated biphenyl 28"}});
  Enter(kBulkTab, 4, 1, {{"Polychlorinated biphenyl 52"}});
  Enter(kBulkTab, 3, 1, {{"Polychlorinated biphenyl 52"}, {"Polychlorinated biphenyl 28"}});
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"11", "12", "26", "9"}))
      << "the same 20 letters are not enough";
}

TEST_F(DilutionMirror, What_Was_Entered_For_A_Name_Since_Is_Not_Displaced_By_What_Is_Kept) {
  Clear(kBulkTab, {2, 1, 2, 4});
  Enter(kElutriateTab, 2, 1, {{"007", "22", "3", "1"}});
  Clear(kElutriateTab, {2, 2, 2, 2});
  Enter(kBulkTab, 2, 2, {{"500"}});
  EXPECT_EQ(elutriate.TextRC(2, 2), "") << "cleared by hand";
}

TEST_F(DilutionMirror, A_Row_Of_The_Same_Name_Is_Left_Alone_And_An_Undo_Restores_All) {
  Enter(kBulkTab, 2, 1, {{"Copper total"}});
  Clear(kElutriateTab, {2, 2, 2, 2});
  Clear(kBulkTab, {1, 1, 1, 4});
  EXPECT_EQ(elutriate.TextRC(2, 2), "");
  Undo(kBulkTab);
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"26", ""}));
  Enter(kBulkTab, 6, 1, {{"Copper total"}});
  Clear(kBulkTab, {1, 1, 1, 4});
  EXPECT_EQ(elutriate.TextRC(6, 2), "26") << "as a move by hand";
  Undo(kBulkTab);
  EXPECT_EQ(elutriate.TextRC(1, 2), "26");
  EXPECT_EQ(elutriate.TextRC(6, 2), "");
}

TEST_F(DilutionMirror, Two_Undos_Restore_Two_Rows_Of_One_Name) {
  Enter(kBulkTab, 3, 1, {{"Copper total"}});
  Enter(kElutriateTab, 3, 2, {{"0"}});
  Clear(kBulkTab, {1, 1, 1, 4});
  Enter(kBulkTab, 3, 1, {{"Iron", "55", "3", "1"}});
  Undo(kBulkTab);
  Undo(kBulkTab);
  EXPECT_EQ(elutriate.TextRC(1, 2), "26");
  EXPECT_EQ(elutriate.NumberRC(3, 2), 0);
}

TEST_F(DilutionMirror, What_A_Typed_Name_Has_Fetched_Goes_Back_With_An_Undo) {
  Clear(kBulkTab, {2, 1, 2, 4});
  Enter(kBulkTab, 6, 1, {{"007"}});
  EXPECT_EQ(elutriate.TextRC(6, 2), "5");
  Undo(kBulkTab);
  Undo(kBulkTab);
  EXPECT_EQ(Row(kElutriateTab, 2), (Names{"007", "5", "0", "0"}));
  EXPECT_EQ(elutriate.TextRC(6, 2), "");
}

TEST_F(DilutionMirror, The_Other_Tabs_History_Ends_Where_Rows_Have_Become_Others) {
  Enter(kElutriateTab, 1, 2, {{"7"}, {"7"}});
  Enter(kElutriateTab, 2, 3, {{"99"}});
  Enter(kBulkTab, 1, 1, {{"007", "500", "99", "0"}, {"Copper total", "1000", "10", "2"}});
  EXPECT_FALSE(elutriate.CanUndo());
  Enter(kElutriateTab, 3, 3, {{"99"}});
  Clear(kElutriateTab, {3, 2, 3, 2});
  Clear(kBulkTab, {3, 1, 3, 4});
  EXPECT_FALSE(elutriate.CanUndo());
}

TEST_F(DilutionMirror, Rows_Of_One_Name_Keep_Their_Order_When_A_Paste_Moves_Them) {
  Enter(kBulkTab, 2, 1, {{"Copper total"}});
  Enter(kBulkTab, 1, 1, {{"7440-50-8"}, {"Copper total"}, {"Copper total"}, {"2E5"}});
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"9", "26", "5", "26"}));
  Undo(kBulkTab);
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"26", "5", "9", "26"}));
}

TEST_F(DilutionMirror, Names_That_The_File_Has_Cut_Alike_Go_By_Their_Order_Or_Not_At_All) {
  for (const bool all : {true, false}) {
    SCOPED_TRACE(all);
    Clear_Dilute_Grids(grids);
    Enter(kBulkTab, 1, 1, {{"Polychlorinated biph"}, {"Polychlorinated biph"}, {"Tin"}});
    Clear(kElutriateTab, {1, 2, 9, 2});
    Enter(kElutriateTab, 1, 2, {{"11"}, {"12"}, {"14"}});
    if (all) {
      Enter(
          kBulkTab, 1, 1,
          {{"Arsenic"}, {"Polychlorinated biphenyl 28"}, {"Polychlorinated biphenyl 52"}, {"Tin"}});
      EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"", "11", "12", "14"}));
    } else {
      Enter(kBulkTab, 1, 1, {{"Polychlorinated biphenyl 52"}, {"Tin"}});
      EXPECT_EQ(elutriate.TextRC(1, 2), "") << "nobody knows which of the two it is";
    }
  }
}

TEST_F(DilutionMirror, An_Undo_Over_Changes_Of_Tab_Restores_The_Concentrations) {
  Enter(kBulkTab, 1, 1, {{"007"}, {"Copper total"}});
  Visit();
  Enter(kBulkTab, 1, 1, {{"X"}});
  Visit();
  Undo(kBulkTab);
  Undo(kBulkTab);
  EXPECT_EQ(Column(kElutriateTab, 1, 2), (Names{"Copper total", "007"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"26", "5"}));
  Visit();
  EXPECT_EQ(record.DiluteElutriate[2], 5);
}

TEST_F(DilutionMirror, An_Undo_Of_Cleared_Rows_Brings_Back_What_The_Other_Tab_Held) {
  Clear(kBulkTab, {1, 1, 4, 1});
  Clear(kBulkTab, {1, 1, 4, 4});
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"", "", "", ""}));
  Undo(kBulkTab);
  Undo(kBulkTab);
  EXPECT_EQ(Column(kElutriateTab, 1, 2), (Names{"Copper total", "007"}));
  EXPECT_EQ(Column(kElutriateTab, 2, 4), (Names{"26", "5", "9", "26"}));
}

TEST_F(DilutionMirror, A_Concentration_Entered_Before_Its_Name_Survives_An_Undo_Of_The_Name) {
  Enter(kElutriateTab, 5, 2, {{"55"}});
  Enter(kBulkTab, 5, 1, {{"Tin", "1", "2", "3"}});
  EXPECT_EQ(Row(kElutriateTab, 5), (Names{"Tin", "55", "2", "3"}));
  Undo(kBulkTab);
  EXPECT_EQ(Row(kElutriateTab, 5), (Names{"", "55", "", ""}));
  Redo(kBulkTab);
  Go(kBulkTab);
  EXPECT_EQ(record.DiluteElutriate[5], 55);
}

TEST_F(DilutionMirror, The_Undo_Of_A_Name_Leaves_The_Concentration_That_It_Came_To) {
  Enter(kElutriateTab, 5, 2, {{"55"}});
  Enter(kBulkTab, 5, 1, {{"Tin"}});
  Compute_Bulk();
  Undo(kBulkTab);
  EXPECT_EQ(Row(kElutriateTab, 5), (Names{"", "55", "", ""}));
}

TEST_F(DilutionMirror, A_History_Does_Not_Bring_Back_Concentrations_Of_Other_Names) {
  Enter(kElutriateTab, 1, 2, {{"27"}});
  Enter(kBulkTab, 1, 1, {{"007"}, {"Copper total"}});
  EXPECT_FALSE(elutriate.CanUndo());
  EXPECT_EQ(Column(kElutriateTab, 2, 2), (Names{"5", "27"}));
}

TEST_F(DilutionMirror, Typed_Text_Is_In_No_Pattern) {
  for (const Dilution_Tab tab : {kBulkTab, kElutriateTab}) {
    grids(tab).NumberFormat({1, 2, 4, 4}, "###.00");
  }
  EXPECT_EQ(bulk.ShownRC(1, 3), "10.00");
  Enter(kBulkTab, 1, 3, {{"0.004"}});
  EXPECT_EQ(bulk.ShownRC(1, 3) + elutriate.ShownRC(1, 3), "0.0040.004");
  EXPECT_EQ(bulk.ShownRC(2, 2), "500.00");
  ASSERT_TRUE(Move_Dilute_Rows({1, 1, 1, 1}, false, grids));
  EXPECT_EQ(bulk.ShownRC(2, 3), "0.004");
  grids(kBulkTab).NumberFormat({1, 2, 4, 4}, "###.00");
  Clear_Dilute_Grids(grids);
  EXPECT_EQ(bulk.StyleRC(3, 2).format, "");
}

TEST_F(DilutionMirror, A_List_Whose_First_Name_Is_Empty_Is_Shown) {
  Clear_Dilute_Grids(grids);
  record.DiluteParameterNames[1].clear();
  record.DiluteSolidsConc = 50;
  Fill_Dilute_Grids(grids, record);
  EXPECT_EQ(Row(kBulkTab, 1), (Names{"", "1000", "10", "2"}));
  EXPECT_EQ(Row(kElutriateTab, 2), (Names{"007", "5", "0", "0"}));
  EXPECT_EQ(record.DiluteSolidsConc, 50);
  EXPECT_EQ(Look_Of_Dilution(kBulkTab, 1, 1, grids).tip,
            "A name is missing here: the list ends above");
}

}  // namespace
}  // namespace barvon::testing
