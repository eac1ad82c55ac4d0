#include "core/desk/project_hold.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <set>

#include "core/desk/load_record.h"
#include "core/desk/open_file.h"
#include "core/desk/reset_vars.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace testing;
namespace fs = std::filesystem;

constexpr char kOpened[] = "is open in another window: ";
constexpr char kChanged[] =
    "has been changed on the disk since it was opened or saved here. Save over it?";

struct ProjectHold : ::testing::Test {
  ProjectHold() {
    ::setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
    Release_Project();
    record->ProjectTitle = "first";
    EXPECT_TRUE(Save_File(path, kProjectKind, *record));
    Release_Project();
  }
  ~ProjectHold() override { Release_Project(); }

  /// The lock of a program of another host that has the project.
  void Held_Elsewhere() {
    Lock_Holder foreign = This_Program();
    foreign.host += "-2";
    foreign.user = "anna";
    Write_Text(lock, Holder_Lines(foreign));
  }
  bool Is_Mine() {
    const auto holder = Read_Holder(Exists(lock) ? Read_Text(lock) : "");
    return holder && holder->process == ::getpid() && holder->host == This_Program().host;
  }

  Scratch_Folder folder;
  std::string path = folder / "site.DUI";
  std::string lock = folder / ".site.DUI.barvon-lock";
  std::unique_ptr<ProjectRecord> record = Fresh_Record();
};

TEST_F(ProjectHold, An_Open_Project_Has_A_Lock_Until_Another_Takes_Its_Place) {
  const std::string other = folder / "other.DUI";
  fs::copy_file(path, other);
  ASSERT_TRUE(Open_Project(path, *record));
  EXPECT_TRUE(Is_Mine());
  ASSERT_TRUE(Open_Project(path, *record));  // again
  EXPECT_TRUE(Is_Mine());
  ASSERT_TRUE(Open_Project(other, *record));
  EXPECT_FALSE(Exists(lock));
  EXPECT_TRUE(Exists(folder / ".other.DUI.barvon-lock"));
  ASSERT_TRUE(Reset_Vars(*record));
  EXPECT_FALSE(Exists(folder / ".other.DUI.barvon-lock"));
}

TEST_F(ProjectHold, A_Save_Under_Another_Name_Takes_The_Lock_Along) {
  ASSERT_TRUE(Open_Project(path, *record));
  ASSERT_TRUE(Save_File(folder / "new.DUI", kProjectKind, *record));
  EXPECT_FALSE(Exists(lock));
  EXPECT_TRUE(Exists(folder / ".new.DUI.barvon-lock"));
}

TEST_F(ProjectHold, A_File_That_Is_No_Project_Leaves_The_Former_Ones_Lock) {
  ASSERT_TRUE(Open_Project(path, *record));
  Write_Text(folder / "bad.DUI", "x\n");
  Scripted_Messages messages({Answer::Ok, Answer::No});
  EXPECT_FALSE(Open_Project(folder / "bad.DUI", *record));
  EXPECT_TRUE(Is_Mine());
  EXPECT_FALSE(Exists(folder / ".bad.DUI.barvon-lock"));
}

TEST_F(ProjectHold, Who_Has_The_Project_Is_Told_And_No_Opens_Nothing) {
  Held_Elsewhere();
  record->ProjectTitle = "mine";
  Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Open_Project(path, *record));
  EXPECT_EQ(record->ProjectTitle, "mine");
  ASSERT_EQ(messages.shown.size(), 1U);
  const std::string& text = messages.shown[0].text;
  EXPECT_EQ(text.find("site.DUI is open in another window: anna on "), 0U) << text;
  EXPECT_NE(text.find("plain_tests (process " + std::to_string(::getpid()) + "), since 20"),
            std::string::npos)
      << text;
  EXPECT_EQ(messages.shown[0].on_return, Answer::No);
  EXPECT_EQ(Read_Holder(Read_Text(lock))->user, "anna");
}

TEST_F(ProjectHold, Yes_Takes_Over_What_Another_Host_Has) {
  Held_Elsewhere();
  Scripted_Messages messages({Answer::Yes});
  EXPECT_TRUE(Open_Project(path, *record));
  EXPECT_TRUE(Is_Mine());
}

