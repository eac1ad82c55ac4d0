#include "platform/process/process_control.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "platform/process/bounded_output.h"
#include "run/child_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;
using std::chrono::milliseconds;

constexpr milliseconds kLongGrace{600000};  // longer than any test lasts

struct ProcessControl : ::testing::Test {
  int Start(std::vector<std::string> steps) {
    start.command = {BARVON_TEST_CHILD};
    start.command.insert(start.command.end(), steps.begin(), steps.end());
    start.folder = folder.path();
    start.output_file = folder / "output.log";
    return process.Start(start);
  }
  void Wait() {
    ASSERT_TRUE(Comes_True([this] { return !process.Poll(); }));
  }
  bool Came(const std::string& name) {
    return Comes_True([&] {
      process.Poll();
      return Exists(folder / name);
    });
  }

  Scratch_Folder folder;
  Process_Start start;
  External_Process process;
};

TEST_F(ProcessControl, A_Program_Runs_In_Its_Folder_And_Ends_With_Its_Code) {
  ASSERT_EQ(Start({"write:made=here", "exit:7"}), 0);
  EXPECT_TRUE(process.Is_Running());
  Wait();
  EXPECT_FALSE(process.Is_Running());
  EXPECT_EQ(process.End().exit_code, 7);
  EXPECT_EQ(process.End().signal, 0);
  EXPECT_FALSE(process.End().stopped);
  EXPECT_EQ(Read_Text(folder / "made"), "here");
}

TEST_F(ProcessControl, A_Death_By_Signal_Is_Told_Apart_From_A_Code) {
  ASSERT_EQ(Start({"signal:11"}), 0);
  Wait();
  EXPECT_EQ(process.End().signal, SIGSEGV);
  EXPECT_FALSE(process.End().stopped);
}

TEST_F(ProcessControl, A_Start_That_Fails_Says_Why) {
  start.command = {folder / "none"};
  EXPECT_EQ(process.Start(start), ENOENT);
  Write_Text(folder / "plain", "text");
  start.command = {folder / "plain"};
  EXPECT_EQ(process.Start(start), EACCES);
  std::filesystem::permissions(folder / "plain", std::filesystem::perms::owner_all);
  EXPECT_EQ(process.Start(start), ENOEXEC);
  start.command = {BARVON_TEST_CHILD};
  start.folder = folder / "none";
  EXPECT_EQ(process.Start(start), ENOENT);
  start.command.clear();
  EXPECT_EQ(process.Start(start), EINVAL);
  EXPECT_FALSE(process.Is_Running());
  EXPECT_FALSE(process.Poll());
}

TEST_F(ProcessControl, A_Second_Start_Waits_For_The_First_To_End) {
  ASSERT_EQ(Start({"await:go"}), 0);
  EXPECT_EQ(Start({}), EBUSY);
  Write_Text(folder / "go", "");
  Wait();
  EXPECT_EQ(Start({"exit:3"}), 0);
  Wait();
  EXPECT_EQ(process.End().exit_code, 3);
}

TEST_F(ProcessControl, Arguments_Reach_The_Program_As_They_Are) {
  const std::string odd = "note:note";
  ASSERT_EQ(Start({odd, "x y", "$HOME;*`ls`\"'", ""}), 0);
  Wait();
  const std::string note = Read_Text(folder / "note");
  EXPECT_NE(note.find("argument note:note\nargument x y\nargument $HOME;*`ls`\"'\nargument \n"),
            std::string::npos)
      << note;
}

TEST_F(ProcessControl, A_Program_Gets_No_Input_No_Open_Files_And_Default_Signals) {
  const int open = ::open((folder / "secret").c_str(), O_CREAT | O_RDWR, 0600);
  ASSERT_GE(open, 0);
  sigset_t blocked, former;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  sigprocmask(SIG_BLOCK, &blocked, &former);
  const auto handler = ::signal(SIGPIPE, SIG_IGN);
  const int error = Start({"note:note"});
  sigprocmask(SIG_SETMASK, &former, nullptr);
  ::signal(SIGPIPE, handler);
  ::close(open);
  ASSERT_EQ(error, 0);
  Wait();
  EXPECT_EQ(Read_Text(folder / "note"), "argument note:note\nfolder " + folder.path() +
                                            "\nown group yes\ninput empty\nopen files 0 1 2 "
                                            "\nsignals \n");
}

