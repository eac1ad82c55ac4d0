#include <gtest/gtest.h>

#include <QTest>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "support/screen_support.h"
#include "workspace/option_events.h"

namespace barvon {
namespace {

using testing::Click;
using testing::Main_Bench;
using testing::Modal_Replies;
using testing::Press;

QColor Text_Colour(const QWidget* control) {
  return control->palette().color(QPalette::Active, QPalette::WindowText);
}

TEST(MainOptions, Every_Caption_Of_The_Main_Menu_Board_Has_Its_Wording) {
  Main_Bench bench;
  Main_Controls& c = bench.controls();
  const std::pair<const QAbstractButton*, const char*> buttons[] = {
      {c.SSOption1(0), "General Open Water Disposal Analysis"},
      {c.SSOption1(1), "Section 103 Regulatory Analysis for Ocean Sites"},
      {c.SSOption1(2), "Section 404(b)(1) Regulatory Analysis for US Navigable Waters"},
      {c.SSOption2(0), "Disposal from a Multiple Bin Hopper Dredge"},
      {c.SSOption2(1), "Disposal from a Split-Hull Barge or Scow"},
      {c.SSCheck1, "DataBase Used"}};
  for (const auto& [button, caption] : buttons) EXPECT_EQ(button->text(), caption);
  const std::pair<const QLabel*, const char*> labels[] = {{c.Label2(0), "Program Options"},
                                                          {c.Label2(1), "Site Description"},
                                                          {c.Label2(2), "Velocity Data"},
                                                          {c.Label2(3), "Material Description"},
                                                          {c.Label2(4), "Disposal Operation"},
                                                          {c.Label2(5), "Coefficients"},
                                                          {c.Label3(0), "Site: NONE"},
                                                          {c.Label3(1), "Month: NONE"},
                                                          {c.Label3(2), "Material Location: NONE"},
                                                          {c.Label3(3), "Disposal Vessel: NONE"}};
  for (const auto& [label, text] : labels) EXPECT_EQ(label->text(), text);
}

TEST(MainOptions, Every_Pair_Of_Choices_Gives_Its_KEY4) {
  Main_Bench bench;
  const int key4[3][2] = {{1, 2}, {3, 4}, {5, 6}};
  for (int type = 0; type < 3; ++type) {
    for (int method = 0; method < 2; ++method) {
      Click(bench.controls().SSOption1(type));
      Click(bench.controls().SSOption2(method));
      EXPECT_EQ(Project().KEY4, key4[type][method]);
      EXPECT_EQ(Project().AnalysisType, type + 1);
      EXPECT_EQ(Project().DisposalMethod, method == 0 ? 1 : 3);
      EXPECT_EQ(Project().PreviousDisposalMethod, Project().DisposalMethod);
      EXPECT_EQ(Project().KEY1, 1);
      EXPECT_EQ(Project().FileKind, 2);
    }
  }
}

TEST(MainOptions, The_First_Type_Opens_The_Method_And_The_Menus) {
  Main_Bench bench;
  EXPECT_FALSE(bench.controls().MethodFrame->isEnabled());
  EXPECT_FALSE(bench.Action("mnuRun")->isEnabled());
  Click(bench.controls().SSOption1(1));
  EXPECT_TRUE(bench.controls().SSOption2(0)->isEnabled());
  EXPECT_TRUE(bench.controls().SSOption2(1)->isEnabled());
  EXPECT_TRUE(bench.Action("mnuRun")->isEnabled());
  EXPECT_TRUE(bench.Action("mnuFileItem(4)")->isEnabled());
  EXPECT_EQ(Project().KEY4, 3);  // the hopper is the method already
}

TEST(MainOptions, The_Chosen_Option_Is_Blue) {
  Main_Bench bench;
  for (int chosen = 0; chosen < 3; ++chosen) {
    Click(bench.controls().SSOption1(chosen));
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(Text_Colour(bench.controls().SSOption1(i)),
                QColor(i == chosen ? "#0000ff" : "#000000"));
    }
  }
}

TEST(MainOptions, The_Chosen_Method_Is_Blue) {
  Main_Bench bench;
  Click(bench.controls().SSOption1(0));
  for (const int chosen : {1, 0}) {
    Click(bench.controls().SSOption2(chosen));
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(Text_Colour(bench.controls().SSOption2(i)),
                QColor(i == chosen ? "#0000ff" : "#000000"));
    }
  }
}

