#include "run/run_driver.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "run/run_driver_fixture.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

using RunPreparation = RunDriver;

TEST_F(RunPreparation, A_Project_File_Is_Found_Whatever_Its_Case) {
  fs::rename(base + ".DUI", bench.folder / "bay/SITE.dui");
  Install(kWritesAll);
  EXPECT_TRUE(Run().Succeeded());
}

TEST_F(RunPreparation, File_Kind_Three_Is_Run_As_Two) {
  record.FileKind = 3;
  Install(kWritesAll);
  EXPECT_TRUE(Run().Succeeded());
}

TEST_F(RunPreparation, A_Project_Without_A_File_Offers_Save_As_And_Cancel_Stops) {
  fs::remove(base + ".DUI");
  Write_Text(bench / "tmpfile.duo", "old");
  EXPECT_EQ(Run({Answer::Ok}).stage, Run_Stage::No_File);
  Expect_One_Box("Please Specify a File Before Running Model", "BARVON Error", Icon::Critical);
  EXPECT_EQ(record.ProjectFileName, base + ".DUI");
  EXPECT_TRUE(Exists(bench / "tmpfile.duo"));
  Expect_Nothing_Written();
}

TEST_F(RunPreparation, The_Boards_Are_Brought_Up_To_Date_Before_The_Checks) {
  Port().board.display_data = [this] { record.MMAX0 = 0; };  // which the rules find
  EXPECT_EQ(Run({Answer::Cancel}).stage, Run_Stage::Cancelled);
  Expect_Nothing_Written();
}

TEST_F(RunPreparation, A_Project_Without_A_Name_Has_No_File) {
  record.ProjectFileName.clear();
  record.BaseFileName.clear();
  Write_Text(bench / ".DUI", "not its file");
  EXPECT_EQ(Run({Answer::Ok}).stage, Run_Stage::No_File);
  Expect_Nothing_Written();
}

TEST_F(RunPreparation, A_Project_Without_A_File_Is_Saved_Under_The_Chosen_Name_And_Run) {
  fs::remove(base + ".DUI");
  chosen = bench.folder / "bay/new";
  Install(kWritesAll);
  const Run_Report report = Run({Answer::Ok});
  EXPECT_TRUE(report.Succeeded());
  ASSERT_EQ(requests.size(), 1u);
  EXPECT_EQ(requests[0].name, base + ".DUI");
  EXPECT_EQ(requests[0].filters.at(0).pattern, "*.DUI");
  EXPECT_EQ(record.ProjectFileName, bench.folder / "bay/new.DUI");
  EXPECT_TRUE(Exists(bench.folder / "bay/new.DUI"));
  EXPECT_EQ(Read_Text(bench.folder / "bay/new.duo"), "o");
  EXPECT_EQ(Graph_File(), bench.folder / "bay/new.DUI");
}

TEST_F(RunPreparation, A_Save_That_Fails_Stops_And_The_Project_Keeps_Its_Name) {
  fs::remove(base + ".DUI");
  chosen = bench.folder / "none/new.DUI";
  Install(kWritesAll);
  EXPECT_EQ(Run({Answer::Ok, Answer::Ok}).stage, Run_Stage::Save_Failed);
  EXPECT_EQ(record.ProjectFileName, base + ".DUI");
  Expect_Nothing_Written();
}

TEST_F(RunPreparation, A_Dilution_Project_Without_A_File_Stops_Without_Save_As) {
  record.FileKind = 1;
  chosen = bench.folder / "bay/new.DUI";
  EXPECT_EQ(Run({Answer::Ok}).stage, Run_Stage::No_File);
  Expect_One_Box("Please Specify a File Before Running Model", "BARVON Error", Icon::Critical);
  EXPECT_TRUE(requests.empty());
  Expect_Nothing_Written();
}

TEST_F(RunPreparation, A_Dilution_Project_Goes_The_Same_Way_As_A_Model_Project) {
  record.FileKind = 1;
  fs::rename(base + ".DUI", base + ".dud");
  Install(std::string("copy:Tmpfile.Due=seen.due\n") + kWritesAll);
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_TRUE(Exists(bench / "seen.due"));
  EXPECT_EQ(Kept(".duo"), "o");
}

