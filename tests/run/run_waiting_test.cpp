#include "run/run_driver.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/files/app_folder.h"
#include "platform/files/folder_lock.h"
#include "run/run_driver_fixture.h"
#include "run/view_results.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

using RunWaiting = RunDriver;

TEST_F(RunWaiting, The_Interface_Lives_During_A_Run) {
  Install(std::string("await:go\n") + kWritesAll);
  bench.While_Waiting([this] {
    EXPECT_TRUE(Run_Is_Under_Way());
    if (bench.pumped == 40) Write_Text(bench / "go", "");
  });
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_GE(bench.pumped, 40);
  EXPECT_EQ(bench.states,
            (std::vector<std::string>{"on " + (bench / "merak32"), "off " + (bench / "merak32")}));
}

TEST_F(RunWaiting, Run_During_A_Run_Starts_Nothing_And_Says_So) {
  Install(std::string("write:tmpfile.part=p\nawait:go\n") + kWritesAll);
  Run_Report second;
  bench.While_Waiting([&] {
    if (!Exists(bench / "tmpfile.part") || Exists(bench / "go")) return;
    second = Run_Model(record);
    EXPECT_TRUE(Exists(bench / "tmpfile.part"));
    Write_Text(bench / "go", "");
  });
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_EQ(second.stage, Run_Stage::Refused);
  EXPECT_EQ(bench.states.size(), 2u);
  ASSERT_EQ(bench.notes.size(), 2u);
  EXPECT_EQ(bench.notes[0].text, "Not run: another run is under way.");
}

TEST_F(RunWaiting, A_Viewer_That_Stays_Open_Does_Not_Keep_A_Run_From_Starting) {
  Install(kWritesAll);
  bench.Install_Viewer();
  Watched_Programs watched;
  Graph_Command(record, 0);
  bench.Viewers(1);
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_EQ(watched.Open(), 1u);
  Write_Text(bench / "close", "");
  EXPECT_TRUE(Comes_True([&] { return watched.Open() == 0; }));
}

TEST_F(RunWaiting, A_Viewer_Opened_During_A_Run_Does_Not_Hold_Up_The_Runs_End) {
  Install(std::string("await:go\n") + kWritesAll);
  bench.Install_Viewer();
  Watched_Programs watched;
  bench.While_Waiting([this] {
    if (bench.pumped > 1) return;
    Graph_Command(record, 0);
    bench.Viewers(1);
    Write_Text(bench / "go", "");
  });
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_EQ(watched.Open(), 1u);
  Write_Text(bench / "close", "");
  EXPECT_TRUE(Comes_True([&] { return watched.Open() == 0; }));
}

TEST_F(RunWaiting, A_Run_Of_Another_Program_In_The_Same_Folder_Is_Not_Disturbed) {
  Install(kWritesAll);
  Write_Text(bench / "Tmpfile.Due", "of the other program");
  {
    const Folder_Lock other(Application_Folder());
    EXPECT_EQ(Run().stage, Run_Stage::Refused);
  }
  EXPECT_EQ(Read_Text(bench / "Tmpfile.Due"), "of the other program");
  EXPECT_TRUE(bench.states.empty());
  EXPECT_EQ(Note(), "Not run: another run is under way.");
  EXPECT_TRUE(Run().Succeeded());
}

TEST_F(RunWaiting, A_Stopped_Run_Leaves_Earlier_Outputs_And_Nothing_Running) {
  Write_Text(base + ".duo", "older");
  Install(std::string(kWritesAll) + "session:grandchild\nawait:never\n");
  bench.While_Waiting([this] {
    if (Exists(bench / "grandchild")) Stop_Run();
  });
  const Run_Report report = Run();
  EXPECT_EQ(report.stage, Run_Stage::Stopped);
  EXPECT_FALSE(report.Succeeded());
  EXPECT_TRUE(report.kept.empty());
  EXPECT_EQ(Kept(".duo"), "older");
  EXPECT_FALSE(Exists(base + ".dup"));
  EXPECT_FALSE(Is_Alive(Pid_In(bench / "grandchild")));
  EXPECT_EQ(Note().substr(0, Note().find(" after")), (bench / "merak32") + " was stopped");
  EXPECT_TRUE(shown.empty());
}

TEST_F(RunWaiting, The_Programs_End_During_A_Run_Touches_Nothing_More) {
  Write_Text(base + ".duo", "older");
  Install(std::string(kWritesAll) + "ignore-term\nchild:grandchild\nawait:never\n");
  bench.While_Waiting([this] {
    if (!Exists(bench / "grandchild")) return;
    Stop_Run_And_Wait();
    EXPECT_FALSE(Is_Alive(Pid_In(bench / "grandchild")));
    Port().board.show_note = [](const Status_Note&) { ADD_FAILURE() << "the window is gone"; };
    Port().run.state = [](bool, const std::string&) { ADD_FAILURE() << "the window is gone"; };
  });
  const Run_Report report = Run();
  EXPECT_EQ(report.stage, Run_Stage::Stopped);
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(Kept(".duo"), "older");
  EXPECT_FALSE(Exists(base + ".dup"));
  EXPECT_FALSE(Exists(bench / "BARVON.INI"));
}

TEST_F(RunWaiting, A_Run_That_Ends_By_Itself_As_The_Program_Ends_Is_Not_Kept_Either) {
  Install(std::string("pid:self\nawait:go\n") + kWritesAll);
  bench.While_Waiting([this] {
    if (!Exists(bench / "self")) return;
    Write_Text(bench / "go", "");
    EXPECT_TRUE(Comes_True([this] { return !Is_Alive(Pid_In(bench / "self")); }));
    Stop_Run_And_Wait();
  });
  EXPECT_EQ(Run().stage, Run_Stage::Stopped);
  EXPECT_FALSE(Exists(base + ".duo"));
}

TEST_F(RunWaiting, Set_Application_Directory_Makes_It_The_Current_One) {
  fs::current_path("/");
  Set_Application_Directory();
  EXPECT_EQ(fs::current_path(), bench.app());
}

}  // namespace
}  // namespace barvon
