#include "platform/files/safe_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <string>
#include <thread>

#include "support/disk_calls.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class SafeFile : public ::testing::Test {
 protected:
  ~SafeFile() override { Set_Save_Notes_Folder(""); }
  Scratch_Folder folder_;
};

TEST_F(SafeFile, Replaces_The_Whole_Content) {
  Write_Text(folder_ / "a.dui", "old and longer");
  EXPECT_EQ(Write_Whole_File(folder_ / "a.dui", "new"), 0);
  EXPECT_EQ(Read_Text(folder_ / "a.dui"), "new");
  EXPECT_EQ(Names_In(folder_.path()), std::vector<std::string>{"a.dui"});
}

TEST_F(SafeFile, A_File_That_Is_Not_Committed_Leaves_The_Old_And_No_Litter) {
  Write_Text(folder_ / "a.dui", "old");
  {
    Safe_File file;
    ASSERT_EQ(file.Open(folder_ / "a.dui"), 0);
    ASSERT_EQ(file.Write(std::string(200000, 'x')), 0);
  }
  EXPECT_EQ(Read_Text(folder_ / "a.dui"), "old");
  EXPECT_EQ(Names_In(folder_.path()), std::vector<std::string>{"a.dui"});
}

TEST_F(SafeFile, A_Full_Disk_Leaves_The_Old_File_Whole) {
  Write_Text(folder_ / "a.dui", "old");
  // A limit on the size of files stands in for a disk that fills up in the middle of a save.
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100000, 100000};
    setrlimit(RLIMIT_FSIZE, &limit);
    const int error = Write_Whole_File(folder_ / "a.dui", std::string(500000, 'x'));
    _exit(error == EFBIG ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Read_Text(folder_ / "a.dui"), "old");
  EXPECT_EQ(Names_In(folder_.path()), std::vector<std::string>{"a.dui"});
}

