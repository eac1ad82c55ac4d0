#include "site/frm_velocity.h"

#include <QScrollBar>

#include "core/desk/workspace_port.h"
#include "pictures/two_point_profile.h"
#include "platform/qt/fields/number_field.h"
#include "platform/qt/fields/option_paint.h"
#include "site/velocity_screen.h"
#include "workspace/option_events.h"

namespace barvon::testing {
namespace {

constexpr const char* kNames[] = {"Single Depth Averaged Velocity",
                                  "2-Point Velocity Profile for a Constant Depth Grid",
                                  "Variable Velocity Field for Entire Grid",
                                  "Unsteady Velocity for Single Depth (Tidal Velocity Profile)"};

TEST_F(VelocityScreen, Captions_Stand_As_They_Are_Told) {
  Open(1);
  EXPECT_EQ(Screen()->windowTitle(), "Velocity Profile Data");
  constexpr const char* kFrames[] = {"Average Velocity", "2-Point Profile",
                                     "Variable Velocity Field", "Unsteady Velocity Profile"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Child<QGroupBox>("Frame3D", i)->title(), kFrames[i]);
  constexpr const char* kFieldNames[] = {"Depth at location (ft)", "X-Direction Velocity (fps)",
                                         "Z-Direction Velocity (fps)"};
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Text1(i)->accessibleName(), kFieldNames[i]);
  EXPECT_EQ(Check3D1()->text(), "Do you wish a Logarithmic Profile to be employed?");
  EXPECT_EQ(Child<QLabel>("Label3", 0)->text(),
            "Constant Water Depth Must Be Specified in Site Data ");
  EXPECT_EQ(Child<QLabel>("Label3", 1)->text(), "X - Direction Velocity (+) is from top to bottom");
  EXPECT_EQ(Child<QLabel>("Label3", 2)->text(), "Z - Direction Velocity (+) is from left to right");
  EXPECT_EQ(Check3D2(0)->text(), "Initialize the X-Direction Velocity field to a constant?");
  EXPECT_EQ(Check3D2(1)->text(), "Initialize the Z-Direction Velocity field to a constant?");
  EXPECT_EQ(Child<QLabel>("Label2")->text(), "Constant Velocity to be Used (fps)");
  EXPECT_EQ(Text2(0)->accessibleName(), "X-Direction: Constant Velocity to be Used (fps)");
  EXPECT_EQ(Text2(1)->accessibleName(), "Z-Direction: Constant Velocity to be Used (fps)");
  constexpr const char* kTimes[] = {
      "Start Time Within Velocity Profile (Hrs)", "Depth Where Velocity Profile is Applied (Ft)",
      "Simulation Duration (Hrs)", "Average X-Velocity (Ft/Sec)", "Average Z-Velocity (Ft/Sec)"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Text3(i)->accessibleName(), kTimes[i]);
  EXPECT_EQ(Command1(0)->text(), "OK");
  EXPECT_EQ(Command1(1)->text(), "C&ancel");
  EXPECT_EQ(Command1(2)->text(), "&Help");
  for (int i = 0; i < 2; ++i) EXPECT_TRUE(Text4(i)->isReadOnly());
}

TEST_F(VelocityScreen, Opens_With_The_Option_Of_Its_Type_In_Blue) {
  const std::vector<std::pair<double, int>> types = {{1, 0}, {2, 0}, {3, 1}, {4, 2}, {5, 3}};
  for (const auto& [type, option] : types) {
    Open(type);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(Option3D1(i)->isChecked(), i == option) << type;
      EXPECT_EQ(Option3D1(i)->palette().color(QPalette::WindowText), i == option ? kBlue : kBlack);
      EXPECT_EQ(Child<QGroupBox>("Frame3D", i)->isVisible(), i == option) << type;
      EXPECT_EQ(Child<QLabel>("Picture1", i)->isVisible(), i == option) << type;
      EXPECT_FALSE(Child<QLabel>("Picture1", i)->pixmap().isNull());
    }
    EXPECT_EQ(Text4(1)->isVisible(), type == 5);
    EXPECT_EQ(Child<QLabel>("Label5")->text(), kNames[option]);
    EXPECT_EQ(record.VelocityProfileType, type);
    Press_Command(1);
  }
}

