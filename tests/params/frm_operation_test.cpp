#include "params/frm_operation.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/desk/workspace_port.h"
#include "params/operation_screen.h"
#include "platform/qt/fields/number_field.h"

namespace barvon::testing {
namespace {

TEST_F(OperationScreen, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Disposal Operation Data - Hopper Dredge");
  EXPECT_EQ(Frame3D1()->title(), "Vessel Velocity (Fps)");
  EXPECT_EQ(Frame3D2()->title(), "Depression Dumping");
  EXPECT_EQ(Check3D1()->text(), "Dumping over a Depression?");
  const char* const labels[] = {"Location of Disposal Point from Top of Grid (ft)",
                                "Location of Disposal Point from Left Edge of Grid (ft)",
                                "Length of Disposal Vessel Bin (ft)",
                                "Width of Disposal Vessel Bin (ft)",
                                "Distance Between Bins (ft)",
                                "Pre-Disposal Draft (ft)",
                                "Post-Disposal Draft (ft)",
                                "Time Required to Empty All the Hopper Bins (sec)",
                                "Number of Bins That Open Simultaneously"};
  for (int i = 0; i < kOperationFields; ++i) {
    EXPECT_EQ(Child<QLabel>("Label1", i)->text(), labels[i]);
    EXPECT_EQ(Text1(i)->accessibleName(), labels[i]);
  }
  EXPECT_EQ(Child<QLabel>("Label2(0)")->text(),
            "Number of Discrete Openings of Sets of Bins (Max 6)");
  EXPECT_EQ(Text3(0)->accessibleName(), "X-Direction Length (ft)");
  EXPECT_EQ(Text3(1)->accessibleName(), "Z-Direction Length (ft)");
  EXPECT_EQ(Text3(2)->accessibleName(), "Average Depth (ft)");
}

TEST_F(OperationScreen, Opens_With_The_Record_And_Changes_Nothing) {
  Open();
  EXPECT_EQ(Text1(0)->text(), "1200.13");
  EXPECT_EQ(Text1(8)->text(), "2");
  EXPECT_EQ(Text2()->text(), "2");
  EXPECT_EQ(Book().table().MaxRow(), 2);
  EXPECT_EQ(Book().table().NumberRC(2, 2), -2);
  EXPECT_FALSE(Check3D1()->isChecked());
  EXPECT_FALSE(Text3(0)->isEnabled());
  EXPECT_TRUE(Frame3D1()->isEnabled());
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_FALSE(Screen()->Holds_Unsaved_Input());
  EXPECT_TRUE(Text1(0)->hasFocus());
}

TEST_F(OperationScreen, A_Hopper_Shows_Openings_And_No_Pipeline) {
  Open();
  for (int i = 0; i < kOperationFields; ++i) EXPECT_TRUE(Text1(i)->isVisible()) << i;
  for (int i = 0; i < kPipelineFields; ++i) {
    EXPECT_FALSE(Text4(i)->isVisible()) << i;
    EXPECT_FALSE(Child<QLabel>("Label4", i)->isVisible()) << i;
  }
  EXPECT_TRUE(Text2()->isVisible());
  EXPECT_TRUE(Frame3D1()->isVisible());
  EXPECT_TRUE(Frame3D2()->isVisible());
}

TEST_F(OperationScreen, A_Barge_Shows_No_Openings_And_No_Pipeline) {
  record.DisposalMethod = kBarge;
  record.BargeLength = 200;
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Disposal Operation Data - Barge or Scow");
  for (int i = 0; i < kOperationFields; ++i) {
    EXPECT_EQ(Text1(i)->isVisible(), i != kBinGap && i != kBinsTogether) << i;
    EXPECT_EQ(Child<QLabel>("Label1", i)->isVisible(), Text1(i)->isVisible()) << i;
  }
  for (int i = 0; i < kPipelineFields; ++i) EXPECT_FALSE(Text4(i)->isVisible()) << i;
  EXPECT_FALSE(Text2()->isVisible());
  EXPECT_FALSE(Child<QLabel>("Label2(0)")->isVisible());
  EXPECT_FALSE(Frame3D1()->isVisible());
  EXPECT_TRUE(Frame3D2()->isVisible());
  EXPECT_EQ(Text1(2)->text(), "200.0");
  EXPECT_EQ(Child<QLabel>("Label1(7)")->text(), "Time Needed to Empty the Disposal Vessel (sec)");
}

TEST_F(OperationScreen, A_Pipeline_Shows_Neither_Grid_Nor_Depression) {
  record.DisposalMethod = kContinuous;
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Disposal Operation Data");
  for (int i = 0; i < kOperationFields; ++i) EXPECT_EQ(Text1(i)->isVisible(), i < 2) << i;
  const char* const labels[] = {"The Speed of the Vessel (fps)",
                                "Vessel Course Measured Couter-Clockwise from the X-Axis (deg)",
                                "Duration of Disposal Operation (sec)",
                                "Material Discharge Rate from the Pipeline (cfs)",
                                "Radius of the Discharge Pipe (ft)",
                                "Depth of Discharge (ft)",
                                "Angle of Discharge with respect to the Horz. Water Surface (deg)"};
  for (int i = 0; i < kPipelineFields; ++i) {
    EXPECT_TRUE(Text4(i)->isVisible()) << i;
    EXPECT_EQ(Child<QLabel>("Label4", i)->text(), labels[i]);
  }
  EXPECT_FALSE(Text2()->isVisible());
  EXPECT_FALSE(Frame3D1()->isVisible());
  EXPECT_FALSE(Frame3D2()->isVisible());
}

TEST_F(OperationScreen, The_Open_Wizard_Chooses_The_Vessel) {
  record.WizardActive = kTrue;
  Answers_Of_Wizard().method_option = 1;
  Open();
  EXPECT_EQ(record.DisposalMethod, kBarge);
  EXPECT_EQ(Screen()->windowTitle(), "Disposal Operation Data - Barge or Scow");
  EXPECT_FALSE(Text2()->isVisible());
  EXPECT_EQ(Child<QLabel>("Label1(7)")->text(), "Time Needed to Empty the Disposal Vessel (sec)");
}

TEST_F(OperationScreen, Another_Number_Makes_Rows_And_Wipes_Their_Velocities) {
  Open();
  Enter(Text2(), "3");
  EXPECT_EQ(Book().table().MaxRow(), 3);
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(Book().table().NumberRC(row, 1), 0) << row;
  EXPECT_EQ(Book().table().RowText(3), "Set 3");
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(OperationScreen, The_Same_Number_Typed_Again_Wipes_Nothing) {
  Open();
  Enter(Text2(), "2");
  EXPECT_EQ(Book().table().NumberRC(2, 1), 2);
}

TEST_F(OperationScreen, The_Number_Rewrites_Itself_And_Keeps_The_Cursor) {
  Open();
  Text2()->setFocus();
  Text2()->setCursorPosition(0);
  QTest::keyClick(Text2(), Qt::Key_Space);
  EXPECT_EQ(Text2()->text(), "2");
  EXPECT_EQ(Text2()->cursorPosition(), 1);
  EXPECT_EQ(Book().table().NumberRC(2, 1), 2);
}

TEST_F(OperationScreen, An_Empty_Number_Has_A_Mark_And_A_Remark_And_Is_0) {
  Open();
  const auto remarks = [this] {
    const auto labels = Screen()->findChildren<QLabel*>();
    return std::count_if(labels.begin(), labels.end(), [](const QLabel* label) {
      return label->isVisible() &&
             label->text() == "With 0 openings the model input holds no material.";
    });
  };
  EXPECT_EQ(remarks(), 0);
  Enter(Text2(), "");
  EXPECT_EQ(Number_Note_Of(Text2()), "reads as 0");
  EXPECT_EQ(remarks(), 1);
  EXPECT_EQ(Book().table().MaxRow(), 2);
  Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.NOPENS, 0);
}

TEST_F(OperationScreen, A_Seventh_Opening_Is_Told_At_The_Keystroke_And_Is_6_At_OK) {
  Open();
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(Text2(), "7");
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].text, "Number of Openings Must Be Between 1 and 6");
  EXPECT_EQ(replies.seen[0].title, "BARVON");
  EXPECT_EQ(replies.seen[0].icon, QMessageBox::NoIcon);
  EXPECT_EQ(Text2()->text(), "7");
  EXPECT_EQ(Changed(), Fields{});
  Command(0);
  EXPECT_EQ(record.NOPENS, 6);
}

