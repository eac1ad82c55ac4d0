#include <gtest/gtest.h>

#include <QTest>

#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "support/screen_support.h"
#include "workspace/data_board_fixture.h"

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

}  // namespace
}  // namespace barvon
