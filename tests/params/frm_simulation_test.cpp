#include "params/frm_simulation.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QTest>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "checks/check_data.h"
#include "core/desk/screen_register.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "platform/qt/fields/number_field.h"
#include "support/record_differences.h"
#include "support/screen_support.h"
#include "workspace/option_events.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

/// The screen over the main window, opened without blocking, for 3600.4 s in steps of 100 s and
/// three print times.
class SimulationScreen : public ::testing::Test {
 protected:
  SimulationScreen() {
    Register_Screen(kRow, Fresh_Screens<frmSimulation>(&bench.main()));
    record.ShowMode = 0;
    record.DataSaved = kTrue;
    record.AnalysisType = kOpenWater;
    record.SimulationDuration = 3600.4;
    record.LongTermTimeStep = 100;
    record.PrintCollapse = 1;
    record.NumPrintTimes = 3;
    for (int i = 1; i <= kMaxPrintTimes; ++i) record.PrintTimes[i] = 600.5 * i;
  }
  ~SimulationScreen() override { Register_Screen(kRow, {}); }

  frmSimulation* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QStringLiteral("frmSimulation"))) {
      if (screen->isVisible()) return static_cast<frmSimulation*>(screen);
    }
    return nullptr;
  }
  bool Is_Open() { return Screen() != nullptr; }
  void Open(const char* control = "") {
    *before = record;
    ASSERT_TRUE(Open_Screen(kRow, false, control));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }
  template <class T>
  T* Child(const char* name) {
    return Screen()->findChild<T*>(QLatin1String(name));
  }
  QLineEdit* Text1(int index) { return Child<QLineEdit>(index == 0 ? "Text1(0)" : "Text1(1)"); }
  QLineEdit* Text2() { return Child<QLineEdit>("Text2"); }
  QCheckBox* Own_Times() { return Child<QCheckBox>("SSCheck2(2)"); }
  QWidget* Frame3D1() { return Child<QWidget>("Frame3D1"); }
  QString Hint() { return Child<QLabel>("Label3")->text(); }
  F1Book& Book() { return *Child<F1Book>("F1Book1"); }
  const Time_Drawing& Picture() { return Child<Time_Line>("TimeLine")->Drawn(); }
  void Command(int index) {
    Click(Child<QPushButton>(index == 0   ? "Command1(0)"
                             : index == 1 ? "Command1(1)"
                                          : "Command1(2)"));
  }
  void Enter(QLineEdit* field, const QString& text) {
    field->setFocus();
    field->selectAll();
    field->del();
    Type(field, text);
  }
  Fields Changed() const { return Differing_Fields(*before, record); }
  QString Status() { return bench.controls().Text2(0)->text(); }

  static constexpr const Screen_Row& kRow = Row_Of_Screen("frmSimulation");
  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
};

TEST_F(SimulationScreen, Captions_Stand_As_They_Are_Told) {
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Time Step and Print Options");
  Fields frames, labels;
  for (auto* frame : Screen()->findChildren<QGroupBox*>()) {
    frames.push_back(frame->title().toStdString());
  }
  EXPECT_EQ(frames, (Fields{"Time Steps", "Printing Options"}));
  for (auto* label : Screen()->findChildren<QLabel*>()) {
    if (label->isVisible()) labels.push_back(label->text().toStdString());
  }
  for (const char* label :
       {"Duration of the Simulation (sec)", "Long-Term Time Step for Diffusion (sec)",
        "If not, the program prints results quarterly.", "Number of Print Times (Max12)",
        "Specify the Print Times (Sec) for Output of Long-Term Results"}) {
    EXPECT_EQ(std::count(labels.begin(), labels.end(), label), 1) << label;
  }
  EXPECT_EQ(Child<QCheckBox>("SSCheck2(0)")->text(), "Want Results of Convective Descent Printed?");
  EXPECT_EQ(Child<QCheckBox>("SSCheck2(1)")->text(), "Want Results of Collapse Phase Printed?");
  EXPECT_EQ(Own_Times()->text(), "Want to Specify Your Own Print Times for Long-Term Diffusion?");
}

