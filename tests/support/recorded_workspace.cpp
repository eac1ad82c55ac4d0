#include "support/recorded_workspace.h"

#include "core/desk/file_kinds.h"
#include "core/desk/recent_files.h"
#include "core/desk/workspace_port.h"
#include "core/project_defaults.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "platform/files/app_folder.h"
#include "platform/files/profile_settings.h"

namespace barvon::testing {

Recorded_Workspace::Recorded_Workspace() : former_folder_(Application_Folder()) {
  Set_Application_Folder(folder_.path());
  Reset_Port();
  GetRecentFiles();  // no settings file: an empty menu
  Set_Project_Defaults(record_);
  Workspace_Port& port = Port();
  port.board.set_caption = [this](const std::string& caption) {
    caption_ = caption;
    log_.push_back("caption " + caption);
  };
  port.board.caption = [this] { return caption_; };
  port.board.display_data = [this] { log_.push_back("display"); };
  port.board.set_status_line = [this](int index, const std::string& text, Status_Colour colour) {
    log_.push_back("status " + std::to_string(index) + " " + text +
                   (colour == Status_Colour::Blue ? " blue" : " black"));
  };
  port.board.mark_edit_item = [this](int index) {
    log_.push_back("mark " + std::to_string(index));
  };
  port.board.paint_velocity_option = [this](int index, Status_Colour colour) {
    log_.push_back("velocity " + std::to_string(index) +
                   (colour == Status_Colour::Blue ? " blue" : " black"));
  };
  port.board.refresh_for_new_project = [this] { log_.push_back("new project"); };
  port.text.clear_checks = [this] { log_.push_back("clear text checks"); };
  port.dilution.close = [this] { log_.push_back("close dilution"); };
  port.board.show_recent_menu = [this] { log_.push_back("recent menu"); };
  port.board.show_main_board = [this] { log_.push_back("main board"); };
  port.board.show_note = [this](const Status_Note& note) {
    notes_.push_back(note.text);
    note_details_.push_back(note.details);
  };
  port.board.take_back_note = [this](const std::string& text) {
    if (!notes_.empty() && notes_.back() == text) Port().board.show_note({});
  };
  port.text.has_changed = [this] { return text_has_changed_; };
  port.text.caption = [] { return std::string("Untitled"); };
  port.text.print = [this] {
    if (!has_document_) return false;
    log_.push_back("print");
    return true;
  };
  port.report.print = [this] { log_.push_back("print report"); };
  File_Dialog_Presenter dialogs;
  dialogs.open = [this](const File_Request& request) {
    open_asked_.push_back(request);
    return chosen_;
  };
  dialogs.save = [this](const File_Request& request) {
    save_asked_.push_back(request);
    return chosen_;
  };
  dialogs.printer_setup = [this] { ++printer_setups_; };
  former_dialogs_ = Set_File_Dialog_Presenter(dialogs);
}

Recorded_Workspace::~Recorded_Workspace() {
  Reset_Port();
  Register_File_Kind("DUD", {});
  Set_File_Dialog_Presenter(former_dialogs_);
  Set_Application_Folder(former_folder_);
}

void Recorded_Workspace::Write_Recent(int entry, const std::string& value) {
  ASSERT_EQ(Write_Profile_Strings(folder_ / "BARVON.INI",
                                  {{"Recent Files", "RecentFile" + std::to_string(entry), value}}),
            0);
}

void Recorded_Workspace::Fill_Recent_Menu(const std::vector<std::string>& paths) {
  int entry = 0;
  for (const std::string& path : paths) Write_Recent(++entry, path);
  GetRecentFiles();
  log_.clear();
}

std::vector<std::string> Recorded_Workspace::Listed() const {
  std::vector<std::string> listed;
  for (int i = 1; i <= 4; ++i) {
    listed.push_back(Read_Profile_String(folder_ / "BARVON.INI", "Recent Files",
                                         "RecentFile" + std::to_string(i), ""));
  }
  return listed;
}

std::vector<std::string> Recorded_Workspace::Menu() const {
  return {Recent_Menu().begin() + 1, Recent_Menu().end()};
}

std::string Recorded_Workspace::Project_Bytes(const std::string& title) {
  const auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  record->ProjectTitle = title;
  Pack_Slots(*record);
  return Save_Project(title, *record);
}

}  // namespace barvon::testing
