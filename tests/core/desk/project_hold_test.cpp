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
#include "platform/files/paths.h"
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

TEST_F(ProjectHold, Two_Long_Names_That_Are_Cut_Alike_Have_Locks_Of_Their_Own) {
  const std::string begin(245, 'a');
  const std::string one = Lock_Path_Of(folder / (begin + "1.DUI"));
  const std::string two = Lock_Path_Of(folder / (begin + "2.DUI"));
  EXPECT_NE(one, two);
  EXPECT_EQ(Name_Of(one).size(), 255U);
  EXPECT_EQ(one, Lock_Path_Of(folder / (begin + "1.DUI")));
  Lock_File taken;
  EXPECT_EQ(taken.Take(one), Lock_File::Outcome::Taken);
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
  // Reads between two saves show nothing: it goes on until enough of them met another version,
  // however seldom a busy system lets the writer in.
  const std::size_t versions = static_cast<std::size_t>(std::max(3, wanted / 20));
  int status = 0;
  pid_t ended = ::waitpid(writer, &status, WNOHANG);
  while (titles.size() < versions && ended == 0) {
    read();
    ended = ::waitpid(writer, &status, WNOHANG);
  }
  EXPECT_EQ(ended, 0) << "the writer has ended";
  if (ended == 0) {
    ::kill(writer, SIGKILL);
    ::waitpid(writer, &status, 0);
  }
  EXPECT_EQ(broken, 0);
  EXPECT_GE(titles.size(), versions);
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
  Hold_What_Is_Free();
  EXPECT_FALSE(Is_Mine());
  ::kill(other, SIGKILL);
  ::waitpid(other, nullptr, 0);
  const Scripted_Messages nothing_is_asked;
  Hold_What_Is_Free();
  EXPECT_TRUE(Is_Mine());
}

/// The project in a folder of its own, which somebody else renames while it is open.
struct RenamedFolder : ProjectHold {
  RenamedFolder() {
    fs::create_directory(folder / "old");
    fs::copy_file(path, named);
    Port().board.show_note = [this](const Status_Note& note) { notes.push_back(note.text); };
    EXPECT_TRUE(Open_Project(named, *record));
    fs::rename(folder / "old", folder / "new");
    record->ProjectTitle = "changed";
  }
  ~RenamedFolder() override { Reset_Port(); }

  const std::string named = folder / "old/site.DUI";
  const std::string renamed = folder / "new/site.DUI";
  std::vector<std::string> notes;
};

TEST_F(RenamedFolder, A_Save_Says_Where_It_Is_And_Save_As_Goes_There_Unasked) {
  {
    Scripted_Messages messages({Answer::Ok});
    EXPECT_FALSE(Save_File(named, kProjectKind, *record));
    EXPECT_EQ(messages.shown.at(0).text, "Can't open file: " + named);
  }
  EXPECT_EQ(notes.back(), "site.DUI was not saved: its folder is " + (folder / "new") +
                              " now. Save As keeps it there.");
  EXPECT_EQ(record->ProjectFileName, named);
  EXPECT_FALSE(Exists(folder / "old"));
  {
    Scripted_Messages nothing_is_asked;
    EXPECT_TRUE(Save_File(renamed, kProjectKind, *record));
  }
  EXPECT_EQ(Load_Record(renamed).record->ProjectTitle, "changed");
  EXPECT_EQ(Names_In(folder / "new"),
            (std::vector<std::string>{".site.DUI.barvon-lock", "site.DUI"}));
  Release_Project();
  EXPECT_FALSE(Exists(Lock_Path_Of(renamed)));
}

TEST_F(RenamedFolder, What_Another_Has_Saved_There_Is_Not_Saved_Over_Unasked) {
  Write_Text(renamed, Read_Text(renamed) + "another program's line\n");
  Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Save_File(renamed, kProjectKind, *record));
  EXPECT_EQ(messages.shown.at(0).text, std::string("site.DUI ") + kChanged);
}

TEST_F(RenamedFolder, The_Mark_Goes_With_The_Program) {
  EXPECT_TRUE(Exists(Lock_Path_Of(renamed)));
  Release_Project();
  EXPECT_FALSE(Exists(Lock_Path_Of(renamed)));
}

TEST_F(RenamedFolder, Another_Folder_Of_The_Old_Name_Is_Asked_About_And_Gets_The_Mark) {
  fs::create_directory(folder / "old");
  Write_Text(named, "another project\n");
  {
    Scripted_Messages messages({Answer::No});
    EXPECT_FALSE(Save_File(named, kProjectKind, *record));
    EXPECT_EQ(messages.shown.at(0).text, std::string("site.DUI ") + kChanged);
    EXPECT_EQ(Read_Text(named), "another project\n");
    EXPECT_FALSE(Exists(Lock_Path_Of(named)));
    EXPECT_TRUE(Exists(Lock_Path_Of(renamed)));
  }
  Scripted_Messages messages({Answer::Yes});
  EXPECT_TRUE(Save_File(named, kProjectKind, *record));
  EXPECT_TRUE(Exists(Lock_Path_Of(named)));
  EXPECT_FALSE(Exists(Lock_Path_Of(renamed)));
  EXPECT_EQ(Load_Record(renamed).record->ProjectTitle, "first");
}