TEST_F(VelocityScreen, Type_0_Selects_No_Option_And_Ok_Stores_No_Velocity) {
  Open(0);
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(Option3D1(i)->isChecked());
    EXPECT_FALSE(Child<QGroupBox>("Frame3D", i)->isVisible());
  }
  EXPECT_EQ(Child<QLabel>("Label5")->text(), "");
  EXPECT_TRUE(Text4(0)->isVisible());
  Press_Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied"}));
}

TEST_F(VelocityScreen, Each_Option_Sets_Type_Name_Panel_And_Picture) {
  Open(1);
  const double types[] = {1, 3, 4, 5};
  for (const int chosen_option : {1, 2, 3, 0, 3, 1, 0, 2}) {
    Choose(chosen_option);
    EXPECT_EQ(record.VelocityProfileType, types[chosen_option]);
    EXPECT_EQ(Child<QLabel>("Label5")->text(), kNames[chosen_option]);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(Option3D1(i)->palette().color(QPalette::WindowText),
                i == chosen_option ? kBlue : kBlack);
      EXPECT_EQ(Child<QGroupBox>("Frame3D", i)->isVisible(), i == chosen_option);
      EXPECT_EQ(Child<QLabel>("Picture1", i)->isVisible(), i == chosen_option);
    }
    EXPECT_EQ(Text4(1)->isVisible(), chosen_option == 3);
  }
}

TEST_F(VelocityScreen, Is_As_Wide_By_Its_Option_As_By_Opening) {
  const double types[] = {1, 3, 4, 5};
  for (const int former : {0, 3}) {
    for (int option = 0; option < 4; ++option) {
      Open(types[option]);
      const int opened = Screen()->width();
      Press_Command(1);
      Open(types[former]);
      Choose(option);
      EXPECT_EQ(Screen()->width(), opened) << types[former] << " to " << types[option];
      Press_Command(1);
    }
  }
}

TEST_F(VelocityScreen, A_Large_Field_Is_As_Large_By_Its_Option_As_By_Opening) {
  record.NMAX0 = record.MMAX0 = 96;
  Open(4);
  const QSize opened = Screen()->size();
  Choose(0);
  Choose(2);
  EXPECT_EQ(Screen()->size(), opened);
}

TEST_F(VelocityScreen, No_Form_Scrolls_On_A_Display_Of_1024_By_768) {
  record.NMAX0 = record.MMAX0 = 96;
  Open(1);
  for (int option = 0; option < 4; ++option) {
    Choose(option);
    Screen()->resize(952, 714);  // what a screen takes of such a display
    QApplication::processEvents();
    const auto* forms = Screen()->findChild<QScrollArea*>();
    EXPECT_FALSE(forms->verticalScrollBar()->isVisible()) << option;
    EXPECT_FALSE(forms->horizontalScrollBar()->isVisible()) << option;
  }
}

TEST_F(VelocityScreen, The_Map_Of_A_Field_Has_Room_Beside_The_Tables) {
  record.NMAX0 = record.MMAX0 = 96;
  Open(4);
  Screen()->resize(952, 714);
  QApplication::processEvents();
  const auto* map = Screen()->findChild<QWidget*>("VelocityArrows");
  EXPECT_GE(map->width(), 340);
  EXPECT_GE(map->height(), 240);
}

TEST_F(VelocityScreen, On_A_Small_Display_The_Forms_Scroll_And_The_Buttons_Stay_In_Reach) {
  const QRect display = bench.main().screen()->availableGeometry();
  for (const double type : {3, 4, 5}) {
    Open(type);
    EXPECT_LT(Screen()->height(), display.height()) << type;
    EXPECT_LT(Screen()->width(), display.width()) << type;
    EXPECT_TRUE(Screen()->rect().contains(Command1(2)->geometry()));
    Press_Command(1);
  }
}

