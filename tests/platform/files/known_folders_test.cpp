#include "platform/files/known_folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "platform/files/local_files.h"
#include "support/disk_calls.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;
using Names = std::vector<std::string>;

struct KnownFolders : ::testing::Test {
  KnownFolders() {
    fs::create_directory(place);
    fs::create_directory(folder / "other");
  }
  void SetUp() override {
    if (!Is_On_Local_Files(place)) GTEST_SKIP() << "the system does not tell of all changes here";
  }
  Names Alike(const std::string& name) { return Sorted(folders.Alike(place, name)); }
  Names Links() { return Sorted(folders.Links(place).value()); }
  static Names Sorted(Names names) {
    std::ranges::sort(names);
    return names;
  }
  void Put(const std::string& name) { Write_Text(place + "/" + name, "x"); }
  /// As often as it takes until the folder is watched.
  void Ask_Often() {
    for (int i = 0; i <= Known_Folders::kReadingsBeforeWatch; ++i) Alike("any");
    ASSERT_FALSE(Is_Read_For("any")) << "it is not watched";
  }
  bool Is_Read_For(const std::string& name) {
    const Disk_Calls calls;
    Alike(name);
    return calls.Readings() > 0;
  }

  Scratch_Folder folder;
  const std::string place = folder / "place";
  Known_Folders folders;
};

TEST_F(KnownFolders, A_Folder_That_Is_Asked_Often_Is_Read_No_More) {
  Put("SITE.dui");
  Put("Site.DUI");
  Put("site.due");
  const Disk_Calls calls;
  for (int i = 0; i < 10 * Known_Folders::kReadingsBeforeWatch; ++i) {
    ASSERT_EQ(Alike("site.dui"), (Names{"SITE.dui", "Site.DUI"}));
  }
  EXPECT_EQ(calls.Readings(), Known_Folders::kReadingsBeforeWatch + 1);
  EXPECT_EQ(Alike("site.DUE"), Names{"site.due"});
  EXPECT_EQ(Alike("none"), Names{});
}

TEST_F(KnownFolders, What_Others_Make_Move_And_Remove_Is_Known_At_Once) {
  Put("old.dui");
  Ask_Often();
  const Disk_Calls calls;
  Put("New.dui");
  EXPECT_EQ(Alike("NEW.DUI"), Names{"New.dui"});
  fs::rename(place + "/New.dui", place + "/NEW.dui");
  EXPECT_EQ(Alike("new.dui"), Names{"NEW.dui"});
  fs::rename(place + "/NEW.dui", folder / "other/NEW.dui");
  EXPECT_EQ(Alike("new.dui"), Names{});
  fs::rename(folder / "other/NEW.dui", place + "/nEw.dui");
  EXPECT_EQ(Alike("new.dui"), Names{"nEw.dui"});
  fs::create_hard_link(place + "/nEw.dui", place + "/neW.dui");
  EXPECT_EQ(Alike("new.dui"), (Names{"nEw.dui", "neW.dui"}));
  fs::remove(place + "/nEw.dui");
  EXPECT_EQ(Alike("new.dui"), Names{"neW.dui"});
  fs::remove(place + "/old.dui");
  EXPECT_EQ(Alike("OLD.DUI"), Names{});
  fs::create_directory(place + "/Old.Dui");
  EXPECT_EQ(Alike("OLD.DUI"), Names{"Old.Dui"});
  EXPECT_EQ(calls.Readings(), 0);
}

TEST_F(KnownFolders, Links_Are_Known_Whenever_They_Come) {
  Put("file");
  fs::create_symlink("file", place + "/first");
  EXPECT_EQ(Links(), Names{"first"});
  Ask_Often();
  EXPECT_EQ(Links(), Names{"first"});
  fs::create_symlink("nowhere", place + "/second");
  EXPECT_EQ(Links(), (Names{"first", "second"}));
  fs::remove(place + "/first");
  Put("first");
  EXPECT_EQ(Links(), Names{"second"});
  fs::create_symlink("file", place + "/.new");
  fs::rename(place + "/.new", place + "/first");  // over a file
  EXPECT_EQ(Links(), (Names{"first", "second"}));
}

