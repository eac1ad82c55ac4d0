#include "core/format_pattern.h"
#include "pictures/tidal_curve.h"
#include "pictures/velocity_arrows.h"
#include "platform/qt/fields/number_field.h"
#include "site/frm_velocity.h"
#include "site/velocity_screen.h"

namespace barvon::testing {
namespace {

using Box = QMessageBox;

constexpr char kOverwrite[] = "Do you Want to Overwrite Existing Data?";

/// Every cell of the direction's table.
bool All_Cells_Are(const F1Book* book, double velocity) {
  for (int row = 1; row <= book->table().MaxRow(); ++row) {
    for (int column = 1; column <= book->table().MaxCol(); ++column) {
      if (book->table().NumberRC(row, column) != velocity) return false;
    }
  }
  return true;
}

TEST_F(VelocityScreen, The_Fields_Have_The_Sites_Rows_And_Columns) {
  record.VelocityFieldX[8][9] = 1.5;
  record.VelocityFieldZ[1][9] = -2.25;
  Open(4);
  for (int i = 0; i < 2; ++i) {
    const Spreadsheet_Table& table = F1Book2(i)->table();
    EXPECT_EQ(table.MaxRow(), 8);
    EXPECT_EQ(table.MaxCol(), 9);
    EXPECT_EQ(table.ColText(9), "Col 9");
    EXPECT_EQ(table.RowText(8), "Row 8");
    EXPECT_EQ(table.RowHeadingWidth(), 2000);
  }
  EXPECT_EQ(F1Book2(0)->table().NumberRC(8, 9), 1.5);
  EXPECT_EQ(F1Book2(1)->table().NumberRC(1, 9), -2.25);
  auto* arrows = Child<Velocity_Arrows>("VelocityArrows");
  EXPECT_EQ(arrows->Drawn().rows, 8);
  EXPECT_EQ(arrows->Drawn().fastest, 2.25);
}

TEST_F(VelocityScreen, A_Field_Is_Entered_Cell_By_Cell) {
  Open(4);
  Enter_Cell(F1Book2(0), 2, 3, "1.25");
  Enter_Cell(F1Book2(1), 8, 9, "-0.5");
  EXPECT_EQ(Child<Velocity_Arrows>("VelocityArrows")->Drawn().fastest, 1.25);
  Press_Command(0);
  EXPECT_EQ(record.VelocityFieldX[2][3], 1.25);
  EXPECT_EQ(record.VelocityFieldZ[8][9], -0.5);
  EXPECT_EQ(record.VelocityFieldX[3][2], 0);
  EXPECT_EQ(Changed(),
            (Fields{"DataSaved", "ScreenDataSupplied", "VelocityFieldX", "VelocityFieldZ"}));
}

TEST_F(VelocityScreen, Arrows_Follow_Typed_Pasted_And_Undone_Cells_Of_Both_Tables) {
  Open(4);
  auto* arrows = Child<Velocity_Arrows>("VelocityArrows");
  Enter_Cell(F1Book2(0), 8, 9, "3");
  Enter_Cell(F1Book2(1), 8, 9, "-4");
  Enter_Cell(F1Book2(1), 2, 3, "2");
  EXPECT_EQ(arrows->Drawn().x.at(7 * 9 + 8), 3);
  EXPECT_EQ(arrows->Drawn().z.at(7 * 9 + 8), -4);
  EXPECT_EQ(arrows->Drawn().z.at(1 * 9 + 2), 2);
  EXPECT_EQ(arrows->Drawn().fastest, 5);
  EXPECT_EQ(arrows->Drawn().slowest, 0);
  F1Book2(1)->Undo();
  EXPECT_EQ(arrows->Drawn().z.at(1 * 9 + 2), 0);
  F1Book2(1)->Undo();
  EXPECT_EQ(arrows->Drawn().fastest, 3);
  F1Book2(1)->Redo();
  EXPECT_EQ(arrows->Drawn().fastest, 5);
  F1Book2(0)->table().SelectRange({7, 8, 8, 9});
  F1Book2(0)->Copy();
  F1Book2(1)->table().SelectRange({1, 1, 2, 2});
  F1Book2(1)->Paste();
  EXPECT_EQ(arrows->Drawn().z.at(0), 0);
  EXPECT_EQ(arrows->Drawn().z.at(1 * 9 + 1), 3);
  F1Book2(0)->table().SelectAll();
  F1Book2(0)->Clear();
  EXPECT_EQ(arrows->Drawn().left_out, 8 * 9) << "no point has both";
}

TEST_F(VelocityScreen, A_Tick_Without_A_Constant_Asks_For_One_And_Fills_With_0) {
  Open(4);
  constexpr const char* kTexts[] = {"Specify Velocity In The X-Direction",
                                    "Specify Velocity In The Z-Direction"};
  for (int i = 0; i < 2; ++i) {
    F1Book2(i)->table().NumberRC(1, 1, -4);
    Modal_Replies replies({Press(Box::Ok)});
    Tick(Check3D2(i));
    ASSERT_EQ(replies.seen.size(), 1U) << "negative cells raise no question";
    Expect_Box(replies.seen[0], kTexts[i], Box::NoIcon);
    EXPECT_TRUE(Text2(i)->isEnabled());
    EXPECT_EQ(Screen()->focusWidget(), Text2(i));
    EXPECT_TRUE(All_Cells_Are(F1Book2(i), 0));
  }
}

TEST_F(VelocityScreen, Typing_The_Constant_Fills_The_Table_At_Once) {
  Open(4);
  const Modal_Replies replies({Press(Box::Ok)});
  Tick(Check3D2(0));
  Enter(Text2(0), "1.5");
  EXPECT_TRUE(All_Cells_Are(F1Book2(0), 1.5));
  EXPECT_TRUE(All_Cells_Are(F1Book2(1), 0));
  Enter(Text2(0), "-2");
  EXPECT_TRUE(All_Cells_Are(F1Book2(0), -2));
  Press_Command(0);
  EXPECT_EQ(record.ConstVelocityX, -2);
  EXPECT_EQ(record.ConstVelocityZ, 0);
  EXPECT_EQ(record.VelocityFieldX[8][9], -2);
}

TEST_F(VelocityScreen, Cells_Above_0_Raise_The_Question_And_No_Keeps_Them) {
  record.VelocityFieldX[1][1] = 3;
  record.ConstVelocityX = 0;
  Open(4);
  Text2(0)->setText("2");  // fills, though the box is clear
  F1Book2(0)->table().NumberRC(1, 1, 3);
  Modal_Replies replies({Press(Box::No)});
  Tick(Check3D2(0));
  ASSERT_EQ(replies.seen.size(), 1U);
  Expect_Box(replies.seen[0], kOverwrite, Box::Question, Box::Yes | Box::No, Box::Yes);
  EXPECT_TRUE(Check3D2(0)->isChecked());
  EXPECT_TRUE(Text2(0)->isEnabled());
  EXPECT_EQ(F1Book2(0)->table().NumberRC(1, 1), 3);
  EXPECT_EQ(F1Book2(0)->table().NumberRC(1, 2), 2);
}

TEST_F(VelocityScreen, Yes_Overwrites_And_Undo_Brings_The_Cells_Back) {
  record.VelocityFieldZ[2][2] = 3;
  Open(4);
  Modal_Replies replies({Press(Box::Ok), Press(Box::Yes)});
  Tick(Check3D2(1));
  ASSERT_EQ(replies.seen.size(), 2U);
  Expect_Box(replies.seen[1], kOverwrite, Box::Question, Box::Yes | Box::No, Box::Yes);
  EXPECT_TRUE(All_Cells_Are(F1Book2(1), 0));
  F1Book2(1)->Undo();
  EXPECT_EQ(F1Book2(1)->table().NumberRC(2, 2), 3);
}

TEST_F(VelocityScreen, Clearing_The_Box_Keeps_The_Table_And_Takes_The_Constant_Away) {
  record.ConstVelocityX = 2;
  Open(4);
  ASSERT_TRUE(Check3D2(0)->isChecked());
  EXPECT_EQ(Text2(0)->text(), "2.0");
  EXPECT_TRUE(All_Cells_Are(F1Book2(0), 2));
  Tick(Check3D2(0));
  EXPECT_FALSE(Text2(0)->isEnabled());
  EXPECT_EQ(record.ConstVelocityX, 0);
  EXPECT_TRUE(All_Cells_Are(F1Book2(0), 2));
  Press_Command(0);
  EXPECT_EQ(record.ConstVelocityX, 0);
  EXPECT_EQ(record.VelocityFieldX[8][9], 2);
}

TEST_F(VelocityScreen, Cancel_Does_Not_Bring_A_Cleared_Constant_Back) {
  record.ConstVelocityX = 2;
  Open(4);
  Tick(Check3D2(0));
  Press_Command(1);
  EXPECT_EQ(Changed(), Fields{"ConstVelocityX"});
}

TEST_F(VelocityScreen, Opening_With_A_Constant_Asks_Nothing_And_Fills_The_Table) {
  const Modal_Replies none({});
  record.ConstVelocityX = 1.25;
  record.VelocityFieldX[1][1] = 9;
  Open(4);
  EXPECT_EQ(Text2(0)->text(), "1.3");
  EXPECT_EQ(Number_Note_Of(Text2(0)), "rounded from 1.25, which OK keeps");
  EXPECT_TRUE(All_Cells_Are(F1Book2(0), 1.25));
  EXPECT_FALSE(Text2(1)->isEnabled());
  EXPECT_EQ(Number_Note_Of(Text2(1)), "") << "an empty field that is not read is not marked";
  Choose(2);
  EXPECT_TRUE(All_Cells_Are(F1Book2(0), 1.25));
  EXPECT_EQ(record.ConstVelocityX, 1.25);
}

TEST_F(VelocityScreen, A_Negative_Constant_Opens_As_The_Stored_Field) {
  record.ConstVelocityX = -1.5;
  record.VelocityFieldX[2][2] = -0.5;
  Open(4);
  EXPECT_FALSE(Check3D2(0)->isChecked());
  EXPECT_FALSE(Text2(0)->isEnabled());
  EXPECT_EQ(F1Book2(0)->table().NumberRC(2, 2), -0.5);
  EXPECT_EQ(record.ConstVelocityX, -1.5) << "until OK";
  Press_Command(0);
  EXPECT_EQ(record.ConstVelocityX, 0);
}

TEST_F(VelocityScreen, A_Cell_Under_A_Ticked_Constant_Is_Told_To_Give_Way) {
  record.ConstVelocityX = 2;
  Open(4);
  const auto told = [this] {
    for (const QLabel* label : Child<Velocity_Arrows>("VelocityArrows")->findChildren<QLabel*>()) {
      if (label->text().contains("A ticked constant will stand in")) return true;
    }
    return false;
  };
  EXPECT_FALSE(told());
  Enter_Cell(F1Book2(0), 1, 1, "5");
  EXPECT_TRUE(Wait_Until(told));
  Tick(Check3D2(0));
  EXPECT_TRUE(Wait_Until([&] { return !told(); }));
}

TEST_F(VelocityScreen, A_Field_Is_Exported_And_Imported_As_One_Edit) {
  record.VelocityFieldX[8][9] = 0.1;
  Open(4);
  chosen = bench.folder / "field";
  QTest::mouseClick(Child<QPushButton>("ExportField", 0), Qt::LeftButton);
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].name, "x-velocities.csv");
  chosen = bench.folder / "field.csv";
  EXPECT_EQ(Read_Text(*chosen).substr(0, 19), "0,0,0,0,0,0,0,0,0\r\n");
  QTest::mouseClick(Child<QPushButton>("ImportField", 1), Qt::LeftButton);
  EXPECT_EQ(F1Book2(1)->table().NumberRC(8, 9), 0.1);
  EXPECT_NEAR(Child<Velocity_Arrows>("VelocityArrows")->Drawn().fastest, 0.1414213562, 1e-9);
  F1Book2(1)->Undo();
  EXPECT_TRUE(All_Cells_Are(F1Book2(1), 0));
  F1Book2(1)->Redo();
  Press_Command(0);
  EXPECT_EQ(record.VelocityFieldZ[8][9], 0.1);
}

