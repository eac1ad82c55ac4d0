#include <gtest/gtest.h>

#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include "core/project_record.h"
#include "core/recent_files.h"
#include "core/screen_register.h"
#include "core/settings_keys.h"
#include "core/workspace_port.h"
#include "platform/help_viewer.h"
#include "support/screen_support.h"
#include "workspace/main_boards.h"
#include "workspace/main_menus.h"

namespace barvon {
namespace {

using testing::Has_Keyboard;
using testing::Main_Bench;
using testing::Modal_Replies;
using testing::Press;
using testing::Read_Text;
using testing::Wait_Until;
using testing::Write_Text;

TEST(MainMenus, At_Start_Nothing_Of_The_Edit_Menu_And_No_Run_Is_Available) {
  Main_Bench bench;
  for (int i = 0; i <= 8; ++i) {
    QAction* item = bench.Action(qPrintable(QString("mnuEditItem(%1)").arg(i)));
    EXPECT_TRUE(item->isSeparator() || !item->isEnabled()) << i;
  }
  EXPECT_FALSE(bench.Action("mnuRun")->isEnabled());
  for (const char* name :
       {"mnuFileItem(2)", "mnuFileItem(4)", "mnuFileItem(5)", "mnuFileItem(7)"}) {
    EXPECT_FALSE(bench.Action(name)->isEnabled()) << name;
  }
  for (const char* name : {"mnuFileItem(0)", "mnuFileItem(1)", "mnuFileItem(8)", "mnuFileItem(10)",
                           "mnuViewItem(1)"}) {
    EXPECT_TRUE(bench.Action(name)->isEnabled()) << name;
  }
  EXPECT_FALSE(bench.Action("mnuWindow")->isVisible());
}

TEST(MainMenus, Captions_Stand_As_They_Are_Told) {
  Main_Bench bench;
  EXPECT_EQ(bench.Action("mnuRun")->text(), "Ru&n");
  EXPECT_EQ(bench.Action("mnuFileItem(8)")->text(), "P&rint Setup");
  EXPECT_EQ(bench.Action("mnuEditItem(3)")->text(), "&Input, Execution and Output Keys");
  EXPECT_EQ(bench.Action("mnuViewItem(6)")->text(), "Multiple &Input Windows");
  EXPECT_EQ(bench.Action("mnuGraph(2)")->text(), "Concentration Contours");
  EXPECT_EQ(bench.Action("mnuOptionItem(1)")->text(), "Always Save Before Simulation?");
  EXPECT_EQ(bench.Action("mnuHelpItem(1)")->text(), "&Search For Help On");
  EXPECT_EQ(bench.Action("mnuFileItem(1)")->statusTip(), "Open Existing File");
  EXPECT_EQ(bench.controls().SSPanel3(4)->text(), "Return To &Main Menu");
}

TEST(MainMenus, Without_Recent_Files_Neither_Entries_Nor_Separator_Show) {
  Main_Bench bench;
  for (int i = 0; i <= 4; ++i) {
    EXPECT_FALSE(bench.Action(qPrintable(QString("mnuRecentFile(%1)").arg(i)))->isVisible()) << i;
  }
}

TEST(MainMenus, Recent_Files_Show_At_Start_With_Their_Paths_As_They_Are) {
  testing::Scratch_Folder folder;
  Write_Text(folder / "BARVON.INI",
             "[Recent Files]\r\nRecentFile1=/data/R&D/bay.DUI\r\nRecentFile2=Not Used\r\n"
             "RecentFile3=/data/&sea.DUI\r\n");
  const Qt_Services services;
  Main main(folder.path(), [] {});
  const auto& actions = main.controls().actions;
  EXPECT_EQ(actions["mnuRecentFile(1)"]->text(), "&1: /data/R&&D/bay.DUI");
  EXPECT_EQ(actions["mnuRecentFile(3)"]->text(), "&3: /data/&&sea.DUI");
  EXPECT_TRUE(actions["mnuRecentFile(0)"]->isVisible());
  EXPECT_TRUE(actions["mnuRecentFile(1)"]->isVisible());
  EXPECT_FALSE(actions["mnuRecentFile(2)"]->isVisible());
  EXPECT_TRUE(actions["mnuRecentFile(3)"]->isVisible());
}

TEST(MainMenus, The_Commands_Switch_The_Boards) {
  Main_Bench bench;
  QTest::mouseClick(bench.controls().SSPanel3(0), Qt::LeftButton);
  EXPECT_FALSE(bench.controls().Frame3D1->isVisible());
  EXPECT_TRUE(bench.controls().Frame3D2->isVisible());
  EXPECT_EQ(bench.Child<QLabel>("SiteLabel(0)")->text(), "32 x 32 Grid Size");
  QTest::mouseClick(bench.controls().SSPanel3(4), Qt::LeftButton);
  EXPECT_TRUE(bench.controls().Frame3D1->isVisible());
  EXPECT_FALSE(bench.controls().Frame3D2->isVisible());
}

TEST(MainMenus, Update_Database_Is_Inert) {
  Main_Bench bench;
  Modal_Replies replies({});
  QTest::mouseClick(bench.controls().SSPanel3(3), Qt::LeftButton);
  QTest::qWait(30);
  EXPECT_EQ(bench.Child<QLabel>("StatusNote")->text(), "");
}

TEST(MainMenus, Graphics_Without_Their_Program_Are_Told_In_A_Critical_Box) {
  Main_Bench bench;
  Modal_Replies replies({Press(QMessageBox::Ok)});
  QTest::mouseClick(bench.controls().SSPanel3(2), Qt::LeftButton);
  EXPECT_EQ(replies.seen.at(0).text, "File: KV_graph.exe Not Found.");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Critical);
}

TEST(MainMenus, Help_Goes_To_The_Contents_Unless_The_Active_Control_Has_A_Topic) {
  Main_Bench bench;
  std::vector<std::pair<Help_Command, int>> asked;
  const auto former = Set_Help_Presenter(
      [&](const Help_Request& request) { asked.emplace_back(request.command, request.topic); });
  bench.controls().Title_Box->setFocus();
  QTest::mouseClick(bench.controls().SSPanel3(6), Qt::LeftButton);
  bench.controls().Title_Box->setProperty("HelpContextID", 2460);
  QTest::mouseClick(bench.controls().SSPanel3(6), Qt::LeftButton);
  EXPECT_EQ(Project().HelpContextToShow, 2460);
  bench.Action("mnuHelpItem(0)")->trigger();
  bench.Action("mnuHelpItem(1)")->trigger();
  Set_Help_Presenter(former);
  EXPECT_EQ(asked, (std::vector<std::pair<Help_Command, int>>{{Help_Command::Index, 0},
                                                              {Help_Command::Context, 2460},
                                                              {Help_Command::Finder, 0},
                                                              {Help_Command::PartialKey, 0}}));
}

TEST(MainMenus, Options_Toggle_Their_State_And_Help_Is_Kept_In_The_Settings) {
  Main_Bench bench;
  bench.Action("mnuOptionItem(0)")->trigger();
  EXPECT_EQ(Project().WizardHelpOn, kFalse);
  EXPECT_NE(Read_Text(Settings_Path()).find("HelpOn=Off  "), std::string::npos);
  bench.Action("mnuOptionItem(0)")->trigger();
  EXPECT_EQ(Project().WizardHelpOn, kTrue);
  EXPECT_NE(Read_Text(Settings_Path()).find("HelpOn=On  "), std::string::npos);
  bench.Action("mnuOptionItem(1)")->trigger();
  EXPECT_EQ(Project().AlwaysSaveBeforeRun, kFalse);
  EXPECT_FALSE(bench.Action("mnuOptionItem(1)")->isChecked());
}

TEST(MainMenus, View_Toggles_Toolbar_And_Show_Mode_But_Never_The_Status_Bar) {
  Main_Bench bench;
  bench.Action("mnuViewItem(3)")->trigger();
  EXPECT_FALSE(bench.controls().Toolbar1->isVisible());
  bench.Action("mnuViewItem(3)")->trigger();
  EXPECT_TRUE(bench.controls().Toolbar1->isVisible());
  bench.Action("mnuViewItem(4)")->trigger();
  EXPECT_TRUE(bench.Action("mnuViewItem(4)")->isChecked());
  EXPECT_TRUE(bench.controls().status_area->isVisible());
  bench.Action("mnuViewItem(6)")->trigger();
  EXPECT_EQ(Project().ShowMode, 0);
  bench.Action("mnuViewItem(6)")->trigger();
  EXPECT_EQ(Project().ShowMode, 1);
}

TEST(MainMenus, The_Wizard_Opens_Blocking) {
  Main_Bench bench;
  int opened = 0;
  Register_Screen("Data_Wiz",
                  [&](bool blocking, const std::string&) { opened += blocking ? 1 : 100; });
  QTest::mouseClick(bench.controls().SSPanel3(9), Qt::LeftButton);
  Register_Screen("Data_Wiz", {});
  EXPECT_EQ(opened, 1);
}

TEST(MainMenus, Input_Keys_Show_The_Data_Board_And_Enter_The_Evaluation) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  Modal_Replies replies({Press(QMessageBox::Ok)});
  bench.Action("mnuEditItem(3)")->trigger();
  EXPECT_TRUE(bench.controls().Frame3D2->isVisible());
  EXPECT_EQ(replies.seen.at(0).text, "No Long Term Tracer Computations Will Be Carried Out");
}

