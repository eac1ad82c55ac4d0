#include <gtest/gtest.h>

#include <QGroupBox>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <functional>

#include "core/desk/recent_files.h"
#include "core/desk/save_file.h"
#include "core/desk/screen_register.h"
#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
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

TEST(MainMenus, Every_Item_Stands_In_The_Bar_As_The_Menu_Tree_Has_It) {
  Main_Bench bench;
  for (const Menu& menu : Menu_Tree()) {
    EXPECT_EQ(bench.Action(menu.name)->text(), menu.caption);
    for (const Menu_Item& item : menu.items) {
      const QString name = QString("%1(%2)").arg(menu.array).arg(item.index);
      QAction* action = bench.Action(qPrintable(name));
      ASSERT_NE(action, nullptr) << name.toStdString();
      EXPECT_EQ(action->objectName(), name);
      EXPECT_EQ(action->text(), item.caption);
      EXPECT_EQ(action->isSeparator(), *item.caption == '\0') << name.toStdString();
      EXPECT_EQ(action->isEnabled(), item.enabled && item.visible) << name.toStdString();
      EXPECT_EQ(action->isVisible(), item.visible) << name.toStdString();
      EXPECT_EQ(action->isCheckable(), item.has_mark) << name.toStdString();
      EXPECT_EQ(action->isChecked(), item.marked) << name.toStdString();
      EXPECT_EQ(action->statusTip(), item.hint) << name.toStdString();
      EXPECT_TRUE(bench.Action(menu.name)->menu()->actions().contains(action));
    }
  }
}

TEST(MainMenus, The_Usual_Keys_Give_The_File_Commands_And_The_Run) {
  Main_Bench bench;
  const std::pair<const char*, const char*> keys[] = {{"mnuFileItem(0)", "Ctrl+N"},
                                                      {"mnuFileItem(1)", "Ctrl+O"},
                                                      {"mnuFileItem(4)", "Ctrl+S"},
                                                      {"mnuFileItem(5)", "Ctrl+Shift+S"},
                                                      {"mnuFileItem(7)", "Ctrl+P"},
                                                      {"mnuFileItem(10)", "Ctrl+Q"},
                                                      {"mnuRun", "F5"}};
  bench.controls().SSOption1(0)->click();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  for (const auto& [name, key] : keys) {
    QAction* action = bench.Action(name);
    EXPECT_EQ(action->shortcut(), QKeySequence(key)) << name;
    int chosen = 0;
    QObject::connect(action, &QAction::triggered, &bench.main(), [&chosen] { ++chosen; });
    // What the command itself asks is another test's matter.
    const auto messages =
        Set_Message_Presenter([](const Message& m) { return Answer_On_Close(m); });
    const auto none = [](const File_Request&) { return std::nullopt; };
    const auto files = Set_File_Dialog_Presenter({none, none, [] {}});
    QTest::keySequence(&bench.main(), QKeySequence(key));
    EXPECT_EQ(chosen, 1) << name;
    Set_Message_Presenter(messages);
    Set_File_Dialog_Presenter(files);
    bench.controls().SSOption1(0)->click();
  }
}

TEST(MainMenus, A_Recent_File_Opens_By_Its_Digit_In_The_File_Menu) {
  Main_Bench bench;
  const std::string file = bench.folder / "bay.DUI";
  ASSERT_TRUE(Save_File(file, kProjectKind, Project()));
  GetRecentFiles();
  Project().ProjectFileName.clear();
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  QTest::keyClick(&bench.main(), Qt::Key_F, Qt::AltModifier);
  QMenu* menu = bench.Action("mnuFile")->menu();
  ASSERT_TRUE(Wait_Until([menu] { return menu->isVisible(); }));
  QTest::keyClick(menu, Qt::Key_1);
  EXPECT_EQ(Project().ProjectFileName, file);
}

TEST(MainMenus, The_Commands_Have_Their_Captions) {
  Main_Bench bench;
  const char* captions[] = {
      "Enter/Edit &Data",     "&Run Simulation", "View &Graphics", "&Update Database",
      "Return To &Main Menu", "E&xit",           "&Help",          "View &Output",
      "&Save Data File",      "Data &Wizard"};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(bench.controls().SSPanel3(i)->text(), captions[i]);
}