TEST_F(OperationScreen, Typing_10_Over_6_Stores_No_Velocity_That_Was_Not_Seen) {
  record.NOPENS = 6;
  Open();
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(Text2(), "10");
  EXPECT_EQ(replies.windows, 1);
  Command(0);
  EXPECT_EQ(record.NOPENS, 6);
  for (int i = 1; i <= kMaxLayers; ++i) EXPECT_EQ(record.LayerVelX[i], 0) << i;
}

TEST_F(OperationScreen, The_Table_Has_Room_For_All_Rows_Before_They_Come) {
  Open();
  const QSize before_rows = Book().sizeHint();
  Enter(Text2(), "6");
  QCoreApplication::processEvents();
  EXPECT_EQ(Book().sizeHint().height(), before_rows.height());
  EXPECT_GE(Book().viewport()->height(), 6 * Book().rowHeight(0));
}

TEST_F(OperationScreen, A_Number_From_A_File_Is_Brought_In_Without_A_Box) {
  record.NOPENS = 40;
  Open();
  EXPECT_EQ(Text2()->text(), "6");
  EXPECT_EQ(Book().table().MaxRow(), 6);
  Command(1);
  EXPECT_EQ(record.NOPENS, 6);
}

TEST_F(OperationScreen, The_Box_Switches_Fields_Velocities_And_The_Board_S_Box) {
  Open();
  Click(Check3D1());
  EXPECT_TRUE(Board_Box());
  for (int i = 0; i < kDepressionFields; ++i) EXPECT_TRUE(Text3(i)->isEnabled()) << i;
  EXPECT_FALSE(Frame3D1()->isEnabled());
  Click(Check3D1());
  EXPECT_FALSE(Board_Box());
  for (int i = 0; i < kDepressionFields; ++i) EXPECT_FALSE(Text3(i)->isEnabled()) << i;
  EXPECT_TRUE(Frame3D1()->isEnabled());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(OperationScreen, The_Depression_Comes_From_The_Record_And_Not_From_The_Board) {
  bench.controls().SSCheck3->setChecked(true);
  Open();
  EXPECT_FALSE(Check3D1()->isChecked());
  EXPECT_FALSE(Board_Box());
  Command(1);
  EXPECT_TRUE(Board_Box());  // as it was
  bench.controls().SSCheck3->setChecked(false);
  record.ZHOLE = 40;
  Open();
  EXPECT_TRUE(Check3D1()->isChecked());
  EXPECT_TRUE(Text3(0)->isEnabled());
  EXPECT_TRUE(Board_Box());
}

TEST_F(OperationScreen, Cancel_Takes_The_Board_S_Box_Back_On_Every_Road) {
  const std::vector<std::function<void()>> roads = {
      [this] { Command(1); }, [this] { QTest::keyClick(Screen(), Qt::Key_Escape); },
      [this] { Screen()->reject(); }, [this] { Screen()->Call_Off(); }};
  for (const auto& leave : roads) {
    Open();
    Click(Check3D1());
    EXPECT_TRUE(Board_Box());
    leave();
    EXPECT_FALSE(Is_Open());
    EXPECT_FALSE(Board_Box());
    EXPECT_EQ(Changed(), Fields{});
  }
}

TEST_F(OperationScreen, OK_Stores_What_Is_Typed_And_Reports_It) {
  Port().board.set_status_line(4, "?", Status_Colour::Black);
  Open();
  Enter(Text1(1), "850.5");
  Type_Into_Cell(Book(), 2, 1, "1.25");
  Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), (Fields{"DataSaved", "ScreenDataSupplied", "LayerVelX", "ZBARGE"}));
  EXPECT_EQ(record.ZBARGE, 850.5);
  EXPECT_EQ(record.LayerVelX[2], 1.25);
  EXPECT_EQ(record.XBARGE, 1200.126);
  EXPECT_EQ(record.ScreenDataSupplied[9], kTrue);
  EXPECT_TRUE(bench.Action("mnuEditItem(5)")->isChecked());
  EXPECT_EQ(bench.controls().Text2(4)->text(), "Data Supplied");
  EXPECT_EQ(bench.controls().Text2(4)->palette().color(QPalette::WindowText), QColor(0, 0, 255));
  EXPECT_EQ(bench.controls().Label6(2)->text(), "Location From Left: 850.5 Ft");
}

