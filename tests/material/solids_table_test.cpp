#include "material/solids_table.h"

#include <gtest/gtest.h>

#include "core/book_numbers.h"
#include "material/material_support.h"
#include "material/solids_doubts.h"
#include "support/record_differences.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

class SolidsTable : public Recorded_Workspace {
 protected:
  std::vector<int> Open(Solids_Layout layout) {
    *before_ = record_;
    return Open_Solids("Test", layout, record_, state_, table_);
  }
  void Library(const std::string& lines) {
    Write_Text(folder_ / "BARVON.INI", "[Test]\r\n" + lines);
  }
  Fields Row(int row) const {
    Fields texts;
    for (int col = 1; col <= table_.MaxCol(); ++col) texts.push_back(table_.ShownRC(row, col));
    return texts;
  }
  void Store() { Store_Solids(state_, table_, record_); }
  Fields Changed() const { return Differing_Fields(*before_, record_); }

  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  Solids_State state_;
  Spreadsheet_Table table_{kBookNumbers};
};

TEST_F(SolidsTable, The_Three_Layouts_Have_Texts_Of_Their_Own) {
  Open(kWholeLoad);
  EXPECT_EQ(Row(3),
            (Fields{"Coarse_Sand", "2.7", "  -  ", "0.5", "0.55", "0.02-0.03", "N", "Y or N"}));
  EXPECT_EQ(table_.ColText(4), "Fall\nVelocity \n(Ft/Sec)");
  EXPECT_EQ(table_.ColText(5), "Void Ratio\nAfter Deposition");
  EXPECT_TRUE(table_.StyleRC(8, 1).centred);
  EXPECT_EQ(table_.MaxRow(), 12);
  EXPECT_EQ(table_.FixedRows(), 8);

  Spreadsheet_Table separated(kBookNumbers);
  Define_Solids_Table(kSeparatedLoad, separated);
  EXPECT_EQ(separated.MaxCol(), 7);
  EXPECT_EQ(separated.TextRC(3, 1), "Coarse Sand");
  EXPECT_EQ(separated.TextRC(3, 3), "0.5");
  EXPECT_EQ(separated.ColText(3), "Fall\nVelocity\n (Ft/Sec)");
  EXPECT_FALSE(separated.StyleRC(8, 1).centred);

  Spreadsheet_Table hopper(kBookNumbers);
  Define_Solids_Table(kHopperLoad, hopper);
  EXPECT_EQ(hopper.TextRC(3, 1), "Coarse_Sand");
  EXPECT_EQ(hopper.TextRC(3, 3), "-");
  EXPECT_EQ(hopper.ColText(4), "Fall\nVelocity (Ft/Sec)");
  EXPECT_EQ(hopper.ColText(5), "Deposition\nVoid Ratio");
  EXPECT_EQ(hopper.StyleRC(12, 8).font, "ariel");
}

TEST_F(SolidsTable, Opened_And_Stored_Untouched_Every_Value_Stays) {
  Set_Solids(record_, 4);
  record_.SolidCohesive[2] = -1;
  for (const Solids_Layout layout : {kWholeLoad, kSeparatedLoad}) {
    Open(layout);
    Store();
    EXPECT_EQ(Changed(), Fields{}) << layout;
  }
}