TEST(MainMenus, The_Main_Menu_Board_Has_Its_Captions) {
  Main_Bench bench;
  const std::pair<const char*, const char*> frames[] = {{"Frame3D1", "BARVON Main Menu"},
                                                        {"Frame3D3", "Data Categories"},
                                                        {"Frame3D4", "DataBase Information"},
                                                        {"Frame3D5", "Type of Analysis"},
                                                        {"Frame3D6", "Method of Disposal"}};
  for (const auto& [name, title] : frames) EXPECT_EQ(bench.Child<QGroupBox>(name)->title(), title);
  const std::pair<const char*, const char*> labels[] = {
      {"Label1", "Project Title"},
      {"Label7", "Determine Contaminant Based on Dilution Needs"},
      {"Label2(0)", "Program Options"},
      {"Label2(1)", "Site Description"},
      {"Label2(2)", "Velocity Data"},
      {"Label2(3)", "Material Description"},
      {"Label2(4)", "Disposal Operation"},
      {"Label2(5)", "Coefficients"},
      {"Label3(0)", "Site: NONE"},
      {"Label3(1)", "Month: NONE"},
      {"Label3(2)", "Material Location: NONE"},
      {"Label3(3)", "Disposal Vessel: NONE"}};
  for (const auto& [name, text] : labels) EXPECT_EQ(bench.Child<QLabel>(name)->text(), text);
  const std::pair<const char*, const char*> options[] = {
      {"SSOption1(0)", "General Open Water Disposal Analysis"},
      {"SSOption1(1)", "Section 103 Regulatory Analysis for Ocean Sites"},
      {"SSOption1(2)", "Section 404(b)(1) Regulatory Analysis for US Navigable Waters"},
      {"SSOption2(0)", "Disposal from a Multiple Bin Hopper Dredge"},
      {"SSOption2(1)", "Disposal from a Split-Hull Barge or Scow"},
      {"SSCheck1", "DataBase Used"}};
  for (const auto& [name, text] : options) {
    EXPECT_EQ(bench.Child<QAbstractButton>(name)->text(), text);
  }
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

TEST(MainMenus, The_Keyboard_Follows_To_The_Board_That_Comes) {
  Main_Bench bench;
  auto& c = bench.controls();
  c.SSOption1(0)->click();
  bench.main().activateWindow();
  ASSERT_TRUE(Has_Keyboard(&bench.main()));
  const auto press = [&](Qt::Key letter, const QWidget* board) {
    QTest::keyClick(&bench.main(), letter, Qt::AltModifier);
    EXPECT_TRUE(Wait_Until([&] { return board->isVisible(); }));
  };
  c.Title_Box->setFocus();
  press(Qt::Key_D, c.Frame3D2);
  EXPECT_EQ(bench.main().focusWidget(), c.SSOption3(1));  // the chosen one
  press(Qt::Key_M, c.Frame3D1);
  EXPECT_EQ(bench.main().focusWidget(), c.Title_Box);
  EXPECT_FALSE(c.Title_Box->hasSelectedText());
  // A button that was clicked keeps it.
  c.SSPanel3(0)->setFocus();
  press(Qt::Key_D, c.Frame3D2);
  EXPECT_EQ(bench.main().focusWidget(), c.SSPanel3(0));
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

TEST(MainMenus, The_Wizard_Opens_Blocking_And_What_It_Did_Is_Shown) {
  Main_Bench bench;
  int opened = 0;
  Register_Screen(Row_Of_Screen("Data_Wiz"), [&](bool blocking, const std::string&) {
    opened += blocking ? 1 : 100;
    Project().ProjectTitle = "by the wizard";
  });
  QTest::mouseClick(bench.controls().SSPanel3(9), Qt::LeftButton);
  Register_Screen(Row_Of_Screen("Data_Wiz"), {});
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(bench.controls().Title_Box->text(), "by the wizard");
}

/// What an action asks the user: the boxes' texts and the names that a save dialog is asked for.
std::vector<std::string> Asked_By(const std::function<void()>& action) {
  std::vector<std::string> asked;
  const Message_Presenter boxes = Set_Message_Presenter([&](const Message& message) {
    asked.push_back(message.text);
    return Answer_On_Close(message);
  });
  const File_Dialog_Presenter files = Set_File_Dialog_Presenter({{},
                                                                 [&](const File_Request&) {
                                                                   asked.push_back("a name");
                                                                   return std::nullopt;
                                                                 },
                                                                 {}});
  action();
  Set_File_Dialog_Presenter(files);
  Set_Message_Presenter(boxes);
  return asked;
}

TEST(MainMenus, Commands_Do_As_Their_Entries_In_The_Menus) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  const std::pair<int, const char*> commands[] = {
      {1, "mnuRun"}, {7, "mnuViewItem(1)"}, {8, "mnuFileItem(4)"}, {5, "mnuFileItem(10)"}};
  for (const auto& [command, entry] : commands) {
    const auto by_command = Asked_By([&] { bench.controls().SSPanel3(command)->click(); });
    EXPECT_FALSE(by_command.empty()) << command;
    EXPECT_EQ(by_command, Asked_By([&] { bench.Action(entry)->trigger(); })) << command;
  }
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
  Register_Screen(Row_Of_Screen("frmOpen"),
                  [&](bool blocking, const std::string&) { opened += blocking ? 1 : 9; });
  EXPECT_TRUE(bench.Action("mnuTools")->isVisible());
  EXPECT_TRUE(bench.Action("mnuToolItem(0)")->isVisible());
  for (int i = 1; i <= 8; ++i) {
    EXPECT_FALSE(bench.Action(qPrintable(QString("mnuToolItem(%1)").arg(i)))->isVisible()) << i;
  }
  bench.Action("mnuToolItem(0)")->trigger();
  EXPECT_EQ(opened, 1);
  Register_Screen(Row_Of_Screen("frmOpen"), {});
  EXPECT_FALSE(bench.Action("mnuTools")->isVisible());
}

TEST(MainMenus, A_Screen_In_View_Without_Blocking_Keeps_Others_From_Blocking) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  int opened = 0;
  Register_Screen(Row_Of_Screen("frmVelocity"), [&](bool, const std::string&) { ++opened; });
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
  Register_Screen(Row_Of_Screen("frmVelocity"), {});
}

TEST(MainMenus, An_Entry_With_Data_Keeps_Its_Mark_When_It_Is_Chosen_Until_A_New_Project) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  QAction* site = bench.Action("mnuEditItem(1)");
  EXPECT_FALSE(site->isCheckable());
  Port().board.mark_edit_item(1);
  EXPECT_TRUE(site->isChecked());
  site->trigger();
  EXPECT_TRUE(site->isChecked());
  bench.Action("mnuEditItem(2)")->trigger();
  EXPECT_FALSE(bench.Action("mnuEditItem(2)")->isChecked());
  Port().board.refresh_for_new_project();
  EXPECT_FALSE(site->isChecked());
  EXPECT_FALSE(site->isCheckable());
}

TEST(MainMenus, A_Mark_For_No_Entry_Is_Passed_Over) {
  Main_Bench bench;
  for (const int index : {-1, 7, 12}) Port().board.mark_edit_item(index);
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
  Port().board.show_note({"the note", ""});
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
