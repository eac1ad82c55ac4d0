#include "platform/files/user_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/plain_support.h"

namespace barvon {
namespace {

using testing::Scratch_Folder;

// One CTest entry is one process: what is set here reaches no other test.
struct Environment {
  Environment(const char* home, const char* data) {
    home ? setenv("HOME", home, 1) : unsetenv("HOME");
    data ? setenv("XDG_DATA_HOME", data, 1) : unsetenv("XDG_DATA_HOME");
  }
};

TEST(UserFolder, Is_Made_In_The_Data_Folder_For_The_User_Alone) {
  const Scratch_Folder scratch;
  const std::string data = scratch / "data";
  const Environment environment("/nowhere", data.c_str());
  EXPECT_EQ(User_Folder(), data + "/barvon");
  struct stat state {};
  ASSERT_EQ(stat((data + "/barvon").c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777U, 0700U);
  EXPECT_EQ(User_Folder(), data + "/barvon");
}

TEST(UserFolder, Is_In_The_Home_Folder_Without_A_Usable_Data_Folder) {
  const Scratch_Folder scratch;
  const std::string home = scratch / "home";
  for (const char* data : {static_cast<const char*>(nullptr), "", "relative/data"}) {
    const Environment environment(home.c_str(), data);
    EXPECT_EQ(User_Folder(), home + "/.local/share/barvon");
  }
}

TEST(UserFolder, Is_Nothing_Where_None_Is_Known_Or_Can_Be_Made) {
  const Scratch_Folder scratch;
  {
    const Environment environment(nullptr, nullptr);
    EXPECT_EQ(User_Folder(), std::nullopt);
  }
  std::ofstream(scratch / "file") << "x";
  const Environment environment((scratch / "file").c_str(), nullptr);
  EXPECT_EQ(User_Folder(), std::nullopt);
}

TEST(UserFolder, Is_Nothing_Where_A_Stranger_Has_Put_It) {
  if (::geteuid() != 0) GTEST_SKIP() << "takes root: files are given to another user";
  constexpr uid_t kStranger = 54321;
  const Scratch_Folder scratch;
  const Environment environment(nullptr, scratch.path().c_str());
  std::filesystem::create_directory(scratch / "his");
  std::filesystem::create_symlink(scratch / "his", scratch / "barvon");
  for (const char* name : {"his", "barvon"}) {
    ASSERT_EQ(::lchown((scratch / name).c_str(), kStranger, kStranger), 0);
  }
  EXPECT_EQ(User_Folder(), scratch / "barvon") << "the folder's owner alone can write it";
  ASSERT_EQ(::chmod(scratch.path().c_str(), 01777), 0);
  EXPECT_EQ(User_Folder(), std::nullopt);
  std::filesystem::remove(scratch / "barvon");
  std::filesystem::rename(scratch / "his", scratch / "barvon");
  EXPECT_EQ(User_Folder(), std::nullopt);
  ASSERT_EQ(::lchown((scratch / "barvon").c_str(), 0, 0), 0);
  EXPECT_EQ(User_Folder(), scratch / "barvon");
}

}  // namespace
}  // namespace barvon
