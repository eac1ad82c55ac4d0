#include "workspace/file_menu.h"

#include <optional>
#include <string>

#include "checks/check_data.h"
#include "core/coefficients.h"
#include "core/desk/analysis_keys.h"
#include "core/desk/coefficient_words.h"
#include "core/desk/file_dialogs.h"
#include "core/desk/file_kinds.h"
#include "core/desk/open_file.h"
#include "core/desk/project_hold.h"
#include "core/desk/recent_files.h"
#include "core/desk/reset_vars.h"
#include "core/desk/save_file.h"
#include "core/desk/screen_register.h"
#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/text/counted.h"
#include "workspace/quit_rules.h"
#include "workspace/text_commands.h"

namespace barvon {
namespace {

constexpr int kLastStatusLine = 4;  // that of the coefficients has a wording of its own

void Set_Status_Lines(const char* text, Status_Colour colour) {
  for (int i = 0; i <= kLastStatusLine; ++i) Port().board.set_status_line(i, text, colour);
}

void New_Project(ProjectRecord& record) {
  if (!Port().board.close_input_screens() || !Reset_Vars(record)) return;
  Show_Project(record);
  Set_Status_Lines(kDataNotEntered, Status_Colour::Black);
}

/// The file's coefficients are nobody's but its own: what was accepted was another project's.
void Show_Opened_Coefficients(ProjectRecord& record) {
  constexpr const Screen_Row& kCoefficientScreen = Row_Of_Screen("frmCoefficients");
  record.ScreenDataSupplied[*kCoefficientScreen.supplied] = kFalse;
  const Status_Words words =
      Coefficient_Words(Has_Default_Coefficients(record), kDefaultCoefficientsUsed);
  Port().board.set_status_line(*kCoefficientScreen.status_line, words.text, words.colour);
}

/// A list of dilutions supplies no data of the project and has nothing to be drawn by the graphics
/// program.
void Show_Opened_Dilutions(ProjectRecord& record) {
  Update_Recent_Files(record.ProjectFileName);
  Show_Project(record);
  Port().board.show_note({Counted(static_cast<std::size_t>(record.DiluteRowCount), "parameter") +
                              " read; the dilution button shows them",
                          {}});
  Port().board.show_main_board();
}

void Show_Opened(ProjectRecord& record) {
  if (Last_Three_Letters(record.ProjectFileName) == kDilutionLetters) {
    Show_Opened_Dilutions(record);
    return;
  }
  // What comes from a file counts as accepted data.
  record.WizardAccepted = kTrue;
  Settings_Of_Command settings;
  Update_Recent_Files(record.ProjectFileName);
  Show_Project(record);
  const bool can_be_handed_over = Write_Graph_File(record.ProjectFileName);
  if (!settings.Write() || !can_be_handed_over) {
    Port().board.show_note(
        {std::string(kSettingsFile) +
             " could not be written: the graphics program has not been told of " +
             record.ProjectFileName + ".",
         {}});
  }
  Set_Status_Lines(kDataSupplied, Status_Colour::Blue);
  Show_Opened_Coefficients(record);
  Port().board.show_main_board();
}

bool Save_In_Spite_Of_Findings(const ProjectRecord& record) {
  if (Check_Project(record) == kFalse) return true;
  const Answer answer = Ask(kErrorsDetected, Buttons::YesNoCancel);
  if (answer == Answer::Yes) {
    Open_Screen(Row_Of_Screen("frmErrorList"), Opens_Blocking(record));
  }
  return answer == Answer::No;
}

/// A save that does not come about changes nothing: the project keeps its file, and the next Save
/// goes there.
void Save_Under(const std::string& name, ProjectRecord& record) {
  Take_Back_Unsaved_Note();
  if (Save_In_Spite_Of_Findings(record)) {
    Save_File(name, kProjectKind, record);
  } else if (name != record.ProjectFileName) {
    const std::string& former = Held_Project();
    Note_Unsaved(Name_Of(name) + " was not saved. The project " +
                 (former.empty() ? "has no file yet." : "is still " + Name_Of(former) + "."));
  }
}

void Save(ProjectRecord& record) {
  if (const std::optional<std::string> name = Ask_Name_To_Save(record)) Save_Under(*name, record);
}

void Save_As(ProjectRecord& record) {
  const std::optional<std::string> name = File_SaveAs_Dialog(record.ProjectFileName, kProjectKind);
  if (name) Save_Under(*name, record);
}

}  // namespace

void mnuFileItem_Click(int index, ProjectRecord& record) {
  switch (index) {
    case kFileNew:
      return New_Project(record);
    case kFileOpen:
      if (File_Open_Dialog(record.FileKind, record)) Show_Opened(record);
      return;
    case kFileClose:
      if (Port().board.close_input_screens()) Reset_Vars(record);
      return;
    case kFileSave:
      return Save(record);
    case kFileSaveAs:
      return Save_As(record);
    case kFilePrint:
      if (!Port().text.print()) Port().report.print();
      return;
    case kFilePrintSetup:
      return Show_Printer_Setup();
    case kFileExit:
      if (Ask_On_Exit() && May_Leave_Texts(record) && Port().dilution.leave()) End_Program();
      return;
    default:
      return;
  }
}

bool Open_From_Workspace(const std::string& path, ProjectRecord& record) {
  if (Find_Path(path) && !Port().board.close_input_screens()) return true;
  if (!Open_Project(path, record)) return false;
  Show_Opened(record);
  return true;
}

void mnuRecentFile_Click(int index, ProjectRecord& record) {
  if (index < 1 || index > kRecentFiles) return;
  const std::string path = Recent_Menu()[static_cast<std::size_t>(index)];
  if (path.empty()) return;
  if (!Open_From_Workspace(path, record) && !Find_Path(path)) Remove_Recent(path);
  GetRecentFiles();
}

}  // namespace barvon