TEST_F(SolidsTable, Beside_The_Fractions_Of_The_Project_Nothing_Changes) {
  Set_Solids(record_, 4);
  record_.NumSolids = 2;
  Open(kWholeLoad);
  Store();
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(SolidsTable, What_Is_Typed_Is_Kept_To_Four_Decimals) {
  Set_Solids(record_, 1);
  Open(kWholeLoad);
  table_.TextRC(9, 2, "2.71828");
  table_.TextRC(9, 4, "0.00004");
  table_.TextRC(9, 5, "none");
  Store();
  EXPECT_EQ(record_.SolidSG[1], 2.7183);
  EXPECT_EQ(record_.SolidFallVelocity[1], 0);
  EXPECT_EQ(record_.SolidVoidRatio[1], 0);
  EXPECT_EQ(record_.SolidVolFraction[1], before_->SolidVolFraction[1]);
}

TEST_F(SolidsTable, Each_Layout_Reads_The_Letters_In_Its_Way) {
  struct Case {
    Solids_Layout layout;
    const char* typed;
    int flag;
  };
  const Case cases[] = {
      {kWholeLoad, "n", 0},    {kWholeLoad, " n", 1},     {kWholeLoad, "x", 1},
      {kWholeLoad, "", 1},     {kSeparatedLoad, " n", 0}, {kSeparatedLoad, "x", 1},
      {kHopperLoad, " n ", 0}, {kHopperLoad, "x", 1},     {kHopperLoad, "", 1}};
  for (const Case& c : cases) {
    Set_Solids(record_, 1);
    record_.SolidCohesive[1] = 1;
    Open(c.layout);
    table_.TextRC(9, Column_Of(Solids_Field::Cohesive, c.layout), c.typed);
    Store();
    EXPECT_EQ(record_.SolidCohesive[1], c.flag) << c.layout << "'" << c.typed << "'";
  }
  EXPECT_EQ(Letter_Note(kWholeLoad, "y"), "");
  EXPECT_NE(Letter_Note(kWholeLoad, " y"), "");
  EXPECT_EQ(Letter_Note(kHopperLoad, " y"), "");
  EXPECT_NE(Letter_Note(kHopperLoad, "x"), "");
}

TEST_F(SolidsTable, The_Hopper_Keeps_The_Letters_As_Typed) {
  Set_Solids(record_, 1);
  Open(kHopperLoad);
  table_.TextRC(9, 7, " n ");
  Store();
  EXPECT_EQ(record_.SolidCohesiveText[1], " n ");
  EXPECT_EQ(record_.SolidStrippedText[1], "N");
}

TEST_F(SolidsTable, Fractions_That_The_Library_Has_Are_Ticked_As_It_Opens) {
  Library("Listsize=3\r\nFraction1=Clay\r\nFraction3=SAND2 2.6\r\n");
  Set_Solids(record_, 2);
  EXPECT_EQ(Open(kWholeLoad), std::vector<int>{2});
  EXPECT_EQ(state_.SelectedCount, 1);
  EXPECT_EQ(state_.lines, (Fields{"Clay", "", "SAND2 "}));
}

TEST_F(SolidsTable, A_Tick_Fills_The_First_Row_Without_A_Name) {
  Library("Listsize=1\r\nFraction1=Clay 2.65 .027 .002 7.0000 .0020 Y Y\r\n");
  Set_Solids(record_, 1);
  Open(kWholeLoad);
  EXPECT_TRUE(Tick_Material(0, state_, table_));
  EXPECT_EQ(Row(10), (Fields{"Clay", "2.650", "0.027", "0.002", "7.000", "0.002", "Y", "Y"}));
  EXPECT_EQ(state_.SelectedCount, 1);
  Store();
  EXPECT_EQ(record_.NumSolids, 2);
  EXPECT_EQ(record_.SolidSG[2], 2.65);
  EXPECT_EQ(record_.SolidCohesive[2], 1);
}

TEST_F(SolidsTable, With_Separation_A_Tick_Leaves_The_Volume_Out) {
  Library("Listsize=1\r\nFraction1=Clay 2.65 .027 .002 7.0000 .0020 Y Y\r\n");
  Open(kSeparatedLoad);
  Tick_Material(0, state_, table_);
  EXPECT_EQ(Row(9), (Fields{"Clay", "2.650", "0.002", "7.000", "0.002", "Y", "Y"}));
}

TEST_F(SolidsTable, A_Seed_Brings_Zeros_And_No_Letters_And_No_Flags_Of_An_Earlier_Fraction) {
  record_.NumSolids = 0;
  record_.SolidCohesive[1] = 1;
  Open(kWholeLoad);
  Tick_Material(2, state_, table_);
  EXPECT_EQ(Row(9), (Fields{"Coarse_Sand", "0.000", "0.000", "0.000", "0.000", "0.000", "", ""}));
  Store();
  EXPECT_EQ(record_.SolidCohesive[1], 0);
  EXPECT_EQ(record_.SolidNames[1], "Coarse_Sand");
}

TEST_F(SolidsTable, A_Tick_Without_A_Free_Row_Is_Refused) {
  Library("Listsize=1\r\nFraction1=Clay\r\n");
  Set_Solids(record_, 4);
  Open(kWholeLoad);
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Tick_Material(0, state_, table_));
  EXPECT_EQ(messages.shown.at(0).text,
            "There Is No Free Row for Another Solids Fraction.  Please Untick One First.");
  EXPECT_EQ(state_.SelectedCount, 0);
}

