#include "site/frm_description.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "checks/error_navigation.h"
#include "core/desk/help_topics.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/wizard_answers.h"
#include "platform/ask/help_viewer.h"
#include "platform/qt/fields/field_rows.h"
#include "site/frm_grid_descrip.h"
#include "site/open_site_boxes.h"
#include "site/site_support.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

using Cells = std::vector<std::string>;
using Names = std::vector<std::string>;

/// The site screen of a sound project over the main window.
class SiteScreen : public ::testing::Test {
 protected:
  SiteScreen() {
    Register_Screen(Row_Of_Screen("frmDescription"), Fresh_Screens<frmDescription>(&bench.main()));
    help_ = Set_Help_Presenter([this](const Help_Request& request) { helped.push_back(request); });
    record.ShowMode = 0;
    record.NMAX0 = 40;
    record.MMAX0 = 20;
    record.DZ0 = 100;
    record.DX0 = 50;
    record.DEPC0 = 30.6;
    record.RHDA0 = 0.01;
    record.SLOPEX0 = 0.5;
    record.NROA0 = 2;
    record.DensityDepths = {0, 0, 30.6};
    record.Densities = {0, 1.02, 1.024};
    record.DataSaved = kTrue;
  }
  ~SiteScreen() override {
    if (Screen() != nullptr) Screen()->Unload();
    Set_Help_Presenter(help_);
    Register_Screen(Row_Of_Screen("frmDescription"), {});
    Answers_Of_Wizard() = {};
  }

  frmDescription* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QStringLiteral("frmDescription"))) {
      if (screen->isVisible()) return static_cast<frmDescription*>(screen);
    }
    return nullptr;
  }
  bool Is_Open() { return Screen() != nullptr; }
  void Open(const std::string& control = {}) {
    ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmDescription"), false, control));
    ASSERT_TRUE(Has_Keyboard(Screen()));
    *before = record;
  }

  template <class T>
  T* Child(const char* array, int index) {
    return Screen()->findChild<T*>(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index));
  }
  QLineEdit* Text1(int index) { return Child<QLineEdit>("Text1", index); }
  std::string Shown(int index) { return Text1(index)->text().toStdString(); }
  std::string Dimension(int index) {
    return Child<QLineEdit>("Text2", index)->text().toStdString();
  }
  QCheckBox* Check3D1(int index) { return Child<QCheckBox>("Check3D1", index); }
  QPushButton* Command1(int index) { return Child<QPushButton>("Command1", index); }
  QPushButton* Command2(int index) { return Child<QPushButton>("Command2", index); }
  F1Book* Book() { return Screen()->findChild<F1Book*>("F1Book1"); }
  Spreadsheet_Table& Table() { return Book()->table(); }
  Density_Profile* Profile() { return Screen()->findChild<Density_Profile*>("DensityProfile"); }
  Cells Column(int column) { return Shown_Column(Table(), column); }

  /// Replaces a field's text by one paste, so that it changes once.
  void Enter(int index, const QString& text) {
    Text1(index)->selectAll();
    Text1(index)->insert(text);
  }
  void Enter_Cell(int row, int column, const QString& text) {
    Type_Into_Cell(*Book(), row, column, text);
  }
  Names Changed() const { return Differing_Fields(*before, record); }

  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::vector<Help_Request> helped;

 private:
  Help_Presenter help_;
};

TEST_F(SiteScreen, Shows_The_Record_In_Its_Patterns) {
  record.SLOPEZ0 = -0.25;
  Open();
  EXPECT_EQ(Screen()->windowTitle(), "Disposal Site Data");
  const char* shown[] = {"40", "20", "100.00", "50.00", "30.6", "0.01000", "0.50", "-0.25", "2"};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(Shown(i), shown[i]) << i;
  EXPECT_EQ(Dimension(0), "3900.00");  // (40 - 1) x 100
  EXPECT_EQ(Dimension(1), "950.00");   // (20 - 1) x 50
  EXPECT_EQ(Column(1), (Cells{"0.0", "30.6"}));
  EXPECT_EQ(Column(2), (Cells{"1.0200", "1.0240"}));
  EXPECT_EQ(Table().MaxCol(), 2);
  EXPECT_EQ(Table().Row(), 1);
  for (int i = 0; i < 2; ++i) {
    EXPECT_FALSE(Check3D1(i)->isChecked());
    EXPECT_FALSE(Command2(i)->isEnabled());
    EXPECT_TRUE(Child<QLineEdit>("Text2", i)->isReadOnly());
  }
}