TEST_F(ProcessControl, Added_Environment_Entries_Replace_Those_Of_The_Same_Name) {
  const Changed_Variable path("PATH", "/usr/bin:/bin");
  ::setenv("BARVON_TEST_VALUE", "old", 1);
  start.environment = {"BARVON_TEST_VALUE=new=1"};
  ASSERT_EQ(Start({"value:BARVON_TEST_VALUE", "value:PATH"}), 0);
  ::unsetenv("BARVON_TEST_VALUE");
  Wait();
  EXPECT_EQ(process.Last_Output(), std::string("new=1\n") + ::getenv("PATH") + "\n");
}

TEST_F(ProcessControl, Output_And_Errors_Go_To_The_File_And_Their_End_Is_At_Hand) {
  ASSERT_EQ(Start({"print:one", "error:two", "print:three"}), 0);
  Wait();
  EXPECT_EQ(Read_Text(folder / "output.log"), "one\ntwo\nthree\n");
  EXPECT_EQ(process.Last_Output(), "one\ntwo\nthree\n");
}

TEST_F(ProcessControl, A_Silent_Program_Makes_No_File_And_Removes_The_Old_One) {
  Write_Text(folder / "output.log", "of an earlier run");
  ASSERT_EQ(Start({}), 0);
  Wait();
  EXPECT_FALSE(Exists(folder / "output.log"));
  EXPECT_EQ(process.Last_Output(), "");
}

TEST_F(ProcessControl, A_Link_Under_The_Output_Files_Name_Is_Not_Followed) {
  Write_Text(folder / "precious", "kept");
  std::filesystem::create_symlink(folder / "precious", folder / "output.log");
  ASSERT_EQ(Start({"print:mine"}), 0);
  Wait();
  EXPECT_EQ(Read_Text(folder / "precious"), "kept");
  EXPECT_FALSE(std::filesystem::is_symlink(folder / "output.log"));
  EXPECT_EQ(Read_Text(folder / "output.log"), "mine\n");
}

TEST_F(ProcessControl, A_Link_Planted_While_The_Program_Runs_Is_Not_Followed) {
  Write_Text(folder / "precious", "kept");
  ASSERT_EQ(Start({"await:go", "print:mine"}), 0);
  std::filesystem::create_symlink(folder / "precious", folder / "output.log");
  Write_Text(folder / "go", "");
  Wait();
  EXPECT_EQ(Read_Text(folder / "precious"), "kept");
  EXPECT_EQ(process.Last_Output(), "mine\n");
}

TEST_F(ProcessControl, Much_Output_Loses_Its_Middle_And_The_File_Says_How_Much) {
  start.output_limit = 8192;
  ASSERT_EQ(Start({"print:first", "flood:3000000", "print:last"}), 0);
  Wait();
  const std::string kept = Read_Text(folder / "output.log");
  EXPECT_LE(kept.size(), 8192u);
  EXPECT_EQ(kept.substr(0, 6), "first\n");
  EXPECT_EQ(kept.substr(kept.size() - 5), "last\n");
  // 8192 = 6080 at the start + 64 for the note + 2048 at the end; 3000011 bytes were printed.
  EXPECT_NE(kept.find("\r\n[2991883 bytes left out]\r\n"), std::string::npos);
  EXPECT_LE(process.Last_Output().size(), 4096u);
  EXPECT_EQ(process.Last_Output().substr(0, 10), "the solver");
}

TEST_F(ProcessControl, Output_Without_End_Stays_Bounded_And_Can_Be_Stopped) {
  start.output_limit = 65536;
  ASSERT_EQ(Start({"flood:0"}), 0);
  for (int polls = 0; polls < 200; ++polls) ASSERT_TRUE(process.Poll());
  process.Stop_And_Wait();
  EXPECT_FALSE(process.Is_Running());
  EXPECT_TRUE(process.End().stopped);
  EXPECT_LE(Read_Text(folder / "output.log").size(), 65536u);
}

TEST_F(ProcessControl, Output_Is_Thrown_Away_When_No_File_Is_Named) {
  start.command = {BARVON_TEST_CHILD, "print:one", "exit:2"};
  start.folder = folder.path();
  ASSERT_EQ(process.Start(start), 0);
  Wait();
  EXPECT_EQ(process.End().exit_code, 2);
  EXPECT_EQ(process.Last_Output(), "");
  EXPECT_TRUE(Names_In(folder.path()).empty());
}