TEST(MainOptions, A_Type_From_Code_Opens_A_Board_That_Is_Closed) {
  Main_Bench bench;
  bench.controls().Frame3D1->setEnabled(false);
  SSOption1_Click(bench.controls(), Project(), 2);
  EXPECT_TRUE(bench.controls().Frame3D1->isEnabled());
  EXPECT_TRUE(bench.controls().MethodFrame->isEnabled());
  EXPECT_TRUE(bench.controls().SSOption1(2)->isChecked());
}

TEST(MainOptions, The_Keyboard_Chooses_Too) {
  Main_Bench bench;
  Click(bench.controls().SSOption1(0));
  QTest::keyClick(bench.controls().SSOption1(0), Qt::Key_Down);
  EXPECT_EQ(Project().AnalysisType, 2);
}

TEST(MainOptions, A_Refresh_Shows_What_The_Record_Holds_And_Not_What_Was_Shown_Before) {
  Main_Bench bench;
  Click(bench.controls().SSOption1(0));
  Project().KEY4 = 6;
  Project().DisposalMethod = 3;
  Port().board.display_data();
  EXPECT_TRUE(bench.controls().SSOption1(2)->isChecked());
  EXPECT_TRUE(bench.controls().SSOption2(1)->isChecked());
  EXPECT_EQ(Project().KEY4, 6);
  EXPECT_EQ(Project().DisposalMethod, 3);
  EXPECT_EQ(Project().AnalysisType, 3);
  EXPECT_EQ(Project().KEY1, 1);
}

TEST(MainOptions, A_KEY4_Of_0_Or_7_Selects_No_Type_And_The_Method_Follows_DisposalMethod) {
  Main_Bench bench;
  for (const std::int16_t key4 : {0, 7}) {
    Click(bench.controls().SSOption1(1));
    Project().KEY4 = key4;
    Project().DisposalMethod = 3;
    Port().board.display_data();
    for (QRadioButton* option : bench.controls().SSOption1) EXPECT_FALSE(option->isChecked());
    EXPECT_TRUE(bench.controls().SSOption2(1)->isChecked());
    EXPECT_EQ(Project().KEY4, key4);
  }
}

TEST(MainOptions, A_Continuous_Discharge_Stays_One_Through_A_Refresh) {
  Main_Bench bench;
  Project().KEY4 = 1;
  Project().DisposalMethod = 2;
  Port().board.display_data();
  EXPECT_EQ(Project().DisposalMethod, 2);
  EXPECT_EQ(Project().KEY4, 1);
  EXPECT_FALSE(bench.controls().SSOption2(0)->isChecked());
  EXPECT_FALSE(bench.controls().SSOption2(1)->isChecked());
}

TEST(MainOptions, A_Refresh_Holds_The_Site_Density_To_Its_Limits) {
  Main_Bench bench;
  Project().SiteDensity = 1.2;
  Port().board.display_data();
  EXPECT_EQ(Project().SiteDensity, 1.05);
  EXPECT_EQ(bench.Child<QLabel>("Matlabel(6)")->text(), "Dredging Site Water Density: 1.0500 g/cc");
}

TEST(MainOptions, A_New_Project_Clears_The_Marks_And_Closes_The_Gate) {
  Main_Bench bench;
  Click(bench.controls().SSOption1(1));
  Port().board.set_status_line(2, kDataSupplied, Status_Colour::Blue);
  EXPECT_EQ(Text_Colour(bench.controls().Text2(2)), QColor("#0000ff"));
  Port().board.refresh_for_new_project();
  for (QRadioButton* option : bench.controls().SSOption1) EXPECT_FALSE(option->isChecked());
  for (QRadioButton* option : bench.controls().SSOption2) EXPECT_FALSE(option->isChecked());
  EXPECT_FALSE(bench.controls().MethodFrame->isEnabled());
  EXPECT_EQ(bench.controls().Text2(2)->text(), "Data Not Entered");
  EXPECT_EQ(Text_Colour(bench.controls().Text2(2)), QColor("#000000"));
  EXPECT_FALSE(bench.Action("mnuRun")->isEnabled());
}

TEST(MainOptions, A_Status_Line_Outside_The_List_Is_Passed_Over) {
  Main_Bench bench;
  Port().board.set_status_line(6, kDataSupplied, Status_Colour::Blue);
  Port().board.set_status_line(-1, kDataSupplied, Status_Colour::Blue);
  EXPECT_EQ(bench.controls().Text2(5)->text(), "Default Coefficients Used");
}