TEST_F(SiteScreen, Captions_And_Tags_Stand_As_They_Are_Told) {
  Open();
  const char* labels[] = {
      "Z-Direction (Left to Right) (8 to 96)",
      "X-Direction (Top to Bottom) (8 to 96)",
      "Z-Dir (Left to Right)",
      "X-Dir (Top to Bottom)",
      "Constant Water Depth (ft) at Disposal Site",
      "Roughness Height (ft) at Bottom in X-Direction (Typically from 0.0005 to  0.05 ft)",
      "X-Direction (+ Depth Increases Top to Bottom)",
      "Z-Direction (+ Depth Increases Left to Right)",
      "Number of Points to Describe Water Density Profile (max 5).  Enter Increasing Depths "
      "Starting From Surface."};
  const char* tags[] = {"NMAX0", "MMAX0",   "DZ0",     "DX0",  "DEPC0",
                        "RHDA0", "SLOPEX0", "SLOPEZ0", "NROA0"};
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(Text1(i)->accessibleName(), labels[i]);
    EXPECT_EQ(Tag_Of(Text1(i)), tags[i]);
  }
  EXPECT_EQ(Child<QLineEdit>("Text2", 0)->accessibleName(), "Width (ft) [Z-Dir]");
  EXPECT_EQ(Child<QLineEdit>("Text2", 1)->accessibleName(), "Length (ft) [X-Dir]");
  EXPECT_EQ(Tag_Of(Child<QLineEdit>("Text2", 0)), "DistZ");
  EXPECT_EQ(Tag_Of(Child<QLineEdit>("Text2", 1)), "DistX");
  EXPECT_EQ(Child<QLabel>("Label1", 4)->text(), labels[4]);
  Names groups;
  for (const QGroupBox* group : Screen()->findChildren<QGroupBox*>()) {
    groups.push_back(group->title().toStdString());
  }
  for (const char* title : {"Number of Grid Points in:", "Spacing (ft) between Grid Points",
                            "Disposal Grid Dimensions", "Slope (deg) of Bottom in:"}) {
    EXPECT_EQ(std::count(groups.begin(), groups.end(), title), 1) << title;
  }
  EXPECT_EQ(Check3D1(0)->text(), "Compute Density Based on Salinity and Temperature?");
  EXPECT_EQ(Check3D1(1)->text(), "Specify Variable Depth Grid?");
  EXPECT_EQ(Command2(0)->text(), "Compute Density");
  EXPECT_EQ(Command2(1)->text(), "Define Grid");
  EXPECT_EQ(Command1(0)->text(), "OK");
  EXPECT_EQ(Command1(1)->text(), "C&ancel");
  EXPECT_EQ(Command1(2)->text(), "&Help");
}

TEST_F(SiteScreen, A_Roughness_Of_0_Opens_As_0_005_Without_A_Word) {
  record.RHDA0 = 0;
  const Scripted_Messages none;
  Open();
  EXPECT_EQ(Shown(5), "0.00500");
  EXPECT_EQ(record.RHDA0, 0) << "only OK stores it";
  Click(Command1(0));
  EXPECT_EQ(record.RHDA0, 0.005);
}

TEST_F(SiteScreen, A_Low_Roughness_Is_Told_When_It_Is_Shown) {
  record.RHDA0 = 0.0007;
  Scripted_Messages messages({Answer::Ok});
  Open();
  EXPECT_EQ(messages.shown.at(0).text, "Roughness Height May Be Too Low");
}

TEST_F(SiteScreen, The_Count_Of_Density_Points_Is_Brought_In_When_It_Opens) {
  const std::pair<int, const char*> counts[] = {{0, "2"}, {9, "5"}, {3, "3"}};
  for (const auto& [stored, shown] : counts) {
    record.NROA0 = static_cast<std::int16_t>(stored);
    const Scripted_Messages none;
    Open();
    EXPECT_EQ(Shown(8), shown);
    EXPECT_EQ(Table().MaxRow(), std::stoi(shown));
    Screen()->Unload();
  }
}

TEST_F(SiteScreen, Slopes_Are_0_And_Disabled_For_Other_Methods_And_Ok_Stores_0) {
  record.DisposalMethod = 2;
  Open();
  for (const int i : {6, 7}) {
    EXPECT_EQ(Shown(i), "0");
    EXPECT_FALSE(Text1(i)->isEnabled());
  }
  Click(Command1(0));
  EXPECT_EQ(record.SLOPEX0, 0);
  record.SLOPEX0 = 0.5;
  record.DisposalMethod = 3;
  Open();
  EXPECT_TRUE(Text1(6)->isEnabled());
  EXPECT_EQ(Shown(6), "0.50");
}