TEST_F(ProcessControl, What_Is_Left_Running_Does_Not_Hold_Up_The_End_And_Is_Killed) {
  ASSERT_EQ(Start({"ignore-term", "child:left", "session:apart", "orphan:alone", "await:left",
                   "await:apart", "await:alone", "print:done", "exit:4"}),
            0);
  Wait();
  EXPECT_EQ(process.End().exit_code, 4);
  EXPECT_FALSE(process.End().stopped);
  EXPECT_EQ(process.Last_Output(), "done\n");
  for (const char* left : {"left", "apart", "alone"}) {
    EXPECT_TRUE(Comes_True([&] { return !Is_Alive(Pid_In(folder / left)); })) << left;
  }
}

TEST_F(ProcessControl, Its_End_Is_Told_By_A_Descriptor) {
  EXPECT_EQ(process.End_Descriptor(), -1);
  ASSERT_EQ(Start({"await:go"}), 0);
  pollfd end{process.End_Descriptor(), POLLIN, 0};
  ASSERT_GE(end.fd, 0);
  EXPECT_EQ(::poll(&end, 1, 0), 0);
  Write_Text(folder / "go", "");
  EXPECT_EQ(::poll(&end, 1, -1), 1);
  EXPECT_FALSE(process.Poll());
  EXPECT_EQ(process.End_Descriptor(), -1);
}

TEST_F(ProcessControl, An_End_That_Is_Known_Is_Told_No_More_While_What_It_Started_Lives) {
  ASSERT_EQ(Start({"ignore-term", "session:session", "heed-term", "pid:self", "await:never"}), 0);
  ASSERT_TRUE(Came("session") && Came("self"));
  process.Stop(kLongGrace);
  pollfd end{process.End_Descriptor(), POLLIN, 0};
  EXPECT_EQ(::poll(&end, 1, -1), 1);
  EXPECT_TRUE(process.Poll());
  EXPECT_EQ(process.End_Descriptor(), -1);
  process.Stop(milliseconds(0));
  Wait();
}

TEST_F(ProcessControl, Stop_Asks_Politely) {
  ASSERT_EQ(Start({"pid:self", "child:child", "await:never"}), 0);
  ASSERT_TRUE(Came("self") && Came("child"));
  process.Stop(kLongGrace);
  Wait();
  EXPECT_TRUE(process.End().stopped);
  EXPECT_EQ(process.End().signal, SIGTERM);
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "self")));
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "child")));
}

TEST_F(ProcessControl, Stop_Uses_Force_When_The_Grace_Is_Over) {
  ASSERT_EQ(Start({"ignore-term", "child:child", "pid:self", "await:never"}), 0);
  ASSERT_TRUE(Came("self") && Came("child"));
  process.Stop(milliseconds(1));
  Wait();
  EXPECT_TRUE(process.End().stopped);
  EXPECT_EQ(process.End().signal, SIGKILL);
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "self")));
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "child")));
}

TEST_F(ProcessControl, A_Second_Stop_May_Shorten_The_Grace) {
  ASSERT_EQ(Start({"ignore-term", "pid:self", "await:never"}), 0);
  ASSERT_TRUE(Came("self"));
  process.Stop(kLongGrace);
  EXPECT_TRUE(process.Poll());
  process.Stop(milliseconds(0));
  Wait();
  EXPECT_EQ(process.End().signal, SIGKILL);
}

TEST_F(ProcessControl, Stop_Reaches_Children_In_Sessions_Of_Their_Own) {
  ASSERT_EQ(Start({"session:session", "orphan:orphan", "await:never"}), 0);
  ASSERT_TRUE(Came("session") && Came("orphan"));
  process.Stop(kLongGrace);
  Wait();
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "session")));
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "orphan")));
}

TEST_F(ProcessControl, The_End_Of_A_Stopped_Program_Is_The_End_Of_Its_Children) {
  ASSERT_EQ(Start({"ignore-term", "session:session", "heed-term", "pid:self", "await:never"}), 0);
  ASSERT_TRUE(Came("session") && Came("self"));
  process.Stop(kLongGrace);
  ASSERT_TRUE(Comes_True([this] { return !Is_Alive(Pid_In(folder / "self")); }));
  EXPECT_TRUE(process.Poll());
  EXPECT_TRUE(Is_Alive(Pid_In(folder / "session")));
  process.Stop(milliseconds(0));
  Wait();
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "session")));
  EXPECT_EQ(process.End().signal, SIGTERM);
}

