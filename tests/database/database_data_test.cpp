#include "database/database_data.h"

#include <filesystem>

#include "core/desk/workspace_port.h"
#include "database/database_files.h"
#include "support/record_differences.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;
using Lines = std::vector<std::string>;

class DatabaseData : public Recorded_Workspace {
 protected:
  DatabaseData() {
    Write_Small_Database(folder_);
    Write("vesdb.dat", Vessel_Record(" 100", "10", 1) + Vessel_Record(" 200", "20", 1) + "\r\n");
    Board_Port& board = Port().board;
    board.set_database_used = [this] { log_.push_back("used"); };
    board.set_database_line = [this](int index, const std::string& text) {
      log_.push_back("line " + std::to_string(index) + " " + text);
    };
    board.count_findings = [this] { return findings_; };
    record_.DataSaved = kTrue;
  }
  void Write(const char* file, const std::string& text) { Write_Text(folder_ / file, text); }

  static inline const List_Choice kNone{};
  int findings_ = 0;
};

TEST_F(DatabaseData, Accept_Applies_All_Four) {
  Scripted_Messages no_boxes;
  Accept_Selection({{{"North", 0}, {"May", 4}, {"Bar", 0}, {"Bittern", 1}}}, record_);
  EXPECT_EQ(log_,
            (Lines{"used", "status 1 Data Supplied blue", "line 0 Site: North",
                   "status 2 Data Supplied blue", "line 1 Month: May",
                   "status 3 Data Supplied blue", "line 2 Material Location: Bar",
                   "status 4 Data Supplied blue", "line 3 Disposal Vessel: Bittern", "display"}));
  EXPECT_EQ(record_.SelectedSiteCode, 100);
  EXPECT_EQ(record_.SelectedMonth, 5);
  EXPECT_EQ(record_.SelectedMaterialCode, 100);
  EXPECT_EQ(record_.SelectedVesselCode, 200);
  EXPECT_EQ(record_.SiteFound, kTrue);
  EXPECT_EQ(record_.MaterialFound, kTrue);
  EXPECT_EQ(record_.VesselFound, kTrue);
  EXPECT_EQ(record_.DEPC0, 10);
  EXPECT_EQ(record_.VelX1, 5.1);
  EXPECT_EQ(record_.SolidNames[1], "Sand");
  EXPECT_EQ(record_.BINL, 20);
  EXPECT_EQ(record_.DataSaved, kFalse);
  EXPECT_EQ(record_.ScreenDataSupplied, (OneBased<Flag, 10>{}));
  EXPECT_EQ(notes_, Lines{"The project has no findings."});
  EXPECT_EQ(note_details_,
            Lines{"The vessels before the chosen one were passed by 1 opening each."});
}

TEST_F(DatabaseData, Accept_With_Only_A_Site_Names_The_Other_Three_A_Line_Each) {
  Scripted_Messages boxes({Answer::Ok});
  findings_ = 3;
  Accept_Selection({{{"North", 0}, kNone, kNone, kNone}}, record_);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text,
            "No Selection Made For:\n Velocity Data\n Material Data\n Disposal Operations Data\n");
  EXPECT_EQ(boxes.shown[0].title, "BARVON DataBase");
  EXPECT_EQ(boxes.shown[0].icon, Icon::Critical);
  EXPECT_EQ(record_.DEPC0, 10);
  EXPECT_EQ(notes_, Lines{"The project has 3 findings."});
}

TEST_F(DatabaseData, Accept_With_Nothing_Changes_Nothing) {
  Scripted_Messages boxes({Answer::Ok});
  const auto before = std::make_unique<ProjectRecord>(record_);
  Accept_Selection({}, record_);
  EXPECT_EQ(boxes.shown.at(0).text,
            "No Selection Made For:\n Site Data\n Velocity Data\n Material Data\n Disposal "
            "Operations Data\n");
  EXPECT_EQ(Differing_Fields(*before, record_), Fields{});
  EXPECT_EQ(log_, Lines{"used"});
}

TEST_F(DatabaseData, A_Month_Without_A_Site_Goes_With_The_Site_Chosen_Last) {
  Scripted_Messages boxes({Answer::Ok});
  record_.SelectedSiteCode = 100;
  Accept_Selection({{kNone, {"July", 6}, kNone, kNone}}, record_);
  EXPECT_EQ(record_.VelX1, 7.1);
  EXPECT_EQ(record_.DEPC0, 0);
}

