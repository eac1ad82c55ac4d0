#include "run/create_process.h"

#include <gtest/gtest.h>
#include <time.h>

#include <atomic>

#include "run/child_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

struct CreateProcess : ::testing::Test {
  Solver_Bench bench;
};

TEST_F(CreateProcess, A_Program_Runs_In_The_Application_Directory) {
  bench.Install("merak32", "note:note\nprint:working\nexit:3\n");
  std::filesystem::current_path("/");
  const Process_Outcome outcome = Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_TRUE(outcome.started);
  EXPECT_EQ(outcome.program, bench / "merak32");
  EXPECT_EQ(outcome.problem, "");
  EXPECT_EQ(outcome.end.exit_code, 3);
  EXPECT_EQ(outcome.last_output, "working\n");
  EXPECT_EQ(outcome.output_file, bench / "Tmpfile.log");
  EXPECT_EQ(Read_Text(outcome.output_file), "working\n");
  EXPECT_NE(Read_Text(bench / "note").find("folder " + bench.app() + "\n"), std::string::npos);
  EXPECT_EQ(bench.states,
            (std::vector<std::string>{"on " + (bench / "merak32"), "off " + (bench / "merak32")}));
}

TEST_F(CreateProcess, A_Launcher_Gets_The_Program_As_Its_Argument) {
  bench.Install("dos4gw", "note:note\n");
  EXPECT_EQ(Create_Process_Code("DOS4GW MERAK32.EXE").program, bench / "dos4gw");
  EXPECT_EQ(Read_Text(bench / "note").substr(0, 21), "argument MERAK32.EXE\n");
}

TEST_F(CreateProcess, A_Program_That_Is_Not_There_Is_Not_Started) {
  const Process_Outcome outcome = Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_FALSE(outcome.started);
  EXPECT_EQ(outcome.program, "DOS4GW MERAK32.EXE");
  EXPECT_EQ(outcome.problem.substr(0, 24), "DOS4GW was found neither");
  EXPECT_TRUE(bench.states.empty());
  EXPECT_FALSE(Run_Is_Under_Way());
}

TEST_F(CreateProcess, A_Program_That_The_System_Refuses_Is_Not_Started) {
  Write_Text(bench / "merak32", "#!/no/such/interpreter\n");
  std::filesystem::permissions(bench / "merak32", std::filesystem::perms::owner_all);
  const Process_Outcome outcome = Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_FALSE(outcome.started);
  EXPECT_EQ(outcome.program, bench / "merak32");
  EXPECT_EQ(outcome.problem, (bench / "merak32") + ": No such file or directory");
  EXPECT_TRUE(bench.states.empty());
}

TEST_F(CreateProcess, A_Silent_Program_Has_No_Output_File) {
  bench.Install("merak32", "");
  EXPECT_EQ(Create_Process_Code("DOS4GW MERAK32.EXE").output_file, "");
}

TEST_F(CreateProcess, Output_Is_Shown_As_Text) {
  bench.Install("merak32", "print:\xE9t\xE9 \x1B[1m\r\n");
  EXPECT_EQ(Create_Process_Code("DOS4GW MERAK32.EXE").last_output, "\xC3\xA9t\xC3\xA9 [1m\n");
}

