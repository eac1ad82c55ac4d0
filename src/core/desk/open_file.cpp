#include "core/desk/open_file.h"

#include <optional>

#include "core/desk/analysis_keys.h"
#include "core/desk/file_dialogs.h"
#include "core/desk/file_kinds.h"
#include "core/desk/project_hold.h"
#include "core/desk/reset_vars.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "platform/ask/busy_cursor.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

/// Tells that data is missing and offers a new project in the place of the one that is open, of a
/// dilution file an empty list: the project around it is sound.
void Offer_Fresh_Start(const std::string& path, ProjectRecord& record) {
  Show_Message({"Error in Data File. Some of the Data is missing."});
  const Answer answer = Ask("Initialize data and continue?", Buttons::YesNoCancel, Icon::Warning);
  record.OldGridFile = 0;
  record.OldGridRetry = kFalse;
  if (answer != Answer::Yes) return;
  if (Last_Three_Letters(path) == kDilutionLetters) {
    Set_Dilution_Defaults(record);
    Port().dilution.clear();
  } else if (Reset_Vars(record)) {
    Show_Project(record);
  }
}

Load_Result Load(const std::string& path, std::string_view bytes, ProjectRecord& record) {
  const Busy_Cursor cursor;
  if (Last_Three_Letters(path) == kDilutionLetters) {
    return {Find_File_Kind(kDilutionLetters)->read(path, bytes, record), false, {}};
  }
  Load_Result result = Load_Project(path, bytes, record);
  if (result.failure != Failure::None) return result;
  Forget_Database(record);
  Compute_Site_Density_From_Bulk(record);
  // The file has no AnalysisType of its own, and that of the project before is none of its.
  if (Analysis_Type_Of_KEY4(record.KEY4) == kNoAnalysis) record.AnalysisType = kOpenWater;
  return result;
}

bool Can_Be_Loaded(const std::string& path) {
  const std::string letters = Last_Three_Letters(path);
  if (letters == kProjectLetters) return true;
  if (letters != kDilutionLetters) {
    Port().board.show_note(
        {Name_Of(path) + " is no project file: nothing was loaded from it.", {}});
    return false;
  }
  const File_Kind* kind = Find_File_Kind(kDilutionLetters);
  if (kind != nullptr && kind->read) return true;
  Show_Message({"Can't Open File: " + path + "   Dilution Files Are Not Supported"});
  return false;
}

}  // namespace

void Tell_Not_Opened(const std::string& path) {
  Show_Message({"Can't Open File: " + path + "   Or File Not Found"});
}

bool Open_File(const std::string& path, ProjectRecord& record) {
  record.OldGridFile = 0;
  if (path.empty()) return false;
  const std::optional<std::string> found = Find_Path(path);
  // An output may be huge: what is not loaded is not read either.
  if (found && !Can_Be_Loaded(path)) return false;
  std::string bytes;
  if (!found || Read_Whole_File(*found, bytes) != 0) {
    Tell_Not_Opened(path);
    return false;
  }
  const Load_Result result = Load(path, bytes, record);
  if (result.failure != Failure::None) {
    if (!result.told) Offer_Fresh_Start(path, record);
    if (!result.remark.empty()) {
      Port().board.show_note({Name_Of(path) + " was not loaded. " + result.remark, {}});
    }
    return false;
  }
  // What was said of the project before no longer holds.
  Port().board.show_note({result.remark, {}});
  if (Last_Three_Letters(path) == kDilutionLetters) Port().recovery.dilutions_settled();
  return true;
}

bool Open_Project(const std::string& path, ProjectRecord& record) {
  // A list of dilutions takes no project's place.
  const bool is_project = Last_Three_Letters(path) == kProjectLetters && Find_Path(path);
  Project_Claim claim;
  if (is_project && !claim.To_Open(path)) return false;
  if (!Open_File(path, record)) return false;
  if (is_project) claim.Keep();
  record.ProjectFileName = path;
  record.BaseFileName = Base_Name(path);
  Port().board.set_caption("BARVON - " + path);
  if (Last_Three_Letters(path) == kProjectLetters) {
    // A project whose KEY4 chooses nothing yet can be edited, saved and run like any other.
    record.FileKind = kProjectKind;
    Port().board.open_menus();
  }
  if (is_project) Port().recovery.settled();
  return true;
}

bool File_Open_Dialog(double kind, ProjectRecord& record) {
  const std::optional<std::string> path = Ask_File_To_Open(kind);
  if (!path) return false;
  // For a file that is not there nothing needs to be discarded.
  if (Find_Path(*path) && !Port().board.close_input_screens()) return false;
  return Open_Project(*path, record);
}

}  // namespace barvon