TEST_F(OperationScreen, Cancel_Leaves_The_Record_Alone) {
  Open();
  Enter(Text1(0), "5");
  Enter(Text2(), "5");
  Type_Into_Cell(Book(), 4, 2, "9");
  EXPECT_TRUE(Screen()->Holds_Unsaved_Input());
  Command(1);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(OperationScreen, Yes_To_The_Question_Stops_The_Vessel_And_Closes) {
  Open();
  Click(Check3D1());
  Enter(Text3(0), "500");
  Enter(Text3(1), "400");
  Enter(Text3(2), "12");
  Modal_Replies replies({Press(QMessageBox::Yes)});
  Command(0);
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  EXPECT_EQ(replies.seen[0].title, "BARVON");
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.XHOLE, 500);
  EXPECT_EQ(record.DHOLE, 12);
  EXPECT_EQ(record.LayerVelX[1], 0);
  EXPECT_EQ(record.LayerVelX[3], 3);
  EXPECT_TRUE(Board_Box());
}

TEST_F(OperationScreen, No_To_The_Question_Switches_The_Depression_Off_Here_And_On_The_Board) {
  record.XHOLE = 500.4;
  record.ZHOLE = 400;
  Display();
  ASSERT_TRUE(Board_Box());
  Open();
  Modal_Replies replies({Press(QMessageBox::No)});
  Command(0);
  ASSERT_TRUE(Is_Open());
  EXPECT_FALSE(Check3D1()->isChecked());
  EXPECT_FALSE(Board_Box());
  EXPECT_TRUE(Frame3D1()->isEnabled());
  EXPECT_EQ(record.XHOLE, 0);
  Command(1);
  EXPECT_EQ(record.XHOLE, 500.4);
  EXPECT_EQ(Changed(), Fields{"DataSaved"});
  EXPECT_TRUE(Board_Box());
}

