#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace barvon {

struct ProjectRecord;
struct Screen_Row;

enum class Status_Colour { Black, Blue };

/// A remark for the status area at the window's bottom. Details are lines to be had on demand.
struct Status_Note {
  std::string text;
  std::string details;
};

/// The main window's boards, menus and status area.
struct Board_Port {
  std::function<void(const std::string&)> set_caption = [](const std::string&) {};
  std::function<std::string()> caption = [] { return std::string(); };
  std::function<void()> display_data = [] {};
  /// Text2(index) of the data categories, 0 to 5.
  std::function<void(int index, const std::string& text, Status_Colour colour)> set_status_line =
      [](int, const std::string&, Status_Colour) {};
  /// The Edit menu's entry of that index gets its check mark: its data has been supplied.
  std::function<void(int index)> mark_edit_item = [](int) {};
  /// Paints the text of the velocity option of that index, 0 to 3, without choosing it.
  std::function<void(int index, Status_Colour colour)> paint_velocity_option = [](int,
                                                                                  Status_Colour) {};
  /// The data board's box for dumping over a depression: whether it is set, and setting it. It only
  /// shows.
  std::function<bool()> depression_box = [] { return false; };
  std::function<void(bool set)> show_depression_box = [](bool) {};
  /// New project: menus, marks and panels as for a fresh record.
  std::function<void()> refresh_for_new_project = [] {};
  /// A project has been opened: its menus become available, whatever its keys say.
  std::function<void()> open_menus = [] {};
  std::function<void()> show_recent_menu = [] {};
  std::function<void()> show_main_board = [] {};
  /// The Options menu's mark for the wizard's help.
  std::function<void(bool on)> show_wizard_help = [](bool) {};
  /// Whether the screen of that name is in view without blocking.
  std::function<bool(const std::string& name)> screen_is_open = [](const std::string&) {
    return false;
  };
  /// Before another project takes the place of the open one: closes every input screen as its
  /// Cancel does. False, and none is closed, when a person does not want what was typed in them
  /// discarded.
  std::function<bool()> close_input_screens = [] { return true; };
  /// KEY4 of the type and the method that the boards show; 0 while one of them is not chosen.
  std::function<std::int16_t()> chosen_key4 = [] { return std::int16_t{0}; };
  /// A screen has been registered or taken out.
  std::function<void()> screens_changed = [] {};
  std::function<void(const Status_Note&)> show_note = [](const Status_Note&) {};
  /// Clears the status area's line while it is still this one.
  std::function<void(const std::string& text)> take_back_note = [](const std::string&) {};
  /// The database has been used for the project; the line of a list, 0 to 3, names what was chosen.
  std::function<void()> set_database_used = [] {};
  std::function<void(int index, const std::string& text)> set_database_line =
      [](int, const std::string&) {};
  /// How many findings a check of the project has now; the list of the last check stays.
  std::function<int()> count_findings = [] { return 0; };
};

/// The text viewer and its documents.
struct Text_Port {
  std::function<void()> clear_checks = [] {};
  /// Whether a document has unsaved text, and its caption.
  std::function<bool()> has_changed = [] { return false; };
  std::function<std::string()> caption = [] { return std::string(); };
  /// Brings that document to the front.
  std::function<void()> show_changed = [] {};
  /// Saves that text as a text, under a name of its own. False when it is as unsaved as before.
  std::function<bool()> save = [] { return false; };
  /// The bytes of a file for the text of the active viewer window, nothing when a person called
  /// the save off; and what its caption becomes after a save.
  std::function<std::optional<std::string>()> active = [] { return std::string(); };
  std::function<void(const std::string&)> set_caption = [](const std::string&) {};
  /// Whether a document is the window in front.
  std::function<bool()> has_document = [] { return false; };
  /// Prints the text of the window in front. False when none is there.
  std::function<bool()> print = [] { return false; };
};

/// Who shows the run under way.
struct Run_Port {
  /// True when a program has been started, false when it has ended.
  std::function<void(bool running, const std::string& program)> state = [](bool,
                                                                           const std::string&) {};
};

/// The report of the project.
struct Report_Port {
  std::function<void()> print = [] {};
};

/// The data wizard, which leads through other screens.
struct Wizard_Port {
  /// OK of a screen has stored what was entered.
  std::function<void(const Screen_Row& screen)> screen_accepted = [](const Screen_Row&) {};
  /// Takes out of a copy of the record what the open wizard has put there and nobody has accepted.
  std::function<void(ProjectRecord& copy)> take_back = [](ProjectRecord&) {};
};

/// The dilution calculator.
struct Dilution_Port {
  /// Its data and the project around it are those of a new project.
  std::function<void()> close = [] {};
  /// Its data alone are at their defaults.
  std::function<void()> clear = [] {};
  /// Before the program ends: closes the calculator and gives the project its name back. False when
  /// a person wants to stay with what was typed.
  std::function<bool()> leave = [] { return true; };
  /// Gives a copy of the record the project's name and title, which the list's stand in for while
  /// the calculator is open.
  std::function<void(ProjectRecord& copy)> name_project = [](ProjectRecord&) {};
};

/// What is kept of unsaved work for the day the program ends unasked.
struct Recovery_Port {
  /// The project has just been loaded, saved or reset; the list of dilutions has.
  std::function<void()> settled = [] {};
  std::function<void()> dilutions_settled = [] {};
  /// The program ends: a person has been asked, or was not.
  std::function<void()> leave = [] {};
  std::function<void()> leave_unasked = [] {};
};

/// What the floors below may ask of the windows above them. The owner of a group fills it; every
/// entry is silent until then, so that the console program and tests need no window.
struct Workspace_Port {
  Board_Port board;
  Text_Port text;
  Run_Port run;
  Report_Port report;
  Wizard_Port wizard;
  Dilution_Port dilution;
  Recovery_Port recovery;
};

/// The table, each entry callable even when nobody filled it.
Workspace_Port& Port();

/// Makes every entry silent again.
void Reset_Port();

inline constexpr char kUntitledCaption[] = "BARVON - UNTITLED.DUI";
inline constexpr char kDataSupplied[] = "Data Supplied";
inline constexpr char kDataNotEntered[] = "Data Not Entered";

}  // namespace barvon
