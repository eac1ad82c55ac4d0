#include "core/desk/recent_files.h"

#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;
using Paths = std::vector<std::string>;

class RecentFiles : public Recorded_Workspace {};

TEST_F(RecentFiles, A_Missing_Settings_File_Gives_An_Empty_List_And_Writing_Creates_It) {
  GetRecentFiles();
  EXPECT_EQ(Menu(), (Paths{"", "", "", ""}));
  EXPECT_FALSE(Exists(folder_ / "BARVON.INI"));
  WriteRecentFiles("/data/a.dui");
  EXPECT_EQ(Settings(), "[Recent Files]\r\nRecentFile1=/data/a.dui\r\n");
}

TEST_F(RecentFiles, A_Refill_Tells_The_Workspace_Once) {
  GetRecentFiles();
  EXPECT_EQ(log_, Paths{"recent menu"});
}

TEST_F(RecentFiles, Not_Used_And_Empty_Values_Are_No_Files) {
  Fill_Recent_Menu({"Not Used", "/b.dui", "", "Not Used any more"});
  EXPECT_EQ(Menu(), (Paths{"", "/b.dui", "", ""}));
}

TEST_F(RecentFiles, A_New_File_Enters_The_Settings_And_The_Menu_Lags_Behind) {
  Fill_Recent_Menu({"/a.dui"});
  Update_Recent_Files("/b.dui");
  EXPECT_EQ(Listed(), (Paths{"/b.dui", "/a.dui", "", ""}));
  EXPECT_EQ(Menu(), (Paths{"/a.dui", "", "", ""}));
  EXPECT_TRUE(log_.empty());
  // A path that the menu shows refills it.
  Update_Recent_Files("/a.dui");
  EXPECT_EQ(Menu(), (Paths{"/b.dui", "/a.dui", "", ""}));
  EXPECT_EQ(log_, Paths{"recent menu"});
}

TEST_F(RecentFiles, A_New_File_Pushes_The_Fourth_Out_While_The_Menu_Shows_The_Old_Four) {
  Fill_Recent_Menu({"/a.dui", "/b.dui", "/c.dui", "/d.dui"});
  Update_Recent_Files("/e.dui");
  EXPECT_EQ(Listed(), (Paths{"/e.dui", "/a.dui", "/b.dui", "/c.dui"}));
  EXPECT_EQ(Menu(), (Paths{"/a.dui", "/b.dui", "/c.dui", "/d.dui"}));
  GetRecentFiles();
  EXPECT_EQ(Menu(), (Paths{"/e.dui", "/a.dui", "/b.dui", "/c.dui"}));
}

TEST_F(RecentFiles, A_File_Anywhere_In_The_List_Changes_Neither_The_List_Nor_Its_Order) {
  Fill_Recent_Menu({"/a.dui", "/b.dui", "/c.dui", "/d.dui"});
  const std::string before = Settings();
  for (const char* path : {"/a.dui", "/d.dui", "/A.DUI", "/c.DUI", " /b.dui "}) {
    Update_Recent_Files(path);
    EXPECT_EQ(Settings(), before) << path;
  }
  EXPECT_EQ(Menu(), (Paths{"/a.dui", "/b.dui", "/c.dui", "/d.dui"}));
}

TEST_F(RecentFiles, Another_Case_Of_A_Shown_Path_Does_Not_Refill_The_Menu) {
  Fill_Recent_Menu({"/a.dui"});
  Update_Recent_Files("/A.dui");
  EXPECT_TRUE(log_.empty());
}

TEST_F(RecentFiles, Only_Letters_A_To_Z_Are_The_Same_In_Both_Cases) {
  Fill_Recent_Menu({"/\xC3\xA9.dui"});
  Update_Recent_Files("/\xC3\x89.dui");
  EXPECT_EQ(Listed(), (Paths{"/\xC3\x89.dui", "/\xC3\xA9.dui", "", ""}));
}