TEST_F(OperationScreen, A_Depression_That_Was_Dropped_Can_Be_Declared_Again) {
  record.XHOLE = 500.4;
  record.ZHOLE = 400;
  Open();
  Modal_Replies replies({Press(QMessageBox::No), Press(QMessageBox::Yes)});
  Command(0);
  Click(Check3D1());
  Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.XHOLE, 500.4);
  EXPECT_EQ(record.ZHOLE, 400);
}

TEST_F(OperationScreen, Cancel_To_The_Question_Leaves_The_Screen_As_It_Stands) {
  Open();
  Click(Check3D1());
  Enter(Text3(0), "500");
  Enter(Text2(), "1");
  Modal_Replies replies({Press_Escape()});
  Command(0);
  ASSERT_TRUE(Is_Open());
  EXPECT_TRUE(Check3D1()->isChecked());
  EXPECT_TRUE(Board_Box());
  EXPECT_EQ(record.NOPENS, 1);
  EXPECT_EQ(Text3(0)->text(), "500");
  EXPECT_TRUE(Screen()->Holds_Unsaved_Input());
  Command(1);
  EXPECT_EQ(Changed(), Fields{"DataSaved"});
  EXPECT_FALSE(Board_Box());
}

// Whoever closes all screens goes back to the opening, and so does Cancel of this one.
TEST_F(OperationScreen, What_A_Refused_OK_Stored_Goes_When_All_Screens_Are_Closed) {
  Open();
  Enter(Text1(0), "33");
  Click(Check3D1());
  Modal_Replies replies({Press(QMessageBox::Cancel)});
  Command(0);
  EXPECT_EQ(record.XBARGE, 33);
  Screen()->Call_Off();
  EXPECT_EQ(Changed(), Fields{"DataSaved"});
}

