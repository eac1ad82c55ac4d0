#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/ask/help_viewer.h"
#include "platform/files/app_folder.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using testing::Main_Bench;

TEST(MainStart, Shows_The_Main_Menu_Board_Of_A_New_Project) {
  Main_Bench bench;
  EXPECT_EQ(bench.main().objectName(), "Main");
  EXPECT_EQ(bench.main().windowTitle(), "BARVON - UNTITLED.DUI");
  EXPECT_TRUE(bench.controls().Frame3D1->isVisible());
  EXPECT_FALSE(bench.controls().Frame3D2->isVisible());
  EXPECT_EQ(bench.controls().Frame3D1->title(), "BARVON Main Menu");
  for (int i = 0; i < 5; ++i) EXPECT_EQ(bench.controls().Text2(i)->text(), "Data Not Entered");
  EXPECT_EQ(bench.controls().Text2(5)->text(), "Default Coefficients Used");
}

TEST(MainStart, No_Type_Of_Analysis_Is_Taken_And_The_Hopper_Is_The_Method) {
  Main_Bench bench;
  for (QRadioButton* option : bench.controls().SSOption1) EXPECT_FALSE(option->isChecked());
  EXPECT_TRUE(bench.controls().SSOption2(0)->isChecked());
  EXPECT_FALSE(bench.controls().SSOption2(0)->isEnabled());
  EXPECT_EQ(Project().AnalysisType, 1);
  EXPECT_EQ(Project().DisposalMethod, 1);
  EXPECT_EQ(Project().KEY3, 0);
  EXPECT_EQ(Project().KEY4, 0);
}

TEST(MainStart, Sets_The_Program_State) {
  Project().ScreenDataSupplied.fill(kTrue);
  Project().OutputsCopied = kTrue;
  Project().WizardActive = kTrue;
  Main_Bench bench;
  EXPECT_EQ(Project().ShowMode, 1);
  EXPECT_EQ(Project().WizardHelpOn, kTrue);
  EXPECT_EQ(Project().AlwaysSaveBeforeRun, kTrue);
  EXPECT_EQ(Project().OutputsCopied, kFalse);
  EXPECT_EQ(Project().WizardActive, kFalse);
  for (int i = 1; i <= 10; ++i) EXPECT_EQ(Project().ScreenDataSupplied.at(i), kFalse) << i;
  EXPECT_TRUE(bench.Action("mnuOptionItem(0)")->isChecked());
  EXPECT_TRUE(bench.Action("mnuOptionItem(1)")->isChecked());
}

/// What a start with WizardAtStart makes of the wizard's screen.
std::vector<bool> Wizards_At_Start(Flag wizard_at_start) {
  std::vector<bool> blocking_opened;
  Register_Screen(Row_Of_Screen("Data_Wiz"), [&](bool blocking, const std::string&) {
    blocking_opened.push_back(blocking);
    Project().WizardActive = kTrue;  // as it leaves it
    EXPECT_EQ(Project().OutputsCopied, kFalse);
  });
  Project().WizardAtStart = wizard_at_start;
  Project().OutputsCopied = kTrue;
  { Main_Bench bench; }
  EXPECT_EQ(Project().WizardActive, kFalse);
  Project().WizardAtStart = kFalse;
  Register_Screen(Row_Of_Screen("Data_Wiz"), {});
  return blocking_opened;
}

TEST(MainStart, The_Wizard_Opens_Blocking_As_The_Last_Step_If_It_Is_Wanted) {
  EXPECT_EQ(Wizards_At_Start(kTrue), std::vector<bool>{true});
  EXPECT_EQ(Wizards_At_Start(kFalse), std::vector<bool>{});
}

TEST(MainStart, Goes_Straight_To_The_Main_Window) {
  bool opened = false;
  Register_Screen(Row_Of_Screen("frmOpen"), [&](bool, const std::string&) { opened = true; });
  Main_Bench bench;
  EXPECT_FALSE(opened);
  Register_Screen(Row_Of_Screen("frmOpen"), {});
}

TEST(MainStart, The_Help_File_Stands_In_The_Programs_Folder) {
  testing::Scratch_Folder folder;
  for (const std::string& path : {folder.path(), folder.path() + "/"}) {
    const Qt_Services services;
    Main main(path, [] {});
    testing::Modal_Replies replies({testing::Press(QMessageBox::Ok)});
    Show_Help({Help_Command::Index, 0, ""});
    EXPECT_EQ(replies.seen.at(0).text.toStdString(),
              "The help file is missing: " + (folder / "BARVON.HLP"));
  }
}