TEST_F(DatabaseData, What_Is_Not_Found_Is_Warned_Of_And_Leaves_The_Data) {
  for (const char* file : {"dispdb.dat", "veldb.dat", "matdb.dat", "vesdb.dat"}) Write(file, "\n");
  record_.NROA0 = 4;
  Scripted_Messages boxes({Answer::Ok, Answer::Ok, Answer::Ok});
  const auto before = std::make_unique<ProjectRecord>(record_);
  Accept_Selection({{{"North", 0}, {"May", 4}, {"Bar", 0}, {"Auk", 0}}}, record_);
  ASSERT_EQ(boxes.shown.size(), 3U) << "a velocity says nothing";
  EXPECT_EQ(boxes.shown[0].text, "Site Selected Is Not In Database");
  EXPECT_EQ(boxes.shown[1].text, "Site for Material Selection Not In Database");
  EXPECT_EQ(boxes.shown[2].text, "Vessel Type Not In Database");
  for (const Message& box : boxes.shown) {
    EXPECT_EQ(box.title, "Warning");
    EXPECT_EQ(box.icon, Icon::Warning);
  }
  EXPECT_EQ(
      Differing_Fields(*before, record_),
      (Fields{"SelectedSiteCode", "SelectedMonth", "SelectedMaterialCode", "SelectedVesselCode"}));
  EXPECT_EQ(notes_, Lines{"The project has no findings. The velocity stays as it was."});
}

TEST_F(DatabaseData, A_Hoppers_Vessel_In_A_Barge_Project_Is_Said) {
  Scripted_Messages boxes({Answer::Ok});
  record_.DisposalMethod = 3;
  findings_ = 1;
  Accept_Selection({{kNone, kNone, kNone, {"Auk", 0}}}, record_);
  EXPECT_EQ(notes_, Lines{"The project has 1 finding. The vessel is a hopper's, the project a "
                          "barge's."});
}

TEST_F(DatabaseData, Missing_Lists_Are_Told_Once_With_All_Names) {
  for (const char* file : {"dspsites.dat", "vessels.dat"}) std::filesystem::remove(folder_ / file);
  Scripted_Messages boxes({Answer::Ok});
  const Database_Lists lists = Load_Lists(record_);
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text,
            "These files of the database can't be read in the program's folder:\ndspsites.dat\n"
            "vessels.dat");
  EXPECT_TRUE(lists[kSites].names.empty());
  EXPECT_EQ(lists[kMaterials].names, Lines{"Bar"});
  EXPECT_EQ(lists[kVelocities].names.size(), 12U);
}

TEST_F(DatabaseData, Update_Asks_With_No_As_The_Answer_Of_Return) {
  Scripted_Messages boxes({Answer::No});
  EXPECT_FALSE(Update_Database("East", record_));
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text,
            "Selecting OK Will Automatically Update DataBase With Data That Has Been Provided in "
            "the Main Form.  Do you Want to Continue?");
  EXPECT_EQ(boxes.shown[0].title, "BARVON");
  EXPECT_EQ(boxes.shown[0].icon, Icon::Critical);
  EXPECT_EQ(boxes.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(boxes.shown[0].on_return, Answer::No);
  EXPECT_EQ(Answer_On_Close(boxes.shown[0]), Answer::No);
}

TEST_F(DatabaseData, Update_Appends_The_Site_Under_Its_Name) {
  Scripted_Messages boxes({Answer::Yes});
  record_.DEPC0 = 33;
  EXPECT_TRUE(Update_Database(" East ", record_));
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"),
            "1\r\nNorth\r\n\r\n2\r\nSouth\r\n\r\n 300 \r\nEast\r\n\r\n");
  EXPECT_NE(Read_Text(folder_ / "dispdb.dat").find("\r\n 300  2 \r\n 32  32 \r\n 0  0 \r\n 33 "),
            std::string::npos);
  EXPECT_EQ(log_, Lines{"line 0 Site: East"});
  EXPECT_EQ(notes_.size(), 1U);
  EXPECT_NE(notes_[0].find("free layout"), std::string::npos);
  EXPECT_EQ(record_.DataSaved, kTrue);
}

