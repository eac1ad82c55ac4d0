#include "core/desk/open_file.h"

#include <sys/stat.h>

#include "core/desk/file_kinds.h"
#include "core/desk/workspace_port.h"
#include "platform/ask/busy_cursor.h"
#include "support/project_text.h"
#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;
using Lines = std::vector<std::string>;

class OpenFile : public Recorded_Workspace {
 protected:
  OpenFile() {
    record_.ProjectFileName = "/former/site.dui";
    record_.BaseFileName = "/former/site";
    record_.ProjectTitle = "Former";
    record_.DX0 = 25;
  }

  /// A dilution format that only takes the title from the bytes.
  static void Register_Dilution() {
    File_Kind kind;
    kind.read = [](const std::string&, std::string_view bytes, ProjectRecord& record) {
      if (bytes == "bad") return Failure::Subscript;
      record.ProjectTitle = bytes;
      return Failure::None;
    };
    Register_File_Kind("DUD", kind);
  }

  void Expect_Former_Project() const {
    EXPECT_EQ(record_.ProjectFileName, "/former/site.dui");
    EXPECT_EQ(record_.BaseFileName, "/former/site");
    EXPECT_EQ(record_.ProjectTitle, "Former");
    EXPECT_EQ(record_.DX0, 25);
    EXPECT_TRUE(log_.empty());
  }

  static void Expect_Offer(const Scripted_Messages& messages) {
    ASSERT_EQ(messages.shown.size(), 2u);
    EXPECT_EQ(messages.shown[0].text, "Error in Data File. Some of the Data is missing.");
    EXPECT_EQ(messages.shown[0].title, "BARVON");
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(messages.shown[1].text, "Initialize data and continue?");
    EXPECT_EQ(messages.shown[1].title, "BARVON");
    EXPECT_EQ(messages.shown[1].buttons, Buttons::YesNoCancel);
    EXPECT_EQ(messages.shown[1].icon, Icon::Warning);
  }

  std::string Cut_Off_Project() const {
    const std::string path = folder_ / "cut.dui";
    Write_Text(path, "   DUMP    1\r\nCut off\r\n");
    return path;
  }
};

TEST_F(OpenFile, An_Empty_Path_Returns_With_The_Grid_Marker_Cleared) {
  Scripted_Messages messages;
  record_.OldGridFile = 1;
  EXPECT_FALSE(Open_File("", record_));
  EXPECT_EQ(record_.OldGridFile, 0);
  Expect_Former_Project();
}

TEST_F(OpenFile, A_Missing_File_Is_Told_With_Its_Path) {
  Scripted_Messages messages({Answer::Ok});
  const std::string path = folder_ / "none.dui";
  EXPECT_FALSE(Open_Project(path, record_));
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text, "Can't Open File: " + path + "   Or File Not Found");
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
  EXPECT_EQ(messages.shown[0].icon, Icon::None);
  Expect_Former_Project();
}

TEST_F(OpenFile, A_Folder_Is_Told_As_A_File_That_Can_Not_Be_Opened) {
  Scripted_Messages messages({Answer::Ok});
  const std::string path = folder_ / "folder.dui";
  ASSERT_EQ(::mkdir(path.c_str(), 0700), 0);
  EXPECT_FALSE(Open_Project(path, record_));
  EXPECT_EQ(messages.shown.at(0).text, "Can't Open File: " + path + "   Or File Not Found");
  Expect_Former_Project();
}

TEST_F(OpenFile, A_Project_Is_Loaded_And_Names_And_Caption_Follow) {
  Scripted_Messages messages;
  const std::string path = folder_ / "site.dui";
  Write_Text(path, Project_Bytes("From a file"));
  EXPECT_TRUE(Open_Project(path, record_));
  EXPECT_EQ(record_.ProjectTitle, "From a file");
  EXPECT_EQ(record_.DX0, 0);
  EXPECT_EQ(record_.DataSaved, kTrue);
  EXPECT_EQ(record_.ProjectFileName, path);
  EXPECT_EQ(record_.BaseFileName, folder_ / "site");
  EXPECT_EQ(log_, Lines{"caption BARVON - " + path});
}

