#include <gtest/gtest.h>
#include <unistd.h>

#include <QAction>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <optional>
#include <set>

#include "core/desk/project_hold.h"
#include "core/desk/recent_files.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/files/profile_settings.h"
#include "platform/qt/qt_document_opener.h"
#include "support/hostile_names.h"
#include "support/proof_scale.h"
#include "support/screen_support.h"
#include "workspace/frm_note_pad.h"
#include "workspace/note_pads.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

constexpr char kSample[] = "/Hopper_Six_Openings.DUI";
constexpr std::array kOutputs = {".duo", ".dup", ".dut", ".duc"};

/// The whole road of a project in the window, under names that nobody would choose, with programs
/// planted in the current folder, which stands first in the search path.
class HostileNames : public ::testing::Test {
 protected:
  HostileNames() : former_path_(qgetenv("PATH")) {
    for (const char* folder : {"bin", "from", "to", "here"}) {
      fs::create_directory(bench.folder / folder);
    }
    qputenv("PATH", QByteArray(".::here:") + (bench.folder / "bin").c_str());
    Install("bin/xdg-mime", "[ -e '" + (bench.folder / "desktop") + "' ] && echo editor.desktop\n");
    Install("bin/xdg-open", "printf '%s' \"$1\" > '" + (bench.folder / "opening") + "'\n/bin/mv '" +
                                (bench.folder / "opening") + "' '" + opened_ + "'\n");
    for (const char* plant : {"dos4gw.exe", "dosbox", "sh", "xdg-open", "xdg-mime", "touch",
                              "printf", "barvon", "dbus-launch"}) {
      for (const char* folder : {"", "here/", "from/"}) {
        Install(std::string(folder) + plant, ": > '" + started_ + "'\n");
      }
    }
    fs::remove(bench.folder / "dos4gw.exe");  // in the application folder it would be the launcher
    fs::copy_file(BARVON_TEST_CHILD, bench.folder / "merak32");
    std::string steps;
    for (const char* extension : kOutputs)
      steps += std::string("write:tmpfile") + extension + "=x\n";
    Write_Text(bench.folder / "test_child.steps", steps);
    Write_Text(bench.folder / "victim", "precious");
    former_dialogs_ = Set_File_Dialog_Presenter({[this](const File_Request&) { return answer_; },
                                                 [this](const File_Request&) { return answer_; },
                                                 nullptr, nullptr});
    Set_Own_Text_Window([this](const std::string& path) { return Open_Text(path, bench.main()); });
    sample_ = Read_Text(std::string(BARVON_SAMPLES) + kSample);
    alone_ = Everything();
  }
  ~HostileNames() override {
    Set_Own_Text_Window({});
    Set_File_Dialog_Presenter(std::move(former_dialogs_));
    qputenv("PATH", former_path_);
  }