TEST_F(RecentFiles, Four_Names_Without_A_Folder_Never_Enter_The_List) {
  for (const char* name : {"TMPFILE.QRI", "Untitled.qri", "input.dat", "untitled.DUI"}) {
    Update_Recent_Files(name);
  }
  EXPECT_FALSE(Exists(folder_ / "BARVON.INI"));
  Update_Recent_Files("/data/UNTITLED.DUI");
  EXPECT_EQ(Listed(), (Paths{"/data/UNTITLED.DUI", "", "", ""}));
}

TEST_F(RecentFiles, The_Head_Of_The_Settings_That_The_Menu_Lacks_Is_Not_Doubled) {
  Update_Recent_Files("/a.dui");
  Update_Recent_Files("/a.dui");
  EXPECT_EQ(Listed(), (Paths{"/a.dui", "", "", ""}));
}

TEST_F(RecentFiles, A_Path_That_The_Menu_Does_Not_Show_Yet_Moves_To_The_Head) {
  Update_Recent_Files("/a.dui");
  Update_Recent_Files("/b.dui");
  Update_Recent_Files("/a.dui");
  EXPECT_EQ(Listed(), (Paths{"/a.dui", "/b.dui", "", ""}));
}

TEST_F(RecentFiles, An_Unused_Entry_Does_Not_Overwrite_The_One_Below_It) {
  Write_Recent(1, "Not Used");
  Write_Recent(2, "/b.dui");
  WriteRecentFiles("/n.dui");
  EXPECT_EQ(Listed(), (Paths{"/n.dui", "/b.dui", "/b.dui", ""}));
}

TEST_F(RecentFiles, Other_Settings_And_Comments_Stay) {
  Write_Text(folder_ / "barvon.ini", "; mine\n[Material Properties Barge]\nx=1\n");
  WriteRecentFiles("/a.dui");
  EXPECT_EQ(Names_In(folder_.path()), Paths{"barvon.ini"});
  EXPECT_EQ(Read_Text(folder_ / "barvon.ini"),
            "; mine\n[Material Properties Barge]\nx=1\n[Recent Files]\r\nRecentFile1=/a.dui\r\n");
}

TEST_F(RecentFiles, A_Removed_Entry_Lets_Those_Below_Move_Up) {
  Fill_Recent_Menu({"/a.dui", "/b.dui", "/c.dui", "/d.dui"});
  Remove_Recent("/b.dui");
  EXPECT_EQ(Listed(), (Paths{"/a.dui", "/c.dui", "/d.dui", "Not Used"}));
  EXPECT_EQ(Menu(), (Paths{"/a.dui", "/b.dui", "/c.dui", "/d.dui"}));
  Remove_Recent("/elsewhere.dui");
  EXPECT_EQ(Listed(), (Paths{"/a.dui", "/c.dui", "/d.dui", "Not Used"}));
}

TEST_F(RecentFiles, The_Fourth_Can_Be_Removed) {
  Fill_Recent_Menu({"/a.dui", "/b.dui", "/c.dui", "/d.dui"});
  Remove_Recent("/d.dui");
  EXPECT_EQ(Listed(), (Paths{"/a.dui", "/b.dui", "/c.dui", "Not Used"}));
}

TEST_F(RecentFiles, A_Path_That_Would_Come_Back_As_Another_Is_Left_Out) {
  WriteRecentFiles("/bay/a.DUI");
  const std::string settings = Settings();
  for (const std::string& path :
       {std::string("/bay/b.ab "), std::string("/bay/\xE9.DUI"), std::string("/bay/a\nb.DUI"),
        "/" + std::string(251, 'x') + ".DUI"}) {
    WriteRecentFiles(path);
    EXPECT_EQ(Settings(), settings) << path;
  }
  const std::string longest = "/" + std::string(250, 'x') + ".DUI";
  WriteRecentFiles(longest);
  EXPECT_EQ(Listed()[0], longest);
}

}  // namespace
}  // namespace barvon
