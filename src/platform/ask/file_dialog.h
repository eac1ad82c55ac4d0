#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace barvon {

/// One entry of a file dialog's filter list: what it says and the pattern it stands for.
struct File_Filter {
  std::string name;     // "Dilution Files (*.DUD)"
  std::string pattern;  // "*.DUD"; matched without regard to case
};

/// Which names to save under get the ending of the filter that is chosen, where that has one.
enum class Ending {
  As_Typed,       // none
  To_Bare_Names,  // those without any
  To_Others       // those that have none of the filters'
};

struct File_Request {
  std::string title;
  std::vector<File_Filter> filters;
  std::string name;  // offered name or folder, may be empty
  /// The path that a chosen one stands for, when a rule adds something to it: the save dialog
  /// asks before that one is replaced. May be empty.
  std::function<std::string(const std::string&)> complete = {};
  Ending ending = Ending::As_Typed;
};

/// What shows the dialogs. Each returns the full path that was chosen, nothing on Cancel.
struct File_Dialog_Presenter {
  std::function<std::optional<std::string>(const File_Request&)> open;
  std::function<std::optional<std::string>(const File_Request&)> save;
  std::function<void()> printer_setup;
  /// For so many pages; see Ask_Printer.
  std::function<bool(const std::string& title, int pages)> printer = {};
};

/// Asks for an existing file. Nothing when the user cancels or no presenter is in place.
std::optional<std::string> Ask_Open_File(const File_Request& request);
/// Asks for a name to save under; the dialog asks before an existing file is named.
std::optional<std::string> Ask_Save_File(const File_Request& request);
/// Shows the common printer set-up dialog.
void Show_Printer_Setup();
/// Asks for the printer and the pages of what is printed; `pages` is 0 where their number shows in
/// the printing alone. False when the user cancels or no presenter is in place.
bool Ask_Printer(const std::string& title, int pages);

/// Puts another presenter in place and returns the one that was there.
File_Dialog_Presenter Set_File_Dialog_Presenter(File_Dialog_Presenter presenter);

}  // namespace barvon