TEST_F(SiteScreen, Dimensions_Follow_Each_Edit_And_Go_To_The_Record_At_Once) {
  Open();
  Enter(0, "96");
  EXPECT_EQ(Dimension(0), "9,500.00");  // 95 x 100
  EXPECT_EQ(record.DistZ, 9500);
  Enter(3, "70.5");
  EXPECT_EQ(Dimension(1), "1,339.50");  // 19 x 70.5
  EXPECT_EQ(record.DistX, 1339.5);
  Enter(1, "");
  EXPECT_EQ(Dimension(1), "-70.50");
}

TEST_F(SiteScreen, Ok_Keeps_The_Digits_Of_Values_That_Were_Not_Typed) {
  record.DEPC0 = record.DensityDepths[2] = 30.664;
  record.DX0 = 100.126;
  record.RHDA0 = 0.0051234;
  record.SLOPEZ0 = 0.126;
  Open();
  EXPECT_EQ(Shown(4), "30.7");
  Enter(1, "11");
  EXPECT_EQ(record.DistX, 10 * 100.126) << "by the spacing as it is, not as it is shown";
  Enter(7, "0.14");
  Click(Command1(0));
  EXPECT_FALSE(Is_Open()) << "the last density point is at the bottom, so nothing is asked";
  EXPECT_EQ(record.DEPC0, 30.664);
  EXPECT_EQ(record.DX0, 100.126);
  EXPECT_EQ(record.RHDA0, 0.0051234);
  EXPECT_EQ(record.SLOPEZ0, 0.14) << "typed: what is shown counts";
}

TEST_F(SiteScreen, A_Value_Typed_Back_After_A_Save_That_Stayed_Is_Stored) {
  record.DEPC0 = record.DensityDepths[2] = 35;
  Open();
  Enter(4, "50");
  {
    Scripted_Messages yes({Answer::Yes});
    Click(Command1(0));
  }
  ASSERT_TRUE(Is_Open()) << "a row was added";
  EXPECT_EQ(record.DEPC0, 50);
  Enter(4, "35.0");
  Click(Command1(0));
  EXPECT_EQ(record.DEPC0, 35);
}

TEST_F(SiteScreen, Opening_Leaves_A_Two_Point_Profile_Over_A_Variable_Depth) {
  record.ConstantDepthFlag = 0;
  record.VelocityProfileType = 3;
  Open();
  EXPECT_EQ(record.VelocityProfileType, 3);
  EXPECT_EQ(record.ConstantDepthFlag, 0);
}

TEST_F(SiteScreen, Typing_97_Points_Is_Told_And_Ok_Stores_96) {
  Open();
  Modal_Replies replies({Press(QMessageBox::Ok)});
  Enter(0, "97");
  EXPECT_EQ(Dimension(0), "3900.00") << "as before the change";
  EXPECT_EQ(replies.seen.at(0).text, "Number of Grid Points Exceeds Maximum of 96");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::NoIcon);
  EXPECT_EQ(replies.seen.at(0).buttons, QMessageBox::Ok);
  Click(Command1(0));
  EXPECT_EQ(record.NMAX0, 96);
}

TEST_F(SiteScreen, Typing_5_Points_Is_Not_Told_And_Ok_Stores_8) {
  Open();
  const Scripted_Messages none;
  Enter(1, "5");
  EXPECT_EQ(Dimension(1), "200.00");
  Click(Command1(0));
  EXPECT_EQ(record.MMAX0, 8);
  EXPECT_FALSE(Is_Open());
}

TEST_F(SiteScreen, Each_Keystroke_Is_A_Change) {
  Open();
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Text1(5)->selectAll();
  Type(Text1(5), "0.06");  // 0, 0., 0.0 and then 0.06
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text, "Roughness Height May Be Too High");
  Enter(5, "0.0009");
  EXPECT_EQ(messages.shown.at(1).text, "Roughness Height May Be Too Low");
}

TEST_F(SiteScreen, The_Tables_Rows_Follow_The_Count_While_It_Is_2_To_5) {
  Open();
  Enter(8, "4");
  EXPECT_EQ(Table().MaxRow(), 4);
  EXPECT_EQ(Column(1), (Cells{"0.0", "30.6", "", ""}));
  Enter(0, "41");
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Enter(8, "6");
  Enter(8, "");
  for (const Message& message : messages.shown) {
    EXPECT_EQ(message.text, "Number of Density Points Must Be Between 2 and 5");
  }
  EXPECT_EQ(Table().MaxRow(), 4);
}