TEST_F(SolidsTable, A_Long_Library_Gives_Rows_Beyond_The_Four_And_OK_Asks) {
  Set_Solids(record_, 4);
  Open(kWholeLoad);
  EXPECT_TRUE(Tick_Material(0, state_, table_));
  EXPECT_EQ(table_.TextRC(13, 1), "Clumps");
  Scripted_Messages messages({Answer::Ok, Answer::Cancel});
  EXPECT_TRUE(Check_Solids_Table(table_));
  EXPECT_FALSE(Check_Solids_Table(table_));
  EXPECT_EQ(messages.shown.at(0).text,
            "More Than 4 Solids Fractions Specified.  Do You Wish to Only Select The First 4?");
  EXPECT_EQ(messages.shown.at(0).buttons, Buttons::OkCancel);
}

TEST_F(SolidsTable, An_Untick_Takes_The_Row_And_The_Others_Keep_Every_Value) {
  Library("Listsize=1\r\nFraction1=sand1\r\n");
  Set_Solids(record_, 3);
  record_.LayerSolidFraction[2][1] = 0.25;
  Open(kWholeLoad);
  Untick_Material(0, state_, table_);
  EXPECT_EQ(state_.SelectedCount, 0);
  EXPECT_EQ(table_.TextRC(9, 1), "Sand2");
  EXPECT_FALSE(table_.CanUndo());
  Store();
  EXPECT_EQ(record_.NumSolids, 2);
  EXPECT_EQ(record_.SolidNames[2], "Sand3");
  EXPECT_EQ(record_.SolidSG[1], before_->SolidSG[2]);
  EXPECT_EQ(record_.SolidFallVelocity[1], before_->SolidFallVelocity[2]);
  EXPECT_EQ(record_.SolidCohesive[2], before_->SolidCohesive[3]);
  EXPECT_EQ(record_.LayerSolidFraction[1][1], 0.25);
}

TEST_F(SolidsTable, An_Untick_Of_A_Name_That_No_Row_Has_Changes_Nothing) {
  Library("Listsize=1\r\nFraction1=Clay\r\n");
  Set_Solids(record_, 2);
  Open(kWholeLoad);
  state_.SelectedCount = 1;
  Untick_Material(0, state_, table_);
  EXPECT_EQ(state_.SelectedCount, 1);
  EXPECT_EQ(table_.TextRC(9, 1), "Sand1");
}

