#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>

#include "batch/batch_fixture.h"
#include "run/child_support.h"

namespace barvon::testing {
namespace {

using Lines = std::vector<std::string>;

/// Calls that are killed outright, and what the next one makes of it.
class BatchLeftovers : public BatchProgram {
 protected:
  /// Kills a run once its solver, which has started a process of its own, is at work.
  void Kill_A_Run() {
    Put_Sample(kHopper, "site.DUI");
    Put_Solver("sleep 600 &\necho $! > " + Path("child") + "\necho $$ > " + Path("part") + "\nmv " +
               Path("part") + " " + Path("solver") + "\nwait\n");
    const Program_Result result = Run_Program(
        Start_Of({"run", "--solver-dir", "solvers", "site.DUI"}), [this](pid_t process) {
          if (Exists(Path("solver"))) kill(process, SIGKILL);
        });
    ASSERT_EQ(result.signal, SIGKILL);
  }
  bool Ends(const char* file) {
    return Comes_True([&] { return !Is_Alive(Pid_In(Path(file))); });
  }

  static constexpr char kWorkingFile[] = "site.DUI.0123456789abcdef.barvon-save";
};

TEST_F(BatchLeftovers, A_Run_That_Is_Killed_Takes_Its_Solver_With_It) {
  Kill_A_Run();
  EXPECT_TRUE(Ends("solver"));
  kill(Pid_In(Path("child")), SIGKILL);
}

TEST_F(BatchLeftovers, Jobs_Whose_Starter_Is_Killed_Stop_Their_Solvers_And_Clean_Up) {
  Put_Sample(kHopper, "a.DUI");
  Put_Sample(kHopper, "b.DUI");
  std::filesystem::create_directory(Path("ready"));
  Put_Solver("echo $$ > part\nmv part " + Path("ready") + "/$$\nwhile :; do sleep 1; done\n");
  const auto solvers = [this] { return Names_In(Path("ready")); };
  const Program_Result result =
      Run_Program(Start_Of({"run", "--jobs", "2", "--solver-dir", "solvers", "a.DUI", "b.DUI"}),
                  [&](pid_t process) {
                    if (solvers().size() == 2) kill(process, SIGKILL);
                  });
  EXPECT_EQ(result.signal, SIGKILL);
  for (const std::string& solver : solvers()) {
    EXPECT_TRUE(Comes_True([&] { return !Is_Alive(std::stoi(solver)); }));
  }
  EXPECT_TRUE(Comes_True([this] { return Left_Behind().empty(); }));
}

TEST_F(BatchLeftovers, The_Next_Call_Removes_The_Killed_Ones_Scratch_Folder_And_What_Runs_In_It) {
  Kill_A_Run();
  EXPECT_EQ(Left_Behind().size(), 1u);
  EXPECT_TRUE(Is_Alive(Pid_In(Path("child"))));
  EXPECT_EQ(Batch({"check", "site.DUI"}).code, 0);
  EXPECT_EQ(Left_Behind(), Lines{});
  EXPECT_TRUE(Ends("child"));
}

TEST_F(BatchLeftovers, Scratch_Folders_Of_Living_Programs_And_Foreign_Ones_Stay) {
  Put_Sample(kHopper, "site.DUI");
  Put_Solver(std::string("echo $$ > solver\nwhile [ ! -e ") + Path("go") +
             " ]; do sleep 0.02; done\n" + kAllOutputsScript);
  std::filesystem::create_directory(Path("tmp/barvon-run-foreign"));
  Write_Text(Path("tmp/barvon-run-foreign/data"), "x");
  bool called = false;
  const Program_Result result =
      Run_Program(Start_Of({"run", "--solver-dir", "solvers", "site.DUI"}), [&](pid_t) {
        if (called || Left_Behind().size() < 2) return;
        const std::string other =
            Left_Behind()[0] == "barvon-run-foreign" ? Left_Behind()[1] : Left_Behind()[0];
        if (!Exists(Path("tmp/" + other + "/solver"))) return;
        called = true;
        EXPECT_EQ(Batch({"check", "site.DUI"}).code, 0);
        EXPECT_EQ(Left_Behind().size(), 2u);
        Write_Text(Path("go"), "");
      });
  EXPECT_TRUE(called);
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(Left_Behind(), Lines{"barvon-run-foreign"});
}

TEST_F(BatchLeftovers, Working_Files_Of_Killed_Saves_Are_Cleared_From_The_Folders_Of_The_Files) {
  Put_Sample(kHopper, "sub/site.DUI");
  std::filesystem::create_directory(Path("out"));
  std::filesystem::create_directory(Path("links"));
  std::filesystem::create_directory(Path("other"));
  std::filesystem::create_symlink(Path("sub/site.DUI"), Path("links/site.DUI"));
  for (const char* folder : {"sub/", "links/", "out/", "other/"}) {
    Write_Text(Path(std::string(folder) + kWorkingFile), "part of a save");
  }
  EXPECT_EQ(Batch({"export", "links/site.DUI", "-o", "out"}).code, 0);
  EXPECT_EQ(Names_In(Path("sub")), Lines{"site.DUI"});
  EXPECT_EQ(Names_In(Path("links")), Lines{"site.DUI"});
  EXPECT_EQ(Names_In(Path("out")), Lines{"site.DUE"});
  EXPECT_EQ(Names_In(Path("other")), Lines{kWorkingFile});
}

TEST_F(BatchLeftovers, The_Working_File_Of_A_Save_Under_Way_Stays) {
  Put_Sample(kHopper, "site.DUI");
  Write_Text(Path(kWorkingFile), "part of a save");
  const int writer = open(Path(kWorkingFile).c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(writer, LOCK_EX), 0);
  EXPECT_EQ(Batch({"check", "site.DUI"}).code, 0);
  EXPECT_TRUE(Exists(Path(kWorkingFile)));
  close(writer);
  EXPECT_EQ(Batch({"check", "site.DUI"}).code, 0);
  EXPECT_FALSE(Exists(Path(kWorkingFile)));
}

}  // namespace
}  // namespace barvon::testing