TEST_F(SiteScreen, Computing_Shows_Four_Columns_And_Back_Two_From_The_Record) {
  record.DensitySalinities = {0, 30, 31};
  record.DensityTemperatures = {0, 12, 10};
  Open();
  Click(Check3D1(0));
  EXPECT_EQ(record.DensityComputeFlag, kTrue);
  EXPECT_TRUE(Command2(0)->isEnabled());
  EXPECT_EQ(Table().MaxCol(), 4);
  EXPECT_EQ(Column(2), (Cells{"30.0", "31.0"}));
  EXPECT_EQ(Column(3), (Cells{"12.0", "10.0"}));
  EXPECT_EQ(Column(4), (Cells{"1.0200", "1.0240"}));
  EXPECT_EQ(Table().ColWidth(4), 3650);
  Click(Check3D1(0));
  EXPECT_EQ(record.DensityComputeFlag, kFalse);
  EXPECT_FALSE(Command2(0)->isEnabled());
  EXPECT_EQ(Table().MaxCol(), 2);
  EXPECT_EQ(Column(2), (Cells{"1.0200", "1.0240"}));
}

TEST_F(SiteScreen, Switching_The_Columns_Takes_The_Records_Values_For_What_Was_Typed) {
  Open();
  Enter_Cell(1, 2, "1.01");
  Click(Check3D1(0));
  Click(Check3D1(0));
  EXPECT_EQ(Column(2), (Cells{"1.0200", "1.0240"}));
}

