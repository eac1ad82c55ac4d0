#include "core/desk/workspace_port.h"

#include <gtest/gtest.h>

namespace barvon {
namespace {

void Call_Every_Entry() {
  const Workspace_Port& port = Port();
  port.set_caption("x");
  EXPECT_EQ(port.caption(), "");
  port.display_data();
  port.set_status_line(0, "x", Status_Colour::Blue);
  port.mark_edit_item(1);
  port.paint_velocity_option(1, Status_Colour::Black);
  port.refresh_for_new_project();
  port.open_menus();
  port.clear_text_checks();
  port.close_dilution();
  port.show_recent_menu();
  port.show_main_board();
  EXPECT_FALSE(port.screen_is_open("x"));
  port.screens_changed();
  port.show_note({"x", ""});
  port.run_state(true, "x");
  EXPECT_FALSE(port.text_has_changed());
  EXPECT_EQ(port.text_caption(), "");
  EXPECT_EQ(port.active_text(), "");
  port.set_text_caption("x");
  port.print_active_text();
}

TEST(WorkspacePort, Every_Entry_Is_Callable_And_Silent_Until_It_Is_Filled) {
  Reset_Port();
  Call_Every_Entry();
  int calls = 0;
  Port().display_data = [&calls] { ++calls; };
  Port().display_data();
  EXPECT_EQ(calls, 1);
  Reset_Port();
  Call_Every_Entry();
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace barvon