TEST(MainMenus, Input_Keys_Of_A_Negative_Analysis_Type_Stay_Where_They_Are) {
  Main_Bench bench;
  Project().AnalysisType = -1;
  Modal_Replies replies({Press(QMessageBox::Ok)});
  bench.Action("mnuEditItem(3)")->setEnabled(true);
  bench.Action("mnuEditItem(3)")->trigger();
  EXPECT_EQ(replies.seen.at(0).text, "Evaluation Type Must Be Selected");
  EXPECT_EQ(replies.seen.at(0).title, "BARVON Warning");
  EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Warning);
  EXPECT_FALSE(bench.controls().Frame3D2->isVisible());
}

TEST(MainMenus, Tools_Show_As_Long_As_Their_Screens_Stand) {
  Main_Bench bench;
  EXPECT_FALSE(bench.Action("mnuTools")->isVisible());
  int opened = 0;
  Register_Screen("frmOpen",
                  [&](bool blocking, const std::string&) { opened += blocking ? 1 : 9; });
  EXPECT_TRUE(bench.Action("mnuTools")->isVisible());
  EXPECT_TRUE(bench.Action("mnuToolItem(0)")->isVisible());
  for (int i = 1; i <= 5; ++i) {
    EXPECT_FALSE(bench.Action(qPrintable(QString("mnuToolItem(%1)").arg(i)))->isVisible()) << i;
  }
  bench.Action("mnuToolItem(0)")->trigger();
  EXPECT_EQ(opened, 1);
  Register_Screen("frmOpen", {});
  EXPECT_FALSE(bench.Action("mnuTools")->isVisible());
}