TEST_F(OpenFile, The_One_Depth_Of_The_Earlier_Projects_Grid_Does_Not_Hide_The_Loaded_Depths) {
  Scripted_Messages messages;
  record_.DEPTHI = 30;
  Write_Text(folder_ / "site.dui", Project_Bytes("site"));
  EXPECT_TRUE(Open_File(folder_ / "site.dui", record_));
  EXPECT_EQ(record_.DEPTHI, 0);
}

TEST_F(OpenFile, The_Water_Of_The_Earlier_Project_Does_Not_Replace_The_Loaded_Densities) {
  Scripted_Messages messages;
  record_.DensityComputeFlag = kTrue;
  record_.DensitySalinities[1] = record_.DensityTemperatures[5] = 30;
  Write_Text(folder_ / "site.dui", Project_Bytes("site"));
  EXPECT_TRUE(Open_File(folder_ / "site.dui", record_));
  EXPECT_EQ(record_.DensityComputeFlag, kFalse);
  EXPECT_EQ(record_.DensitySalinities[1], 0);
  EXPECT_EQ(record_.DensityTemperatures[5], 0);
}

TEST_F(OpenFile, An_Upper_Or_Lower_Case_Extension_Is_Treated_Alike) {
  Scripted_Messages messages;
  for (const char* name : {"a.dui", "b.DUI", "c.Dui"}) {
    Write_Text(folder_ / name, Project_Bytes(name));
    EXPECT_TRUE(Open_File(folder_ / name, record_));
    EXPECT_EQ(record_.ProjectTitle, name);
  }
}

TEST_F(OpenFile, A_File_Is_Found_Whatever_The_Case_Of_Its_Name) {
  Scripted_Messages messages;
  Write_Text(folder_ / "SITE.DUI", Project_Bytes("Shouted"));
  EXPECT_TRUE(Open_Project(folder_ / "site.dui", record_));
  EXPECT_EQ(record_.ProjectTitle, "Shouted");
  EXPECT_EQ(record_.ProjectFileName, folder_ / "site.dui");
}

TEST_F(OpenFile, The_Bulk_Density_Rule_Runs_After_A_Load) {
  Scripted_Messages messages;
  Lines lines = Lines_Of(Project_Bytes("Dense"));
  // BulkDensity is real slot 103: the first of line 6 + 17.
  lines.at(23).replace(0, 11, "       1.01");
  Write_Text(folder_ / "site.dui", Joined(lines));
  EXPECT_TRUE(Open_File(folder_ / "site.dui", record_));
  EXPECT_EQ(record_.BulkDensity, 1.01);
  EXPECT_EQ(record_.SiteDensity, 1.01);
}

TEST_F(OpenFile, A_Remark_Of_The_Loader_Goes_To_The_Status_Area) {
  Scripted_Messages messages;
  Lines lines = Lines_Of(Project_Bytes("No comment"));
  lines.back() = "4";
  Write_Text(folder_ / "site.dui", Joined(lines));
  EXPECT_TRUE(Open_File(folder_ / "site.dui", record_));
  EXPECT_EQ(notes_, Lines{"The file ends without the comment behind its type of simulation."});
}

TEST_F(OpenFile, A_Cut_Off_Project_Offers_A_Fresh_Start_And_No_Keeps_The_Project) {
  for (const Answer answer : {Answer::No, Answer::Cancel}) {
    Scripted_Messages messages({Answer::Ok, answer});
    record_.OldGridFile = 1;
    record_.OldGridRetry = kTrue;
    EXPECT_FALSE(Open_Project(Cut_Off_Project(), record_));
    Expect_Offer(messages);
    EXPECT_EQ(record_.OldGridFile, 0);
    EXPECT_EQ(record_.OldGridRetry, kFalse);
    Expect_Former_Project();
  }
}