TEST_F(OperationScreen, A_Barge_Over_A_Depression_Is_Not_Asked) {
  record.DisposalMethod = kBarge;
  Open();
  Click(Check3D1());
  Enter(Text3(1), "90");
  Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.ZHOLE, 90);
}

TEST_F(OperationScreen, A_Number_Beyond_16_Bits_Stays_In_Its_Field_And_The_Screen_Open) {
  Open();
  Enter(Text1(8), "40000");
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Command(0);
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].text,
            "Number of Bins That Open Simultaneously Must Be Between -32768 and 32767.  Please "
            "Correct.");
  ASSERT_TRUE(Is_Open());
  EXPECT_EQ(Screen()->focusWidget(), Text1(8));
  EXPECT_EQ(Text1(8)->text(), "40000");
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(OperationScreen, A_Click_On_The_Plan_Offers_To_Put_The_Vessel_There) {
  Open();
  const QPoint place = Site()->Place_Of({1500, 600}).toPoint();
  Modal_Replies replies({Press(QMessageBox::No), Press(QMessageBox::Yes)});
  QTest::mouseClick(Site(), Qt::LeftButton, {}, place);
  EXPECT_EQ(Text1(0)->text(), "1200.13");
  QTest::mouseClick(Site(), Qt::LeftButton, {}, place);
  ASSERT_EQ(replies.seen.size(), 2u);
  EXPECT_EQ(replies.seen[1].buttons, QMessageBox::Yes | QMessageBox::No);
  const double x = Text1(0)->text().toDouble(), z = Text1(1)->text().toDouble();
  EXPECT_NEAR(x, 1500, 25);
  EXPECT_NEAR(z, 600, 25);
  EXPECT_EQ(replies.seen[1].text,
            QStringLiteral("Put the vessel at X = %1 ft, Z = %2 ft?").arg(x).arg(z));
  QCoreApplication::processEvents();
  EXPECT_NE(Site_Words().find(QStringLiteral("Disposal point: X %1 ft").arg(x).toStdString()),
            std::string::npos);
  EXPECT_EQ(Changed(), Fields{});
  Text1(0)->undo();
  Text1(1)->undo();
  EXPECT_EQ(Text1(0)->text(), "1200.13");
  EXPECT_EQ(Text1(1)->text(), "800.00");
  Command(0);
  EXPECT_EQ(record.XBARGE, 1200.126);
}

TEST_F(OperationScreen, Return_At_The_Cursor_Of_The_Plan_Offers_The_Same) {
  Open();
  Site()->Set_Cursor({1000, 500});
  Site()->setFocus(Qt::TabFocusReason);
  Modal_Replies replies({Press(QMessageBox::Yes)});
  QTest::keyClick(Site(), Qt::Key_Return);
  ASSERT_TRUE(Is_Open());
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].text, "Put the vessel at X = 1000 ft, Z = 500 ft?");
  EXPECT_EQ(Text1(0)->text(), "1000.00");
  EXPECT_EQ(Text1(1)->text(), "500.00");
}