TEST_F(CreateProcess, The_Interface_Lives_And_The_Processor_Idles_While_It_Waits) {
  bench.Install("merak32", "await:go\nwrite:done=yes\n");
  bench.While_Waiting([this] {
    EXPECT_TRUE(Run_Is_Under_Way());
    if (bench.pumped == 60) Write_Text(bench / "go", "");
  });
  const auto seconds = [](clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double processor = seconds(CLOCK_THREAD_CPUTIME_ID), wall = seconds(CLOCK_MONOTONIC);
  Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_LT(seconds(CLOCK_THREAD_CPUTIME_ID) - processor, 0.25 * (seconds(CLOCK_MONOTONIC) - wall));
  EXPECT_GE(bench.pumped, 60);
  EXPECT_TRUE(Exists(bench / "done"));
  EXPECT_FALSE(Run_Is_Under_Way());
}

TEST_F(CreateProcess, The_End_Is_Told_And_Not_Looked_For) {
  bench.Install("merak32", "sleep:50\nexit:3\n");
  int waits = 0;
  Set_Event_Pump([&waits](std::chrono::milliseconds, int descriptor) {
    ++waits;
    Sleep_Until_Readable(descriptor, std::chrono::hours(1));
  });
  EXPECT_EQ(Create_Process_Code("DOS4GW MERAK32.EXE").end.exit_code, 3);
  EXPECT_EQ(waits, 1);
}

TEST_F(CreateProcess, A_Second_Program_Is_Not_Started_Beside_The_First) {
  bench.Install("merak32", "await:go\n");
  Process_Outcome second;
  bench.While_Waiting([&] {
    if (bench.pumped > 1) return;
    second = Create_Process_Code("DOS4GW MERAK32.EXE");
    Write_Text(bench / "go", "");
  });
  EXPECT_TRUE(Create_Process_Code("DOS4GW MERAK32.EXE").started);
  EXPECT_FALSE(second.started);
  EXPECT_EQ(second.problem, "another program is still at work");
  EXPECT_EQ(bench.states.size(), 2u);
}

TEST_F(CreateProcess, Stop_Without_A_Run_Does_Nothing) {
  Stop_Run();
  Stop_Run_And_Wait();
  EXPECT_TRUE(bench.states.empty());
}

TEST_F(CreateProcess, Stop_Ends_The_Program_And_What_It_Started) {
  bench.Install("merak32", "session:grandchild\nawait:never\n");
  bench.While_Waiting([this] {
    if (Exists(bench / "grandchild")) Stop_Run();
  });
  const Process_Outcome outcome = Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_TRUE(outcome.end.stopped);
  EXPECT_FALSE(outcome.program_ends);
  EXPECT_FALSE(Is_Alive(Pid_In(bench / "grandchild")));
}

TEST_F(CreateProcess, Stop_Uses_Force_Against_A_Program_That_Will_Not_End) {
  bench.Install("merak32", "ignore-term\nchild:grandchild\nawait:never\n");
  bench.While_Waiting([this] {
    if (Exists(bench / "grandchild")) Stop_Run();
  });
  const Process_Outcome outcome = Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_TRUE(outcome.end.stopped);
  EXPECT_EQ(outcome.end.signal, SIGKILL);
  EXPECT_FALSE(Is_Alive(Pid_In(bench / "grandchild")));
}

TEST_F(CreateProcess, Stop_And_Wait_Returns_When_All_Are_Gone) {
  bench.Install("merak32", "ignore-term\nchild:grandchild\nawait:never\n");
  bool gone = false;
  bench.While_Waiting([&] {
    if (!Exists(bench / "grandchild")) return;
    Stop_Run_And_Wait();
    gone = !Is_Alive(Pid_In(bench / "grandchild"));
    EXPECT_EQ(bench.states.size(), 2u);
    Stop_Run_And_Wait();
  });
  const Process_Outcome outcome = Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_TRUE(gone);
  EXPECT_TRUE(outcome.program_ends);
  EXPECT_TRUE(outcome.end.stopped);
  EXPECT_EQ(bench.states.size(), 2u);
}

TEST_F(CreateProcess, A_Run_Does_Not_Outlive_A_Program_That_Leaves_By_Exit) {
  bench.Install("merak32", "child:grandchild\npid:solver\nawait:never\n");
  bench.While_Waiting([this] {
    if (Exists(bench / "solver")) std::exit(7);
  });
  EXPECT_EXIT(
      {
        Stop_Run_At_Exit();
        Create_Process_Code("DOS4GW MERAK32.EXE");
      },
      ::testing::ExitedWithCode(7), "");
  EXPECT_TRUE(Comes_True([this] { return !Is_Alive(Pid_In(bench / "solver")); }));
  EXPECT_TRUE(Comes_True([this] { return !Is_Alive(Pid_In(bench / "grandchild")); }));
}

TEST_F(CreateProcess, The_Interface_Lives_While_The_Disk_Is_Waited_For_And_No_Run_Begins) {
  bench.Install("merak32", "");
  Process_Outcome second;
  bench.While_Waiting([&] {
    if (bench.pumped > 1) return;
    EXPECT_TRUE(Run_Is_Under_Way());
    second = Create_Process_Code("DOS4GW MERAK32.EXE");
    Stop_Run();
    Write_Text(bench / "go", "");
  });
  EXPECT_TRUE(
      Do_Aside([this] { EXPECT_TRUE(Comes_True([this] { return Exists(bench / "go"); })); }));
  EXPECT_EQ(second.problem, "another program is still at work");
  EXPECT_FALSE(Run_Is_Under_Way());
}

TEST_F(CreateProcess, The_Programs_End_Waits_For_What_Is_Done_Aside) {
  std::atomic<bool> done = false;
  bench.While_Waiting([&] {
    if (done) return;
    Write_Text(bench / "go", "");
    Stop_Run_And_Wait();
    EXPECT_TRUE(done);
  });
  EXPECT_FALSE(Do_Aside([&] {
    EXPECT_TRUE(Comes_True([this] { return Exists(bench / "go"); }));
    done = true;
  }));
}

TEST_F(CreateProcess, Endless_Output_Stays_Bounded) {
  bench.Install("merak32", "flood:0\n");
  bench.While_Waiting([this] {
    if (bench.pumped == 20) Stop_Run();
  });
  const Process_Outcome outcome = Create_Process_Code("DOS4GW MERAK32.EXE");
  EXPECT_TRUE(outcome.end.stopped);
  EXPECT_LE(Read_Text(bench / "Tmpfile.log").size(), 1u << 20);
  EXPECT_LE(outcome.last_output.size(), 4096u);
  EXPECT_GT(outcome.last_output.size(), 0u);
}

}  // namespace
}  // namespace barvon