TEST_F(KnownFolders, Another_Folder_Under_The_Path_Is_Another_Folder) {
  Put("site.dui");
  Ask_Often();
  fs::rename(place, folder / "away");
  fs::rename(folder / "other", place);
  EXPECT_EQ(Alike("SITE.DUI"), Names{});
  Put("Site.dui");
  EXPECT_EQ(Alike("SITE.DUI"), Names{"Site.dui"});
  fs::remove_all(place);
  EXPECT_EQ(Alike("SITE.DUI"), Names{});
  fs::create_directory(place);
  EXPECT_EQ(Alike("SITE.DUI"), Names{});
  Put("SITE.dui");
  EXPECT_EQ(Alike("SITE.DUI"), Names{"SITE.dui"});
  fs::rename(place, folder / "other");
  fs::rename(folder / "away", place);
  EXPECT_EQ(Alike("SITE.DUI"), Names{"site.dui"});
}

TEST_F(KnownFolders, A_Folder_That_Is_Removed_And_Made_Again_Is_Read_Again) {
  for (int round = 0; round < 5; ++round) {
    Put("site" + std::to_string(round));
    Ask_Often();
    fs::remove_all(place);
    fs::create_directory(place);  // it may get the number of the one before
    EXPECT_EQ(Alike("SITE" + std::to_string(round)), Names{});
  }
}

TEST_F(KnownFolders, A_Folder_Is_Known_By_Whatever_Path_Leads_To_It) {
  Ask_Often();
  fs::create_symlink("place", folder / "link");
  Put("site.dui");
  const Disk_Calls calls;
  EXPECT_EQ(folders.Alike(folder / "link", "SITE.DUI"), Names{"site.dui"});
  fs::current_path(place);
  EXPECT_EQ(folders.Alike(".", "SITE.DUI"), Names{"site.dui"});
  EXPECT_EQ(calls.Readings(), 0);
  fs::current_path(folder / "other");
  EXPECT_EQ(folders.Alike(".", "SITE.DUI"), Names{});
}

TEST_F(KnownFolders, More_Changes_Than_The_System_Keeps_Lead_To_A_New_Reading) {
  Ask_Often();
  for (int i = 0; i < 12'000; ++i) {  // the system keeps 16,384 where nobody has set it otherwise
    Write_Text(place + "/passing", "x");
    fs::remove(place + "/passing");
  }
  Put("Site.dui");
  EXPECT_EQ(Alike("SITE.DUI"), Names{"Site.dui"});
  EXPECT_EQ(Alike("PASSING"), Names{});
}

TEST_F(KnownFolders, Whatever_Is_Done_The_Answer_Is_That_Of_A_New_Reading) {
  Ask_Often();
  std::mt19937 dice(7);
  const auto some_name = [&] {
    std::string name = "abc";
    name.resize(1 + dice() % 2);
    for (char& c : name) c = static_cast<char>((dice() % 2 == 0 ? 'a' : 'A') + dice() % 3);
    return name;
  };
  for (int i = 0; i < 3'000; ++i) {
    const std::string path = place + "/" + some_name();
    std::error_code ignored;
    switch (dice() % 5) {
      case 0:
        Write_Text(path, "x");
        break;
      case 1:
        fs::remove(path, ignored);
        break;
      case 2:
        fs::rename(path, place + "/" + some_name(), ignored);
        break;
      case 3:
        fs::remove(path, ignored);
        fs::create_symlink("nowhere", path, ignored);
        break;
      default:
        const std::string asked = some_name();
        Known_Folders anew;
        ASSERT_EQ(Alike(asked), Sorted(anew.Alike(place, asked))) << i;
        ASSERT_EQ(Links(), Sorted(anew.Links(place).value())) << i;
    }
  }
}

TEST(UnknownFolders, What_The_System_Does_Not_Tell_Of_Is_Read_Each_Time) {
  Known_Folders folders;
  const Disk_Calls calls;
  for (int i = 0; i < 200; ++i) {
    ASSERT_EQ(folders.Alike("/proc", "VERSION"), Names{"version"});
  }
  EXPECT_GE(calls.Readings(), 200);
}

TEST(UnknownFolders, What_Is_No_Folder_Has_No_Names) {
  const Scratch_Folder folder;
  Write_Text(folder / "file", "x");
  Known_Folders folders;
  for (int i = 0; i < 200; ++i) {
    ASSERT_EQ(folders.Alike(folder / "file", "file"), Names{});
    ASSERT_EQ(folders.Links(folder / "none"), std::nullopt);
  }
}

}  // namespace
}  // namespace barvon
