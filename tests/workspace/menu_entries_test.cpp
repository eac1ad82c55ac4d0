#include <gtest/gtest.h>

#include <QToolBar>
#include <string>
#include <tuple>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "support/screen_support.h"
#include "workspace/main_menus.h"
#include "workspace/menu_tree.h"

namespace barvon {
namespace {

using testing::Main_Bench;

/// The main window of a project with every screen there is, and an ear at everything that a command
/// may do.
class MenuEntries : public ::testing::Test {
 protected:
  MenuEntries() {
    messages_ = Set_Message_Presenter([this](const Message& message) {
      ++heard;
      return Answer_On_Close(message);
    });
    const auto cancelled = [this](const File_Request&) {
      ++heard;
      return std::nullopt;
    };
    files_ = Set_File_Dialog_Presenter({cancelled, cancelled, [this] { ++heard; }});
    help_ = Set_Help_Presenter([this](const Help_Request&) { ++heard; });
    for (const Screen_Row& row : kScreens) {
      Register_Screen(row, [this](bool, const std::string&) { ++heard; });
    }
    Port().board.show_note = [this](const Status_Note&) { ++heard; };
    Port().text.print = [this] {
      ++heard;
      return true;
    };
  }
  ~MenuEntries() override {
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
    Set_Message_Presenter(messages_);
    Set_File_Dialog_Presenter(files_);
    Set_Help_Presenter(help_);
  }

  /// Whether something comes of the action: something is asked, opened, told or refreshed, or a
  /// choice of the View and Options menus is another one.
  bool Something_Happens(QAction* action) {
    const auto choices = [this] {
      return std::tuple(record.ShowMode, record.WizardHelpOn, record.AlwaysSaveBeforeRun,
                        c.Toolbar1->isHidden());
    };
    const auto chosen_before = choices();
    const bool marked_before = action->isChecked();
    heard = 0;
    c.SiteLabel(0)->setText("not refreshed");
    action->trigger();
    // The mark of the status bar comes back: that is all it does.
    const bool mark_came_back = action->isCheckable() && action->isChecked() == marked_before;
    return heard > 0 || c.SiteLabel(0)->text() != "not refreshed" || choices() != chosen_before ||
           mark_came_back;
  }

  Main_Bench bench;
  Main_Controls& c = bench.controls();
  ProjectRecord& record = Project();
  int heard = 0;

 private:
  Message_Presenter messages_;
  File_Dialog_Presenter files_;
  Help_Presenter help_;
};

TEST_F(MenuEntries, Something_Comes_Of_Every_Entry_That_Can_Be_Chosen) {
  int chosen = 0;
  for (const Menu& menu : Menu_Tree()) {
    c.SSOption1(0)->click();  // a command before may have closed the project
    QAction* title = Action_Of(c, menu.name);
    if (!title->isVisible()) continue;
    if (menu.items.empty()) {
      EXPECT_TRUE(Something_Happens(title)) << menu.name;
      ++chosen;
    }
    for (const Menu_Item& item : menu.items) {
      c.SSOption1(0)->click();
      QAction* entry = Action_Of(c, menu.array, item.index);
      if (entry->isSeparator() || !entry->isVisible() || !entry->isEnabled()) continue;
      EXPECT_TRUE(Something_Happens(entry)) << menu.array << " " << item.index;
      ++chosen;
    }
  }
  EXPECT_GE(chosen, 36);
}

TEST_F(MenuEntries, Something_Comes_Of_Every_Button_Of_The_Toolbar) {
  int chosen = 0;
  for (QAction* button : c.Toolbar1->actions()) {
    c.SSOption1(0)->click();
    if (button->isSeparator()) continue;
    EXPECT_TRUE(Something_Happens(button)) << button->objectName().toStdString();
    ++chosen;
  }
  EXPECT_EQ(chosen, 8);
}

TEST_F(MenuEntries, Every_Screen_With_An_Entry_Opens_By_It) {
  c.SSOption1(0)->click();
  std::string opened;
  for (const Screen_Row& row : kScreens) {
    Register_Screen(row, [&opened, &row](bool, const std::string&) { opened = row.name; });
  }
  for (const Screen_Row& row : kScreens) {
    if (!row.edit_entry) continue;
    record.DisposalMethod = row.vessel == Vessel::Barge ? 3 : 1;
    opened.clear();
    Action_Of(c, "mnuEditItem", *row.edit_entry)->trigger();
    // The water's entry is a separator: it opens from its picture button.
    const bool is_separator = Action_Of(c, "mnuEditItem", *row.edit_entry)->isSeparator();
    EXPECT_EQ(opened, is_separator ? "frmDensity" : row.name);
  }
}

TEST_F(MenuEntries, Every_Entry_Of_The_Edit_Menu_Ends_With_The_Refresh) {
  for (const Menu& menu : Menu_Tree()) {
    if (std::string(menu.name) != "mnuEdit") continue;
    for (const Menu_Item& item : menu.items) {
      c.SSOption1(0)->click();
      QAction* entry = Action_Of(c, menu.array, item.index);
      if (!entry->isEnabled()) continue;  // "Time/Date" and "&Font" never are
      c.SiteLabel(0)->setText("not refreshed");
      entry->trigger();
      EXPECT_NE(c.SiteLabel(0)->text(), "not refreshed") << item.index;
    }
  }
}

TEST_F(MenuEntries, Every_Mark_That_Ok_Sets_Has_Its_Entry) {
  for (const Screen_Row& row : kScreens) {
    if (!row.edit_mark) continue;
    Port().board.mark_edit_item(*row.edit_mark);
    EXPECT_TRUE(Action_Of(c, "mnuEditItem", *row.edit_mark)->isChecked()) << row.name;
  }
}

}  // namespace
}  // namespace barvon