TEST_F(VelocityScreen, The_Note_Asks_For_A_Speed_At_Two_Points_Alone) {
  Open(1);
  const QString speed =
      " The Resulting Speed of the Velocity Vector Should Be at Least 0.1 Ft/Sec.";
  for (int i = 0; i < 4; ++i) {
    Choose(i);
    EXPECT_TRUE(Text4(0)->toPlainText().startsWith("BARVON treats positive velocities in the "));
    EXPECT_EQ(Text4(0)->toPlainText().endsWith(speed), i == 1);
  }
}

TEST_F(VelocityScreen, The_Logarithmic_Profile_Survives_Opening_And_Ok) {
  Open(2);
  EXPECT_TRUE(Check3D1()->isChecked());
  EXPECT_EQ(record.VelocityProfileType, 2);
  Press_Command(0);
  EXPECT_EQ(record.VelocityProfileType, 2);
  Open();
  EXPECT_TRUE(Check3D1()->isChecked());
  Press_Command(1);
  EXPECT_EQ(record.VelocityProfileType, 2);
}

TEST_F(VelocityScreen, The_Logarithmic_Box_Changes_The_Type_At_Once) {
  Open(1);
  Tick(Check3D1());
  EXPECT_EQ(record.VelocityProfileType, 2);
  Tick(Check3D1());
  EXPECT_EQ(record.VelocityProfileType, 1);
}

TEST_F(VelocityScreen, Another_Option_Clears_The_Logarithmic_Box) {
  Open(2);
  Choose(1);
  EXPECT_EQ(record.VelocityProfileType, 3);
  EXPECT_FALSE(Check3D1()->isChecked());
  Choose(0);
  EXPECT_EQ(record.VelocityProfileType, 1);
  EXPECT_FALSE(Check3D1()->isChecked());
}

TEST_F(VelocityScreen, A_Single_Velocity_Is_Entered) {
  Open(1);
  Enter(Text1(0), "60");
  Enter(Text1(1), "0.25");
  Enter(Text1(2), "-.5 fps");
  Tick(Check3D1());
  Press_Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.AvgVelocityDepth, 60);
  EXPECT_EQ(record.AvgVelocityX, 0.25);
  EXPECT_EQ(record.AvgVelocityZ, -0.5);
  EXPECT_EQ(record.VelocityProfileType, 2);
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied", "VelocityProfileType",
                               "AvgVelocityDepth", "AvgVelocityX", "AvgVelocityZ"}));
}

TEST_F(VelocityScreen, An_Option_Shows_What_Is_Stored_Not_What_Was_Typed) {
  record.AvgVelocityX = 1;
  Open(1);
  Enter(Text1(1), "7");
  Choose(1);
  Choose(0);
  EXPECT_EQ(Text1(1)->text(), "1.0");
}

TEST_F(VelocityScreen, A_Value_That_Is_Shown_Rounded_Is_Marked_Until_It_Is_Typed) {
  record.AvgVelocityX = 0.25;
  Open(1);
  EXPECT_EQ(Text1(1)->text(), "0.3");
  EXPECT_EQ(Number_Note_Of(Text1(1)), "rounded from 0.25, which OK keeps");
  EXPECT_EQ(Number_Note_Of(Text1(0)), "");
  Enter(Text1(1), "0.25");
  EXPECT_EQ(Number_Note_Of(Text1(1)), "");
  Enter(Text1(1), "0,3");
  EXPECT_EQ(Number_Note_Of(Text1(1)), "reads as 0");
}