TEST(MainMenus, A_Screen_In_View_Without_Blocking_Keeps_Others_From_Blocking) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  int opened = 0;
  Register_Screen("frmVelocity", [&](bool, const std::string&) { ++opened; });
  QWidget screen;
  screen.setObjectName("frmVelocity");
  screen.show();
  {
    Modal_Replies replies({Press(QMessageBox::Ok)});
    bench.Action("mnuEditItem(2)")->trigger();
    EXPECT_EQ(replies.seen.at(0).text,
              "Cannot Display Multiple Forms.  Select 'Multiple Input Windows' From View Menu");
    EXPECT_EQ(replies.seen.at(0).title, "BARVON");
    EXPECT_EQ(replies.seen.at(0).icon, QMessageBox::Critical);
  }
  EXPECT_EQ(opened, 0);
  bench.Action("mnuViewItem(6)")->trigger();
  bench.Action("mnuEditItem(2)")->trigger();
  EXPECT_EQ(opened, 1);
  bench.Action("mnuViewItem(6)")->trigger();
  screen.hide();
  bench.Action("mnuEditItem(2)")->trigger();
  EXPECT_EQ(opened, 2);
  Register_Screen("frmVelocity", {});
}

TEST(MainMenus, An_Entry_With_Data_Keeps_Its_Mark_When_It_Is_Chosen_Until_A_New_Project) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  QAction* site = bench.Action("mnuEditItem(1)");
  EXPECT_FALSE(site->isCheckable());
  Port().mark_edit_item(1);
  EXPECT_TRUE(site->isChecked());
  site->trigger();
  EXPECT_TRUE(site->isChecked());
  bench.Action("mnuEditItem(2)")->trigger();
  EXPECT_FALSE(bench.Action("mnuEditItem(2)")->isChecked());
  Port().refresh_for_new_project();
  EXPECT_FALSE(site->isChecked());
  EXPECT_FALSE(site->isCheckable());
}

TEST(MainMenus, A_Mark_For_No_Entry_Is_Passed_Over) {
  Main_Bench bench;
  for (const int index : {-1, 7, 12}) Port().mark_edit_item(index);
  EXPECT_FALSE(bench.Action("mnuEditItem(7)")->isCheckable());
}

TEST(MainMenus, The_Toolbars_Mark_Is_Set_From_Its_Visibility_Before_The_Menu_Drops) {
  Main_Bench bench;
  bench.controls().Toolbar1->hide();
  QMetaObject::invokeMethod(bench.Action("mnuView")->menu(), "aboutToShow");
  EXPECT_FALSE(bench.Action("mnuViewItem(3)")->isChecked());
  bench.Action("mnuViewItem(3)")->trigger();
  EXPECT_TRUE(bench.controls().Toolbar1->isVisible());
  EXPECT_TRUE(bench.Action("mnuViewItem(3)")->isChecked());
}