/// Another process has the project; `act` is called meanwhile.
void With_Holder(const std::string& lock, const std::function<void(pid_t)>& act) {
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  const pid_t process = ::fork();
  if (process == 0) {
    Lock_File held;
    const char taken = held.Take(lock) == Lock_File::Outcome::Taken ? 1 : 0;
    if (::write(pipe[1], &taken, 1) == 1) ::pause();
    ::_exit(1);
  }
  char taken = 0;
  EXPECT_EQ(::read(pipe[0], &taken, 1), 1);
  EXPECT_EQ(taken, 1);
  act(process);
  ::kill(process, SIGKILL);
  ::waitpid(process, nullptr, 0);
  for (const int end : pipe) ::close(end);
}

TEST_F(ProjectHold, Opened_All_The_Same_It_Asks_Again_Before_It_Saves) {
  With_Holder(lock, [&](pid_t process) {
    Scripted_Messages messages({Answer::Yes, Answer::No, Answer::Yes});
    ASSERT_TRUE(Open_Project(path, *record));
    EXPECT_EQ(Read_Holder(Read_Text(lock))->process, process);
    record->ProjectTitle = "second";
    const std::string before = Read_Text(path);
    EXPECT_FALSE(Save_File(path, kProjectKind, *record));
    EXPECT_EQ(Read_Text(path), before);
    EXPECT_TRUE(Save_File(path, kProjectKind, *record));
    EXPECT_NE(Read_Text(path), before);
    ASSERT_EQ(messages.shown.size(), 3U);
    EXPECT_NE(messages.shown[1].text.find("Save over it all the same?"), std::string::npos);
  });
  // The other window is gone: its lock counts no more.
  Scripted_Messages none;
  EXPECT_TRUE(Save_File(path, kProjectKind, *record));
  EXPECT_TRUE(Is_Mine());
}

TEST_F(ProjectHold, A_Project_Of_Another_Window_Is_Not_Saved_Over_Unasked) {
  With_Holder(lock, [&](pid_t) {
    Scripted_Messages messages({Answer::No});
    EXPECT_FALSE(Save_File(path, kProjectKind, *record));
    EXPECT_NE(messages.shown.at(0).text.find(kOpened), std::string::npos);
  });
}

TEST_F(ProjectHold, The_Other_Names_Of_A_Project_Are_That_Project) {
  fs::create_symlink(path, folder / "link.DUI");
  fs::create_directory(folder / "sub");
  fs::create_symlink("../link.DUI", folder / "sub/chain.DUI");
  for (const char* name : {"link.DUI", "sub/chain.DUI", "SITE.dui", "sub/../site.DUI"}) {
    Held_Elsewhere();
    Scripted_Messages messages({Answer::No});
    EXPECT_FALSE(Open_Project(folder / name, *record)) << name;
    EXPECT_EQ(messages.shown.size(), 1U) << name;
  }
}

TEST_F(ProjectHold, Hard_Links_In_Other_Folders_Are_That_Project_Until_A_Save_Parts_Them) {
  fs::create_directory(folder / "sub");
  const std::string hard = folder / "sub/hard.DUI";
  fs::create_hard_link(path, hard);
  int pipe[2], end[2];
  ASSERT_EQ(::pipe(pipe), 0);
  ASSERT_EQ(::pipe(end), 0);
  const pid_t process = ::fork();
  if (process == 0) {
    const char opened = Open_Project(path, *record) ? 1 : 0;
    char byte = 0;
    if (::write(pipe[1], &opened, 1) != 1 || ::read(end[0], &byte, 1) != 1) ::_exit(1);
    const char saved = Save_File(path, kProjectKind, *record) ? 1 : 0;
    if (::write(pipe[1], &saved, 1) == 1) ::pause();
    ::_exit(1);
  }
  char done = 0;
  ASSERT_EQ(::read(pipe[0], &done, 1), 1);
  EXPECT_EQ(done, 1);
  {
    Scripted_Messages messages({Answer::No});
    EXPECT_FALSE(Open_Project(hard, *record));
    EXPECT_EQ(messages.shown.size(), 1U);
  }
  ASSERT_EQ(::write(end[1], &done, 1), 1);
  ASSERT_EQ(::read(pipe[0], &done, 1), 1);
  EXPECT_EQ(done, 1);
  Scripted_Messages none;
  EXPECT_TRUE(Open_Project(hard, *record));
  ::kill(process, SIGKILL);
  ::waitpid(process, nullptr, 0);
}

