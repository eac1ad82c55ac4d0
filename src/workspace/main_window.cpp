#include "workspace/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "checks/check_data.h"
#include "core/desk/project_hold.h"
#include "core/desk/recent_files.h"
#include "core/desk/reset_vars.h"
#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/wizard_help.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_record.h"
#include "platform/ask/help_viewer.h"
#include "platform/files/app_folder.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/fields/option_paint.h"
#include "platform/qt/help/qt_help_viewer.h"
#include "platform/qt/screen_window.h"
#include "run/create_process.h"
#include "workspace/display_data.h"
#include "workspace/document_menus.h"
#include "workspace/file_menu.h"
#include "workspace/main_boards.h"
#include "workspace/main_events.h"
#include "workspace/main_menus.h"
#include "workspace/main_toolbar.h"
#include "workspace/note_pads.h"
#include "workspace/open_screens.h"
#include "workspace/option_logic.h"
#include "workspace/project_drops.h"
#include "workspace/quit_rules.h"
#include "workspace/text_commands.h"
#include "workspace/text_documents.h"

namespace barvon {
namespace {

/// 9405 x 11025 twips at 15 twips a pixel.
constexpr QSize kMainSize{627, 735};
constexpr char kHelpFile[] = "BARVON.HLP";

void Remove_Leftovers(const std::string& application_folder) {
  Set_Save_Notes_Folder(application_folder);
  std::vector<std::string> folders = {application_folder};
  for (const std::string& path : Recent_Menu()) {
    if (!path.empty()) folders.push_back(Folder_Of(path));
  }
  Remove_Leftover_Saves(folders);
}

bool Is_Open_Without_Blocking(const std::string& name) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && !window->isModal() && window->objectName().toStdString() == name) {
      return true;
    }
  }
  return false;
}

}  // namespace

Main::Main(const std::string& application_folder, std::function<void()> end_process)
    : controls_(this), end_process_(std::move(end_process)) {
  Name_Screen(*this, Row_Of_Screen("Main").name);
  setStatusBar(controls_.status_area);
  Build_Menus(controls_);
  Build_Toolbar(controls_);
  Build_Boards(controls_);
  Share_Letters(controls_);
  Connect_Main_Events(controls_, Project());
  Connect_Document_Menus(controls_);
  Take_Project_Drops(*this, Project());
  Fill_Port();
  Set_Program_End([this] {
    Show_Help({Help_Command::Quit, 0, ""});
    Stop_Run_And_Wait();
    Port().recovery.leave();
    Release_Project();
    end_process_();
  });
  Start_Up(application_folder);
  opening_ = false;
}

Main::~Main() {
  Discard_Texts();
  Documents().Reset();
  Release_Project();
  Reset_Port();
  Set_Program_End({});
}

void Main::Start_Up(const std::string& application_folder) {
  ProjectRecord& record = Project();
  Set_Application_Folder(application_folder);
  Change_Current_Folder(application_folder);
  record.WizardHelpOn = kTrue;
  Read_Wizard_Help(record);
  move(0, 0);
  Lock_Size();
  Set_Help_File(Join_Path(Delivered_Folder(), kHelpFile));
  record.ScreenDataSupplied.fill(kFalse);
  record.ShowMode = 1;
  GetRecentFiles();
  Remove_Leftovers(application_folder);
  Set_Caption(kUntitledCaption);
  Reset_Vars(record);
  Display_Data(controls_, record);
  record.OutputsCopied = kFalse;
  if (record.WizardAtStart != kFalse) Open_Screen_Or_Tell(Row_Of_Screen("Data_Wiz"), true);
  record.AlwaysSaveBeforeRun = kTrue;
  record.WizardActive = kFalse;
}

void Main::Fill_Board_Port(Board_Port& board) {
  board.set_caption = [this](const std::string& caption) { Set_Caption(caption); };
  board.caption = [this] { return caption_; };
  board.display_data = [this] { Display_Data(controls_, Project()); };
  board.set_status_line = [this](int index, const std::string& text, Status_Colour colour) {
    Show_Status_Line(controls_, index, text, colour);
  };
  board.mark_edit_item = [this](int index) { Mark_Edit_Item(controls_, index); };
  board.paint_velocity_option = [this](int index, Status_Colour colour) {
    Paint_Velocity_Option(controls_, index, colour);
  };
  board.depression_box = [this] { return controls_.SSCheck3->isChecked(); };
  board.show_depression_box = [this](bool set) { controls_.SSCheck3->setChecked(set); };
  board.refresh_for_new_project = [this] {
    Clear_Edit_Marks(controls_);
    Show_New_Project(controls_, Project());
    // At start the menus keep what the menu tree gives them.
    if (!opening_) SetMenuAvailability(controls_, Menu_Mode::Closed);
  };
  board.open_menus = [this] {
    SetMenuAvailability(controls_, Menu_Mode::Project);
    Forget_Choices(controls_);
  };
  board.screen_is_open = Is_Open_Without_Blocking;
  board.close_input_screens = Close_Input_Screens;
  board.chosen_key4 = [this] {
    return KEY4_Value(Chosen_Option(controls_.SSOption1), Chosen_Option(controls_.SSOption2))
        .value_or(kNoStudy);
  };
  board.screens_changed = [this] { Show_Tools_Menu(controls_); };
  board.show_recent_menu = [this] { Show_Recent_Menu(controls_); };
  board.show_main_board = [this] { Show_Main_Board(controls_); };
  board.set_database_used = [this] { controls_.SSCheck1->setChecked(true); };
  board.set_database_line = [this](int index, const std::string& text) {
    Show_Database_Line(controls_, index, text);
  };
  board.count_findings = [] { return static_cast<int>(Check_Data(Project()).entries.size()); };
  board.show_wizard_help = [this](bool on) {
    Action_Of(controls_, "mnuOptionItem", kWizardHelp)->setChecked(on);
  };
  board.show_note = [this](const Status_Note& note) { controls_.status_area->Show_Note(note); };
  board.take_back_note = [this](const std::string& text) {
    controls_.status_area->Take_Back_Note(text);
  };
}

void Main::Fill_Port() {
  Fill_Board_Port(Port().board);
  Port().run.state = [this](bool running, const std::string& program) {
    controls_.status_area->Show_Run(running, program);
  };
  Fill_Text_Port(Project());
}

void Main::Set_Caption(const std::string& caption) {
  caption_ = caption;
  // In a window title this sequence is a place holder; doubled it is itself.
  setWindowTitle(
      QString::fromStdString(caption).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void Main::Lock_Size() {
  setFixedSize(kMainSize);
  resize(kMainSize);  // a size that is fixed already is not set again
}

void Main::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  // A window manager keeps to the limits; without one, or by another program, it still happens.
  if (!isMinimized() && size() != kMainSize) Lock_Size();
}

void Main::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (asking_to_close_) return;
  asking_to_close_ = true;
  if (!Port().dilution.leave()) {
    asking_to_close_ = false;
    return;
  }
  Close_Action action = Ask_On_Close(caption_, Project().DataSaved);
  if (action == Close_Action::Save_And_Close) {
    mnuFileItem_Click(kFileSave, Project());
    // A save that failed or was called off must not take the data with it.
    if (Project().DataSaved == kFalse) action = Close_Action::Stay;
  }
  const bool ends = action != Close_Action::Stay && May_Leave_Texts(Project());
  asking_to_close_ = false;
  if (!ends) return;
  event->accept();
  End_Program();
}

void Main::End_Process_Now() {
  std::fflush(nullptr);
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace barvon
