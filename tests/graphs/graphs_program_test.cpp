#include <gtest/gtest.h>
#include <signal.h>

#include <QAction>
#include <QLabel>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/project_record.h"
#include "results/small_outputs.h"
#include "run/child_support.h"
#include "support/screen_support.h"

namespace barvon::testing {
namespace {

/// The graphics program itself, started from the main window.
class GraphsProgram : public ::testing::Test {
 protected:
  GraphsProgram() {
    // A copy: its folder is where it looks for the settings.
    std::filesystem::copy_file(BARVON_GRAPHS_PROGRAM, bench.folder / "kv_graph");
    ProjectRecord& record = Project();
    record.BaseFileName = bench.folder / "bay";
    record.ProjectFileName = record.BaseFileName + ".DUI";
    Write_Text(record.ProjectFileName, "project");
    Write_Text(record.BaseFileName + ".dut", kSmallSeries);
    Write_Text(record.BaseFileName + ".duc", kSmallMaps);
    bench.controls().SSOption1(0)->click();
  }
  ~GraphsProgram() override {
    for (const pid_t viewer : Viewers()) ::kill(viewer, SIGKILL);
  }

  /// Processes that run the copy and wait for events: their handler of signals is set by then.
  std::vector<pid_t> Viewers() const {
    std::vector<pid_t> found;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
      const std::string name = entry.path().filename();
      if (name.find_first_not_of("0123456789") != std::string::npos) continue;
      std::error_code error;
      if (std::filesystem::read_symlink(entry.path() / "exe", error) != bench.folder / "kv_graph") {
        continue;
      }
      if (Catches_Sigterm(entry.path() / "status")) found.push_back(std::stoi(name));
    }
    return found;
  }
  static bool Catches_Sigterm(const std::string& status) {
    std::ifstream lines(status);
    for (std::string line; std::getline(lines, line);) {
      if (line.rfind("SigCgt:", 0) != 0) continue;
      return ((std::stoull(line.substr(7), nullptr, 16) >> (SIGTERM - 1)) & 1) != 0;
    }
    return false;
  }
  std::string Note() { return bench.Child<QLabel>("StatusNote")->text().toStdString(); }
  bool Ends(pid_t viewer) {
    ::kill(viewer, SIGTERM);
    return Wait_Until([&] { return !Is_Alive(viewer); });
  }

  Main_Bench bench;
};

TEST_F(GraphsProgram, Each_Entry_Of_The_Menu_Opens_One_Beside_The_Others) {
  for (std::size_t kind = 0; kind < 4; ++kind) {
    bench.Action(("mnuGraph(" + std::to_string(kind) + ")").c_str())->trigger();
    ASSERT_TRUE(Wait_Until([&] { return Viewers().size() == kind + 1; }));
  }
  for (const pid_t viewer : Viewers()) EXPECT_TRUE(Ends(viewer));
  QTest::qWait(50);
  EXPECT_EQ(Note(), "");  // it has ended well
}

TEST_F(GraphsProgram, The_Button_Finds_It) {
  QTest::mouseClick(bench.controls().SSPanel3(2), Qt::LeftButton);
  ASSERT_TRUE(Wait_Until([&] { return Viewers().size() == 1; }));
  EXPECT_TRUE(Ends(Viewers().at(0)));
}

TEST_F(GraphsProgram, A_Project_That_Was_Not_Run_Opens_Too) {
  std::filesystem::remove(bench.folder / "bay.dut");
  bench.Action("mnuGraph(2)")->trigger();
  ASSERT_TRUE(Wait_Until([&] { return Viewers().size() == 1; }));
  EXPECT_TRUE(Ends(Viewers().at(0)));
}

TEST_F(GraphsProgram, What_A_Killed_Save_Left_Goes_At_The_Next_Start) {
  const std::string left = bench.folder / "bay.png.0123456789abcdef.barvon-save";
  const std::string note = bench.folder / "0123456789abcdef.barvon-note";
  Write_Text(left, "half a picture");
  Write_Text(note, left);
  bench.Action("mnuGraph(0)")->trigger();
  ASSERT_TRUE(Wait_Until([&] { return Viewers().size() == 1; }));
  EXPECT_FALSE(std::filesystem::exists(left));
  EXPECT_FALSE(std::filesystem::exists(note));
  EXPECT_TRUE(Ends(Viewers().at(0)));
}

}  // namespace
}  // namespace barvon::testing