TEST_F(SafeFile, Writes_Beside_What_A_Link_Leads_To_And_Keeps_The_Link) {
  ASSERT_EQ(mkdir((folder_ / "real").c_str(), 0777), 0);
  Write_Text(folder_ / "real/site.dui", "old");
  ASSERT_EQ(symlink("real/site.dui", (folder_ / "link.dui").c_str()), 0);
  EXPECT_EQ(Write_Whole_File(folder_ / "link.dui", "new"), 0);
  struct stat status {};
  ASSERT_EQ(lstat((folder_ / "link.dui").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  EXPECT_EQ(Read_Text(folder_ / "real/site.dui"), "new");
}

TEST_F(SafeFile, Links_That_Lead_In_A_Circle_Are_Refused) {
  ASSERT_EQ(symlink("b", (folder_ / "a").c_str()), 0);
  ASSERT_EQ(symlink("a", (folder_ / "b").c_str()), 0);
  EXPECT_EQ(Write_Whole_File(folder_ / "a", "new"), ELOOP);
}

TEST_F(SafeFile, Keeps_The_Permissions_Of_The_Old_File) {
  Write_Text(folder_ / "a.dui", "old");
  ASSERT_EQ(chmod((folder_ / "a.dui").c_str(), 0640), 0);
  EXPECT_EQ(Write_Whole_File(folder_ / "a.dui", "new"), 0);
  struct stat status {};
  ASSERT_EQ(stat((folder_ / "a.dui").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(SafeFile, Folders_And_Missing_Folders_Are_Refused) {
  EXPECT_EQ(Write_Whole_File(folder_.path(), "x"), EISDIR);
  EXPECT_EQ(Write_Whole_File(folder_ / "no/such.dui", "x"), ENOENT);
  EXPECT_EQ(Write_Whole_File("", "x"), EINVAL);
  std::string bytes;
  EXPECT_EQ(Read_Whole_File(folder_.path(), bytes), EISDIR);
  EXPECT_EQ(Read_Whole_File(folder_ / "none", bytes), ENOENT);
}

TEST_F(SafeFile, The_Longest_Names_Can_Be_Saved) {
  const std::string name = folder_ / (std::string(251, 'n') + ".dui");
  EXPECT_EQ(Write_Whole_File(name, "x"), 0);
  EXPECT_EQ(Read_Text(name), "x");
}

TEST_F(SafeFile, A_Save_Waits_For_The_File_And_Its_Folder_And_Not_For_Its_Note) {
  Set_Save_Notes_Folder(folder_.path());
  const Disk_Calls calls;
  EXPECT_EQ(Write_Whole_File(folder_ / "file", "new"), 0);
  EXPECT_EQ(calls.Waits(), 2);
  Set_Save_Notes_Folder({});
}

TEST_F(SafeFile, What_Is_Settled_Waits_For_Its_Folder_Alone) {
  Write_Text(folder_ / "file", "old");
  Safe_File file;
  EXPECT_EQ(file.Open(folder_ / "file"), 0);
  EXPECT_EQ(file.Write("new"), 0);
  EXPECT_EQ(file.Settle(), 0);
  EXPECT_EQ(Read_Text(folder_ / "file"), "old");
  const Disk_Calls calls;
  EXPECT_EQ(file.Commit(), 0);
  EXPECT_EQ(calls.Waits(), 1);
  EXPECT_EQ(Read_Text(folder_ / "file"), "new");
}

TEST_F(SafeFile, Several_Files_Of_A_Folder_Wait_For_It_Once) {
  const Disk_Calls calls;
  Unsynced_Folders folders;
  for (const std::string name : {"one", "two", "three"}) {
    Safe_File file;
    EXPECT_EQ(file.Open(folder_ / name), 0);
    EXPECT_EQ(file.Write(name), 0);
    EXPECT_EQ(file.Commit(&folders), 0);
    EXPECT_EQ(Read_Text(folder_ / name), name);
  }
  EXPECT_EQ(calls.Waits(), 3);
  EXPECT_TRUE(folders.Sync().empty());
  EXPECT_EQ(calls.Waits(), 4);
  EXPECT_TRUE(folders.Sync().empty());
  EXPECT_EQ(calls.Waits(), 4);
}

TEST_F(SafeFile, A_Folder_That_Is_Soon_Removed_Is_Not_Waited_For_But_What_Its_Links_Lead_To_Is) {
  ASSERT_EQ(::mkdir((folder_ / "passing").c_str(), 0700), 0);
  Write_Text(folder_ / "lasting", "old");
  ASSERT_EQ(::symlink("../lasting", (folder_ / "passing/link").c_str()), 0);
  Set_Passing_Folder(folder_ / "passing");
  const Disk_Calls calls;
  EXPECT_EQ(Write_Whole_File(folder_ / "passing/file", "new"), 0);
  EXPECT_EQ(calls.Waits(), 0);
  EXPECT_EQ(Write_Whole_File(folder_ / "passing/link", "new"), 0);
  EXPECT_EQ(calls.Waits(), 2);
  Set_Passing_Folder({});
  EXPECT_EQ(Read_Text(folder_ / "passing/file"), "new");
  EXPECT_EQ(Read_Text(folder_ / "lasting"), "new");
}

TEST_F(SafeFile, An_Exclusive_File_Never_Follows_A_Planted_Link) {
  Write_Text(folder_ / "victim", "precious");
  ASSERT_EQ(symlink("victim", (folder_ / "KOLBREE.TMP").c_str()), 0);
  EXPECT_EQ(Write_Exclusive_File(folder_ / "KOLBREE.TMP", "marker"), 0);
  EXPECT_EQ(Read_Text(folder_ / "victim"), "precious");
  EXPECT_EQ(Read_Text(folder_ / "KOLBREE.TMP"), "marker");
}

/// A child that is killed in the middle of a save of `target`.
void Kill_In_The_Middle_Of_A_Save(const std::string& target, const std::string& notes) {
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    Set_Save_Notes_Folder(notes);
    Safe_File file;
    bool fine = file.Open(target) == 0 && file.Write(std::string(300000, 'x')) == 0;
    fine = write(ready[1], fine ? "y" : "n", 1) == 1;
    while (fine) pause();
    _exit(1);
  }
  char answer = 'n';
  ASSERT_EQ(read(ready[0], &answer, 1), 1);
  EXPECT_EQ(answer, 'y');
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  close(ready[0]);
  close(ready[1]);
}

TEST_F(SafeFile, After_A_Kill_The_Next_Start_Removes_What_The_Notes_Tell_Of) {
  ASSERT_EQ(mkdir((folder_ / "app").c_str(), 0777), 0);
  ASSERT_EQ(mkdir((folder_ / "sites").c_str(), 0777), 0);
  Write_Text(folder_ / "sites/a.dui", "old");
  Kill_In_The_Middle_Of_A_Save(folder_ / "sites/a.dui", folder_ / "app");
  EXPECT_EQ(Read_Text(folder_ / "sites/a.dui"), "old");
  EXPECT_EQ(Names_In(folder_ / "sites").size(), 2U);
  Set_Save_Notes_Folder(folder_ / "app");
  EXPECT_EQ(Remove_Leftover_Saves({}).size(), 1U);
  EXPECT_EQ(Names_In(folder_ / "sites"), std::vector<std::string>{"a.dui"});
  EXPECT_TRUE(Names_In(folder_ / "app").empty());
}

TEST_F(SafeFile, After_A_Kill_The_Folders_Given_Are_Cleaned_Without_Notes) {
  Write_Text(folder_ / "a.dui", "old");
  Kill_In_The_Middle_Of_A_Save(folder_ / "a.dui", "");
  EXPECT_EQ(Remove_Leftover_Saves({folder_.path(), folder_ / "missing"}).size(), 1U);
  EXPECT_EQ(Names_In(folder_.path()), std::vector<std::string>{"a.dui"});
}

TEST_F(SafeFile, A_Save_Under_Way_And_Foreign_Files_Are_Left_Alone) {
  Set_Save_Notes_Folder(folder_.path());
  Write_Text(folder_ / "mine.barvon-save", "no mark in its name");
  Safe_File file;
  ASSERT_EQ(file.Open(folder_ / "a.dui"), 0);
  EXPECT_TRUE(Remove_Leftover_Saves({folder_.path()}).empty());
  ASSERT_EQ(file.Write("new"), 0);
  ASSERT_EQ(file.Commit(), 0);
  EXPECT_EQ(Names_In(folder_.path()), (std::vector<std::string>{"a.dui", "mine.barvon-save"}));
}

TEST_F(SafeFile, A_Save_That_Has_Just_Begun_Is_Not_Taken_For_A_Leftover) {
  std::atomic<bool> over{false};
  std::thread clearing([&] {
    while (!over) Remove_Leftover_Saves({folder_.path()});
  });
  int lost = 0;
  for (int save = 0; save < 2000; ++save) {
    Safe_File file;
    EXPECT_EQ(file.Open(folder_ / "a.dui"), 0);
    if (Names_In(folder_.path()).empty()) ++lost;
  }
  over = true;
  clearing.join();
  EXPECT_EQ(lost, 0);
}

TEST_F(SafeFile, A_Note_Never_Removes_What_Is_No_Working_File) {
  Write_Text(folder_ / "precious.dui", "x");
  Write_Text(folder_ / "0123456789abcdef.barvon-note", folder_ / "precious.dui");
  Set_Save_Notes_Folder(folder_.path());
  EXPECT_TRUE(Remove_Leftover_Saves({}).empty());
  EXPECT_EQ(Read_Text(folder_ / "precious.dui"), "x");
}

}  // namespace
}  // namespace barvon
