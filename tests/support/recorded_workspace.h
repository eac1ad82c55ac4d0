#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "support/plain_support.h"

namespace barvon::testing {

/// A reset project in a scratch application folder, with a workspace that only writes down what it
/// is told, in order, and file dialogs that answer what the test says.
class Recorded_Workspace : public ::testing::Test {
 protected:
  Recorded_Workspace();
  ~Recorded_Workspace() override;

  /// Puts four paths into the settings and, through a refill, into the menu.
  void Fill_Recent_Menu(const std::vector<std::string>& paths);
  /// What the settings hold under RecentFile1 to RecentFile4; "" for a missing key.
  std::vector<std::string> Listed() const;
  std::string Settings() const { return Read_Text(folder_ / "BARVON.INI"); }
  std::vector<std::string> Menu() const;
  void Write_Recent(int entry, const std::string& value);

  /// Bytes of a project file with this title.
  static std::string Project_Bytes(const std::string& title);

  Scratch_Folder folder_;
  std::unique_ptr<ProjectRecord> record_owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *record_owner_;
  std::vector<std::string> log_;
  std::string caption_;
  std::vector<std::string> notes_, note_details_;
  bool text_has_changed_ = false;
  bool has_document_ = false;
  std::optional<std::string> chosen_;     // the answer of the next file dialogs
  std::vector<File_Request> open_asked_;  // what the open dialog was shown with
  std::vector<File_Request> save_asked_;  // what the save dialog was shown with
  int printer_setups_ = 0;

 private:
  std::string former_folder_;
  File_Dialog_Presenter former_dialogs_;
};

}  // namespace barvon::testing