TEST_F(SimulationScreen, Opens_With_The_Record_And_Changes_Nothing) {
  Open();
  EXPECT_EQ(Text1(0)->text(), "3600.");
  EXPECT_EQ(Text1(1)->text(), "100.");
  EXPECT_EQ(Text2()->text(), "3");
  EXPECT_FALSE(Child<QCheckBox>("SSCheck2(0)")->isChecked());
  EXPECT_TRUE(Child<QCheckBox>("SSCheck2(1)")->isChecked());
  EXPECT_TRUE(Own_Times()->isChecked());
  EXPECT_TRUE(Frame3D1()->isVisible());
  EXPECT_EQ(Book().table().MaxRow(), 3);
  EXPECT_EQ(Book().table().NumberRC(3, 1), 1801.5);
  EXPECT_EQ(Changed(), Fields{});
  EXPECT_FALSE(Screen()->Holds_Unsaved_Input());
}

TEST_F(SimulationScreen, The_Advice_Follows_The_Focus) {
  Open("SSCheck2(0)");
  EXPECT_EQ(Hint(), "(Note: Duration of 2400 Sec is Generally Sufficient.)");
  Text1(1)->setFocus();
  EXPECT_TRUE(Hint().startsWith("Time Step Must Be Greater")) << Hint().toStdString();
  Own_Times()->setFocus();
  EXPECT_TRUE(Hint().startsWith("Time Step Must Be Greater"));
  record.AnalysisType = kOceanSites;
  EXPECT_TRUE(Hint().contains("Use 100, 200, 300 sec"));
  Text1(0)->setFocus();
  EXPECT_EQ(Hint(),
            "(Note: Duration of 14400 Sec should be specified for water column evaluations.)");
}

TEST_F(SimulationScreen, Without_Print_Times_The_Frame_Is_Away_And_The_Box_Shows_0) {
  record.NumPrintTimes = 0;
  Open();
  EXPECT_FALSE(Own_Times()->isChecked());
  EXPECT_FALSE(Frame3D1()->isVisible());
  Click(Own_Times());
  EXPECT_TRUE(Frame3D1()->isVisible());
  EXPECT_EQ(Text2()->text(), "0");
  EXPECT_EQ(Book().table().MaxRow(), 1);
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(SimulationScreen, A_Cleared_Print_Box_Is_In_The_Record_At_Once) {
  Open();
  Click(Own_Times());
  EXPECT_FALSE(Frame3D1()->isVisible());
  EXPECT_EQ(Changed(), Fields{"NumPrintTimes"});
  EXPECT_EQ(record.NumPrintTimes, 0);
  Click(Own_Times());
  EXPECT_EQ(Text2()->text(), "0");
}

TEST_F(SimulationScreen, A_Number_That_Is_Typed_Makes_Rows_At_Once) {
  Open();
  Enter(Text2(), "10");
  EXPECT_EQ(record.NumPrintTimes, 10);
  EXPECT_EQ(Book().table().MaxRow(), 10);
  EXPECT_EQ(Book().table().NumberRC(3, 1), 1801.5);
  EXPECT_EQ(Changed(), Fields{"NumPrintTimes"});
}

TEST_F(SimulationScreen, The_Thirteenth_Print_Time_Is_Refused_At_The_Keystroke) {
  Open();
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(Text2(), "13");
  ASSERT_EQ(replies.seen.size(), 1u);
  EXPECT_EQ(replies.seen[0].text, "Maximum Number of Print Time is 12.  Please Correct Entry");
  EXPECT_EQ(replies.seen[0].title, "BARVON");
  EXPECT_EQ(replies.seen[0].icon, QMessageBox::NoIcon);
  EXPECT_EQ(record.NumPrintTimes, 1);
  EXPECT_EQ(Book().table().MaxRow(), 1);
  Command(0);
  EXPECT_EQ(record.NumPrintTimes, 12);
}

TEST_F(SimulationScreen, Cancel_Takes_Back_Each_Instant_Write) {
  Open();
  Click(Child<QCheckBox>("SSCheck2(0)"));
  Click(Child<QCheckBox>("SSCheck2(1)"));
  EXPECT_EQ(Changed(), (Fields{"PrintConvectiveDescent", "PrintCollapse"}));
  Enter(Text2(), "5");
  Enter(Text1(0), "7200");
  Click(Own_Times());
  EXPECT_EQ(record.NumPrintTimes, 0);
  Command(1);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(SimulationScreen, Escape_Is_Cancel) {
  Open();
  Click(Own_Times());
  QTest::keyClick(Screen(), Qt::Key_Escape);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), Fields{});
}

