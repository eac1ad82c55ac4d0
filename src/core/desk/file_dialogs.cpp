#include "core/desk/file_dialogs.h"

#include <algorithm>

#include "core/desk/file_kinds.h"
#include "core/desk/project_hold.h"
#include "core/keys.h"
#include "core/text_tools.h"
#include "platform/ask/file_dialog.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

bool Is_Dilution_Name(const std::string& name) {
  return Last_Three_Letters(name) == kDilutionLetters;
}

/// The project's own file where its folder is called now.
std::string Held_Project_Now() {
  const std::string& project = Held_Project();
  const std::string folder = Find_Path(Folder_Of(project)) ? "" : Folder_Of_Held_Project();
  return folder.empty() ? project : Join_Path(folder, Name_Of(project));
}

/// The name that a file of the kind has beside that of another one.
std::string Name_Of_Kind(const std::string& name, int kind) {
  const bool is_held = !Held_Project().empty() && kind != kDilutionKind;
  // A list of dilutions that was opened beside a project has put its name in the project's place.
  if (is_held && (name == Held_Project() || Is_Dilution_Name(name))) return Held_Project_Now();
  if (name.empty() || Is_Dilution_Name(name) == (kind == kDilutionKind)) return name;
  return With_Extension(name, kind == kDilutionKind ? kDilutionLetters : kProjectLetters);
}

std::vector<File_Filter> Text_Filters() {
  return {{"Text Files (*.txt)", "*.txt"}, {"All Files (*)", "*"}};
}

}  // namespace

std::optional<std::string> Ask_File_To_Open(double kind, const std::string& name) {
  File_Request request;
  request.title = "Open";
  if (kind == kDilutionKind) {
    request.filters = {{"Dilution Files (*.DUD)", "*.DUD"}};
    const std::string beside = Name_Of_Kind(name, kDilutionKind);
    request.name = Find_Path(beside).value_or(name.empty() ? "" : Folder_Of(name));
  } else {
    request.filters = {{"BARVON Data Files (*.DUI)", "*.DUI"},
                       {"BARVON Output FIles (*.DUO)", "*.DUO"}};
  }
  return Ask_Open_File(request);
}

std::optional<std::string> File_SaveAs_Dialog(const std::string& name, int kind) {
  File_Request request;
  request.title = "Save As";
  if (kind == kDilutionKind) {
    request.filters = {{"Dilution File(*.DUD)", "*.DUD"}};
  } else {
    request.filters = {{"BARVON Data File (*.DUI)", "*.DUI"}};
  }
  request.name = Name_Of_Kind(name, kind);
  request.complete = [kind](const std::string& chosen) {
    return With_Default_Extension(chosen, kind);
  };
  const auto chosen = Ask_Save_File(request);
  if (!chosen || chosen->empty()) return std::nullopt;
  return With_Default_Extension(*chosen, kind);
}

std::optional<std::string> Ask_Text_To_Open(const std::string& name) {
  File_Request request;
  request.title = "Open Text File";
  request.filters = Text_Filters();
  // What a person looks at first is an output of the solver.
  request.filters.insert(request.filters.begin(), {"BARVON Output FIles (*.DUO)", "*.DUO"});
  request.name = name;
  return Ask_Open_File(request);
}

std::optional<std::string> Ask_Text_To_Save(const std::string& name) {
  File_Request request;
  request.title = "Save As";
  request.filters = Text_Filters();
  // The text's own file must not become another one by an extension that it has not.
  if (!name.empty() && !Equal_Ignoring_Case(name, With_Extension(name, "txt"))) {
    std::ranges::reverse(request.filters);
  }
  request.ending = Ending::To_Bare_Names;
  request.name = name;
  const auto chosen = Ask_Save_File(request);
  return chosen && !chosen->empty() ? chosen : std::nullopt;
}

std::string With_Default_Extension(const std::string& name, int kind) {
  const std::string file = Name_Of(name);
  const std::size_t length = Character_Count(file);
  if (length >= 4 && file.substr(First_Characters(file, length - 4).size()).front() == '.') {
    return name;
  }
  return name + "." + (kind == kDilutionKind ? kDilutionLetters : kProjectLetters);
}

std::optional<std::string> Ask_Name_To_Save(const ProjectRecord& record) {
  const std::string& name = record.ProjectFileName;
  if (!name.empty() && !Is_Dilution_Name(name)) return name;
  return File_SaveAs_Dialog(name, kProjectKind);
}

}  // namespace barvon