TEST_F(OpenFile, A_Cut_Off_Project_And_Yes_Start_Afresh) {
  Scripted_Messages messages({Answer::Ok, Answer::Yes});
  EXPECT_FALSE(Open_Project(Cut_Off_Project(), record_));
  Expect_Offer(messages);
  EXPECT_EQ(record_.ProjectFileName, "");
  EXPECT_EQ(record_.ProjectTitle, "");
  EXPECT_EQ(record_.DX0, 0);
  EXPECT_EQ(log_, (Lines{"clear text checks", "close dilution", "caption BARVON - UNTITLED.DUI",
                         "new project", "display"}));
}

TEST_F(OpenFile, A_Read_Error_With_A_Number_Is_Told_Once_And_Asks_Nothing_More) {
  Scripted_Messages messages({Answer::Ok});
  Lines lines = Lines_Of(Project_Bytes("Overflow"));
  lines.at(3).replace(0, 5, "99999");
  Write_Text(folder_ / "site.dui", Joined(lines));
  EXPECT_FALSE(Open_Project(folder_ / "site.dui", record_));
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text, "Error Reading File:  6");
  Expect_Former_Project();
}

TEST_F(OpenFile, The_Boxes_Of_A_Failure_Stand_Under_The_Normal_Cursor) {
  bool busy = false;
  bool was_busy = false;
  const Cursor_Presenter former = Set_Cursor_Presenter([&](bool on) {
    busy = on;
    was_busy = was_busy || on;
  });
  int boxes_under_normal_cursor = 0;
  const Message_Presenter former_boxes = Set_Message_Presenter([&](const Message&) {
    if (!busy) ++boxes_under_normal_cursor;
    return Answer::No;
  });
  EXPECT_FALSE(Open_File(Cut_Off_Project(), record_));
  Set_Message_Presenter(former_boxes);
  Set_Cursor_Presenter(former);
  EXPECT_TRUE(was_busy);
  EXPECT_FALSE(busy);
  EXPECT_EQ(boxes_under_normal_cursor, 2);
}

TEST_F(OpenFile, An_Output_In_The_Open_Dialog_Never_Becomes_The_Projects_File) {
  Scripted_Messages messages;
  for (const char* name : {"site.DUO", "site.dup", "site.qro", "site"}) {
    Write_Text(folder_ / name, "listing");
    chosen_ = folder_ / name;
    notes_.clear();
    EXPECT_FALSE(File_Open_Dialog(2, record_));
    EXPECT_EQ(notes_,
              Lines{std::string(name) + " is no project file: nothing was loaded from it."});
    EXPECT_EQ(Read_Text(folder_ / name), "listing");
    Expect_Former_Project();
  }
}

TEST_F(OpenFile, A_Missing_Output_Is_Told_As_Missing) {
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Open_File("/none/site.duo", record_));
  EXPECT_EQ(messages.shown.at(0).text, "Can't Open File: /none/site.duo   Or File Not Found");
}

TEST_F(OpenFile, A_Dilution_File_Goes_To_Who_Registered_For_It) {
  Scripted_Messages messages;
  Register_Dilution();
  Write_Text(folder_ / "a.dud", "Dilutions");
  EXPECT_TRUE(Open_Project(folder_ / "a.dud", record_));
  EXPECT_EQ(record_.ProjectTitle, "Dilutions");
  EXPECT_EQ(record_.DX0, 25);
  EXPECT_EQ(record_.ProjectFileName, folder_ / "a.dud");
  EXPECT_EQ(caption_, "BARVON - " + (folder_ / "a.dud"));
}

TEST_F(OpenFile, A_Dilution_File_That_Nobody_Reads_Is_Told) {
  Scripted_Messages messages({Answer::Ok});
  Write_Text(folder_ / "a.dud", "Dilutions");
  EXPECT_FALSE(Open_Project(folder_ / "a.dud", record_));
  EXPECT_EQ(messages.shown.at(0).text,
            "Can't Open File: " + (folder_ / "a.dud") + "   Dilution Files Are Not Supported");
  Expect_Former_Project();
}