TEST_F(VelocityScreen, An_Import_Takes_The_Constant_Away) {
  record.ConstVelocityX = 2;
  Open(4);
  chosen = bench.folder / "field.csv";
  std::string rows;
  for (int row = 0; row < 8; ++row) rows += "1;2;3;4;5;6;7;8;9\n";
  Write_Text(*chosen, rows);
  QTest::mouseClick(Child<QPushButton>("ImportField", 0), Qt::LeftButton);
  EXPECT_FALSE(Check3D2(0)->isChecked());
  Press_Command(0);
  EXPECT_EQ(record.ConstVelocityX, 0);
  EXPECT_EQ(record.VelocityFieldX[3][4], 4);
}

TEST_F(VelocityScreen, A_Faulty_Import_Is_Told_And_Changes_Nothing) {
  record.ConstVelocityX = 2;
  Open(4);
  chosen = bench.folder / "field.csv";
  Write_Text(*chosen, "1,2,3\n");
  Modal_Replies replies({Press(Box::Ok)});
  QTest::mouseClick(Child<QPushButton>("ImportField", 0), Qt::LeftButton);
  ASSERT_EQ(replies.seen.size(), 1U);
  Expect_Box(replies.seen[0],
             "Nothing is imported from field.csv.  Row 1, column 4 is missing.  The file has 1 "
             "row, the first of 3 columns; the table has 8 rows of 9 columns.",
             Box::Warning);
  EXPECT_TRUE(Check3D2(0)->isChecked());
  EXPECT_TRUE(All_Cells_Are(F1Book2(0), 2));
}