TEST_F(SiteScreen, Undo_Never_Takes_A_Density_For_A_Salinity) {
  record.DensitySalinities = {0, 30, 31};
  record.DensityTemperatures = {0, 12, 10};
  Open();
  Enter_Cell(1, 2, "1.01");
  Enter_Cell(2, 2, "1.03");
  Click(Check3D1(0));
  const auto switched = std::make_unique<ProjectRecord>(record);
  Book()->setFocus();
  for (int i = 0; i < 2; ++i) QTest::keyClick(Book(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Column(2), (Cells{"30.0", "31.0"}));
  EXPECT_EQ(Column(4), (Cells{"1.0200", "1.0240"}));
  EXPECT_EQ(Differing_Fields(*switched, record), Names{});
  Enter_Cell(1, 2, "32");
  Click(Check3D1(0));
  Book()->setFocus();
  QTest::keyClick(Book(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(Column(2)[0], "30.0") << "nor the other way round";
}

TEST_F(SiteScreen, Undo_After_A_New_Surface_Row_Writes_Into_No_Other_Row) {
  record.DensityDepths = {0, 2, 30.6};
  Open();
  Enter_Cell(1, 2, "1.01");
  Enter_Cell(2, 2, "1.03");
  Modal_Replies replies({Press(QMessageBox::Yes)});
  Click(Command1(0));
  ASSERT_TRUE(Is_Open());
  Screen()->activateWindow();  // as the desktop does when the box goes
  ASSERT_TRUE(Has_Keyboard(Screen()));
  Book()->setFocus();
  for (int i = 0; i < 2; ++i) QTest::keyClick(Book(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Column(1), (Cells{"0.0", "2.0", "30.6"}));
  EXPECT_EQ(Column(2), (Cells{"", "1.0100", "1.0300"}));
}

TEST_F(SiteScreen, A_Salinity_Never_Turns_Into_A_Density_By_A_Count_Outside_Its_Limits) {
  record.DensityComputeFlag = kTrue;
  record.DensitySalinities = {0, 30, 31};
  Open();
  const Scripted_Messages messages({Answer::Ok});
  Enter(8, "1");
  Click(Check3D1(0));
  EXPECT_EQ(Column(2), (Cells{"1.0200", "1.0240"}));
}

TEST_F(SiteScreen, Opens_With_Four_Columns_Where_The_Density_Is_Computed) {
  record.DensityComputeFlag = kTrue;
  record.DensityTemperatures = {0, 12, 10};
  Open();
  EXPECT_TRUE(Check3D1(0)->isChecked());
  EXPECT_TRUE(Command2(0)->isEnabled());
  EXPECT_EQ(Table().MaxCol(), 4);
  EXPECT_EQ(Column(3), (Cells{"12.0", "10.0"}));
}

TEST_F(SiteScreen, Compute_Density_Shows_Four_Decimals_And_Stores_What_It_Shows) {
  record.DensityDepths = {0, 0, 1000};
  record.DensitySalinities = {0, 35, 35};
  record.DensityTemperatures = {0, 10, 10};
  Open();
  Click(Check3D1(0));
  Click(Command2(0));
  // 1.027006 g/cc at the surface, 1.028389 at 1000 ft
  EXPECT_EQ(Column(4), (Cells{"1.0270", "1.0284"}));
  EXPECT_EQ(record.Densities[1], 1.027);
  EXPECT_EQ(record.Densities[2], 1.0284);
}

TEST_F(SiteScreen, Each_Finished_Edit_Computes_Anew_While_The_Box_Is_Checked) {
  record.DensitySalinities = {0, 35, 35};
  record.DensityTemperatures = {0, 10, 10};
  Open();
  Enter_Cell(1, 1, "1000");
  EXPECT_EQ(record.DensityDepths[1], 0) << "not without the box";
  Click(Check3D1(0));
  Enter_Cell(1, 3, "20");
  EXPECT_EQ(Table().ShownRC(1, 4), "1.0251");  // 35 ppt, 20 deg C: 1.025060
  EXPECT_EQ(record.Densities[1], 1.0251);
  EXPECT_EQ(record.DensityTemperatures[1], 20);
  EXPECT_EQ(Table().Row(), 2) << "Return has moved on";
  EXPECT_EQ(Table().Col(), 3);
}

TEST_F(SiteScreen, Water_Without_A_Density_Is_Refused_And_Ok_Stays_With_Nothing_Saved) {
  record.DensitySalinities = {0, 35, 35};
  Open();
  Click(Check3D1(0));
  *before = record;
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Enter_Cell(2, 3, "-67.26");
  EXPECT_EQ(Changed(), Names{});
  Click(Command1(0));
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Changed(), Names{});
  for (const Message& message : messages.shown) {
    EXPECT_EQ(message.text,
              "The Density of Point 2 Can Not Be Computed.  Please Correct Its Salinity or "
              "Temperature.");
  }
}

TEST_F(SiteScreen, A_Variable_Depth_Takes_The_Constant_One_Out_And_Ok_Stores_It_As_0) {
  record.DensityDepths = {0, 0, 50};
  Open();
  Click(Check3D1(1));
  EXPECT_EQ(record.ConstantDepthFlag, 0);
  EXPECT_FALSE(Text1(4)->isEnabled());
  EXPECT_FALSE(Child<QLabel>("Label1", 4)->isEnabled());
  EXPECT_TRUE(Command2(1)->isEnabled());
  Click(Command1(0));
  EXPECT_EQ(record.DEPC0, 0);
  Open();
  EXPECT_TRUE(Check3D1(1)->isChecked());
  EXPECT_FALSE(Text1(4)->isEnabled());
  Click(Check3D1(1));
  EXPECT_EQ(record.ConstantDepthFlag, 1);
  EXPECT_TRUE(Text1(4)->isEnabled());
  EXPECT_FALSE(Command2(1)->isEnabled());
}

TEST_F(SiteScreen, A_Variable_Depth_Takes_The_Two_Point_Profile_And_Its_Blue_Away_For_A_While) {
  record.VelocityProfileType = 3;
  Port().board.display_data();
  Open();
  const auto colour = [this] {
    return bench.controls().Option3D1(1)->palette().color(QPalette::Active, QPalette::WindowText);
  };
  Click(Check3D1(1));
  EXPECT_EQ(record.VelocityProfileType, 0);
  EXPECT_EQ(colour(), QColor("#000000"));
  Click(Check3D1(1));
  EXPECT_EQ(record.VelocityProfileType, 3);
  EXPECT_EQ(colour(), QColor("#0000ff"));
}

TEST_F(SiteScreen, Ok_Saves_Tells_The_Main_Window_And_Closes) {
  Open();
  Enter(4, "30");
  Click(Command1(0));
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.DEPC0, 30);
  EXPECT_EQ(record.DataSaved, kFalse);
  EXPECT_EQ(record.ScreenDataSupplied[2], kTrue);
  EXPECT_EQ(bench.controls().Text2(1)->text(), "Data Supplied");
  EXPECT_TRUE(bench.Action("mnuEditItem(1)")->isChecked());
  EXPECT_EQ(bench.controls().SiteLabel(2)->text(), "Water Depth is Constant at 30.00 Ft")
      << "nobody waits for a screen that does not block, so it refreshes the board";
}

TEST_F(SiteScreen, The_Third_Command_Is_Ok_And_The_Fourth_Closes_Without_Saving_Or_Restoring) {
  Open();
  Enter(4, "30");
  Screen()->Command1_Click(3);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.DEPC0, 30);
  Open();
  Enter(4, "25");
  Enter(0, "50");
  Click(Check3D1(1));
  Screen()->Command1_Click(4);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(Changed(), (Names{"DistZ", "ConstantDepthFlag"}));
}

TEST_F(SiteScreen, Help_Is_The_Topic_Of_The_Site) {
  Open();
  Click(Command1(2));
  ASSERT_EQ(helped.size(), 1u);
  EXPECT_EQ(helped[0].command, Help_Command::Context);
  EXPECT_EQ(helped[0].topic, 2460);
  EXPECT_TRUE(Is_Open());
}

TEST_F(SiteScreen, Two_Rows_With_Neither_End_Right_And_Yes_Twice_Stay_Open_With_Four) {
  record.DensityDepths = {0, 2, 20};
  Open();
  Modal_Replies replies({Press(QMessageBox::Yes), Press(QMessageBox::Yes)});
  Click(Command1(0));
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Shown(8), "4");
  EXPECT_EQ(Column(1), (Cells{"0.0", "2.0", "20.0", "30.6"}));
  EXPECT_EQ(Column(2), (Cells{"", "1.0200", "1.0240", ""}));
  EXPECT_EQ(record.NROA0, 4) << "it is saved as it stands";
  EXPECT_EQ(record.ScreenDataSupplied[2], kTrue);
  for (const Seen_Box& box : replies.seen) {
    EXPECT_EQ(box.title, "BARVON Information");
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.default_button, QMessageBox::Yes);
  }
  Screen()->activateWindow();  // as the desktop does when the box goes
  ASSERT_TRUE(Has_Keyboard(Screen()));
  Enter_Cell(1, 2, "1.019");
  Enter_Cell(4, 2, "1.025");
  Click(Command1(0));
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.Densities[4], 1.025);
}