TEST_F(OpenFile, A_Faulty_Dilution_File_Offers_A_Fresh_Start) {
  Scripted_Messages messages({Answer::Ok, Answer::No});
  Register_Dilution();
  Write_Text(folder_ / "a.dud", "bad");
  EXPECT_FALSE(Open_Project(folder_ / "a.dud", record_));
  Expect_Offer(messages);
  Expect_Former_Project();
}

TEST_F(OpenFile, A_Fresh_Start_After_A_Dilution_File_Leaves_The_Project) {
  Scripted_Messages messages({Answer::Ok, Answer::Yes});
  Register_Dilution();
  int cleared = 0;
  Port().dilution.clear = [&cleared] { ++cleared; };
  record_.DiluteParameterNames[1] = "Copper";
  record_.DiluteSolidsConc = 50;
  Write_Text(folder_ / "a.dud", "bad");
  EXPECT_FALSE(Open_Project(folder_ / "a.dud", record_));
  EXPECT_EQ(record_.DiluteParameterNames[1], "");
  EXPECT_EQ(record_.DiluteSolidsConc, 0);
  EXPECT_EQ(cleared, 1);
  Expect_Former_Project();
}

TEST_F(OpenFile, What_Was_Said_Of_The_Project_Before_Is_Taken_Back) {
  const std::string path = folder_ / "next.dui";
  Write_Text(path, Project_Bytes("Next"));
  Port().board.show_note({"site.duo kept", "details"});
  ASSERT_TRUE(Open_File(path, record_));
  EXPECT_EQ(notes_, (Lines{"site.duo kept", ""}));
}

TEST_F(OpenFile, A_Damaged_Exact_Value_Is_Refused_And_Its_Line_Shown) {
  const std::string path = folder_ / "next.dui";
  Write_Text(path, Project_Bytes("Next") +
                       "Exact values of this project that the columns above this line can not "
                       "hold: 1\r\nRealSlots(88) = 1oo; the columns give 0\r\n"
                       "End of the exact values\r\n");
  Scripted_Messages messages({Answer::Ok});
  EXPECT_FALSE(Open_File(path, record_));
  EXPECT_EQ(messages.shown.at(0).text, "Error Reading File:  13");
  EXPECT_EQ(notes_, Lines{"next.dui was not loaded. What is damaged is line 3523: RealSlots(88) = "
                          "1oo; the columns give 0"});
}

TEST_F(OpenFile, A_Project_Whose_KEY4_Chooses_Nothing_Has_Its_Menus_And_Its_Kind) {
  const std::string path = folder_ / "unchosen.dui";
  Write_Text(path, Project_Bytes("Unchosen"));
  int opened = 0;
  Port().board.open_menus = [&opened] { ++opened; };
  record_.FileKind = 1;
  ASSERT_TRUE(Open_Project(path, record_));
  EXPECT_EQ(record_.KEY4, 0);
  EXPECT_EQ(record_.FileKind, 2);
  EXPECT_EQ(opened, 1);
}

TEST_F(OpenFile, Cancel_In_The_Dialog_Leaves_Everything) {
  Scripted_Messages messages;
  EXPECT_FALSE(File_Open_Dialog(2, record_));
  EXPECT_EQ(open_asked_.size(), 1u);
  EXPECT_EQ(record_.OldGridFile, 99);
  Expect_Former_Project();
}

TEST_F(OpenFile, The_Dialog_Opens_The_Chosen_File_Once) {
  Scripted_Messages messages;
  int reads = 0;
  File_Kind kind;
  kind.read = [&](const std::string&, std::string_view, ProjectRecord&) {
    ++reads;
    return Failure::None;
  };
  Register_File_Kind("DUD", kind);
  Write_Text(folder_ / "a.dud", "x");
  chosen_ = folder_ / "a.dud";
  EXPECT_TRUE(File_Open_Dialog(1, record_));
  EXPECT_EQ(reads, 1);
}

}  // namespace
}  // namespace barvon