TEST_F(DatabaseData, Update_With_Another_List_Asks_And_Writes_Nothing) {
  const std::string before = Read_Text(folder_ / "dspsites.dat");
  for (const std::int16_t list : {1, 2, 3}) {
    Scripted_Messages boxes({Answer::Yes});
    record_.ActiveDatabaseList = list;
    EXPECT_FALSE(Update_Database("East", record_));
    EXPECT_EQ(boxes.shown.size(), 1U);
  }
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"), before);
}

TEST_F(DatabaseData, Update_Refuses_No_Name_And_A_Name_That_Is_Taken) {
  const std::string before = Read_Text(folder_ / "dspsites.dat");
  for (const char* name : {"", "  ", "south", " North "}) {
    Scripted_Messages boxes({Answer::Yes, Answer::Ok});
    EXPECT_FALSE(Update_Database(name, record_)) << name;
    EXPECT_EQ(boxes.shown.size(), 2U) << name;
  }
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"), before);
}

TEST_F(DatabaseData, Update_Refuses_A_Hundredth_Site) {
  std::string sites;
  for (int i = 1; i <= 98; ++i) sites += "0\nSite " + std::to_string(i) + "\n\n";
  Write("dspsites.dat", sites);
  {
    Scripted_Messages boxes({Answer::Yes});
    EXPECT_TRUE(Update_Database("The 99th", record_));
  }
  Scripted_Messages boxes({Answer::Yes, Answer::Ok});
  EXPECT_FALSE(Update_Database("The 100th", record_));
  EXPECT_EQ(boxes.shown.at(1).text,
            "The database holds 99 sites, and there is no code for another one.");
}

TEST_F(DatabaseData, Update_Refuses_Without_A_List_And_A_Code_That_Is_Taken) {
  const std::string list = Read_Text(folder_ / "dspsites.dat");
  const std::string data = Site_Record(" 300", "    10") + "\r\n";
  Write("dispdb.dat", data);
  {
    Scripted_Messages boxes({Answer::Yes, Answer::Ok});
    EXPECT_FALSE(Update_Database("East", record_));
    EXPECT_EQ(
        boxes.shown.at(1).text,
        "The site was not added: dispdb.dat holds a site without a name already, of code 300.");
  }
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"), list);
  std::filesystem::remove(folder_ / "dspsites.dat");
  Scripted_Messages boxes({Answer::Yes, Answer::Ok});
  EXPECT_FALSE(Update_Database("East", record_));
  EXPECT_EQ(
      boxes.shown.at(1).text,
      "The site was not added: the list dspsites.dat can't be read, so the site's code is not "
      "known.");
  EXPECT_FALSE(Exists(folder_ / "dspsites.dat"));
  EXPECT_EQ(Read_Text(folder_ / "dispdb.dat"), data);
}

TEST_F(DatabaseData, Update_Refuses_A_Code_That_Has_Currents_Of_Another_Site) {
  const std::string list = Read_Text(folder_ / "dspsites.dat");
  Write("veldb.dat", Velocity_Block(" 100") + Velocity_Block(" 300") + "\r\n");
  Scripted_Messages boxes({Answer::Yes, Answer::Ok});
  EXPECT_FALSE(Update_Database("East", record_));
  EXPECT_EQ(boxes.shown.at(1).text,
            "The site was not added: veldb.dat holds currents of a site without a name, of code "
            "300.");
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"), list);
}

TEST_F(DatabaseData, Update_Refuses_Letters_That_The_Files_Lose) {
  const std::string list = Read_Text(folder_ / "dspsites.dat");
  const std::pair<const char*, const char*> names[] = {{"Łódź São Ω Ω", "Ł, ź, Ω"},
                                                       {"East\tSide\n2", "a control letter"}};
  for (const auto& [name, told] : names) {
    Scripted_Messages boxes({Answer::Yes, Answer::Ok});
    EXPECT_FALSE(Update_Database(name, record_));
    EXPECT_EQ(boxes.shown.at(1).text, std::string("The name has letters that the files can't "
                                                  "keep: ") +
                                          told + ". Please type another one.");
  }
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"), list);
  Scripted_Messages boxes({Answer::Yes});
  EXPECT_TRUE(Update_Database("São Cœur €", record_));
}