TEST_F(SiteScreen, While_A_New_Row_Keeps_It_Open_The_Main_Window_Is_Told_All_The_Same) {
  record.DensityDepths = {0, 0, 20};
  Open();
  Enter(4, "30");
  const Scripted_Messages messages({Answer::Yes});
  Click(Command1(0));
  ASSERT_TRUE(Is_Open());
  EXPECT_EQ(record.DataSaved, kFalse);
  EXPECT_EQ(record.DEPC0, 30);
  EXPECT_EQ(record.DensityDepths[3], 30);
  EXPECT_EQ(record.ScreenDataSupplied[2], kTrue);
  EXPECT_EQ(bench.controls().Text2(1)->text(), "Data Supplied");
  EXPECT_TRUE(bench.Action("mnuEditItem(1)")->isChecked());
  EXPECT_EQ(bench.controls().SiteLabel(2)->text(), "Water Depth is Constant at 30.00 Ft");
}

TEST_F(SiteScreen, While_A_New_Row_Keeps_It_Open_The_Bottom_Is_That_Of_The_Counts_Just_Saved) {
  record.NMAX0 = record.MMAX0 = 32;
  record.ConstantDepthFlag = 0;
  record.DepthGrid[12][9] = 90;
  record.DepthGrid[8][8] = 80;
  Open();
  Enter(0, "8");
  Enter(1, "8");
  EXPECT_EQ(Profile()->Drawn().bottom, 90);
  const Scripted_Messages messages({Answer::Yes});
  Click(Command1(0));
  ASSERT_TRUE(Is_Open());
  EXPECT_EQ(Table().NumberRC(3, 1), 90) << "asked before the counts are saved";
  EXPECT_EQ(Profile()->Drawn().bottom, 80);
}

TEST_F(SiteScreen, A_Fraction_Of_A_Count_Is_In_The_Dimensions_And_Cut_By_Ok) {
  Open();
  Enter(0, "12.7");
  EXPECT_EQ(Dimension(0), "1,170.00");  // 11.7 x 100
  Click(Command1(0));
  EXPECT_EQ(record.NMAX0, 12);
  EXPECT_EQ(record.DistZ, 1170) << "as at the last edit";
}

TEST_F(SiteScreen, Return_In_The_Table_Never_Presses_Ok) {
  Open();
  Enter_Cell(2, 1, "31");  // the last row
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(Book(), key);
  QTest::keyClick(Book(), Qt::Key_F2);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Is_Open());
  EXPECT_EQ(Changed(), Names{});
}