TEST(MainStart, The_Help_File_Is_The_One_That_Came_With_The_Program) {
  testing::Scratch_Folder program;
  Set_Delivered_Folder(program.path());
  {
    Main_Bench bench;
    testing::Modal_Replies replies({testing::Press(QMessageBox::Ok)});
    Show_Help({Help_Command::Index, 0, ""});
    EXPECT_EQ(replies.seen.at(0).text.toStdString(),
              "The help file is missing: " + (program / "BARVON.HLP"));
  }
  Set_Delivered_Folder("");
}

TEST(MainStart, Makes_Its_Folder_The_Current_One) {
  Main_Bench bench;
  EXPECT_EQ(std::filesystem::current_path().string(), bench.folder.path());
  EXPECT_EQ(Application_Folder(), bench.folder.path());
}

TEST(MainStart, Stands_At_The_Upper_Left_Corner_In_Its_Size) {
  Main_Bench bench;
  EXPECT_EQ(bench.main().pos(), QPoint(0, 0));
  EXPECT_EQ(bench.main().size(), QSize(627, 735));
}

TEST(MainStart, Resizing_Has_No_Lasting_Effect) {
  Main_Bench bench;
  for (const QSize size : {QSize(900, 900), QSize(100, 100), QSize(627, 400)}) {
    bench.main().resize(size);
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.main().size(), QSize(627, 735));
  }
  bench.main().setMinimumSize(0, 0);
  bench.main().setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  bench.main().resize(800, 500);
  QCoreApplication::processEvents();
  EXPECT_EQ(bench.main().size(), QSize(627, 735));
}

TEST(MainStart, Minimising_And_Coming_Back_Keeps_The_Size) {
  Main_Bench bench;
  bench.main().showMinimized();
  QCoreApplication::processEvents();
  bench.main().showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(bench.main().size(), QSize(627, 735));
}

TEST(MainStart, Removes_What_A_Killed_Save_Left_Behind_Without_Touching_Projects) {
  Main_Bench bench;
  testing::Write_Text(bench.folder / "site.DUI", "x");
  const Main again(bench.folder.path(), [] {});
  EXPECT_TRUE(testing::Exists(bench.folder / "site.DUI"));
}

TEST(MainStart, The_Port_Is_Silent_Again_When_The_Window_Is_Gone) {
  { Main_Bench bench; }
  Port().board.set_caption("BARVON - /gone.DUI");
  Port().board.show_note({"nobody", ""});
  EXPECT_NE(Port().board.caption(), "BARVON - /gone.DUI");
}

TEST(MainStart, A_Caption_Shows_Whatever_Stands_In_A_Path) {
  Main_Bench bench;
  Port().board.set_caption("BARVON - /data/a[*]b&c.DUI");
  EXPECT_EQ(Port().board.caption(), "BARVON - /data/a[*]b&c.DUI");
  EXPECT_EQ(bench.main().windowTitle(), "BARVON - /data/a[*][*]b&c.DUI");
}

TEST(MainStart, The_Title_Box_Writes_The_Title_And_Is_Blue_While_It_Has_The_Focus) {
  Main_Bench bench;
  QLineEdit* box = bench.controls().Title_Box;
  const auto colour = [box] { return box->palette().color(QPalette::Active, QPalette::Text); };
  bench.main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.main()));
  bench.controls().SSPanel3(0)->setFocus();
  EXPECT_EQ(colour(), QColor("#000000"));
  box->setFocus();
  EXPECT_EQ(colour(), QColor("#0000ff"));
  QTest::keyClicks(box, "North Site");
  EXPECT_EQ(Project().ProjectTitle, "North Site");
  QTest::keyClick(box, Qt::Key_Backspace);
  EXPECT_EQ(Project().ProjectTitle, "North Sit");
  bench.controls().SSPanel3(0)->setFocus();
  EXPECT_EQ(colour(), QColor("#000000"));
}

TEST(MainStart, The_Title_Takes_Sixty_Characters_That_Files_Hold) {
  Main_Bench bench;
  testing::Type(bench.controls().Title_Box,
                QString::fromUtf8("→Dépôt ") + QString(70, QLatin1Char('x')));
  EXPECT_EQ(Project().ProjectTitle, "Dépôt " + std::string(54, 'x'));
}

TEST(MainStart, A_Refresh_Keeps_A_Title_That_The_Box_Can_Not_Show_Whole) {
  Main_Bench bench;
  Project().ProjectTitle = std::string(80, 't');
  Port().board.display_data();
  EXPECT_EQ(Project().ProjectTitle, std::string(80, 't'));
}

}  // namespace
}  // namespace barvon