TEST_F(RunPreparation, An_Unknown_File_Kind_Is_An_Invalid_File_Type) {
  for (const double kind : {0.0, 4.0, 2.5, -1.0}) {
    record.FileKind = kind;
    EXPECT_EQ(Run({Answer::Ok}).stage, Run_Stage::Invalid_Type);
    Expect_One_Box("Invalid File Type", "BARVON Error", Icon::Critical);
    Expect_Nothing_Written();
  }
}

struct RunOfFaultyData : RunDriver {
  RunOfFaultyData() {
    record.RHDA0 = 0;  // out of bounds
    Register_Screen(Row_Of_Screen("frmErrorList"),
                    [this](bool blocking, const std::string&) { opened.push_back(blocking); });
    Install(kWritesAll);
  }
  ~RunOfFaultyData() override { Register_Screen(Row_Of_Screen("frmErrorList"), {}); }
  void Expect_Question() {
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].text,
              "Errors have been detected in the data.  Do You Wish to Fix The Errors?");
    EXPECT_EQ(shown[0].title, "BARVON");
    EXPECT_EQ(shown[0].buttons, Buttons::YesNoCancel);
  }
  std::vector<bool> opened;
};

TEST_F(RunOfFaultyData, Yes_Opens_The_Error_List_And_Stops) {
  EXPECT_EQ(Run({Answer::Yes}).stage, Run_Stage::Errors);
  Expect_Question();
  record.ShowMode = 1;
  EXPECT_EQ(Run({Answer::Yes}).stage, Run_Stage::Errors);
  EXPECT_EQ(opened, (std::vector<bool>{false, true}));
  Expect_Nothing_Written();
}

TEST_F(RunOfFaultyData, Cancel_Stops) {
  EXPECT_EQ(Run({Answer::Cancel}).stage, Run_Stage::Cancelled);
  Expect_Question();
  EXPECT_TRUE(opened.empty());
  Expect_Nothing_Written();
}

TEST_F(RunOfFaultyData, No_Runs_The_Faulty_Data) {
  EXPECT_TRUE(Run({Answer::No}).Succeeded());
  Expect_Question();
  EXPECT_TRUE(opened.empty());
  EXPECT_EQ(Kept(".duo"), "o");
}

TEST_F(RunPreparation, Unsaved_Data_Is_Offered_To_Be_Saved_And_Cancel_Stops) {
  record.DataSaved = kFalse;
  record.AlwaysSaveBeforeRun = kTrue;
  Write_Text(bench / "tmpfile.duo", "old");
  Install(kWritesAll);
  EXPECT_EQ(Run().stage, Run_Stage::Cancelled);
  EXPECT_EQ(record.ProjectFileName, base + ".DUI");
  EXPECT_EQ(Read_Text(base + ".DUI"), "as saved");
  EXPECT_EQ(Read_Text(bench / "tmpfile.duo"), "old");
  Expect_Nothing_Written();
}

TEST_F(RunPreparation, Unsaved_Data_Is_Saved_Before_The_Run) {
  record.DataSaved = kFalse;
  record.AlwaysSaveBeforeRun = kTrue;
  chosen = bench.folder / "bay/new.DUI";
  Install(kWritesAll);
  EXPECT_TRUE(Run().Succeeded());
  ASSERT_EQ(requests.size(), 1u);
  EXPECT_EQ(requests[0].name, base + ".DUI");
  EXPECT_EQ(record.DataSaved, kTrue);
  EXPECT_EQ(record.ProjectFileName, *chosen);
  EXPECT_TRUE(Exists(*chosen));
  EXPECT_EQ(Read_Text(bench.folder / "bay/new.duo"), "o");
}

TEST_F(RunPreparation, Saved_Data_Is_Not_Offered_To_Be_Saved_Again) {
  record.AlwaysSaveBeforeRun = kTrue;
  Install(kWritesAll);
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_TRUE(requests.empty());
}

TEST_F(RunPreparation, Unsaved_Data_Is_Run_From_Memory_When_Saving_Is_Not_Asked_For) {
  record.DataSaved = kFalse;
  Install(kWritesAll);
  EXPECT_TRUE(Run().Succeeded());
  EXPECT_TRUE(requests.empty());
  EXPECT_EQ(Read_Text(base + ".DUI"), "as saved");
  EXPECT_EQ(record.DataSaved, kFalse);
}

}  // namespace
}  // namespace barvon