TEST_F(SiteScreen, Return_In_A_Field_Is_Ok_And_Saves_What_Was_Typed) {
  Open();
  Enter(5, "0.02");
  QTest::keyClick(Text1(5), Qt::Key_Return);
  EXPECT_FALSE(Is_Open());
  EXPECT_EQ(record.RHDA0, 0.02);
}

TEST_F(SiteScreen, Five_Rows_With_Yes_To_The_Bottom_Get_A_Last_Depth_Of_31) {
  record.NROA0 = 5;
  record.DensityDepths = {0, 0, 5, 10, 15, 20};
  Open();
  const Scripted_Messages messages({Answer::Yes});
  Click(Command1(0));
  EXPECT_EQ(record.DensityDepths[5], 31);
  EXPECT_FALSE(Is_Open());
}

TEST_F(SiteScreen, A_Finished_Cell_Is_Saved_By_Ok_While_It_Is_Still_Being_Typed) {
  Open();
  Book()->setFocus();
  Table().SetActiveCell(2, 2);
  for (const char c : std::string("1.03")) QTest::keyClick(QApplication::focusWidget(), c);
  Command1(0)->setFocus();  // as a click on it does
  Click(Command1(0));
  EXPECT_EQ(record.Densities[2], 1.03);
}

TEST_F(SiteScreen, Cancel_Restores_What_Is_Told_And_No_More) {
  Open();
  for (const auto& [field, text] : {std::pair(0, "50"), std::pair(4, "25"), std::pair(6, "2")}) {
    Enter(field, text);
  }
  Enter_Cell(1, 1, "1");
  const Scripted_Messages messages({Answer::Yes});
  Click(Command1(0));  // a row more: saved, and still open
  ASSERT_TRUE(Is_Open());
  Click(Check3D1(1));
  Click(Command1(1));
  EXPECT_FALSE(Is_Open());
  // Not among them: the dimensions, the profile, and what OK has said.
  EXPECT_EQ(Changed(),
            (Names{"DataSaved", "ScreenDataSupplied", "DistZ", "DensityDepths", "Densities"}));
}

TEST_F(SiteScreen, Cancel_Runs_The_Boxes_And_So_Brings_A_Two_Point_Profile_Where_There_Was_None) {
  record.VelocityProfileType = 0;
  Open();
  Click(Command1(1));
  EXPECT_EQ(record.VelocityProfileType, 3);
  EXPECT_EQ(Changed(), Names{"VelocityProfileType"});
}

TEST_F(SiteScreen, Cancel_After_A_Computation_Keeps_The_Computed_Densities) {
  record.DensitySalinities = {0, 35, 35};
  record.DensityTemperatures = {0, 10, 10};
  Open();
  Click(Check3D1(0));
  Click(Command2(0));
  Click(Command1(1));
  EXPECT_EQ(record.DensityComputeFlag, kFalse);
  EXPECT_EQ(record.Densities[1], 1.027);
}

TEST_F(SiteScreen, Escape_And_The_Close_Box_Are_Cancel) {
  for (const bool escape : {true, false}) {
    Open();
    Click(Check3D1(1));
    if (escape) {
      QTest::keyClick(Screen(), Qt::Key_Escape);
    } else {
      static_cast<QWidget*>(Screen())->close();
    }
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(record.ConstantDepthFlag, 1);
  }
}

TEST_F(SiteScreen, With_The_Wizard_Its_Water_Fills_The_Screen) {
  record.WizardActive = kTrue;
  Answers_Of_Wizard() = {"2400", "1000", "10", "35", 1};
  Open();
  EXPECT_EQ(Shown(4), "1000.0");
  EXPECT_TRUE(Check3D1(0)->isChecked());
  EXPECT_EQ(Column(1), (Cells{"0.0", "1000.0"}));
  EXPECT_EQ(Column(2), (Cells{"35.0", "35.0"}));
  EXPECT_EQ(Column(3), (Cells{"10.0", "10.0"}));
  EXPECT_EQ(Column(4), (Cells{"1.0270", "1.0284"}));
  EXPECT_EQ(record.DEPC0, 1000);
}

