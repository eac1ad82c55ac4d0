#include <gtest/gtest.h>

#include <QTest>
#include <functional>
#include <vector>

#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "support/screen_support.h"
#include "workspace/data_board_fixture.h"
#include "workspace/option_events.h"

namespace barvon {
namespace {

using namespace barvon::testing;

using MainProject = DataBoard;

TEST_F(MainProject, New_And_Close_Take_Back_What_The_Status_Area_Tells) {
  for (const char* command : {"mnuFileItem(0)", "mnuFileItem(2)"}) {
    Show_Board_Of(1);
    Port().board.show_note({"merak32 ended with code 0 after 1 s", "its last words"});
    bench.Action(command)->trigger();
    EXPECT_EQ(bench.Child<QLabel>("StatusNote")->text(), "") << command;
    EXPECT_FALSE(bench.Child<QPushButton>("StatusDetails")->isVisible()) << command;
  }
}

TEST_F(MainProject, A_File_Without_A_Type_Reads_The_Same_Whatever_Was_Open_Before) {
  const std::string file = bench.folder / "site.DUI";
  ASSERT_TRUE(Save_File(file, 2, record));
  ASSERT_EQ(record.KEY4, 0);
  for (int type = 1; type <= 3; ++type) {
    Show_Board_Of(type);
    ASSERT_TRUE(Open_Project(file, record));
    Port().board.display_data();
    EXPECT_EQ(record.AnalysisType, 1) << type;
    EXPECT_EQ(c.SSOption4(0)->text(), "No Diffusion of a Conservative Tracer") << type;
    EXPECT_FALSE(c.SSOption4(2)->isVisibleTo(c.Frame3D2)) << type;
    EXPECT_EQ(c.Label4(0)->text(),
              "Choose Diffusion Option for Transport of Solids Or Tracer in the Water Column")
        << type;
  }
}

TEST_F(MainProject, A_Type_Chosen_After_Close_Is_Kept_As_After_New) {
  for (const char* command : {"mnuFileItem(0)", "mnuFileItem(2)"}) {
    Show_Board_Of(1);
    bench.Action(command)->trigger();
    Click(c.SSOption1(1));
    EXPECT_TRUE(c.SSOption2(0)->isChecked()) << command;  // the hopper of a new project
    bench.Action("mnuEditItem(1)")->trigger();            // a screen that is cancelled
    EXPECT_TRUE(c.SSOption1(1)->isChecked()) << command;
    const std::string file = bench.folder / "site.DUI";
    ASSERT_TRUE(Save_File(file, 2, record));
    record.KEY4 = 0;
    ASSERT_TRUE(Open_Project(file, record));
    EXPECT_EQ(record.KEY4, 3) << command;
  }
}

TEST_F(MainProject, A_Users_Change_On_The_Boards_Is_Not_Saved_Yet) {
  Show_Board_Of(2);
  const std::vector<std::function<void()>> changes = {
      [this] { QTest::keyClicks(c.Title_Box, "x"); },
      [this] { c.SSOption1(0)->click(); },
      [this] { c.SSOption2(1)->click(); },
      [this] { c.SSOption3(0)->click(); },
      [this] { c.SSOption3(1)->click(); },
      [this] { c.SSOption4(1)->click(); },
      [this] { c.Check3D1->click(); },
      [this] { c.Option3D1(2)->click(); },
      [this] { c.SSCheck4->click(); },
      [this] { c.SSCheck4->click(); },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    record.DataSaved = kTrue;
    changes[i]();
    EXPECT_EQ(record.DataSaved, kFalse) << i;
  }
}

TEST_F(MainProject, Loads_And_Refreshes_And_Code_Leave_A_Saved_Project_Saved) {
  Show_Board_Of(2);
  QTest::keyClicks(c.Title_Box, "bay");
  const std::string file = bench.folder / "site.DUI";
  ASSERT_TRUE(Save_File(file, 2, record));
  EXPECT_EQ(record.DataSaved, kTrue);
  Show_Board_Of(3);
  record.ProjectTitle = "another";
  ASSERT_TRUE(Open_Project(file, record));
  Port().board.display_data();
  QTest::mouseClick(c.SSPanel3(0), Qt::LeftButton);
  SSOption1_Click(c, record, 2);
  SSOption3_Click(c, record, 0);
  Check3D1_Click(c, record, true);
  Port().board.display_data();
  EXPECT_EQ(c.Title_Box->text(), "bay");
  EXPECT_EQ(record.DataSaved, kTrue);
}

TEST_F(MainProject, A_Click_On_The_Option_That_Is_Set_Does_Nothing) {
  Show_Board_Of(2);
  c.SSOption2(1)->click();
  c.SSOption4(2)->click();
  c.Option3D1(1)->click();
  record.DataSaved = kTrue;
  // What each click would write.
  record.AnalysisType = record.PreviousDisposalMethod = record.KEY1 = 9;
  record.KEY2 = 9;
  record.VelocityProfileType = 5;
  record.ConstantDepthFlag = 0;  // over which the two-point profile asks
  record.KEY3 = 3;
  Modal_Replies no_question({});
  for (int again = 0; again < 2; ++again) {
    c.SSOption1(1)->click();
    c.SSOption2(1)->click();
    c.SSOption3(1)->click();
    c.Option3D1(1)->click();
  }
  EXPECT_EQ(record.AnalysisType, 9);
  EXPECT_EQ(record.PreviousDisposalMethod, 9);
  EXPECT_EQ(record.KEY1, 9);
  EXPECT_EQ(record.KEY2, 9);
  EXPECT_EQ(record.VelocityProfileType, 5);
  EXPECT_EQ(record.DataSaved, kTrue);
}

TEST_F(MainProject, A_Click_On_The_Evaluation_That_Is_Set_Brings_A_Resting_KEY3_Up_To_Date) {
  Show_Board_Of(3);
  c.SSOption4(1)->click();
  record.DataSaved = kTrue;
  c.SSOption4(1)->click();
  EXPECT_EQ(record.DataSaved, kTrue);  // KEY3 is its already
  c.SSOption3(0)->click();
  c.SSPanel5(0)->click();
  c.SSOption3(1)->click();
  EXPECT_EQ(record.KEY3, 0);
  record.DataSaved = kTrue;
  c.SSOption4(1)->click();
  EXPECT_EQ(record.KEY3, 5);
  EXPECT_EQ(record.DataSaved, kFalse);
}

}  // namespace
}  // namespace barvon