TEST_F(OperationScreen, The_Plan_Follows_What_Is_Typed) {
  Open();
  Enter(Text1(0), "2500");
  QCoreApplication::processEvents();
  EXPECT_NE(Site_Words().find("The disposal point is outside of the grid."), std::string::npos);
  Enter(Text1(0), "900");
  Type_Into_Cell(Book(), 1, 1, "5");
  QCoreApplication::processEvents();
  // 30 s at 5, -1 ft/s and 30 s at 2, -2 ft/s from X 900 ft, Z 800 ft.
  EXPECT_NE(Site_Words().find("the vessel moves to X 1110 ft, Z 710 ft."), std::string::npos)
      << Site_Words();
  Click(Check3D1());
  Enter(Text3(0), "300");
  Enter(Text3(1), "200");
  QCoreApplication::processEvents();
  EXPECT_NE(Site_Words().find("Depression: X 750 to 1050 ft, Z 700 to 900 ft."), std::string::npos);
  EXPECT_EQ(Site_Words().find("the vessel moves"), std::string::npos);
}

TEST_F(OperationScreen, A_Project_Without_A_Grid_Has_A_Note_And_No_Question) {
  record.DX0 = 0;
  Open();
  QCoreApplication::processEvents();
  EXPECT_NE(Site_Words().find("No grid yet"), std::string::npos);
  const Modal_Replies no_boxes({});
  QTest::mouseClick(Site(), Qt::LeftButton, {}, Site()->rect().center());
}

TEST_F(OperationScreen, Velocities_That_Were_Wiped_Come_Back_By_One_Undo) {
  Open();
  Enter(Text2(), "3");
  Book().Undo();
  EXPECT_EQ(Book().table().NumberRC(2, 1), 2);
}

TEST_F(OperationScreen, Numbers_Read_As_Others_Are_Marked) {
  Open();
  Enter(Text1(2), "30 m");
  EXPECT_EQ(Number_Note_Of(Text1(2)), "reads as 30");
  Enter(Text1(8), "2.5");
  EXPECT_EQ(Number_Note_Of(Text1(8)), "reads as 2");
}

TEST_F(OperationScreen, The_Error_List_Leads_To_A_Field) {
  for (const char* control : {"Text1(0)", "Text1(2)", "Text1(3)"}) {
    Open(control);
    EXPECT_TRUE(Child<QLineEdit>(control)->hasFocus()) << control;
    Command(1);
  }
}

TEST_F(OperationScreen, Menu_And_Board_Lead_To_It) {
  bench.Action("mnuEditItem(5)")->trigger();
  ASSERT_TRUE(Is_Open());
  Command(1);
  bench.controls().SSRibbon1(kOperationRibbon)->click();
  ASSERT_TRUE(Is_Open());
  Command(1);
}

TEST_F(OperationScreen, Blocking_It_Ends_As_It_Does_Otherwise) {
  record.ShowMode = 1;
  Modal_Replies replies({[this](QWidget*) {
    Click(Check3D1());
    EXPECT_TRUE(Board_Box());
    Command(1);
  }});
  bench.Action("mnuEditItem(5)")->trigger();
  EXPECT_EQ(replies.windows, 1);
  EXPECT_FALSE(Is_Open());
  EXPECT_FALSE(Board_Box());
}

TEST_F(OperationScreen, Another_Method_Closes_It_As_Cancel_Does) {
  Open();
  Click(Check3D1());
  Modal_Replies replies({Press(QMessageBox::Yes)});  // what is typed may go
  bench.controls().SSOption2(1)->click();
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.DisposalMethod, kBarge);
  EXPECT_FALSE(Board_Box());
}

}  // namespace
}  // namespace barvon::testing
