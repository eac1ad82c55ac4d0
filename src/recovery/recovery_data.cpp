#include "recovery/recovery_data.h"

#include <cerrno>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "core/coefficients.h"
#include "core/desk/analysis_keys.h"
#include "core/desk/coefficient_words.h"
#include "core/desk/file_kinds.h"
#include "core/desk/load_record.h"
#include "core/desk/project_hold.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

constexpr char kUnnamed[] = "UNTITLED.DUI";

/// A list of dilutions that was opened has put its name in the project's place.
bool Bears_Name_Of_List(const ProjectRecord& record) {
  return Last_Three_Letters(record.ProjectFileName) == kDilutionLetters;
}

/// The project's file, "" when it has none.
std::string File_Of(const Recovery_Copy& copy) {
  if (!copy.project.empty() || Bears_Name_Of_List(*copy.record)) return copy.project;
  return copy.record->ProjectFileName;
}

std::string Name_Of_Project(const Recovery_Copy& copy) {
  const std::string file = File_Of(copy);
  return file.empty() ? kUnnamed : Name_Of(file);
}

/// Whether a save of the copy would write the bytes that are on the disk.
bool Is_On_Disk(const Recovery_Copy& copy) {
  if (File_Of(copy).empty() || copy.dilutions_are_unsaved) return false;
  const std::string path = Path_To_Write(File_Of(copy));
  std::string bytes;
  if (Read_Whole_File(path, bytes) != 0) return false;
  const auto record = std::make_unique<ProjectRecord>(*copy.record);
  Pack_Slots(*record);
  return Save_Project(path, *record) == bytes;
}

void Compare_With_File(Recovery_Row& row) {
  const ProjectRecord& record = *row.left.copy->record;
  const std::string path = File_Of(*row.left.copy);
  Loaded_Record there;
  row.column = "In the file";
  if (path.empty()) {
    row.state = "It has never been saved.";
  } else if (!Find_Path(path)) {
    row.state = path + " is no longer there. Save writes it anew.";
  } else if (there = Load_Record(path); there.record == nullptr) {
    row.state = path + " can't be read: " + there.problem + ".";
  } else if (State_Of_File(path) != row.left.copy->file) {
    row.state = path + " has been changed since. A save asks before it writes over that.";
  } else {
    row.state = path + " is as it was.";
  }
  if (Bears_Name_Of_List(record)) {
    row.state += " The list of dilutions " + record.ProjectFileName +
                 " was opened after it and gives the title: Save asks for the project's name" +
                 (path.empty() ? "." : ", and offers the old one.");
  }
  if (there.record == nullptr) {
    there.record = Fresh_Record();
    row.column = "In a new project";
  }
  // A file is shown as the window shows it once it is open.
  const auto here = std::make_unique<ProjectRecord>(record);
  Refresh_Record(*here);
  if (row.column != "In the file") Refresh_Record(*there.record);
  row.differences = Differences_Of(*there.record, *here);
}

Recovery_Row Row_Of(Left_Copy left) {
  Recovery_Row row;
  row.left = std::move(left);
  if (row.left.copy) {
    row.name = Name_Of_Project(*row.left.copy);
    Compare_With_File(row);
  } else {
    row.name = Name_Of(row.left.path);
    row.state = "This copy is damaged, or another version of the program has made it. " +
                row.left.path + " is left as it is.";
  }
  return row;
}

void Show_Status_Lines(bool from_file, const ProjectRecord& record) {
  // What comes from a file counts as entered; otherwise only what was.
  for (const Screen_Row& row : kScreens) {
    if (!row.status_line || !row.supplied) continue;
    if (!from_file && record.ScreenDataSupplied.at(*row.supplied) == kFalse) continue;
    Port().board.set_status_line(*row.status_line, kDataSupplied, Status_Colour::Blue);
    if (row.edit_mark && record.ScreenDataSupplied.at(*row.supplied) != kFalse) {
      Port().board.mark_edit_item(*row.edit_mark);
    }
  }
  constexpr const Screen_Row& kCoefficients = Row_Of_Screen("frmCoefficients");
  const Status_Words words =
      Coefficient_Words(Has_Default_Coefficients(record), kDefaultCoefficientsUsed);
  Port().board.set_status_line(*kCoefficients.status_line, words.text, words.colour);
}

void Show_Restored(const Recovery_Copy& copy, ProjectRecord& record) {
  const std::string& path = record.ProjectFileName;
  Port().board.set_caption(path.empty() ? kUntitledCaption : "BARVON - " + path);
  const bool has_file = !File_Of(copy).empty();
  const bool has_menus = has_file || record.KEY4 != kNoStudy;
  if (has_menus && record.FileKind != kDilutionKind) Port().board.open_menus();
  Show_Project(record);
  Show_Status_Lines(has_file, record);
  Note_Unsaved(Name_Of_Project(copy) + " is restored, with the changes that were not saved.");
  Port().board.show_main_board();
}

}  // namespace

std::vector<Recovery_Row> Recovery_Rows() {
  std::vector<Recovery_Row> rows;
  for (Left_Copy& left : Take_Left_Copies()) {
    if (left.copy && Is_On_Disk(*left.copy)) {
      Remove_Left_Copy(left);
    } else {
      rows.push_back(Row_Of(std::move(left)));
    }
  }
  return rows;
}

bool Restore_Project(Recovery_Row& row, Recovery_Keeper& keeper, ProjectRecord& record) {
  if (!row.left.copy) return false;
  const Recovery_Copy& copy = *row.left.copy;
  Project_Claim claim;
  const std::string file = File_Of(copy);
  const bool has_file = !file.empty();
  if (has_file && !claim.To_Open(file)) return false;
  if (has_file) {
    claim.Keep(copy.file);
  } else {
    Release_Project();
  }
  Put_Copy(copy, record);
  Show_Restored(copy, record);
  // A kill in between leaves one of the two, or both.
  if (keeper.Take_Over(copy)) Remove_Left_Copy(row.left);
  return true;
}

bool Throw_Copy_Away(Recovery_Row& row) {
  const Answer answer =
      Show_Message({"Throw away the changes of " + row.name + " that were not saved? They can't " +
                        "be brought back.",
                    kMessageTitle, Buttons::YesNo, Icon::Warning, Answer::No, Answer::No});
  if (answer != Answer::Yes) return false;
  if (Remove_Left_Copy(row.left)) return true;
  Show_Message({"The copy could not be removed: " + std::generic_category().message(errno) + "."});
  return false;
}

}  // namespace barvon