TEST_F(DatabaseData, A_Note_Names_The_Copy_As_It_Is_Called) {
  Write("dispdb.dat", Site_Record(" 100", "    10"));
  Write("dispdb.dat.bak", "former");
  Scripted_Messages boxes({Answer::Yes});
  EXPECT_TRUE(Mend_Database_Files(Check_Database(folder_.path())));
  EXPECT_EQ(notes_, Lines{"Mended: dispdb.dat. The file as it was is kept as dispdb.dat.bak2."});
}

TEST_F(DatabaseData, Update_Refuses_A_List_That_Ends_Inside_An_Entry) {
  const std::string list = "1\r\nNorth\r\n\r\n200\r\n";
  Write("dspsites.dat", list);
  Scripted_Messages boxes({Answer::Yes, Answer::Ok});
  EXPECT_FALSE(Update_Database("East", record_));
  EXPECT_EQ(boxes.shown.at(1).text,
            "The site was not added: the list dspsites.dat does not end with a whole entry.");
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"), list);
}

TEST_F(DatabaseData, Mending_Does_Not_Undo_What_Was_Typed_Since_The_Check) {
  Write("dispdb.dat", Site_Record(" 100", "    10"));
  const Database_Report report = Check_Database(folder_.path());
  const std::string now = Site_Record(" 100", "    12");
  Write("dispdb.dat", now);
  Scripted_Messages boxes({Answer::Yes, Answer::Ok});
  EXPECT_TRUE(Mend_Database_Files(report)) << "the list is to be filled again";
  EXPECT_EQ(boxes.shown.at(1).text,
            "The files have changed since they were checked. Please look at the list again.");
  EXPECT_EQ(Read_Text(folder_ / "dispdb.dat"), now);
  EXPECT_FALSE(Exists(folder_ / "dispdb.dat.bak"));
}

TEST_F(DatabaseData, Update_Tells_Of_A_File_That_Can_Not_Be_Written) {
  std::filesystem::remove(folder_ / "dispdb.dat");
  std::filesystem::create_directory(folder_ / "dispdb.dat");
  Scripted_Messages boxes({Answer::Yes, Answer::Ok});
  EXPECT_FALSE(Update_Database("East", record_));
  EXPECT_EQ(boxes.shown.at(1).text,
            "The site was not added: can't write the file dispdb.dat. Is a directory");
  EXPECT_EQ(Read_Text(folder_ / "dspsites.dat"), "1\r\nNorth\r\n\r\n2\r\nSouth\r\n\r\n");
}

TEST_F(DatabaseData, Mending_Tells_Of_A_File_That_Can_Not_Be_Written) {
  const std::string site = Site_Record(" 100", "    10");
  Write("dispdb.dat", site);
  std::filesystem::create_symlink("nowhere/copy", folder_ / "dispdb.dat.bak");
  Scripted_Messages boxes({Answer::Yes, Answer::Ok});
  EXPECT_FALSE(Mend_Database_Files(Check_Database(folder_.path())));
  EXPECT_EQ(boxes.shown.at(1).text, "Can't mend the file dispdb.dat. No such file or directory");
  EXPECT_EQ(boxes.shown.at(1).icon, Icon::Critical);
  EXPECT_EQ(Read_Text(folder_ / "dispdb.dat"), site);
  EXPECT_EQ(notes_, Lines{});
}

TEST_F(DatabaseData, Mending_Is_Asked_First_And_Keeps_Copies) {
  const std::string site = Site_Record(" 100", "    10");
  Write("dispdb.dat", site);
  const Database_Report report = Check_Database(folder_.path());
  {
    Scripted_Messages boxes({Answer::No});
    EXPECT_FALSE(Mend_Database_Files(report));
    EXPECT_EQ(boxes.shown.at(0).on_return, Answer::No);
  }
  EXPECT_EQ(Read_Text(folder_ / "dispdb.dat"), site);
  Scripted_Messages boxes({Answer::Yes});
  EXPECT_TRUE(Mend_Database_Files(report));
  EXPECT_EQ(Read_Text(folder_ / "dispdb.dat"), site + "\r\n");
  EXPECT_EQ(Read_Text(folder_ / "dispdb.dat.bak"), site);
  EXPECT_EQ(notes_, Lines{"Mended: dispdb.dat. The file as it was is kept as dispdb.dat.bak."});
}

}  // namespace
}  // namespace barvon::testing