TEST_F(ProcessControl, The_End_Of_The_Object_Is_The_End_Of_The_Program) {
  {
    External_Process other;
    Process_Start it;
    it.command = {BARVON_TEST_CHILD, "ignore-term", "session:session",
                  "child:child",     "pid:self",    "await:never"};
    it.folder = folder.path();
    ASSERT_EQ(other.Start(it), 0);
    ASSERT_TRUE(Came("self") && Came("session") && Came("child"));
  }
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "self")));
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "session")));
  EXPECT_FALSE(Is_Alive(Pid_In(folder / "child")));
}

TEST_F(ProcessControl, A_Program_Dies_With_Its_Starter_However_That_Dies) {
  const pid_t starter = fork();
  ASSERT_GE(starter, 0);
  if (starter == 0) {
    External_Process other;
    Process_Start it;
    it.command = {BARVON_TEST_CHILD, "ignore-term", "pid:self", "await:never"};
    it.folder = folder.path();
    if (other.Start(it) == 0) pause();
    _exit(1);
  }
  ASSERT_TRUE(Comes_True([this] { return Exists(folder / "self"); }));
  EXPECT_TRUE(Is_Alive(Pid_In(folder / "self")));
  ::kill(starter, SIGKILL);
  ::waitpid(starter, nullptr, 0);
  EXPECT_TRUE(Comes_True([this] { return !Is_Alive(Pid_In(folder / "self")); }));
}

TEST_F(ProcessControl, Stop_After_The_End_Changes_Nothing) {
  process.Stop();
  ASSERT_EQ(Start({"exit:5"}), 0);
  Wait();
  process.Stop();
  process.Stop_And_Wait();
  EXPECT_EQ(process.End().exit_code, 5);
  EXPECT_FALSE(process.End().stopped);
}

TEST_F(ProcessControl, Duration_Stands_Still_After_The_End) {
  EXPECT_EQ(process.Duration(), milliseconds(0));
  ASSERT_EQ(Start({"sleep:30"}), 0);
  Wait();
  const milliseconds duration = process.Duration();
  EXPECT_GE(duration, milliseconds(30));
  std::this_thread::sleep_for(milliseconds(5));
  EXPECT_EQ(process.Duration(), duration);
}

TEST(BoundedOutput, Output_Up_To_The_Limit_Is_Kept_Whole) {
  const Scratch_Folder folder;
  Bounded_Output output;
  output.Begin(folder / "log", 1024);
  // 704 bytes at the start and 256 at the end find room beside the note's 64.
  output.Add(std::string(900, 'a'));
  output.Add(std::string(60, 'b'));
  output.Finish();
  EXPECT_EQ(Read_Text(folder / "log"), std::string(900, 'a') + std::string(60, 'b'));
}

TEST(BoundedOutput, One_Byte_Too_Many_Is_Left_Out_And_Told) {
  const Scratch_Folder folder;
  Bounded_Output output;
  output.Begin(folder / "log", 1024);
  output.Add(std::string(704, 'a') + "b" + std::string(256, 'c'));
  output.Finish();
  EXPECT_EQ(Read_Text(folder / "log"),
            std::string(704, 'a') + "\r\n[1 bytes left out]\r\n" + std::string(256, 'c'));
}

TEST(BoundedOutput, Last_Lines_Begin_With_A_Whole_Line) {
  Bounded_Output output;
  for (int line = 0; line < 1000; ++line) output.Add("line of eighteen.\n");
  // 4096 bytes hold 227 lines of 18 bytes and the end of another, which goes.
  EXPECT_EQ(output.Last_Lines().size(), 227u * 18u);
  EXPECT_EQ(output.Last_Lines().substr(0, 5), "line ");
}

TEST(BoundedOutput, A_File_That_Can_Not_Be_Made_Costs_Only_The_File) {
  const Scratch_Folder folder;
  Bounded_Output output;
  output.Begin(folder / "none/log", 1024);
  output.Add("text\n");
  output.Finish();
  EXPECT_EQ(output.Last_Lines(), "text\n");
}

}  // namespace
}  // namespace barvon