TEST_F(VelocityScreen, Two_Points_Are_Entered_In_The_Table) {
  Open(3);
  const Spreadsheet_Table& table = F1Book1()->table();
  EXPECT_EQ(table.MaxRow(), 2);
  EXPECT_EQ(table.MaxCol(), 4);
  constexpr const char* kHeadings[] = {"X-Depth", "X-Velocity", "Z-Depth", "Z-Velocity"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(table.ColText(i + 1), kHeadings[i]);
  EXPECT_EQ(table.RowText(1), "Point 1");
  EXPECT_EQ(table.RowText(2), "Point 2");
  EXPECT_EQ(table.RowHeadingWidth(), 2800);
  const char* cells[2][4] = {{"10", "0.8", "11", "-0.2"}, {"50", "0.3", "45", "0.125"}};
  for (int row = 0; row < 2; ++row) {
    for (int i = 0; i < 4; ++i) Enter_Cell(F1Book1(), row + 1, i + 1, cells[row][i]);
  }
  auto* picture = Child<Two_Point_Profile>("TwoPointProfile");
  ASSERT_EQ(picture->Drawn().z.size(), 2U);
  EXPECT_EQ(picture->Drawn().z[1].velocity, 0.125);
  EXPECT_EQ(picture->Drawn().z[1].depth, 45);
  Press_Command(0);
  EXPECT_EQ(record.VelXDepth1, 10);
  EXPECT_EQ(record.VelX1, 0.8);
  EXPECT_EQ(record.VelZDepth1, 11);
  EXPECT_EQ(record.VelZ1, -0.2);
  EXPECT_EQ(record.VelXDepth2, 50);
  EXPECT_EQ(record.VelX2, 0.3);
  EXPECT_EQ(record.VelZDepth2, 45);
  EXPECT_EQ(record.VelZ2, 0.125);
}

TEST_F(VelocityScreen, The_Focus_Moves_The_Active_Cell_To_The_First) {
  Open(3);
  F1Book1()->table().SetActiveCell(2, 3);
  Option3D1(1)->setFocus();
  F1Book1()->setFocus();
  EXPECT_EQ(F1Book1()->table().Row(), 1);
  EXPECT_EQ(F1Book1()->table().Col(), 1);
  Choose(2);
  for (int i = 0; i < 2; ++i) {
    F1Book2(i)->table().SetActiveCell(5, 6);
    Check3D2(i)->setFocus();
    F1Book2(i)->setFocus();
    EXPECT_EQ(F1Book2(i)->table().Row(), 1);
    EXPECT_EQ(F1Book2(i)->table().Col(), 1);
  }
}

TEST_F(VelocityScreen, The_Focus_Leaves_The_Active_Cell_Of_The_Unsteady_Table) {
  Open(5);
  F1Book3()->table().SetActiveCell(7, 2);
  Text3(0)->setFocus();
  F1Book3()->setFocus();
  EXPECT_EQ(F1Book3()->table().Row(), 7);
}

TEST_F(VelocityScreen, Ok_Supplies_The_Data_And_Tells_The_Main_Window) {
  record.ScreenDataSupplied.fill(kFalse);
  Open(1);
  Press_Command(0);
  EXPECT_FALSE(Is_Open());
  for (std::size_t i = 1; i <= 8; ++i) {
    EXPECT_EQ(record.ScreenDataSupplied[i], i == 4 ? kTrue : kFalse);
  }
  EXPECT_EQ(record.DataSaved, kFalse);
  const QLabel* line = bench.controls().Text2(2);
  EXPECT_EQ(line->text(), "Data Supplied");
  EXPECT_EQ(line->palette().color(QPalette::WindowText), kBlue);
  EXPECT_TRUE(bench.Action("mnuEditItem(2)")->isChecked());
}

TEST_F(VelocityScreen, Index_3_Acts_As_Ok) {
  Open(1);
  Enter(Text1(0), "12");
  Screen()->Command1_Click(3);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.AvgVelocityDepth, 12);
}

TEST_F(VelocityScreen, Index_4_Shows_The_Depth_Grid_And_Closes_Without_Saving) {
  std::vector<bool> opened;
  Register_Screen(Row_Of_Screen("frmGridDescrip"),
                  [&](bool blocking, const std::string&) { opened.push_back(blocking); });
  for (const std::int16_t mode : {0, 1}) {
    record.ShowMode = mode;
    Open(1);
    Enter(Text1(0), "12");
    Screen()->Command1_Click(4);
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Changed(), Fields{});
  }
  EXPECT_EQ(opened, (std::vector<bool>{false, true}));
  Register_Screen(Row_Of_Screen("frmGridDescrip"), {});
}

TEST_F(VelocityScreen, Cancel_Puts_Back_The_Type_And_Closes) {
  for (const auto cancel : {0, 1, 2}) {
    Open(2);
    Choose(3);
    Choose(1);
    if (cancel == 0) Press_Command(1);
    if (cancel == 1) QTest::keyClick(Screen(), Qt::Key_Escape);
    if (cancel == 2) static_cast<QWidget*>(Screen())->close();
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Changed(), Fields{});
  }
}