TEST_F(SimulationScreen, A_Message_Box_Does_Not_Renew_What_Cancel_Restores) {
  Open();
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(Text2(), "13");
  Command(1);
  EXPECT_EQ(Changed(), Fields{});
}

// The velocity screen stores one too.
TEST_F(SimulationScreen, A_Duration_That_Was_Stored_Meanwhile_Stays) {
  Open();
  record.SimulationDuration = 9000;
  Command(1);
  EXPECT_EQ(record.SimulationDuration, 9000);
  Open();
  record.SimulationDuration = 9500;
  Command(0);
  EXPECT_EQ(record.SimulationDuration, 9500);
}

TEST_F(SimulationScreen, Shows_A_Duration_That_Was_Stored_Meanwhile_Unless_One_Is_Typed) {
  Open();
  const auto come_back = [this](double stored) {
    bench.main().activateWindow();
    ASSERT_TRUE(Has_Keyboard(&bench.main()));
    record.SimulationDuration = stored;
    Screen()->activateWindow();
    ASSERT_TRUE(Has_Keyboard(Screen()));
  };
  come_back(9000);
  EXPECT_EQ(Text1(0)->text(), "9000.");
  EXPECT_FALSE(Screen()->Holds_Unsaved_Input());
  Enter(Text1(0), "7200");
  come_back(8000);
  EXPECT_EQ(Text1(0)->text(), "7200");
}

TEST_F(SimulationScreen, OK_Stores_What_Is_Typed_And_Reports_It) {
  Open();
  Enter(Text1(1), "200");
  Type_Into_Cell(Book(), 2, 1, "1500");
  Command(0);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(),
            (Fields{"DataSaved", "ScreenDataSupplied", "LongTermTimeStep", "PrintTimes"}));
  EXPECT_EQ(record.LongTermTimeStep, 200);
  EXPECT_EQ(record.PrintTimes[2], 1500);
  EXPECT_EQ(record.SimulationDuration, 3600.4);
  EXPECT_EQ(record.DataSaved, kFalse);
  EXPECT_EQ(record.ScreenDataSupplied[6], kTrue);
  EXPECT_EQ(Status(), "Data Supplied");
}

TEST_F(SimulationScreen, A_Negative_Number_Is_One_Print_Time_At_OK) {
  Open();
  Enter(Text2(), "-3");
  EXPECT_NE(record.NumPrintTimes, -3);
  Command(0);
  EXPECT_EQ(record.NumPrintTimes, 1);
}

TEST_F(SimulationScreen, A_Number_From_A_File_Is_Brought_In_Before_The_Table_Is_Filled) {
  record.NumPrintTimes = 40;
  Open();
  EXPECT_EQ(Text2()->text(), "12");
  EXPECT_EQ(Book().table().MaxRow(), 12);
  Command(1);
  EXPECT_EQ(record.NumPrintTimes, 12);
}

TEST_F(SimulationScreen, The_Picture_Follows_What_Is_Typed) {
  Open();
  EXPECT_EQ(Picture().duration, 3600.4);
  EXPECT_EQ(Picture().prints.size(), 3u);
  Enter(Text1(0), "1000");
  EXPECT_EQ(Picture().duration, 1000);
  EXPECT_EQ(Picture().note, "2 print times not within the duration.");
  Type_Into_Cell(Book(), 3, 1, "900");
  EXPECT_EQ(Picture().prints[2].time, 900);
  Click(Own_Times());
  EXPECT_FALSE(Picture().own_prints);
  EXPECT_EQ(Picture().prints.back().time, 1000);
}

TEST_F(SimulationScreen, The_Error_List_Leads_To_A_Field) {
  Open("Text1(1)");
  EXPECT_TRUE(Text1(1)->hasFocus());
}

TEST_F(SimulationScreen, Numbers_Read_As_Others_Are_Marked) {
  Open();
  Enter(Text1(0), "3600 s");
  EXPECT_EQ(Number_Note_Of(Text1(0)), "reads as 3600");
  Enter(Text2(), "2.6");
  EXPECT_EQ(Number_Note_Of(Text2()), "reads as 3");
}

}  // namespace
}  // namespace barvon::testing
