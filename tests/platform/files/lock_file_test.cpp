#include "platform/files/lock_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <thread>
#include <vector>

#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace testing;
using Outcome = Lock_File::Outcome;
using Foreign = Lock_File::Foreign;

/// Another process that does this and ends with its result.
pid_t In_A_Process(const std::function<int()>& act) {
  const pid_t process = ::fork();
  if (process == 0) ::_exit(act());
  return process;
}

int Result_Of(pid_t process) {
  int status = 0;
  ::waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A process that holds the lock until it is killed.
pid_t Holder_Of(const std::string& path) {
  int pipe[2];
  if (::pipe(pipe) != 0) return -1;
  const pid_t process = In_A_Process([&] {
    Lock_File lock;
    const char taken = lock.Take(path) == Outcome::Taken ? 1 : 0;
    if (::write(pipe[1], &taken, 1) != 1) return 1;
    for (;;) ::pause();
  });
  char taken = 0;
  EXPECT_EQ(::read(pipe[0], &taken, 1), 1);
  EXPECT_EQ(taken, 1);
  for (const int end : pipe) ::close(end);
  return process;
}

void Kill(pid_t process) {
  ::kill(process, SIGKILL);
  ::waitpid(process, nullptr, 0);
}

struct Lock : ::testing::Test {
  Scratch_Folder folder;
  const std::string path = folder / ".site.DUI.barvon-lock";
};

TEST_F(Lock, Is_A_File_That_Says_Whose_It_Is_And_Goes_With_Its_Holder) {
  {
    Lock_File lock;
    ASSERT_EQ(lock.Take(path), Outcome::Taken);
    const auto holder = Read_Holder(Read_Text(path));
    ASSERT_TRUE(holder);
    EXPECT_EQ(holder->process, ::getpid());
    EXPECT_EQ(holder->program, "plain_tests");
    EXPECT_FALSE(holder->user.empty());
    EXPECT_FALSE(holder->host.empty());
    EXPECT_EQ(State_Of(*holder), Holder_State::Runs);
  }
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{});
}

TEST_F(Lock, Of_A_Running_Process_Is_Told_And_Never_Taken) {
  const pid_t process = Holder_Of(path);
  for (const auto foreign : {Foreign::Stays, Foreign::Goes_When_Let_Go_Of, Foreign::Goes}) {
    Lock_File lock;
    EXPECT_EQ(lock.Take(path, foreign), Outcome::Held);
    ASSERT_TRUE(lock.Holder());
    EXPECT_EQ(lock.Holder()->process, process);
  }
  EXPECT_TRUE(Exists(path));
  Kill(process);
}

TEST_F(Lock, Of_A_Killed_Process_Is_Taken_Over_Without_A_Word) {
  Kill(Holder_Of(path));
  ASSERT_TRUE(Exists(path));
  Lock_File lock;
  EXPECT_EQ(lock.Take(path), Outcome::Taken);
  EXPECT_EQ(Read_Holder(Read_Text(path))->process, ::getpid());
}

TEST_F(Lock, Of_A_Process_Whose_Number_Another_One_Has_Now_Is_Taken_Over) {
  Lock_Holder former = This_Program();
  former.start = "1";
  Write_Text(path, Holder_Lines(former));
  EXPECT_EQ(State_Of(former), Holder_State::Has_Ended);
  Lock_File lock;
  EXPECT_EQ(lock.Take(path), Outcome::Taken);
}

TEST_F(Lock, Of_A_Start_Of_This_System_That_Is_Over_Is_Taken_Over) {
  Lock_Holder former = This_Program();
  former.boot = "another";
  // Without a number of its own a system can't tell its former starts from another one's.
  EXPECT_EQ(State_Of(former),
            former.machine.empty() ? Holder_State::Elsewhere : Holder_State::Has_Ended);
}

TEST_F(Lock, Of_Another_Host_Is_Taken_Only_When_A_Person_Wants_It) {
  Lock_Holder foreign = This_Program();
  foreign.host += "-2";
  foreign.user = "anna";
  Write_Text(path, Holder_Lines(foreign));
  Lock_File lock;
  EXPECT_EQ(lock.Take(path), Outcome::Held);
  EXPECT_EQ(lock.Holder()->user, "anna");
  EXPECT_EQ(Read_Text(path), Holder_Lines(foreign));
  EXPECT_EQ(lock.Take(path, Foreign::Goes), Outcome::Taken);
  EXPECT_EQ(Read_Holder(Read_Text(path))->process, ::getpid());
}

TEST_F(Lock, Of_Another_Hosts_Name_Goes_When_The_System_Has_Let_Go_Of_It) {
  Lock_Holder renamed = This_Program();
  renamed.host += "-2";
  for (const std::string& text : {Holder_Lines(renamed), std::string("torn")}) {
    Write_Text(path, text);
    Lock_File lock;
    EXPECT_EQ(lock.Take(path, Foreign::Goes_When_Let_Go_Of), Outcome::Taken);
    EXPECT_EQ(Read_Holder(Read_Text(path))->process, ::getpid());
  }
}

TEST_F(Lock, That_Is_Not_Possible_Tells_Why) {
  std::filesystem::create_directory(path);
  Lock_File lock;
  EXPECT_EQ(lock.Take(path), Outcome::Not_Possible);
  EXPECT_NE(lock.Error(), 0);
}

