#include "platform/qt/toolkit_files.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "support/plain_support.h"
#include "support/run_program.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;

/// The programs in a folder of which others have made what the toolkit looks for beside a program.
class ToolkitFiles : public ::testing::Test {
 protected:
  ToolkitFiles() {
    fs::create_directories(folder_);
    for (const char* kind : {"platforms", "platformthemes", "platforminputcontexts", "styles",
                             "imageformats", "iconengines", "sqldrivers", "printsupport"}) {
      fs::create_directory(folder_ + "/" + kind);
      Write_Text(folder_ + "/" + kind + "/libplant.so", "no library");
    }
    Write_Text(scratch_ / "victim", "precious");
    fs::create_symlink(scratch_ / "victim", folder_ + "/QtProject.conf");
    for (const char* name : {"/qt.conf", "/qt6.conf"}) {
      Write_Text(folder_ + name, "[Paths]\nPrefix=" + folder_ + "\nPlugins=" + folder_ + "\n");
    }
  }

  /// Starts it and, where it shows windows, ends it once it can be ended; gives back the folders in
  /// which it has looked for plugins.
  std::vector<std::string> Searched(const std::string& program,
                                    const std::vector<std::string>& arguments,
                                    const std::string& plugins = {}) {
    const std::string copy = folder_ + "/" + fs::path(program).filename().string();
    fs::copy_file(program, copy, fs::copy_options::skip_existing);
    Program_Start start{{copy}, scratch_.path(), {}, {}};
    start.command.insert(start.command.end(), arguments.begin(), arguments.end());
    start.environment = {"QT_QPA_PLATFORM=offscreen", "QT_DEBUG_PLUGINS=1",
                         "XDG_DATA_HOME=" + (scratch_ / "data")};
    if (!plugins.empty()) start.environment.push_back("QT_PLUGIN_PATH=" + plugins);
    bool told = false;
    // Once: a second signal could come when the program no longer waits for one.
    const auto end = [&](pid_t process) {
      if (!told) told = End_When_Ready(process);
    };
    const Program_Result result = arguments.empty() ? Run_Program(start, end) : Run_Program(start);
    EXPECT_EQ(result.code, 0) << "signal " << result.signal << "\n" << result.err;
    constexpr std::string_view kLooks = "checking directory path \"";
    std::vector<std::string> searched;
    for (const std::string& line : Printed_Lines(result.err)) {
      const std::size_t at = line.find(kLooks);
      if (at == line.npos) continue;
      const std::string path = line.substr(at + kLooks.size());
      searched.push_back(path.substr(0, path.find('"')));
    }
    return searched;
  }
  static bool End_When_Ready(pid_t process) {
    const std::string status = Read_Text("/proc/" + std::to_string(process) + "/status");
    const std::size_t at = status.find("SigCgt:");
    if (at == status.npos) return false;
    const auto caught = std::stoull(status.substr(at + 7), nullptr, 16);
    return ((caught >> (SIGTERM - 1)) & 1) != 0 && ::kill(process, SIGTERM) == 0;
  }
  std::ptrdiff_t Within(const std::vector<std::string>& searched, const std::string& folder) {
    return std::ranges::count_if(
        searched, [&](const std::string& path) { return path.starts_with(folder + "/"); });
  }

  Scratch_Folder scratch_;
  // What separates two folders in a list of them may be a letter of one's name.
  const std::string folder_ = scratch_ / "disposal: north";
};

TEST_F(ToolkitFiles, Beside_A_Program_Are_Neither_Loaded_Nor_Written) {
  for (const char* program : {BARVON_PROGRAM, BARVON_GRAPHS_PROGRAM}) {
    const std::vector<std::string> searched = Searched(program, {});
    EXPECT_GT(searched.size(), 0u);
    EXPECT_EQ(Within(searched, folder_), 0) << program;
    EXPECT_EQ(Read_Text(scratch_ / "victim"), "precious");
    EXPECT_TRUE(fs::is_symlink(folder_ + "/QtProject.conf"));
  }
}

TEST_F(ToolkitFiles, Are_Not_Loaded_For_A_Report_On_Paper_Either) {
  const std::string report = scratch_ / "site.pdf";
  const std::string sample = std::string(BARVON_SAMPLES) + "/Barge_Four_Layers.DUI";
  EXPECT_EQ(Within(Searched(BARVON_PROGRAM, {"--report-pdf", sample, report}), folder_), 0);
  EXPECT_EQ(Read_Text(report).substr(0, 5), "%PDF-");
}

TEST_F(ToolkitFiles, That_The_User_Names_Are_Looked_For) {
  fs::create_directories(scratch_ / "own/platforms");
  const std::vector<std::string> searched = Searched(BARVON_PROGRAM, {}, scratch_ / "own");
  EXPECT_GT(Within(searched, scratch_ / "own"), 0);
  EXPECT_EQ(Within(searched, folder_), 0);
}

}  // namespace
}  // namespace barvon::testing