TEST_F(VelocityScreen, A_Full_Grid_Opens_And_Is_Stored_Whole) {
  record.MMAX0 = record.NMAX0 = 96;
  for (int row = 1; row <= 96; ++row) {
    for (int column = 1; column <= 96; ++column) {
      record.VelocityFieldX[row][column] = row + column / 100.0;
      record.VelocityFieldZ[row][column] = -row - column / 100.0;
    }
  }
  Open(4);
  Press_Command(0);
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied"}));
}

TEST_F(VelocityScreen, A_Grid_Beyond_The_Fields_Is_Told_And_Shown_As_Far_As_It_Goes) {
  record.MMAX0 = 97;
  Modal_Replies replies({Press(Box::Ok)});
  Open(4);
  ASSERT_EQ(replies.seen.size(), 1U);
  EXPECT_EQ(replies.seen[0].icon, Box::Warning);
  EXPECT_EQ(F1Book2(0)->table().MaxRow(), 96);
  EXPECT_EQ(F1Book2(0)->table().MaxCol(), 9);
}

TEST_F(VelocityScreen, The_Unsteady_Table_Has_26_Half_Hours) {
  Open(5);
  const Spreadsheet_Table& table = F1Book3()->table();
  EXPECT_EQ(table.MaxRow(), 26);
  EXPECT_EQ(table.MaxCol(), 2);
  EXPECT_EQ(table.ColText(1), "X-Velocity\n(Fps)");
  EXPECT_EQ(table.ColText(2), "Z-Velocity\n(Fps)");
  EXPECT_EQ(table.ColHeadingHeight(), 550);
  EXPECT_EQ(table.RowHeadingWidth(), 4500);
  EXPECT_EQ(table.RowText(1), "Point 1 (t=0 Hrs)");
  EXPECT_EQ(table.RowText(2), "Point 2 (t=0.5 Hrs)");
  EXPECT_EQ(table.RowText(26), "Point 26 (t=12.5 Hrs)");
}