  void Install(const std::string& name, const std::string& script) {
    Write_Text(bench.folder / name, "#!/bin/sh\n" + script);
    fs::permissions(bench.folder / name, fs::perms::owner_all);
  }
  std::set<std::string> Everything() const {
    std::set<std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(bench.folder.path())) {
      all.insert(entry.path().string());
    }
    return all;
  }
  void Choose(const char* action, const std::string& answer) {
    answer_ = answer;
    bench.Action(action)->trigger();
  }
  std::string Note() { return bench.Child<QLabel>("StatusNote")->text().toStdString(); }

  void Open_Save_And_Save_As(const std::string& from, const std::string& to) {
    Choose("mnuFileItem(1)", from);
    ASSERT_EQ(Project().ProjectFileName, from);
    Project().ProjectTitle = "CHANGED";
    bench.controls().Title_Box->setText("CHANGED");
    Choose("mnuFileItem(4)", "");
    EXPECT_NE(Read_Text(from).find("CHANGED"), std::string::npos);
    EXPECT_TRUE(Exists(from.substr(0, from.size() - 3) + "DUE"));
    bench.controls().Title_Box->setText("AGAIN");
    Choose("mnuFileItem(5)", to);
    ASSERT_EQ(Project().ProjectFileName, to);
    EXPECT_NE(Read_Text(to).find("AGAIN"), std::string::npos);
    EXPECT_EQ(Read_Text(from).find("AGAIN"), std::string::npos);
  }
  void Run(const std::string& base) {
    bench.controls().SSPanel3(1)->click();
    for (const char* extension : kOutputs) EXPECT_EQ(Read_Text(base + extension), "x") << Note();
  }

  void View(const std::string& output, bool by_desktop) {
    fs::remove(opened_);
    fs::remove(bench.folder / "desktop");
    if (by_desktop) Write_Text(bench.folder / "desktop", "");
    bench.Action("mnuViewItem(1)")->trigger();
    if (by_desktop) {
      EXPECT_TRUE(Wait_Until([this] { return Exists(opened_); }));
      EXPECT_EQ(Read_Text(opened_), output);
    } else {
      ASSERT_EQ(Open_Texts().size(), 1u);
      EXPECT_EQ(Open_Texts()[0]->Caption(), output);
    }
    Discard_Texts();
    fs::remove(bench.folder / "desktop");
    fs::remove(opened_);
  }

  /// The list of recent files names the path, byte for byte, or leaves it alone.
  void Reopen(const std::string& path) {
    GetRecentFiles();
    const auto& menu = Recent_Menu();
    const bool listed = std::find(menu.begin(), menu.end(), path) != menu.end();
    EXPECT_EQ(listed, Is_Read_Back_From_Profile(path));
    for (const std::string& entry : menu) EXPECT_TRUE(entry.empty() || Exists(entry)) << entry;
    if (!listed) return;
    const auto place = std::find(menu.begin(), menu.end(), path) - menu.begin();
    Project().ProjectFileName = "none";
    bench.Action(("mnuRecentFile(" + std::to_string(place) + ")").c_str())->trigger();
    EXPECT_EQ(Project().ProjectFileName, path);
  }

  /// Exactly what the road makes is there, and nothing that lay about was touched or started.
  void Expect_Only(const std::set<std::string>& made) {
    std::set<std::string> wanted = alone_;
    wanted.insert(made.begin(), made.end());
    for (const char* name : {"Tmpfile.Due", "KOLBREE.TMP", "tmpfile.duo", "tmpfile.dup",
                             "tmpfile.dut", "tmpfile.duc"}) {
      wanted.insert(bench.folder / name);
    }
    if (!Held_Project().empty()) wanted.insert(Lock_Path_Of(Held_Project()));
    // Names with a line break leave it unmade.
    wanted.insert(bench.folder / "BARVON.INI");
    std::set<std::string> there = Everything();
    there.insert(bench.folder / "BARVON.INI");
    std::vector<std::string> differing;
    std::ranges::set_symmetric_difference(there, wanted, std::back_inserter(differing));
    EXPECT_EQ(differing, std::vector<std::string>());
    EXPECT_FALSE(Exists(started_));
    EXPECT_EQ(Read_Text(bench.folder / "victim"), "precious");
  }

  Main_Bench bench;
  const std::string opened_ = bench.folder / "opened", started_ = bench.folder / "started";
  std::string sample_;
  std::optional<std::string> answer_;
  std::set<std::string> alone_;

 private:
  QByteArray former_path_;
  File_Dialog_Presenter former_dialogs_;
};

TEST_F(HostileNames, Lead_The_Whole_Road_To_The_Files_That_Bear_Them) {
  const auto seed = static_cast<unsigned>(Proof_Scale("BARVON_PROOF_SEED", 1));
  const std::vector<std::string> names =
      Hostile_Names(seed, Proof_Scale("BARVON_PROOF_NAMES", kFewNames));
  Modal_Replies no_boxes({});
  for (std::size_t i = 0; i < names.size() && !HasFailure(); ++i) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", name " + std::to_string(i) + ": " + names[i]);
    const std::string from = bench.folder / ("from/" + names[i]);
    const std::string to = bench.folder / ("to/" + names[(i + 1) % names.size()]);
    Write_Text(from + ".DUI", sample_);
    Open_Save_And_Save_As(from + ".DUI", to + ".DUI");
    fs::current_path(bench.folder / "here");
    Run(to);
    View(to + ".duo", i % 2 == 0);
    Reopen(to + ".DUI");
    Reopen(from + ".DUI");
    std::set<std::string> made = {from + ".DUI", from + ".DUE", to + ".DUI", to + ".DUE"};
    for (const char* extension : kOutputs) made.insert(to + extension);
    Expect_Only(made);
    for (const std::string& path : made) fs::remove(path);
    fs::remove(bench.folder / "BARVON.INI");
    GetRecentFiles();
  }
  ASSERT_FALSE(HasFailure());
  std::cout << names.size() << " names through open, save, save as, run, view and recent files\n";
}

TEST_F(HostileNames, That_Are_Too_Long_Are_Told) {
  const std::string path = bench.folder / ("to/" + std::string(252, 'x') + ".DUI");
  const std::string from = bench.folder / "from/site.DUI";
  Write_Text(from, sample_);
  Choose("mnuFileItem(1)", from);
  {
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Choose("mnuFileItem(5)", path);
    ASSERT_EQ(replies.seen.size(), 1u);
    EXPECT_EQ(replies.seen[0].text.toStdString(), "Can't open file: " + path);
  }
  EXPECT_EQ(Project().ProjectFileName, from);
  {
    Modal_Replies replies({Press(QMessageBox::Ok)});
    Choose("mnuFileItem(1)", path);
    EXPECT_EQ(replies.seen.size(), 1u);
  }
  EXPECT_EQ(Project().ProjectFileName, from);
  EXPECT_EQ(Read_Text(from), sample_);
}

}  // namespace
}  // namespace barvon
