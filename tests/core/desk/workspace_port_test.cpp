#include "core/desk/workspace_port.h"

#include <gtest/gtest.h>

#include "core/desk/screen_table.h"

namespace barvon {
namespace {

void Call_Every_Entry() {
  const Workspace_Port& port = Port();
  port.board.set_caption("x");
  EXPECT_EQ(port.board.caption(), "");
  port.board.display_data();
  port.board.set_status_line(0, "x", Status_Colour::Blue);
  port.board.mark_edit_item(1);
  port.board.paint_velocity_option(1, Status_Colour::Black);
  EXPECT_FALSE(port.board.depression_box());
  port.board.show_depression_box(true);
  port.board.refresh_for_new_project();
  port.board.open_menus();
  port.board.show_recent_menu();
  port.board.show_main_board();
  port.board.show_wizard_help(true);
  EXPECT_FALSE(port.board.screen_is_open("x"));
  port.board.screens_changed();
  port.board.show_note({"x", ""});
  port.text.clear_checks();
  EXPECT_FALSE(port.text.has_changed());
  EXPECT_EQ(port.text.caption(), "");
  EXPECT_EQ(port.text.active(), "");
  port.text.set_caption("x");
  EXPECT_FALSE(port.text.has_document());
  EXPECT_FALSE(port.text.print());
  port.report.print();
  port.run.state(true, "x");
  port.wizard.screen_accepted(Row_Of_Screen("frmVelocity"));
  port.dilution.close();
  port.dilution.clear();
  EXPECT_TRUE(port.dilution.leave());
  EXPECT_EQ(port.board.chosen_key4(), 0);
}

TEST(WorkspacePort, Every_Entry_Is_Callable_And_Silent_Until_It_Is_Filled) {
  Reset_Port();
  Call_Every_Entry();
  int calls = 0;
  Port().board.display_data = [&calls] { ++calls; };
  Port().board.display_data();
  EXPECT_EQ(calls, 1);
  Reset_Port();
  Call_Every_Entry();
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace barvon