TEST_F(SiteScreen, With_The_Wizard_The_Profile_Has_Its_Two_Points_Alone) {
  record.WizardActive = kTrue;
  record.NROA0 = 4;
  record.DensityDepths = {0, 0, 10, 20, 30.6, 0};
  Answers_Of_Wizard() = {"2400", "60", "10", "35", 1};
  Open();
  EXPECT_EQ(record.NROA0, 2);
  EXPECT_EQ(Shown(8), "2");
  EXPECT_EQ(Table().MaxRow(), 2);
  EXPECT_EQ(Column(1), (Cells{"0.0", "60.0"}));
}

TEST_F(SiteScreen, The_Profile_Is_Drawn_Live) {
  Open();
  EXPECT_EQ(Profile()->Drawn().points.size(), 2u);
  EXPECT_EQ(Profile()->Drawn().bottom, 30.6);
  Enter_Cell(2, 1, "25");
  EXPECT_EQ(Profile()->Drawn().points.at(1).depth, 25);
  Enter(4, "40");
  EXPECT_EQ(Profile()->Drawn().bottom, 40);
  Enter(8, "3");
  EXPECT_EQ(Profile()->Drawn().left_out, 1) << "the new row is empty";
  record.DepthGrid[1][1] = 77;
  Click(Check3D1(1));
  EXPECT_EQ(Profile()->Drawn().bottom, 77);
  Click(Check3D1(0));
  EXPECT_EQ(Profile()->Drawn().points.at(1).density, 1.024) << "the fourth column";
}

TEST_F(SiteScreen, Numbers_That_Are_Read_As_Others_Are_Marked) {
  Open();
  Enter(0, "40.7");
  EXPECT_EQ(Number_Note_Of(Text1(0)), "reads as 40");
  Enter(8, "3.5");
  EXPECT_EQ(Number_Note_Of(Text1(8)), "reads as 4");
  Enter(4, "30,5");
  EXPECT_EQ(Number_Note_Of(Text1(4)), "reads as 30");
  Enter_Cell(1, 2, "1,02");
  EXPECT_EQ(Book()->NumberNoteOf(1, 2), "reads as 1");
}

TEST_F(SiteScreen, Tab_Walks_In_Reading_Order) {
  Open();
  Click(Check3D1(0));
  Click(Check3D1(1));
  Text1(0)->setFocus();
  const std::vector<QWidget*> order = {Text1(0),
                                       Text1(1),
                                       Text1(2),
                                       Text1(3),
                                       Child<QLineEdit>("Text2", 0),
                                       Child<QLineEdit>("Text2", 1),
                                       Check3D1(1),
                                       Command2(1),
                                       Text1(5),
                                       Text1(6),
                                       Text1(7),
                                       Text1(8),
                                       Check3D1(0),
                                       Command2(0),
                                       Book()};
  for (std::size_t i = 1; i < order.size(); ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), order[i]) << i;
  }
  QTest::keyClick(Book(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), Profile());
  for (int i = 0; i < 3; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Command1(i));
  }
}

TEST_F(SiteScreen, Opens_On_The_Control_That_A_Finding_Names) {
  const char* names[] = {"Text1(0)", "Text1(1)", "Text1(3)", "Text1(4)", "Text1(5)", "F1Book1"};
  for (const char* name : names) {
    const auto target = Error_Target_Of(std::string("frmDescription!") + name);
    ASSERT_TRUE(target);
    Open(target->control);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    Screen()->Unload();
  }
  Open();
  EXPECT_EQ(QApplication::focusWidget(), Text1(0));
}

TEST_F(SiteScreen, Its_Boxes_Stand_For_The_Depth_Grid_Only_While_It_Is_Open) {
  Open();
  Enter(0, "12");
  EXPECT_EQ(Open_Site_Boxes(record).z_points, "12");
  EXPECT_EQ(Open_Site_Boxes(record).x_points, "20");
  Click(Command1(1));
  EXPECT_EQ(Open_Site_Boxes(record).z_points, "40");
}

TEST_F(SiteScreen, Blocking_From_The_Edit_Menu_It_Refreshes_The_Boards_When_It_Closes) {
  record.ShowMode = 1;
  bench.controls().SSOption1(0)->click();
  Modal_Replies replies({[this](QWidget* window) {
    ASSERT_EQ(window, Screen());
    EXPECT_TRUE(Screen()->isModal());
    Enter(4, "12");
    Table().NumberRC(2, 1, 12);
    Click(Command1(0));
  }});
  bench.Action("mnuEditItem(1)")->trigger();
  EXPECT_EQ(bench.controls().SiteLabel(2)->text(), "Water Depth is Constant at 12.00 Ft");
}

}  // namespace
}  // namespace barvon::testing
