#include "core/desk/save_file.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <system_error>

#include "core/desk/analysis_keys.h"
#include "core/desk/file_dialogs.h"
#include "core/desk/file_kinds.h"
#include "core/desk/project_hold.h"
#include "core/desk/recent_files.h"
#include "core/desk/show_screen.h"
#include "core/desk/workspace_port.h"
#include "core/failure.h"
#include "core/keys.h"
#include "core/model_input/model_input.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "platform/ask/busy_cursor.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

constexpr char kUnable[] = "Unable to Save File!";
constexpr int kTestedStatusMarks = 5;  // of the six

/// Writes one file whole. The bytes are made once the file is known to be writable.
bool Write_File(const std::string& path, int kind, const std::function<std::string()>& bytes) {
  bool opened = false;
  int error = 0;
  {
    const Busy_Cursor cursor;
    Safe_File file;
    error = file.Open(Path_To_Write(path));
    opened = error == 0;
    if (error == 0) error = file.Write(bytes());
    if (error == 0) error = file.Commit();
  }
  if (error == 0) return true;
  const bool bad_dilution_name =
      kind == kDilutionKind && Failure_Of_Errno(error) == Failure::Bad_File_Name;
  Show_Message({opened || bad_dilution_name ? kUnable : "Can't open file: " + path});
  return false;
}

bool Write_Dilution(const std::string& path, const ProjectRecord& record) {
  const File_Kind* kind = Find_File_Kind(kDilutionLetters);
  if (kind == nullptr || !kind->write) {
    Show_Message({"Unrecognized File Type!"});
    return false;
  }
  return Write_File(path, kDilutionKind, [&] { return kind->write(record); });
}

bool Lead_To_One_File(const std::string& path, const std::string& other) {
  std::error_code error;
  return std::filesystem::equivalent(Path_To_Write(path), Path_To_Write(other), error);
}

/// A box has said that the project's file can't be opened; where the person finds it instead.
void Tell_Of_Lost_Folder(const std::string& path) {
  if (path != Held_Project() || Find_Path(Folder_Of(path))) return;
  const std::string folder = Folder_Of_Held_Project();
  Note_Unsaved(Name_Of(path) + " was not saved: its folder " +
               (folder.empty() ? "is no longer there. Save As keeps it elsewhere."
                               : "is " + folder + " now. Save As keeps it there."));
}

bool Write_Project(const std::string& path, ProjectRecord& record) {
  Project_Claim claim;
  const bool was_there = path == Held_Project() && Held_State();
  if (!claim.To_Save(path)) {
    Note_Unsaved(Name_Of(path) + " was not saved.");
    return false;
  }
  const bool is_gone = was_there && !State_Of_File(path);
  std::string model_input;
  Failure model_failure = Failure::None;
  const bool written = Write_File(path, kProjectKind, [&] {
    Show_Project(record);
    // The dilution mode is the program's, not the project's: the file gets what the boards show.
    const std::int16_t key4 = record.KEY4;
    if (key4 == kDilutionStudy && record.FileKind == kDilutionKind) {
      record.KEY4 = Port().board.chosen_key4();
    }
    // The model input comes first: what it derives belongs into the file, so that the next save of
    // an unchanged project gives the same one.
    model_failure = Make_Model_Input(record, model_input);
    Pack_Slots(record);
    std::string bytes = Save_Project(path, record);
    record.KEY4 = key4;
    return bytes;
  });
  if (!written) {
    Tell_Of_Lost_Folder(path);
    return false;
  }
  claim.Keep(State_Of_File(path));
  record.FileTypeTag = "DUE";
  const std::string name = With_Extension(path, "DUE");
  const std::string saved =
      Name_Of(path) + (is_gone
                           ? " was no longer there: it is written anew, in " + Folder_Of(path) + "."
                           : " is saved.");
  const std::string lacking =
      saved + " Its model input " + Name_Of(name) + " could not be written: ";
  if (is_gone) Port().board.show_note({saved, {}});
  if (Lead_To_One_File(path, name)) {
    Port().board.show_note({lacking + "that is where the project stands.", {}});
    return true;
  }
  const Busy_Cursor cursor;
  // The project is safe; its model input may still be beyond what can be computed.
  if (model_failure == Failure::None) model_failure = Write_Model_Extract(path, model_input);
  if (model_failure != Failure::None) {
    Port().board.show_note({lacking + Failure_Name(model_failure) + ".", {}});
  }
  return true;
}

bool Write_Export(const std::string& path, ProjectRecord& record) {
  Show_Project(record);
  record.FileTypeTag = "DUE";
  const auto first = record.SectionStatus.begin() + 1;
  const auto last = first + kTestedStatusMarks;
  if (std::find(first, last, '-') != last) return false;
  const Busy_Cursor cursor;
  if (Save_Model_Extract(path, record) == Failure::None) return true;
  Show_Message({kUnable});
  return false;
}

bool Is_Open_Project(const std::string& path, const ProjectRecord& record) {
  return !record.ProjectFileName.empty() &&
         (path == record.ProjectFileName || Lead_To_One_File(path, record.ProjectFileName));
}

bool Write_Text(const std::string& path, const ProjectRecord& record) {
  if (Is_Open_Project(path, record)) {
    Show_Warning("The open project is in this file. Save the text under another name.");
    return false;
  }
  const std::optional<std::string> bytes = Port().text.active();
  // The text bears the name of the file that it is in, whatever the case that was typed.
  const std::string written = Path_To_Write(path);
  if (!bytes || !Write_File(written, kTextKind, [&] { return *bytes; })) return false;
  Port().text.set_caption(written);
  return true;
}

bool Write_By_Kind(const std::string& path, int kind, ProjectRecord& record) {
  switch (kind) {
    case kDilutionKind:
      return Write_Dilution(path, record);
    case kProjectKind:
      return Write_Project(path, record);
    case kExportKind:
      return Write_Export(path, record);
    case kTextKind:
      return Write_Text(path, record);
    default:
      Show_Message({"Unrecognized File Type!"});
      return false;
  }
}

}  // namespace

bool Save_File(const std::string& path, int kind, ProjectRecord& record) {
  if (!Write_By_Kind(path, kind, record)) return false;
  // A text opens no project: it has nothing to do among the files that do. Nor is an output named
  // from it, which would then be written over that of another project.
  if (kind == kTextKind) return true;
  // A list of dilutions says nothing of the project: it is as unsaved as before, and no output is
  // named from the list.
  if (kind == kProjectKind) record.ProjectFileName = path;
  if (kind != kDilutionKind) {
    record.BaseFileName = Base_Name(path);
    record.DataSaved = kTrue;
    record.SavedUnderScreens = Any_Input_Screen_Is_Open() ? kTrue : kFalse;
  }
  Port().board.set_caption("BARVON - " + path);
  Update_Recent_Files(path);
  if (kind == kDilutionKind) {
    Port().recovery.dilutions_settled();
  } else {
    Port().recovery.settled();
  }
  return true;
}

}  // namespace barvon