TEST_F(SolidsTable, Separation_Takes_The_Volumes_Out_And_Brings_Them_Back) {
  Set_Solids(record_, 2);
  Open(kWholeLoad);
  Separate_Solids(true, state_, table_);
  EXPECT_EQ(table_.MaxCol(), 7);
  EXPECT_EQ(table_.TextRC(1, 3), "3.0");
  EXPECT_EQ(table_.TextRC(3, 1), "Coarse_Sand");
  EXPECT_EQ(table_.ColText(3), "Fall\nVelocity \n(Ft/Sec)");
  Separate_Solids(false, state_, table_);
  EXPECT_EQ(table_.ColText(3), "Volumetric\nFraction");
  EXPECT_EQ(table_.TextRC(1, 3), "");
  EXPECT_EQ(table_.ShownRC(9, 3), "0.020");
  EXPECT_TRUE(table_.IsEmptyRC(11, 3));
  EXPECT_FALSE(table_.CanUndo());
  Store();
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(SolidsTable, A_Separated_Project_Gets_Its_Volumes_Back_From_The_Record) {
  Library("Listsize=1\r\nFraction1=sand1\r\n");
  Set_Solids(record_, 2);
  Open(kSeparatedLoad);
  Untick_Material(0, state_, table_);
  Separate_Solids(false, state_, table_);
  Store();
  EXPECT_EQ(record_.SolidNames[1], "Sand2");
  EXPECT_EQ(record_.SolidVolFraction[1], before_->SolidVolFraction[2]);
}

TEST_F(SolidsTable,
       A_Fraction_With_Values_And_No_Name_Is_Shown_And_Stays_While_Nothing_Is_Touched) {
  Set_Solids(record_, 3);
  record_.SolidNames[2] = "";
  Open(kWholeLoad);
  EXPECT_EQ(table_.TextRC(10, 1), "");
  EXPECT_EQ(table_.NumberRC(10, 2), record_.SolidSG[2]);
  EXPECT_TRUE(Are_Solids_Untouched(state_, table_));
  Store();
  EXPECT_EQ(Changed(), Fields{});
  table_.TextRC(9, 2, "2.5");
  EXPECT_FALSE(Are_Solids_Untouched(state_, table_));
  EXPECT_EQ(Solids_Doubts(kWholeLoad, table_),
            "Fraction 2: is stored without a name.\n"
            "Fraction 3, \"Sand3\": is lost, because a row above it has no name.\n");
}

TEST_F(SolidsTable, A_Text_That_Is_No_Number_Survives_Separation_And_Back) {
  Set_Solids(record_, 1);
  Open(kWholeLoad);
  table_.TextRC(9, 3, "0,3");
  Separate_Solids(true, state_, table_);
  EXPECT_EQ(Volume_Doubts(state_, table_, record_),
            "Fraction 1, Volumetric Fraction: \"0,3\" is not stored, because each layer has its "
            "own.\n");
  Separate_Solids(false, state_, table_);
  EXPECT_EQ(table_.TextRC(9, 3), "0,3");
}

TEST_F(SolidsTable, A_Question_Names_As_Many_Doubts_As_A_Small_Display_Has_Room_For) {
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  std::string doubts;
  for (int i = 1; i <= 15; ++i) doubts += "Line " + std::to_string(i) + "\n";
  Accept_Doubts(doubts);
  EXPECT_EQ(messages.shown.at(0).text, doubts + "\nOK Stores the Material All the Same.");
  Accept_Doubts(doubts + "Line 16\nLine 17\n");
  EXPECT_EQ(messages.shown.at(1).text,
            doubts + "And 2 more.\n\nOK Stores the Material All the Same.");
}

TEST_F(SolidsTable, A_Name_Of_Figures_Is_Shown_As_It_Is) {
  Set_Solids(record_, 1);
  record_.SolidNames[1] = "100";
  Open(kHopperLoad);
  EXPECT_EQ(table_.ShownRC(9, 1), "100");
}

TEST_F(SolidsTable, On_The_Hopper_An_Empty_Letter_Stands_Out_Because_It_Counts_As_Y) {
  Set_Solids(record_, 1);
  Open(kHopperLoad);
  table_.TextRC(9, 8, "");
  EXPECT_EQ(Look_Of_Letter(kHopperLoad, table_, 9, 8).tip, "empty counts as Y");
  EXPECT_TRUE(Look_Of_Letter(kHopperLoad, table_, 9, 8).warned);
  EXPECT_FALSE(Look_Of_Letter(kHopperLoad, table_, 9, 7).warned);
  EXPECT_FALSE(Look_Of_Letter(kHopperLoad, table_, 10, 8).warned) << "no fraction";
  EXPECT_FALSE(Look_Of_Letter(kWholeLoad, table_, 9, 8).warned);
}

TEST_F(SolidsTable, Volumes_Typed_Before_Their_Column_Goes_Are_Told_Before_They_Are_Lost) {
  Set_Solids(record_, 2);
  Open(kWholeLoad);
  table_.TextRC(10, 3, "0.25");
  table_.TextRC(11, 1, "New");
  table_.TextRC(11, 3, "0.125");
  EXPECT_EQ(Volume_Doubts(state_, table_, record_), "");
  Separate_Solids(true, state_, table_);
  EXPECT_EQ(Volume_Doubts(state_, table_, record_),
            "Fraction 2, Volumetric Fraction: 0.25 is not stored, because each layer has its own.\n"
            "Fraction 3, Volumetric Fraction: 0.125 is not stored, because each layer has its "
            "own.\n");
  Store();
  EXPECT_EQ(record_.SolidVolFraction[2], before_->SolidVolFraction[2]);
  Open(kSeparatedLoad);
  EXPECT_EQ(Volume_Doubts(state_, table_, record_), "") << "they were never in the table";
}

TEST_F(SolidsTable, The_Row_Under_The_Cursor_Is_The_One_That_Is_Checked) {
  Open(kWholeLoad);
  table_.TextRC(9, 2, "2.65");
  table_.SetActiveCell(3, 5);
  EXPECT_TRUE(Check_Solids_Table(table_));
  table_.SetActiveCell(9, 5);
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Check_Solids_Table(table_));
  EXPECT_EQ(messages.shown.at(0).text,
            "No Parameter Name Has Been Supplied for Solids Fraction.  Please Correct.");
  EXPECT_EQ(table_.Row(), 1);
  EXPECT_EQ(table_.Col(), 1);
}