TEST_F(ProjectHold, What_Has_Changed_On_The_Disk_Is_Not_Saved_Over_Unasked) {
  ASSERT_TRUE(Open_Project(path, *record));
  Write_Text(path, Read_Text(path) + "another program's line\n");
  const std::string theirs = Read_Text(path);
  {
    Scripted_Messages messages({Answer::No});
    EXPECT_FALSE(Save_File(path, kProjectKind, *record));
    EXPECT_EQ(messages.shown.at(0).text, std::string("site.DUI ") + kChanged);
    EXPECT_EQ(Read_Text(path), theirs);
  }
  Scripted_Messages messages({Answer::Yes});
  EXPECT_TRUE(Save_File(path, kProjectKind, *record));
  Scripted_Messages none;
  EXPECT_TRUE(Save_File(path, kProjectKind, *record));
  fs::remove(path);
  EXPECT_TRUE(Save_File(path, kProjectKind, *record));
}

TEST_F(ProjectHold, A_Folder_That_Takes_No_File_Gives_No_Lock_And_No_Complaint) {
  if (::geteuid() == 0) {
    // The administrator may write everywhere: a folder in the lock's place stands in for it.
    fs::create_directory(lock);
  } else {
    fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
  }
  Scripted_Messages none;
  EXPECT_TRUE(Open_Project(path, *record));
  EXPECT_EQ(Held_Project(), path);
  fs::permissions(folder.path(), fs::perms::owner_all);
}

/// What a run of the long form sets; a handful otherwise.
int Reads_Wanted() {
  const char* const wanted = std::getenv("BARVON_READS");
  return wanted != nullptr ? std::atoi(wanted) : 100;
}

TEST_F(ProjectHold, A_Project_That_Another_Process_Saves_Is_Always_Read_Whole) {
  Release_Project();
  const pid_t writer = ::fork();
  if (writer == 0) {
    for (int i = 0;; ++i) {
      record->ProjectTitle = std::to_string(i);
      record->MMAX0 = static_cast<std::int16_t>(32 + i % 64);
      if (!Save_File(path, kProjectKind, *record)) ::_exit(1);
    }
  }
  int broken = 0, reads = 0;
  std::set<std::string> titles;
  const auto read = [&] {
    const Loaded_Record loaded = Load_Record(path);
    ++reads;
    if (loaded.record == nullptr || !loaded.remark.empty()) {
      ++broken;
      return;
    }
    const std::string& title = loaded.record->ProjectTitle;
    titles.insert(title);
    if (title != "first" && loaded.record->MMAX0 != 32 + std::atoi(title.c_str()) % 64) ++broken;
  };
  const int wanted = Reads_Wanted();
  for (int i = 0; i < wanted; ++i) read();
  // A busy system may not have let the writer in yet.
  int status = 0;
  pid_t ended = ::waitpid(writer, &status, WNOHANG);
  while (titles.size() < 3 && ended == 0) {
    read();
    ended = ::waitpid(writer, &status, WNOHANG);
  }
  EXPECT_EQ(ended, 0) << "the writer has ended";
  if (ended == 0) {
    ::kill(writer, SIGKILL);
    ::waitpid(writer, &status, 0);
  }
  EXPECT_EQ(broken, 0);
  RecordProperty("reads", reads);
  RecordProperty("versions", static_cast<int>(titles.size()));
  std::printf("%d reads of %zu versions, %d broken\n", reads, titles.size(), broken);
}

TEST_F(ProjectHold, Opened_All_The_Same_Is_Held_Once_The_Other_Window_Has_Let_Go_Of_It) {
  Held_Elsewhere();
  int gate[2];
  ASSERT_EQ(::pipe(gate), 0);
  const pid_t other = ::fork();
  if (other == 0) {
    Lock_File held;
    const bool taken = held.Take(lock, Lock_File::Foreign::Goes) == Lock_File::Outcome::Taken;
    if (::write(gate[1], taken ? "y" : "n", 1) == 1) ::pause();
    ::_exit(1);
  }
  char taken = 0;
  ASSERT_EQ(::read(gate[0], &taken, 1), 1);
  ASSERT_EQ(taken, 'y');
  {
    const Scripted_Messages messages({Answer::Yes});
    EXPECT_TRUE(Open_Project(path, *record));
    EXPECT_EQ(messages.shown.size(), 1U);
  }
  Hold_What_Was_Let_Go_Of();
  EXPECT_FALSE(Is_Mine());
  ::kill(other, SIGKILL);
  ::waitpid(other, nullptr, 0);
  const Scripted_Messages nothing_is_asked;
  Hold_What_Was_Let_Go_Of();
  EXPECT_TRUE(Is_Mine());
}

}  // namespace
}  // namespace barvon
