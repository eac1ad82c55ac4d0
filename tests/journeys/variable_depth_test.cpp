#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <filesystem>
#include <string>

#include "core/desk/screen_register.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "run/create_process.h"
#include "site/frm_description.h"
#include "site/frm_grid_descrip.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;
using namespace barvon::testing;

/// A sample whose grid has 48 points in Z and 32 in X.
class VariableDepthJourney : public ::testing::Test {
 protected:
  VariableDepthJourney() {
    fs::copy_file(BARVON_ECHO_SOLVER, bench.folder / "merak32");
    fs::copy_file(BARVON_SAMPLES "/Barge_Four_Layers.DUI", chosen);
    File_Dialog_Presenter dialogs;
    dialogs.open = [this](const File_Request&) { return chosen; };
    dialogs.save = [this](const File_Request&) { return chosen; };
    former_ = Set_File_Dialog_Presenter(dialogs);
    Register_Screen(Row_Of_Screen("frmDescription"), Fresh_Screens<frmDescription>(&bench.main()));
    Register_frmGridDescrip(&bench.main());
  }
  ~VariableDepthJourney() override {
    for (const char* name : {"frmGridDescrip", "frmDescription"})
      Register_Screen(*Find_Screen(name), {});
    Set_File_Dialog_Presenter(former_);
  }

  static void Press_Button(QWidget* window, const char* name) {
    window->findChild<QPushButton*>(QLatin1String(name))->click();
  }

  Main_Bench bench;
  std::string chosen = bench.folder / "slope.DUI";

 private:
  File_Dialog_Presenter former_;
};

TEST_F(VariableDepthJourney, Depths_Pasted_Into_A_Grid_That_Is_Not_Square_Reach_File_And_Solver) {
  ProjectRecord& record = Project();
  bench.Action("mnuFileItem(1)")->trigger();
  ASSERT_EQ(record.NMAX0, 48);
  ASSERT_EQ(record.MMAX0, 32);
  QString block;
  for (int row = 1; row <= 32; ++row) {
    for (int column = 1; column <= 48; ++column) {
      block += QString::number(100 * column + row) + (column < 48 ? "\t" : "\n");
    }
  }
  QApplication::clipboard()->setText(block);

  record.ShowMode = 1;
  Modal_Replies replies({[](QWidget* site) {
                           site->findChild<QCheckBox*>("Check3D1(1)")->click();
                           Press_Button(site, "Command2(1)");
                           // The greatest depth that is looked at is [32][32]: the profile is to
                           // end there.
                           Press_Button(site, "Command1(0)");
                         },
                         [](QWidget* grid) {
                           grid->findChild<F1Book*>()->Paste();
                           Press_Button(grid, "Command1(0)");
                         },
                         Press(QMessageBox::No)});
  ASSERT_TRUE(Open_Screen(Row_Of_Screen("frmDescription"), true));
  ASSERT_EQ(record.DepthGrid[48][32], 4832);

  chosen = bench.folder / "copy.DUI";
  bench.Action("mnuFileItem(5)")->trigger();
  ASSERT_EQ(record.ProjectFileName, chosen);
  QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
  ASSERT_FALSE(Run_Is_Under_Way());
  // Row a of the model input is DepthGrid[a][1..48], ten values to a line, for a from 1 to 32: the
  // table's columns 1 to 32, whose rows end at 32. Columns 33 to 48 never reach it, and the points
  // from 33 on have no depth.
  const std::string input = Read_Text(bench.folder / "copy.DUE");
  EXPECT_NE(input.find("    201    202    203    204    205    206    207    208    209    210"),
            std::string::npos);
  EXPECT_NE(input.find("   3231   3232      0      0      0      0      0      0      0      0"),
            std::string::npos);
  EXPECT_EQ(input.find("   3301"), std::string::npos);
  const std::string echo = Read_Text(bench.folder / "copy.duo");
  EXPECT_NE(echo.find("3232"), std::string::npos);

  bench.Action("mnuFileItem(0)")->trigger();
  ASSERT_EQ(record.DepthGrid[2][1], 0);
  bench.Action("mnuFileItem(1)")->trigger();
  EXPECT_EQ(record.ConstantDepthFlag, 0);
  for (int column = 1; column <= 48; ++column) {
    for (int row = 1; row <= 32; ++row) {
      ASSERT_EQ(record.DepthGrid[column][row], 100 * column + row) << column << " " << row;
    }
  }
}

}  // namespace
}  // namespace barvon