TEST(MainOptions, A_Velocity_Option_Can_Be_Painted_Without_Being_Chosen) {
  Main_Bench bench;
  const auto& options = bench.controls().Option3D1;
  ASSERT_TRUE(options(0)->isChecked());
  Port().board.paint_velocity_option(1, Status_Colour::Blue);
  EXPECT_EQ(Text_Colour(options(1)), QColor("#0000ff"));
  EXPECT_FALSE(options(1)->isChecked());
  EXPECT_TRUE(options(0)->isChecked());
  Port().board.paint_velocity_option(1, Status_Colour::Black);
  EXPECT_EQ(Text_Colour(options(1)), QColor("#000000"));
  Port().board.paint_velocity_option(4, Status_Colour::Blue);
  Port().board.paint_velocity_option(-1, Status_Colour::Blue);
}

TEST(MainOptions, The_Box_Of_The_Depression_Is_Shown_And_Read_By_Others) {
  Main_Bench bench;
  EXPECT_FALSE(Port().board.depression_box());
  Port().board.show_depression_box(true);
  EXPECT_TRUE(bench.controls().SSCheck3->isChecked());
  EXPECT_TRUE(Port().board.depression_box());
  Port().board.show_depression_box(false);
  EXPECT_FALSE(bench.controls().SSCheck3->isChecked());
}

TEST(MainOptions, The_Dilution_Button_Leaves_Only_Files_And_The_Title) {
  Main_Bench bench;
  Click(bench.controls().SSOption1(1));
  Project().ShowMode = 0;  // the calculator blocks all the same
  int opened = 0;
  Register_Screen(Row_Of_Screen("frmDilute2"), [&](bool blocking, const std::string&) {
    opened += blocking && bench.controls().SSRibbon2(3)->isChecked() ? 1 : 100;
    EXPECT_EQ(Project().KEY4, 7);
    EXPECT_FALSE(bench.Action("mnuRun")->isEnabled());
  });
  bench.controls().SSRibbon2(3)->click();
  Register_Screen(Row_Of_Screen("frmDilute2"), {});
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(Project().FileKind, 1);
  EXPECT_EQ(Project().KEY4, 7);
  EXPECT_FALSE(bench.controls().SSRibbon2(3)->isChecked());
  EXPECT_FALSE(bench.Action("mnuRun")->isEnabled());
  EXPECT_FALSE(bench.Action("mnuEditItem(1)")->isEnabled());
  EXPECT_TRUE(bench.Action("mnuEditItem(0)")->isEnabled());
  EXPECT_TRUE(bench.Action("mnuFileItem(4)")->isEnabled());
  // The same choice again leads back.
  Click(bench.controls().SSOption1(1));
  EXPECT_TRUE(bench.Action("mnuRun")->isEnabled());
  EXPECT_EQ(Project().FileKind, 2);
  EXPECT_EQ(Project().KEY4, 3);
}

TEST(MainOptions, In_The_Dilution_Mode_The_Boards_Keep_The_Choice_Of_The_Project) {
  Main_Bench bench;
  EXPECT_EQ(Port().board.chosen_key4(), 0);
  Click(bench.controls().SSOption1(1));
  Click(bench.controls().SSOption2(1));
  bench.controls().SSRibbon2(3)->click();
  EXPECT_EQ(Port().board.chosen_key4(), 4);
  Port().board.display_data();
  EXPECT_TRUE(bench.controls().SSOption1(1)->isChecked());
  EXPECT_EQ(Port().board.chosen_key4(), 4);
  EXPECT_FALSE(bench.Action("mnuRun")->isEnabled());
  Click(bench.controls().SSOption1(1));
  EXPECT_EQ(Project().KEY4, 4);
  EXPECT_TRUE(bench.Action("mnuRun")->isEnabled());
}

TEST(MainOptions, The_Database_Picture_Always_Answers_With_The_Unavailable_Box) {
  Main_Bench bench;
  Modal_Replies replies({Press(QMessageBox::Ok)});
  bench.controls().SSRibbon1(4)->click();
  EXPECT_EQ(replies.seen.at(0).text, "This Feature is Unavailable at This Time.");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Warning);
  EXPECT_EQ(replies.seen.at(0).buttons, QMessageBox::Ok);
  EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::Ok);
  EXPECT_FALSE(bench.controls().SSRibbon1(4)->isChecked());
}

TEST(MainOptions, Boxes_That_Only_Show_State_Take_No_Click) {
  Main_Bench bench;
  Click(bench.controls().SSCheck1);
  EXPECT_FALSE(bench.controls().SSCheck1->isChecked());
}

}  // namespace
}  // namespace barvon