// One hour from 0: 0.5 x (1 + 1) x 0.5 x 2 = 1 for X; 0 for Z.
TEST_F(VelocityScreen, Opening_Computes_The_Averages_From_What_It_Fills) {
  record.TidalVelX.fill(1);
  record.TidalAvgVelX = 9;
  Open(5);
  EXPECT_EQ(Text3(0)->text(), "0.00");
  EXPECT_EQ(Text3(1)->text(), "0.00");
  EXPECT_EQ(Text3(2)->text(), "1.0");
  EXPECT_EQ(Text3(3)->text(), "1.00");
  EXPECT_EQ(Text3(4)->text(), ".00");
  EXPECT_EQ(Changed(), Fields{}) << "the record is not touched";
  EXPECT_EQ(Text4(1)->toPlainText(),
            "Start Time: .00\nSimulation Duration: 1.00\nEnding Time: 1.00");
}

TEST_F(VelocityScreen, Opening_Without_A_Duration_Tells_Once_And_Shows_The_Stored_Averages) {
  record.SimulationDuration = 0;
  record.TidalAvgVelX = 0.25F;
  Modal_Replies replies({Press(Box::Ok), Press(Box::Ok)});
  Open(5);
  ASSERT_EQ(replies.seen.size(), 1U);
  Expect_Box(replies.seen[0], "Please Provide a Value for Simulation Duration.", Box::Information);
  EXPECT_EQ(Text3(3)->text(), "0.3");
  EXPECT_EQ(Text3(4)->text(), "0.0");
  Choose(2);
  Choose(3);
  EXPECT_EQ(replies.seen.size(), 2U) << "each filling tells";
}