TEST_F(VelocityScreen, Cancel_Puts_Back_What_Another_Screen_Stored_Meanwhile) {
  Open(1);
  record.AvgVelocityX = 5;
  record.VelZ2 = 5;
  record.TidalDepth = 5;
  record.SimulationDuration = 7;
  record.VelocityFieldX[1][1] = 5;
  Press_Command(1);
  EXPECT_EQ(Changed(), (Fields{"VelocityFieldX", "TidalDepth", "SimulationDuration"}));
}

TEST_F(VelocityScreen, A_Return_To_The_Screen_Renews_What_Cancel_Puts_Back) {
  Open(1);
  Choose(1);
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  Screen()->activateWindow();
  ASSERT_TRUE(Has_Keyboard(Screen()));
  Press_Command(1);
  EXPECT_EQ(record.VelocityProfileType, 3);
}

TEST_F(VelocityScreen, Help_Opens_Its_Topic) {
  Open(1);
  Press_Command(2);
  ASSERT_EQ(helped.size(), 1U);
  EXPECT_EQ(helped[0].command, Help_Command::Context);
  EXPECT_EQ(helped[0].topic, 2470);
  EXPECT_TRUE(Is_Open());
}

TEST_F(VelocityScreen, The_Edit_Menu_And_The_Picture_Button_Open_It) {
  bench.controls().SSOption1(0)->click();
  mnuEditItem_Click(bench.controls(), record, 2);
  ASSERT_TRUE(Is_Open());
  Press_Command(1);
  bench.controls().SSRibbon1(1)->click();
  EXPECT_TRUE(Is_Open());
}

TEST_F(VelocityScreen, Opens_On_The_Control_Of_A_Reference) {
  record.VelocityProfileType = 1;
  Open("Text1(2)");
  EXPECT_EQ(Screen()->focusWidget(), Text1(2));
  Press_Command(1);
  record.VelocityProfileType = 5;
  Open("F1Book3");
  EXPECT_EQ(Screen()->focusWidget(), F1Book3());
}

TEST_F(VelocityScreen, Without_A_Reference_The_Focus_Is_On_The_Chosen_Option) {
  Open(3);
  EXPECT_EQ(Screen()->focusWidget(), Option3D1(1));
}

TEST_F(VelocityScreen, Tab_Walks_The_Fields_In_Reading_Order) {
  Open(1);
  const std::vector<QWidget*> order = {Option3D1(0), Text1(0),    Text1(1),    Text1(2),
                                       Check3D1(),   Text4(0),    Command1(0), Command1(1),
                                       Command1(2),  Option3D1(0)};
  for (std::size_t i = 1; i < order.size(); ++i) {
    QTest::keyClick(Screen()->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Screen()->focusWidget(), order[i]) << i;
  }
}

TEST_F(VelocityScreen, A_Click_On_The_Option_That_Is_Set_Keeps_What_Was_Typed) {
  Open(1);
  Enter(Text1(1), "7");
  Choose(0);
  EXPECT_EQ(Text1(1)->text(), "7");
  Open(2);
  Choose(0);
  EXPECT_EQ(record.VelocityProfileType, 2) << "the logarithmic profile stays too";
}

TEST_F(VelocityScreen, The_Open_Wizard_Chooses_The_Option_And_The_Duration) {
  record.WizardActive = kTrue;
  Answers_Of_Wizard().max_duration = "5400";
  const double types[] = {2, 3, 4, 5};
  for (int option = 0; option < 4; ++option) {
    Answers_Of_Wizard().velocity_option = option;
    Open(2);
    EXPECT_TRUE(Option3D1(option)->isChecked());
    EXPECT_EQ(record.VelocityProfileType, types[option]);
    EXPECT_EQ(Check3D1()->isChecked(), option == 0) << "the logarithmic profile stays one";
    EXPECT_EQ(Text3(2)->text(), "1.50");
    Press_Command(1);
    EXPECT_EQ(record.VelocityProfileType, types[option]) << "taken before Cancel's copy";
  }
}

}  // namespace
}  // namespace barvon::testing