TEST_F(RenamedFolder, Another_Folder_Of_The_Old_Name_That_A_Window_Works_In_Is_Told) {
  fs::create_directory(folder / "old");
  fs::copy_file(renamed, named);
  With_Holder(Lock_Path_Of(named), [&](pid_t) {
    Scripted_Messages messages({Answer::No});
    EXPECT_FALSE(Save_File(named, kProjectKind, *record));
    EXPECT_NE(messages.shown.at(0).text.find(kOpened), std::string::npos);
  });
}

TEST_F(RenamedFolder, An_Empty_Folder_Of_The_Old_Name_Gets_The_File_And_That_Is_Told) {
  fs::create_directory(folder / "old");
  Scripted_Messages nothing_is_asked;
  EXPECT_TRUE(Save_File(named, kProjectKind, *record));
  const std::string told =
      "site.DUI was no longer there: it is written anew, in " + (folder / "old") + ".";
  EXPECT_EQ(notes.at(1), told);
  EXPECT_EQ(notes.back().find(told + " Its model input"), 0U) << "a grid without spacing has none";
  EXPECT_EQ(Load_Record(named).record->ProjectTitle, "changed");
  EXPECT_EQ(Load_Record(renamed).record->ProjectTitle, "first");
}

TEST_F(RenamedFolder, One_That_Is_Removed_Is_Told_Too) {
  fs::remove_all(folder / "new");
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Save_File(named, kProjectKind, *record));
  EXPECT_EQ(notes.back(),
            "site.DUI was not saved: its folder is no longer there. Save As keeps it elsewhere.");
}

/// A process of its own, made before this one opens anything, whose locks it would share. It acts
/// once and lives on with its locks until it is killed.
class Other_Window {
 public:
  explicit Other_Window(const std::function<bool()>& act) {
    EXPECT_EQ(::pipe(go_), 0);
    EXPECT_EQ(::pipe(done_), 0);
    process_ = ::fork();
    if (process_ != 0) return;
    char byte = 0;
    if (::read(go_[0], &byte, 1) != 1) ::_exit(1);
    const char did = act() ? 1 : 0;
    if (::write(done_[1], &did, 1) == 1) ::pause();
    ::_exit(1);
  }
  ~Other_Window() {
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    for (const int end : {go_[0], go_[1], done_[0], done_[1]}) ::close(end);
  }
  Other_Window(const Other_Window&) = delete;
  Other_Window& operator=(const Other_Window&) = delete;

  bool Acts() {
    char did = 0;
    return ::write(go_[1], &did, 1) == 1 && ::read(done_[0], &did, 1) == 1 && did == 1;
  }

 private:
  pid_t process_ = -1;
  int go_[2] = {-1, -1}, done_[2] = {-1, -1};
};

struct HardLinkMadeLater : ProjectHold {
  void Open_And_Link() {
    ASSERT_TRUE(Open_Project(path, *record));
    fs::create_hard_link(path, hard);
  }
  const std::string hard = folder / "hard.DUI";
};

TEST_F(HardLinkMadeLater, Is_That_Project_At_The_Next_Look) {
  Other_Window other([&] {
    Scripted_Messages messages({Answer::No});
    return !Open_Project(hard, *Fresh_Record()) && messages.shown.size() == 1;
  });
  Open_And_Link();
  Hold_What_Is_Free();
  EXPECT_TRUE(other.Acts());
}

TEST_F(HardLinkMadeLater, Opened_Before_The_Next_Look_Is_Asked_About_At_The_Save) {
  Other_Window other([&] { return Open_Project(hard, *Fresh_Record()); });
  Open_And_Link();
  ASSERT_TRUE(other.Acts());
  Hold_What_Is_Free();
  Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Save_File(path, kProjectKind, *record));
  EXPECT_NE(messages.shown.at(0).text.find(kOpened), std::string::npos);
}

TEST_F(HardLinkMadeLater, Saves_Under_Both_Names_Leave_Each_Its_Own) {
  Other_Window other([&] {
    const auto theirs = Fresh_Record();
    if (!Open_Project(hard, *theirs)) return false;
    theirs->ProjectTitle = "theirs";
    return Save_File(hard, kProjectKind, *theirs);
  });
  Open_And_Link();
  ASSERT_TRUE(other.Acts());
  // The save has parted the names: this one's file is as it was opened.
  Scripted_Messages nothing_is_asked;
  record->ProjectTitle = "mine";
  EXPECT_TRUE(Save_File(path, kProjectKind, *record));
  EXPECT_EQ(Load_Record(path).record->ProjectTitle, "mine");
  EXPECT_EQ(Load_Record(hard).record->ProjectTitle, "theirs");
}

TEST_F(HardLinkMadeLater, Is_Free_Once_A_Save_Has_Parted_From_It) {
  Other_Window other([&] {
    Scripted_Messages nothing_is_asked;
    return Open_Project(hard, *Fresh_Record());
  });
  Open_And_Link();
  fs::create_hard_link(path, folder / "third.DUI");
  Hold_What_Is_Free();
  ASSERT_TRUE(Save_File(path, kProjectKind, *record));
  EXPECT_TRUE(other.Acts());
}

}  // namespace
}  // namespace barvon
