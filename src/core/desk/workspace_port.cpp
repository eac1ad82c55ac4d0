#include "core/desk/workspace_port.h"

namespace barvon {
namespace {

Workspace_Port Silent_Port() {
  Workspace_Port port;
  port.set_caption = [](const std::string&) {};
  port.caption = [] { return std::string(); };
  port.display_data = [] {};
  port.set_status_line = [](int, const std::string&, Status_Colour) {};
  port.mark_edit_item = [](int) {};
  port.paint_velocity_option = [](int, Status_Colour) {};
  port.refresh_for_new_project = [] {};
  port.open_menus = [] {};
  port.clear_text_checks = [] {};
  port.close_dilution = [] {};
  port.show_recent_menu = [] {};
  port.show_main_board = [] {};
  port.screen_is_open = [](const std::string&) { return false; };
  port.screens_changed = [] {};
  port.show_note = [](const Status_Note&) {};
  port.run_state = [](bool, const std::string&) {};
  port.text_has_changed = [] { return false; };
  port.text_caption = [] { return std::string(); };
  port.active_text = [] { return std::string(); };
  port.set_text_caption = [](const std::string&) {};
  port.print_active_text = [] {};
  return port;
}

}  // namespace

Workspace_Port& Port() {
  static Workspace_Port port = Silent_Port();
  return port;
}

void Reset_Port() { Port() = Silent_Port(); }

}  // namespace barvon
