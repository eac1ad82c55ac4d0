#pragma once

#include <functional>
#include <string>
#include <vector>

namespace barvon {

enum class Status_Colour { Black, Blue };

/// A remark for the status area at the window's bottom. Details are lines to be had on demand.
struct Status_Note {
  std::string text;
  std::string details;
};

/// What the floors below the main window may ask of it. Main fills the table; everything is
/// silent until then, so that the console program and tests need no window.
struct Workspace_Port {
  std::function<void(const std::string&)> set_caption;
  std::function<std::string()> caption;
  std::function<void()> display_data;
  /// Text2(index) of the data categories, 0 to 5.
  std::function<void(int index, const std::string& text, Status_Colour colour)> set_status_line;
  /// The Edit menu's entry of that index gets its check mark: its data has been supplied.
  std::function<void(int index)> mark_edit_item;
  /// Paints the text of the velocity option of that index, 0 to 3, without choosing it.
  std::function<void(int index, Status_Colour colour)> paint_velocity_option;
  /// New project: menus, marks and panels as for a fresh record.
  std::function<void()> refresh_for_new_project;
  /// A project has been opened: its menus become available, whatever its keys say.
  std::function<void()> open_menus;
  std::function<void()> clear_text_checks;
  std::function<void()> close_dilution;
  std::function<void()> show_recent_menu;
  std::function<void()> show_main_board;
  /// Whether the screen of that name is in view without blocking.
  std::function<bool(const std::string& name)> screen_is_open;
  /// A screen has been registered or taken out.
  std::function<void()> screens_changed;
  std::function<void(const Status_Note&)> show_note;
  /// The run under way changed: true when a program has been started, false when it has ended.
  std::function<void(bool running, const std::string& program)> run_state;
  /// The text viewer's document: whether it has unsaved text, and its caption.
  std::function<bool()> text_has_changed;
  std::function<std::string()> text_caption;
  /// The text of the active viewer window, and what its caption becomes after a save.
  std::function<std::string()> active_text;
  std::function<void(const std::string&)> set_text_caption;
  /// Prints the text of the window in front.
  std::function<void()> print_active_text;
};

/// The table, each entry callable even when nobody filled it.
Workspace_Port& Port();

/// Makes every entry silent again.
void Reset_Port();

inline constexpr char kUntitledCaption[] = "BARVON - UNTITLED.DUI";
inline constexpr char kDataSupplied[] = "Data Supplied";
inline constexpr char kDataNotEntered[] = "Data Not Entered";

}  // namespace barvon