TEST_F(Lock, That_Says_Nothing_Is_Somebodys) {
  const std::string whole = Holder_Lines(This_Program());
  for (const std::string& text : {std::string(), std::string("x"), whole.substr(0, 40),
                                  whole.substr(0, whole.size() - 1), whole + "more"}) {
    Write_Text(path, text);
    Lock_File lock;
    EXPECT_EQ(lock.Take(path), Outcome::Held);
    EXPECT_FALSE(lock.Holder());
    EXPECT_EQ(lock.Take(path, Foreign::Goes), Outcome::Taken);
  }
}

TEST_F(Lock, A_Holder_Whose_Lock_Was_Taken_Leaves_The_Others_Alone) {
  Lock_File lock;
  ASSERT_EQ(lock.Take(path), Outcome::Taken);
  std::filesystem::remove(path);
  Lock_File other;
  ASSERT_EQ(other.Take(path), Outcome::Taken);
  lock.Release();
  EXPECT_TRUE(Exists(path));
}

TEST_F(Lock, Is_Not_Possible_Where_No_File_Can_Be_Or_A_Link_Has_The_Name) {
  Lock_File lock;
  EXPECT_EQ(lock.Take(folder / "none/lock"), Outcome::Not_Possible);
  Write_Text(folder / "precious", "x");
  std::filesystem::create_symlink(folder / "precious", path);
  EXPECT_EQ(lock.Take(path, Foreign::Goes), Outcome::Not_Possible);
  EXPECT_EQ(Read_Text(folder / "precious"), "x");
}

// Every round starts with what a killed program left, so that the takers race for taking it over.
TEST_F(Lock, In_A_Folder_That_Is_Renamed_Is_Still_The_Holders_And_Goes_With_It) {
  namespace fs = std::filesystem;
  fs::create_directory(folder / "one");
  Lock_File lock;
  ASSERT_EQ(lock.Take(folder / "one/.a"), Outcome::Taken);
  fs::rename(folder / "one", folder / "two");
  EXPECT_FALSE(lock.Is_Under(folder / "one/.a"));
  EXPECT_TRUE(lock.Is_Under(folder / "two/.a"));
  EXPECT_EQ(lock.Present_Path(), folder / "two/.a");
  const pid_t other = In_A_Process([&] {
    Lock_File second;
    return second.Take(folder / "two/.a") == Outcome::Held ? 0 : 1;
  });
  EXPECT_EQ(Result_Of(other), 0);
  // What has the old name now is somebody else's.
  fs::create_directory(folder / "one");
  Write_Text(folder / "one/.a", "x");
  lock.Release();
  EXPECT_FALSE(Exists(folder / "two/.a"));
  EXPECT_EQ(Read_Text(folder / "one/.a"), "x");
}

TEST_F(Lock, Of_A_Killed_Process_In_A_Renamed_Folder_Is_Taken_Over) {
  namespace fs = std::filesystem;
  fs::create_directory(folder / "one");
  const pid_t holder = Holder_Of(folder / "one/.a");
  fs::rename(folder / "one", folder / "two");
  Lock_File lock;
  EXPECT_EQ(lock.Take(folder / "two/.a"), Outcome::Held);
  Kill(holder);
  EXPECT_EQ(lock.Take(folder / "two/.a"), Outcome::Taken);
}

TEST_F(Lock, That_Somebody_Removed_Has_No_Place) {
  Lock_File lock;
  EXPECT_EQ(lock.Present_Path(), "");
  ASSERT_EQ(lock.Take(path), Outcome::Taken);
  std::filesystem::remove(path);
  EXPECT_EQ(lock.Present_Path(), "");
  EXPECT_FALSE(lock.Is_Under(path));
}

TEST_F(Lock, Of_Two_Processes_That_Want_It_At_Once_One_Gets_It) {
  Lock_Holder former = This_Program();
  former.start = "1";
  for (int round = 0; round < 60; ++round) {
    Write_Text(path, Holder_Lines(former));
    int gate[2], hold[2];
    ASSERT_EQ(::pipe(gate), 0);
    ASSERT_EQ(::pipe(hold), 0);
    std::vector<pid_t> takers;
    for (int i = 0; i < 3; ++i) {
      takers.push_back(In_A_Process([&] {
        ::close(gate[1]);
        ::close(hold[1]);
        char byte = 0;
        if (::read(gate[0], &byte, 1) != 0) return 9;
        Lock_File lock;
        const bool taken = lock.Take(path) == Outcome::Taken;
        // Nobody lets go before all have tried.
        const std::string mark = folder / ("tried" + std::to_string(::getpid()));
        Write_Text(mark, "");
        if (::read(hold[0], &byte, 1) != 0) return 9;
        return taken ? 1 : 0;
      }));
    }
    ::close(gate[0]);
    ::close(gate[1]);
    while (Names_In(folder.path()).size() < takers.size() + 1) std::this_thread::yield();
    ::close(hold[0]);
    ::close(hold[1]);
    int winners = 0;
    for (const pid_t taker : takers) winners += Result_Of(taker);
    EXPECT_EQ(winners, 1) << round;
    for (const std::string& name : Names_In(folder.path())) {
      if (name.starts_with("tried")) std::filesystem::remove(folder / name);
    }
    std::filesystem::remove(path);
  }
}

}  // namespace
}  // namespace barvon