TEST_F(SolidsTable, A_Gap_Loses_The_Last_Fraction_And_Is_Told_Before) {
  Set_Solids(record_, 3);
  Open(kWholeLoad);
  table_.TextRC(10, 1, "");
  EXPECT_EQ(Solids_Doubts(kWholeLoad, table_),
            "Fraction 2: is stored without a name.\n"
            "Fraction 3, \"Sand3\": is lost, because a row above it has no name.\n");
  Store();
  EXPECT_EQ(record_.NumSolids, 2);
  EXPECT_EQ(record_.SolidNames[2], "");
}

TEST_F(SolidsTable, A_Row_Of_Values_Without_A_Name_Is_Told_Before_It_Is_Lost) {
  Set_Solids(record_, 1);
  Open(kWholeLoad);
  table_.TextRC(11, 2, "2.65");
  EXPECT_EQ(Solids_Doubts(kWholeLoad, table_), "Fraction 3: is lost, because it has no name.\n");
}

TEST_F(SolidsTable, A_Fraction_That_Is_Cleared_Leaves_Nothing_That_Could_Come_Back) {
  Set_Solids(record_, 3);
  record_.LayerSolidFraction[3][1] = 0.25;
  Open(kWholeLoad);
  table_.ClearRange({11, 1, 11, 8});
  Store();
  EXPECT_EQ(record_.NumSolids, 2);
  EXPECT_EQ(record_.SolidNames[3], "");
  EXPECT_EQ(record_.SolidSG[3], 0);
  EXPECT_EQ(record_.LayerSolidFraction[3][1], 0);
  EXPECT_EQ(record_.SolidSG[2], before_->SolidSG[2]);
  record_.NumSolids = 1;
  Set_Solids(*before_, 1);
  Open(kWholeLoad);
  table_.ClearRange({9, 1, 9, 8});
  Store();
  Open(kWholeLoad);
  EXPECT_EQ(table_.TextRC(9, 1), "");
}

TEST_F(SolidsTable, What_The_File_Holds_Behind_Its_Fractions_Stays_And_Is_Nobodys) {
  Set_Solids(record_, 3);
  record_.NumSolids = 2;
  Open(kSeparatedLoad);
  EXPECT_EQ(state_.Row(11).saved_volume, Cell_Value())
      << "a row typed there has no volume of another";
  Store();
  EXPECT_EQ(record_.SolidNames[3], "Sand3");
}

TEST_F(SolidsTable, Text_In_A_Number_And_A_Name_That_Is_Not_Kept_Are_Told) {
  Set_Solids(record_, 1);
  Open(kWholeLoad);
  EXPECT_EQ(Solids_Doubts(kWholeLoad, table_), "");
  table_.TextRC(9, 1, "\xE7\xA0\x82");
  table_.TextRC(9, 2, "2,65");
  EXPECT_EQ(Solids_Doubts(kWholeLoad, table_),
            "Fraction 1, \"\xE7\xA0\x82\": the name has a character that the project file can't "
            "keep.\nFraction 1, Specific Gravity: \"2,65\" reads as 2.\n");
  Scripted_Messages messages({Answer::Ok, Answer::Cancel});
  EXPECT_TRUE(Accept_Doubts("a\n"));
  EXPECT_FALSE(Accept_Doubts("a\n"));
  EXPECT_TRUE(Accept_Doubts(""));
}

TEST_F(SolidsTable, Without_A_Fraction_It_Is_Remarked) {
  Open(kHopperLoad);
  Store();
  EXPECT_EQ(record_.NumSolids, 0);
  EXPECT_EQ(notes_.size(), 1U);
}

TEST_F(SolidsTable, A_Line_Break_In_A_Name_Becomes_A_Blank_On_Entry) {
  Open(kHopperLoad);
  table_.TextRC(9, 1, "a\nb");
  Clean_Solids_Names(table_);
  EXPECT_EQ(table_.TextRC(9, 1), "a b");
}

}  // namespace
}  // namespace barvon::testing