TEST(MainMenus, A_Highlighted_Item_Is_Described_In_The_Status_Bar) {
  Main_Bench bench;
  Port().show_note({"the note", ""});
  bench.main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.main()));
  const auto message = [&bench] { return bench.controls().status_area->currentMessage(); };
  bench.main().menuBar()->setActiveAction(bench.Action("mnuFile"));
  EXPECT_EQ(message(), "File Manipulation Tools");
  QMenu* menu = bench.Action("mnuFile")->menu();
  for (const char* text : {"Create New File", "Open Existing File"}) {
    QTest::keyClick(menu, Qt::Key_Down);
    EXPECT_EQ(message(), text);
  }
  QTest::keyClick(menu, Qt::Key_Escape);
  QTest::keyClick(bench.main().menuBar(), Qt::Key_Escape);
  EXPECT_EQ(message(), "");
  EXPECT_TRUE(bench.Child<QLabel>("StatusNote")->isVisible());
  EXPECT_EQ(bench.Child<QLabel>("StatusNote")->text(), "the note");
}

TEST(MainMenus, A_Screen_That_Does_Not_Stand_Yet_Is_Told_In_The_Status_Area) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  bench.Action("mnuEditItem(1)")->trigger();
  EXPECT_EQ(bench.Child<QLabel>("StatusNote")->text(),
            "The screen frmDescription is not part of this version.");
}

/// How often the letter's key presses the button; what the button does is left out.
int Presses(Main_Bench& bench, QPushButton* button, Qt::Key letter) {
  QObject::disconnect(button, &QPushButton::clicked, nullptr, nullptr);
  QSignalSpy clicks(button, &QPushButton::clicked);
  QTest::keyClick(&bench.main(), letter, Qt::AltModifier);
  Wait_Until([&] { return !button->isDown(); });
  return static_cast<int>(clicks.count());
}

TEST(MainMenus, Every_Letter_Of_A_Command_Presses_It) {
  Main_Bench bench;
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  const std::pair<int, Qt::Key> letters[] = {{0, Qt::Key_D}, {1, Qt::Key_R}, {3, Qt::Key_U},
                                             {4, Qt::Key_M}, {5, Qt::Key_X}, {7, Qt::Key_O},
                                             {8, Qt::Key_S}, {9, Qt::Key_W}};
  for (const auto& [index, letter] : letters) {
    EXPECT_EQ(Presses(bench, bench.controls().SSPanel3(index), letter), 1) << index;
  }
  Show_Data_Board(bench.controls());
  EXPECT_EQ(Presses(bench, bench.controls().SSPanel5(0), Qt::Key_C), 1);
  EXPECT_EQ(Presses(bench, bench.controls().SSPanel5(2), Qt::Key_P), 1);
}

TEST(MainMenus, A_Letter_That_A_Menu_Has_Opens_The_Menu) {
  Main_Bench bench;
  Show_Data_Board(bench.controls());
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  const std::tuple<const char*, Qt::Key, QPushButton*> shared[] = {
      {"mnuGraphics", Qt::Key_G, bench.controls().SSPanel3(2)},
      {"mnuHelp", Qt::Key_H, bench.controls().SSPanel3(6)},
      {"mnuEdit", Qt::Key_E, bench.controls().SSPanel5(1)}};
  for (const auto& [menu, letter, button] : shared) {
    EXPECT_EQ(Presses(bench, button, letter), 0) << menu;
    EXPECT_TRUE(bench.Action(menu)->menu()->isVisible()) << menu;
    bench.Action(menu)->menu()->close();
  }
}

TEST(MainMenus, A_Menu_That_Comes_Into_View_Takes_Its_Letter_And_Gives_It_Back) {
  Main_Bench bench;
  const auto captions = [&bench] {
    QStringList shown;
    for (const QAction* menu : bench.main().menuBar()->actions()) {
      if (menu->isVisible()) shown << menu->text();
    }
    return shown.join(' ');
  };
  const QPushButton* wizard = bench.controls().SSPanel3(9);
  EXPECT_EQ(captions(), "&File &Edit Ru&n &View &Graphics Options &Help");
  Show_Menu(bench.controls(), "mnuWindow", true);
  EXPECT_EQ(captions(), "&File &Edit Ru&n &View &Graphics Options &Window &Help");
  EXPECT_EQ(wizard->shortcut(), QKeySequence());
  Show_Menu(bench.controls(), "mnuTools", true);
  EXPECT_EQ(captions(), "&File &Edit Ru&n &View &Graphics Options &Tools &Window &Help");
  Show_Menu(bench.controls(), "mnuWindow", false);
  EXPECT_EQ(captions(), "&File &Edit Ru&n &View &Graphics Options &Tools &Help");
  EXPECT_EQ(wizard->shortcut(), QKeySequence("Alt+W"));
  EXPECT_EQ(wizard->text(), "Data &Wizard");
}

}  // namespace
}  // namespace barvon
