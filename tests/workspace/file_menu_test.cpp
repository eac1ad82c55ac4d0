#include "workspace/file_menu.h"

#include "checks/check_data.h"
#include "core/desk/file_kinds.h"
#include "core/desk/open_file.h"
#include "core/desk/project_hold.h"
#include "core/desk/recent_files.h"
#include "core/desk/save_file.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "platform/files/safe_file.h"
#include "support/disk_calls.h"
#include "support/recorded_workspace.h"
#include "workspace/quit_rules.h"

namespace barvon {
namespace {

using namespace barvon::testing;
using Lines = std::vector<std::string>;

constexpr char kErrorsQuestion[] =
    "Errors have been detected in the data.  Do You Wish to Fix The Errors?";

class FileMenu : public Recorded_Workspace {
 protected:
  void Click(int index) { mnuFileItem_Click(index, record_); }
  void Name_Project(const std::string& path) {
    record_.ProjectFileName = path;
    record_.BaseFileName = path.substr(0, path.size() - 4);
  }
  std::string Make_Project(const std::string& name) {
    Write_Text(folder_ / name, Project_Bytes(name));
    return folder_ / name;
  }
  /// A record that no rule finds fault with.
  void Make_Valid();
};

void FileMenu::Make_Valid() {
  record_.DX0 = record_.DZ0 = 100;
  record_.DEPC0 = 60;
  record_.RHDA0 = 0.005;
  record_.DensityDepths[2] = 60;
  record_.Densities[1] = record_.Densities[2] = 1.0;
  record_.AvgVelocityDepth = 40;
  record_.AvgVelocityX = record_.AvgVelocityZ = 0.5;
  record_.VelXDepth1 = record_.VelZDepth1 = 40;
  record_.SolidVolFraction[1] = 0.1;
  record_.SolidSG[1] = 2.6;
  record_.BINL = record_.BINW = 20;
  record_.XBARGE = record_.ZBARGE = 1500;
  record_.SimulationDuration = 3600;
  record_.LongTermTimeStep = 300;
}

TEST_F(FileMenu, A_Dilution_File_Sets_No_Status_Line_And_No_Graph_File) {
  Scripted_Messages messages;
  File_Kind kind;
  kind.read = [](const std::string&, std::string_view, ProjectRecord& record) {
    record.DiluteRowCount = 12;
    return Failure::None;
  };
  Register_File_Kind("DUD", kind);
  chosen_ = folder_ / "list.dud";
  Write_Text(*chosen_, "12 of them");
  record_.ScreenDataSupplied[10] = kTrue;
  Click(kFileOpen);
  EXPECT_EQ(notes_.back(), "12 parameters read; the dilution button shows them");
  EXPECT_EQ(log_, (Lines{"caption BARVON - " + *chosen_, "display", "main board"}));
  EXPECT_EQ(Settings().find("GraphFile"), std::string::npos);
  EXPECT_EQ(Listed().at(0), *chosen_);
  EXPECT_EQ(record_.ScreenDataSupplied[10], kTrue);
  EXPECT_EQ(record_.ProjectFileName, *chosen_);
}

TEST_F(FileMenu, Separators_And_Other_Indices_Do_Nothing) {
  Scripted_Messages messages;
  for (const int index : {3, 6, 9, -1, 11, 100}) Click(index);
  EXPECT_TRUE(log_.empty());
  EXPECT_TRUE(open_asked_.empty());
  EXPECT_TRUE(save_asked_.empty());
}

TEST_F(FileMenu, New_Resets_Shows_And_Marks_Five_Lines_In_Black) {
  Scripted_Messages messages;
  Name_Project("/data/site.dui");
  Click(kFileNew);
  EXPECT_EQ(record_.ProjectFileName, "");
  EXPECT_EQ(log_, (Lines{"clear text checks", "close dilution", "caption BARVON - UNTITLED.DUI",
                         "new project", "display", "status 0 Data Not Entered black",
                         "status 1 Data Not Entered black", "status 2 Data Not Entered black",
                         "status 3 Data Not Entered black", "status 4 Data Not Entered black"}));
}

TEST_F(FileMenu, New_That_Is_Cancelled_At_Changed_Text_Changes_Nothing) {
  Scripted_Messages messages({Answer::Cancel});
  text_has_changed_ = true;
  Name_Project("/data/site.dui");
  Click(kFileNew);
  EXPECT_EQ(record_.ProjectFileName, "/data/site.dui");
  EXPECT_TRUE(log_.empty());
}

TEST_F(FileMenu, Open_Goes_Through_Its_Steps_In_Order) {
  Scripted_Messages messages;
  const std::string path = Make_Project("site.dui");
  Fill_Recent_Menu({path});
  chosen_ = path;
  Click(kFileOpen);
  EXPECT_EQ(record_.ProjectFileName, path);
  EXPECT_EQ(record_.ProjectTitle, "site.dui");
  EXPECT_EQ(record_.WizardAccepted, kTrue);
  EXPECT_EQ(record_.DataSaved, kTrue);
  EXPECT_EQ(log_, (Lines{"caption BARVON - " + path, "recent menu", "display",
                         "status 0 Data Supplied blue", "status 1 Data Supplied blue",
                         "status 2 Data Supplied blue", "status 3 Data Supplied blue",
                         "status 4 Data Supplied blue", "status 5 Default Coefficients Used black",
                         "main board"}));
  EXPECT_EQ(Settings(), "[Recent Files]\r\nRecentFile1=" + path +
                            "\r\n[Graph File]\r\nGraphFile=" + path + "\r\n");
}

TEST_F(FileMenu, Open_Waits_For_The_Disk_Once_For_All_Settings) {
  Scripted_Messages messages;
  for (int entry = 1; entry <= kRecentFiles; ++entry) {
    Write_Recent(entry, "/data/" + std::to_string(entry) + ".dui");
  }
  chosen_ = Make_Project("site.dui");
  Set_Save_Notes_Folder(folder_.path());
  const Disk_Calls calls;
  Click(kFileOpen);
  EXPECT_EQ(calls.Waits(), 2);  // the settings file and its folder
  Set_Save_Notes_Folder({});
  EXPECT_EQ(Settings(), "[Recent Files]\r\nRecentFile1=" + *chosen_ +
                            "\r\nRecentFile2=/data/1.dui\r\nRecentFile3=/data/2.dui"
                            "\r\nRecentFile4=/data/3.dui\r\n[Graph File]\r\nGraphFile=" +
                            *chosen_ + "\r\n");
}

TEST_F(FileMenu, Open_Says_Whether_The_Coefficients_Are_The_Defaults) {
  Scripted_Messages messages;
  const std::string path = folder_ / "site.DUI";
  record_.CD = 0.7;
  ASSERT_TRUE(Save_File(path, kProjectKind, record_));
  record_.ScreenDataSupplied[10] = kTrue;  // of the project before
  chosen_ = path;
  Click(kFileOpen);
  EXPECT_EQ(std::count(log_.begin(), log_.end(), "status 5 User-Defined Coefficients blue"), 1);
  EXPECT_EQ(record_.ScreenDataSupplied[10], kFalse);
}

TEST_F(FileMenu, Open_Shows_The_Dialog_Of_The_Kind_Of_File) {
  Scripted_Messages messages;
  record_.FileKind = 1;
  Click(kFileOpen);
  EXPECT_EQ(open_asked_.at(0).filters.at(0).pattern, "*.DUD");
}

TEST_F(FileMenu, A_Cancelled_Open_Stops) {
  Scripted_Messages messages;
  Name_Project("/data/site.dui");
  Click(kFileOpen);
  EXPECT_EQ(record_.ProjectFileName, "/data/site.dui");
  EXPECT_EQ(record_.WizardAccepted, kFalse);
  EXPECT_TRUE(log_.empty());
  EXPECT_FALSE(Exists(folder_ / "BARVON.INI"));
}

TEST_F(FileMenu, A_Failed_Open_Stops_With_Project_Name_And_Caption_As_Before) {
  Scripted_Messages messages({Answer::Ok, Answer::No});
  Name_Project("/data/site.dui");
  Write_Text(folder_ / "cut.dui", "   DUMP    1\r\n");
  chosen_ = folder_ / "cut.dui";
  Click(kFileOpen);
  EXPECT_EQ(record_.ProjectFileName, "/data/site.dui");
  EXPECT_EQ(record_.BaseFileName, "/data/site");
  EXPECT_EQ(record_.WizardAccepted, kFalse);
  EXPECT_TRUE(log_.empty());
  EXPECT_FALSE(Exists(folder_ / "BARVON.INI"));
}

TEST_F(FileMenu, A_Save_After_Picking_An_Output_Does_Not_Touch_The_Output) {
  Scripted_Messages messages({Answer::No});  // at the findings of the save
  Name_Project(folder_ / "a.DUI");
  Write_Text(folder_ / "b.DUO", "listing");
  chosen_ = folder_ / "b.DUO";
  Click(kFileOpen);
  EXPECT_TRUE(log_.empty());
  Click(kFileSave);
  EXPECT_EQ(Read_Text(folder_ / "b.DUO"), "listing");
  EXPECT_TRUE(Exists(folder_ / "a.DUI"));
}

TEST_F(FileMenu, Settings_That_Can_Not_Be_Written_Are_Told_In_The_Status_Area) {
  Scripted_Messages messages;
  // A line break can't stand in the settings, though it can in a file name.
  const std::string path = folder_ / "two\nlines.dui";
  Write_Text(path, Project_Bytes("two lines"));
  chosen_ = path;
  Click(kFileOpen);
  EXPECT_EQ(record_.ProjectFileName, path);
  EXPECT_EQ(
      notes_.back(),
      "BARVON.INI could not be written: the graphics program has not been told of " + path + ".");
}

TEST_F(FileMenu, Close_Resets_And_Does_Not_Show_The_Data) {
  Scripted_Messages messages;
  Name_Project("/data/site.dui");
  Click(kFileClose);
  EXPECT_EQ(record_.ProjectFileName, "");
  EXPECT_EQ(log_, (Lines{"clear text checks", "close dilution", "caption BARVON - UNTITLED.DUI",
                         "new project"}));
}

TEST_F(FileMenu, Close_Stops_When_The_Text_Prompt_Is_Cancelled) {
  Scripted_Messages messages({Answer::Cancel});
  text_has_changed_ = true;
  Name_Project("/data/site.dui");
  Click(kFileClose);
  EXPECT_EQ(record_.ProjectFileName, "/data/site.dui");
}

TEST_F(FileMenu, Close_Asks_About_Changed_Text_Once_Before_It_Resets) {
  Scripted_Messages messages({Answer::No});
  text_has_changed_ = true;
  Click(kFileClose);
  EXPECT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(caption_, kUntitledCaption);
}

TEST_F(FileMenu, Close_And_New_Go_On_Once_The_Text_Is_Saved) {
  for (const File_Item item : {kFileClose, kFileNew}) {
    Scripted_Messages messages({Answer::Yes});
    text_has_changed_ = true;
    int saved = 0;
    Port().text.save = [&saved] { return ++saved > 0; };
    Name_Project("/data/site.dui");
    Click(item);
    EXPECT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(record_.ProjectFileName, "");
  }
}

TEST_F(FileMenu, Save_Without_Findings_Asks_Nothing) {
  Scripted_Messages messages;
  Make_Valid();
  const Error_List errors = Check_Data(record_);
  for (const Error_Entry& entry : errors.entries) ADD_FAILURE() << entry.message;
  Name_Project(folder_ / "site.DUI");
  Click(kFileSave);
  EXPECT_TRUE(Exists(folder_ / "site.DUI"));
  EXPECT_EQ(record_.DataSaved, kTrue);
}

TEST_F(FileMenu, A_Save_Tells_Its_Remarks_And_Asks_Nothing) {
  Scripted_Messages messages;
  Make_Valid();
  record_.TotalVolume = 4000;
  record_.NOPENS = 3;
  Name_Project(folder_ / "site.DUI");
  Click(kFileSave);
  EXPECT_TRUE(Exists(folder_ / "site.DUI"));
  EXPECT_EQ(notes_, Lines{"3 remarks"});
  record_.NOPENS = 4;
  Click(kFileSave);
  EXPECT_EQ(notes_.back(), "");
}

TEST_F(FileMenu, Findings_Only_Warn_And_No_Saves) {
  Scripted_Messages messages({Answer::No});
  Name_Project(folder_ / "site.DUI");
  Click(kFileSave);
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text, kErrorsQuestion);
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
  EXPECT_TRUE(Exists(folder_ / "site.DUI"));
  EXPECT_TRUE(save_asked_.empty());
}

TEST_F(FileMenu, Cancel_At_The_Findings_Saves_Nothing) {
  Scripted_Messages messages({Answer::Cancel});
  Name_Project(folder_ / "site.DUI");
  Click(kFileSave);
  EXPECT_TRUE(Names_In(folder_.path()).empty());
  EXPECT_EQ(record_.DataSaved, kFalse);
}

TEST_F(FileMenu, Yes_At_The_Findings_Opens_The_Error_List_By_ShowMode_And_Saves_Nothing) {
  Lines opened;
  Register_Screen(Row_Of_Screen("frmErrorList"), [&](bool blocking, const std::string&) {
    opened.push_back(blocking ? "blocking" : "free");
  });
  Scripted_Messages messages({Answer::Yes, Answer::Yes});
  Name_Project(folder_ / "site.DUI");
  record_.ShowMode = 1;
  Click(kFileSave);
  record_.ShowMode = 0;
  Click(kFileSave);
  Register_Screen(Row_Of_Screen("frmErrorList"), {});
  EXPECT_EQ(opened, (Lines{"blocking", "free"}));
  EXPECT_TRUE(Names_In(folder_.path()).empty());
  EXPECT_TRUE(notes_.empty());
}

TEST_F(FileMenu, Save_Without_A_Name_Asks_For_A_Project_Name_And_Cancel_Stops) {
  Scripted_Messages messages;
  Click(kFileSave);
  ASSERT_EQ(save_asked_.size(), 1u);
  EXPECT_EQ(save_asked_[0].filters.at(0).pattern, "*.DUI");
  EXPECT_EQ(record_.ProjectFileName, "");
}

TEST_F(FileMenu, Save_Without_A_Name_Takes_The_Chosen_One) {
  Scripted_Messages messages({Answer::No});
  chosen_ = folder_ / "SITE.A";
  Click(kFileSave);
  EXPECT_EQ(record_.ProjectFileName, folder_ / "SITE.A.DUI");
  EXPECT_EQ(record_.BaseFileName, folder_ / "SITE.A");
  EXPECT_EQ(caption_, "BARVON - " + (folder_ / "SITE.A.DUI"));
}

TEST_F(FileMenu, Save_As_Saves_Under_The_New_Name_And_Leaves_The_Old_File) {
  Scripted_Messages messages({Answer::No});
  Name_Project(Make_Project("old.DUI"));
  const std::string old = Read_Text(folder_ / "old.DUI");
  chosen_ = folder_ / "new";
  Click(kFileSaveAs);
  EXPECT_EQ(save_asked_.at(0).name, folder_ / "old.DUI");
  EXPECT_EQ(record_.ProjectFileName, folder_ / "new.DUI");
  EXPECT_TRUE(Exists(folder_ / "new.DUI"));
  EXPECT_EQ(Read_Text(folder_ / "old.DUI"), old);
}

TEST_F(FileMenu, Cancel_In_The_Save_Dialog_Leaves_ProjectFileName_As_It_Was) {
  Scripted_Messages messages;
  Name_Project("/data/site.dui");
  Click(kFileSaveAs);
  EXPECT_EQ(record_.ProjectFileName, "/data/site.dui");
}

TEST_F(FileMenu, Findings_That_Stop_A_Save_As_Leave_The_Project_Its_File) {
  Register_Screen(Row_Of_Screen("frmErrorList"), [](bool, const std::string&) {});
  const std::string old = Make_Project("old.DUI");
  const std::string before = Read_Text(old);
  ASSERT_TRUE(Open_Project(old, record_));
  Scripted_Messages messages({Answer::Cancel, Answer::Yes, Answer::No});
  chosen_ = folder_ / "new.DUI";
  for (int i = 0; i < 2; ++i) {
    Click(kFileSaveAs);
    EXPECT_EQ(notes_.back(), "new.DUI was not saved. The project is still old.DUI.");
    EXPECT_EQ(record_.ProjectFileName, old);
    EXPECT_EQ(record_.BaseFileName, folder_ / "old");
    EXPECT_EQ(caption_, "BARVON - " + old);
    EXPECT_EQ(Held_Project(), old);
    EXPECT_TRUE(Exists(Lock_Path_Of(old)));
    EXPECT_FALSE(Exists(Lock_Path_Of(folder_ / "new.DUI")));
  }
  Register_Screen(Row_Of_Screen("frmErrorList"), {});
  record_.ProjectTitle = "Mended";
  Click(kFileSave);
  EXPECT_NE(Read_Text(old), before);
  EXPECT_FALSE(Exists(folder_ / "new.DUI"));
  EXPECT_EQ(notes_.at(4), "") << "what was said is taken back";
  Release_Project();
}

TEST_F(FileMenu, A_Project_Whose_First_Save_The_Findings_Stop_Stays_Unnamed) {
  Release_Project();  // of the tests before
  Scripted_Messages messages({Answer::Cancel, Answer::No});
  chosen_ = folder_ / "new.DUI";
  Click(kFileSave);
  EXPECT_EQ(notes_.back(), "new.DUI was not saved. The project has no file yet.");
  EXPECT_EQ(record_.ProjectFileName, "");
  Click(kFileSave);
  EXPECT_EQ(save_asked_.size(), 2u) << "the next save asks again";
  EXPECT_EQ(record_.ProjectFileName, folder_ / "new.DUI");
  Release_Project();
}

TEST_F(FileMenu, A_Save_As_That_Fails_Does_Not_Claim_The_New_Name) {
  Scripted_Messages messages({Answer::No, Answer::Ok});
  Name_Project("/data/site.dui");
  chosen_ = "/none/new.DUI";
  Click(kFileSaveAs);
  EXPECT_EQ(messages.shown.at(1).text, "Can't open file: /none/new.DUI");
  EXPECT_EQ(record_.ProjectFileName, "/data/site.dui");
  EXPECT_EQ(record_.BaseFileName, "/data/site");
  EXPECT_EQ(record_.DataSaved, kFalse);
}

TEST_F(FileMenu, Print_And_Printer_Setup_Go_To_Their_Places) {
  Scripted_Messages messages;
  has_document_ = true;
  Click(kFilePrint);
  EXPECT_EQ(log_, Lines{"print"});
  has_document_ = false;
  Click(kFilePrint);
  EXPECT_EQ(log_, (Lines{"print", "print report"}));
  Click(kFilePrintSetup);
  EXPECT_EQ(printer_setups_, 1);
}

TEST_F(FileMenu, Exit_Never_Offers_To_Save) {
  int ends = 0;
  Set_Program_End([&ends] { ++ends; });
  Scripted_Messages messages({Answer::No, Answer::Yes});
  Name_Project("/data/site.dui");
  record_.DataSaved = kFalse;
  Click(kFileExit);
  EXPECT_EQ(ends, 0);
  Click(kFileExit);
  EXPECT_EQ(ends, 1);
  Set_Program_End({});
  EXPECT_EQ(messages.shown.at(0).text, "Are You Sure You Want to Quit?");
}

class RecentFileMenu : public FileMenu {};

TEST_F(RecentFileMenu, A_Click_Opens_The_File_And_Refills_The_Menu) {
  Scripted_Messages messages;
  const std::string a = Make_Project("a.dui");
  const std::string b = Make_Project("b.dui");
  Fill_Recent_Menu({a, b});
  mnuRecentFile_Click(2, record_);
  EXPECT_EQ(record_.ProjectFileName, b);
  EXPECT_EQ(record_.ProjectTitle, "b.dui");
  EXPECT_EQ(record_.WizardAccepted, kTrue);
  EXPECT_EQ(Listed(), (Lines{a, b, "", ""}));
  EXPECT_EQ(log_.back(), "recent menu");
  EXPECT_EQ(log_.at(log_.size() - 2), "main board");
}

TEST_F(RecentFileMenu, A_File_That_No_Longer_Exists_Is_Told_And_Leaves_List_And_Menu) {
  Scripted_Messages messages({Answer::Ok});
  const std::string gone = folder_ / "gone.dui";
  Name_Project("/data/site.dui");
  Fill_Recent_Menu({"/a.dui", gone, "/c.dui", "/d.dui"});
  mnuRecentFile_Click(2, record_);
  EXPECT_EQ(messages.shown.at(0).text, "Can't Open File: " + gone + "   Or File Not Found");
  EXPECT_EQ(Listed(), (Lines{"/a.dui", "/c.dui", "/d.dui", "Not Used"}));
  EXPECT_EQ(Menu(), (Lines{"/a.dui", "/c.dui", "/d.dui", ""}));
  EXPECT_EQ(record_.ProjectFileName, "/data/site.dui");
}

TEST_F(RecentFileMenu, A_File_That_Is_There_But_Faulty_Stays_In_The_List) {
  Scripted_Messages messages({Answer::Ok, Answer::No});
  Write_Text(folder_ / "cut.dui", "   DUMP    1\r\n");
  Fill_Recent_Menu({folder_ / "cut.dui"});
  mnuRecentFile_Click(1, record_);
  EXPECT_EQ(Listed().at(0), folder_ / "cut.dui");
  EXPECT_EQ(log_, Lines{"recent menu"});
}

TEST_F(RecentFileMenu, Hidden_Entries_And_Other_Indices_Do_Nothing) {
  Scripted_Messages messages;
  for (const int index : {-1, 0, 1, 4, 5}) mnuRecentFile_Click(index, record_);
  EXPECT_TRUE(log_.empty());
}

}  // namespace
}  // namespace barvon