TEST_F(VelocityScreen, While_A_Person_Types_The_Averages_Stay) {
  const Modal_Replies none({});
  record.TidalVelX.fill(1);
  Open(5);
  Enter_Cell(F1Book3(), 1, 1, "9");
  Enter(Text3(0), "2");
  Enter(Text3(2), "0");
  EXPECT_EQ(Text3(3)->text(), "1.00");
  EXPECT_EQ(Text4(1)->toPlainText(),
            "Start Time: 2.00\nSimulation Duration: .00\nEnding Time: 2.00");
}

TEST_F(VelocityScreen, The_Tidal_Picture_Follows_With_Interval_And_Average) {
  record.TidalVelX.fill(1);
  Open(5);
  auto* picture = Child<Tidal_Curve>("TidalCurve");
  EXPECT_EQ(picture->Drawn().average_x, 1);
  Enter(Text3(0), "2");
  Enter(Text3(2), "0.5");
  Enter_Cell(F1Book3(), 5, 1, "3");  // at 2 h: 0.5 x (3 + 1) x 0.5 / 0.5 = 2
  ASSERT_TRUE(picture->Drawn().interval);
  EXPECT_EQ(picture->Drawn().interval->low, 2);
  EXPECT_EQ(picture->Drawn().interval->high, 2.5);
  EXPECT_EQ(picture->Drawn().average_x, 2);
  Enter(Text3(2), "");
  EXPECT_FALSE(picture->Drawn().interval);
}

// From 1 h to 2 h: 0.5 x (0.75 + 1) x 0.5 + 0.5 x (1 + 1.25) x 0.5 = 1.
TEST_F(VelocityScreen, An_Unsteady_Profile_Is_Entered) {
  Open(5);
  Enter_Cell(F1Book3(), 3, 1, "0.75");
  Enter_Cell(F1Book3(), 4, 1, "1");
  Enter_Cell(F1Book3(), 5, 1, "1.25");
  Enter_Cell(F1Book3(), 26, 2, "-0.1");
  Enter(Text3(0), "1");
  Enter(Text3(1), "40");
  Enter(Text3(2), "1");
  Press_Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.TidalStartTime, 1);
  EXPECT_EQ(record.TidalDepth, 40);
  EXPECT_EQ(record.SimulationDuration, 3600);
  EXPECT_EQ(record.TidalVelX[4], 1);
  EXPECT_EQ(record.TidalVelZ[26], -0.1F);
  EXPECT_EQ(record.TidalAvgVelX, 1);
  EXPECT_EQ(record.TidalAvgVelZ, 0);
}

TEST_F(VelocityScreen, Ok_Refuses_A_Start_Above_45000_And_A_Missing_Duration) {
  Open(5);
  Enter(Text3(0), "45001");
  Modal_Replies replies({Press(Box::Ok), Press(Box::Ok)});
  Press_Command(0);
  ASSERT_EQ(replies.seen.size(), 1U);
  Expect_Box(
      replies.seen[0],
      "Starting Time Exceeds Unsteady Velocity Pattern Duration (12.5 Hrs).  Please Correct.",
      Box::NoIcon);
  EXPECT_TRUE(Is_Open());
  Enter(Text3(0), "13");
  Enter(Text3(2), "");
  Press_Command(0);
  ASSERT_EQ(replies.seen.size(), 2U);
  Expect_Box(replies.seen[1], "Please Provide a Simulation Duration Greater Than Zero.",
             Box::NoIcon);
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(VelocityScreen, A_Start_Of_13_Hours_Passes_And_Begins_With_0) {
  record.TidalVelX.fill(3);
  Open(5);
  Enter(Text3(0), "13");
  Press_Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.TidalAvgVelX, 1.5) << "(13, 0) to (14, 3)";
}

TEST_F(VelocityScreen, Other_Types_Do_Not_Ask_For_Times) {
  const Modal_Replies none({});
  record.SimulationDuration = 0;
  for (const double type : {1, 2, 3, 4}) {
    Open(type);
    Press_Command(0);
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(record.VelocityProfileType, type);
  }
}

}  // namespace
}  // namespace barvon::testing
