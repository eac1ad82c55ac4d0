#include "platform/files/path_lookup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/disk_calls.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

TEST(PathLookup, Finds_The_Path_As_Given_Before_Any_Other_Case) {
  const Scratch_Folder folder;
  Write_Text(folder / "SITE.DUI", "upper");
  Write_Text(folder / "site.dui", "lower");
  EXPECT_EQ(Find_Path(folder / "site.dui"), folder / "site.dui");
  EXPECT_EQ(Find_Path(folder / "SITE.DUI"), folder / "SITE.DUI");
}

TEST(PathLookup, Finds_A_File_Whose_Name_Differs_In_Case) {
  const Scratch_Folder folder;
  Write_Text(folder / "SITE.DUI", "");
  EXPECT_EQ(Find_Path(folder / "site.dui"), folder / "SITE.DUI");
  EXPECT_EQ(Path_To_Write(folder / "Site.Dui"), folder / "SITE.DUI");
}

TEST(PathLookup, Takes_The_First_In_Byte_Order_Of_Several) {
  const Scratch_Folder folder;
  Write_Text(folder / "site.DUI", "");
  Write_Text(folder / "Site.dui", "");
  EXPECT_EQ(Find_Path(folder / "SITE.DUI"), folder / "Site.dui");
}

TEST(PathLookup, Finds_Folders_Whose_Names_Differ_In_Case) {
  const Scratch_Folder folder;
  fs::create_directories(folder / "Projects/Bay");
  Write_Text(folder / "Projects/Bay/SITE.DUI", "");
  EXPECT_EQ(Find_Path(folder / "PROJECTS/BAY/site.dui"), folder / "Projects/Bay/SITE.DUI");
}

TEST(PathLookup, Never_Leaves_A_Folder_That_Exists_As_Given) {
  const Scratch_Folder folder;
  fs::create_directories(folder / "bay");
  fs::create_directories(folder / "BAY");
  Write_Text(folder / "BAY/site.dui", "another user's");
  EXPECT_EQ(Find_Path(folder / "bay/site.dui"), std::nullopt);
  EXPECT_EQ(Path_To_Write(folder / "bay/site.dui"), folder / "bay/site.dui");
}

TEST(PathLookup, Matches_Letters_With_Marks_Without_Regard_To_Case) {
  const Scratch_Folder folder;
  Write_Text(folder / "\xC3\x96stbucht_\xC5\xA0.DUI", "");  // O with dots, S with caron
  EXPECT_EQ(Find_Path(folder / "\xC3\xB6STBUCHT_\xC5\xA1.dui"),
            folder / "\xC3\x96stbucht_\xC5\xA0.DUI");
  Write_Text(folder / "\xC5\xB8ser.DUI", "");  // Y with dots: its small letter is of another row
  EXPECT_EQ(Find_Path(folder / "\xC3\xBFSER.dui"), folder / "\xC5\xB8ser.DUI");
  Write_Text(folder / "a\xC3\x97.dui", "");  // the multiplication sign is no capital
  EXPECT_EQ(Find_Path(folder / "a\xC3\xB7.dui"), std::nullopt);
}

TEST(PathLookup, Gives_Nothing_For_What_Is_Not_There) {
  const Scratch_Folder folder;
  EXPECT_EQ(Find_Path(folder / "site.dui"), std::nullopt);
  EXPECT_EQ(Find_Path(folder / "none/site.dui"), std::nullopt);
  EXPECT_EQ(Find_Path(""), std::nullopt);
  EXPECT_EQ(Path_To_Write(folder / "site.dui"), folder / "site.dui");
}

TEST(PathLookup, A_Bare_Name_Is_Looked_Up_In_The_Current_Directory) {
  const Scratch_Folder folder;
  Write_Text(folder / "KV_GRAPH.EXE", "");
  fs::current_path(folder.path());
  EXPECT_EQ(Find_Path("kv_graph.exe"), "KV_GRAPH.EXE");
  EXPECT_TRUE(File_Exist("Kv_Graph.Exe"));
  EXPECT_FALSE(File_Exist("other.exe"));
  EXPECT_FALSE(File_Exist(""));
}

TEST(PathLookup, Matching_Files_Ignore_Case_And_Take_Links_But_No_Folders) {
  const Scratch_Folder folder;
  Write_Text(folder / "Tmpfile.Due", "");
  Write_Text(folder / "TMPFILE.DUO", "");
  Write_Text(folder / "tmpfile.a.b", "");
  Write_Text(folder / "tmpfile", "");
  Write_Text(folder / "xtmpfile.duo", "");
  Write_Text(folder / "tmpfile2.duo", "");
  fs::create_directories(folder / "tmpfile.dir");
  fs::create_symlink("nowhere", folder / "tmpfile.lnk");
  EXPECT_EQ(Matching_Files(folder.path(), "Tmpfile.*"),
            (std::vector<std::string>{folder / "TMPFILE.DUO", folder / "Tmpfile.Due",
                                      folder / "tmpfile.a.b", folder / "tmpfile.lnk"}));
  EXPECT_TRUE(Matching_Files(folder / "none", "*").empty());
}

TEST(PathLookup, Only_What_Bears_The_Name_Is_Asked_About) {
  const Scratch_Folder folder;
  for (int i = 0; i < 50; ++i) Write_Text(folder / ("other" + std::to_string(i)), "");
  Write_Text(folder / "TMPFILE.DUO", "");
  Write_Text(folder / "tmpfile.duo", "");
  const Disk_Calls calls;
  EXPECT_EQ(Matching_Files(folder.path(), "Tmpfile.*").size(), 2u);
  EXPECT_EQ(calls.Questions(), 2);
  EXPECT_TRUE(Find_Path(folder / "Tmpfile.Duo"));
  EXPECT_EQ(calls.Questions(), 6);  // the path, its folder, and the two
}

TEST(PathLookup, A_Star_Stands_For_Any_Run_Of_Characters) {
  const Scratch_Folder folder;
  Write_Text(folder / "aXbXc", "");
  EXPECT_EQ(Matching_Files(folder.path(), "a*xc").size(), 1u);
  EXPECT_EQ(Matching_Files(folder.path(), "*").size(), 1u);
  EXPECT_EQ(Matching_Files(folder.path(), "a*b*c*").size(), 1u);
  EXPECT_EQ(Matching_Files(folder.path(), "a*b").size(), 0u);
  EXPECT_EQ(Matching_Files(folder.path(), "").size(), 0u);
}

}  // namespace
}  // namespace barvon
