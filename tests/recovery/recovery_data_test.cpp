#include "recovery/recovery_data.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

#include "core/desk/edit_entries.h"
#include "core/desk/file_dialogs.h"
#include "core/desk/load_record.h"
#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "dilution/dilution_file.h"
#include "platform/ask/file_dialog.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace testing;
namespace fs = std::filesystem;

struct RecoveryData : ::testing::Test {
  RecoveryData() {
    ::setenv("XDG_DATA_HOME", scratch.path().c_str(), 1);
    Release_Project();
    fs::copy_file(BARVON_SAMPLES "/Barge_Four_Layers.DUI", path);
  }
  ~RecoveryData() override {
    Release_Project();
    Reset_Port();
  }

  /// A window that opens the project, has these changes and is killed.
  void Crash(const std::function<void(ProjectRecord&)>& change, bool with_file = true) {
    const auto record = Fresh_Record();
    EXPECT_TRUE(!with_file || Open_Project(path, *record));
    Recovery_Keeper keeper(*record);
    change(*record);
    record->DataSaved = kFalse;
    keeper.Leave_Unasked();
    Release_Project();
  }
  std::vector<std::string> Left() { return Names_In(scratch / "barvon/recovery"); }

  Scratch_Folder scratch;
  std::string path = scratch / "site.DUI";
};

TEST_F(RecoveryData, A_Project_Does_Not_Differ_From_Itself) {
  for (const auto& file : fs::directory_iterator(BARVON_SAMPLES)) {
    if (file.path().extension() != ".DUI") continue;
    const Loaded_Record loaded = Load_Record(file.path().string());
    ASSERT_NE(loaded.record, nullptr);
    EXPECT_TRUE(Differences_Of(*loaded.record, *loaded.record).empty()) << file.path();
  }
}

TEST_F(RecoveryData, What_Differs_Is_Told_In_The_Words_Of_The_Report) {
  const auto one = Load_Record(path).record;
  const auto other = std::make_unique<ProjectRecord>(*one);
  one->ProjectTitle = "Old";
  other->ProjectTitle = "New";
  one->SimulationDuration = 3600;
  other->SimulationDuration = 7200;
  const auto differences = Differences_Of(*one, *other);
  ASSERT_GE(differences.size(), 2U);
  EXPECT_EQ(differences[0], (Project_Difference{"Study", "Project Title", "Old", "New"}));
  const auto duration = std::find_if(differences.begin(), differences.end(), [](const auto& row) {
    return row.where == "Time Steps and Print Options" && row.one.starts_with("3600");
  });
  ASSERT_NE(duration, differences.end());
  EXPECT_TRUE(duration->other.starts_with("7200"));
}

TEST_F(RecoveryData, Of_A_Large_Table_The_Number_Of_Cells_Is_Told) {
  const auto one = Fresh_Record();
  one->DiluteRowCount = 4;
  const auto other = std::make_unique<ProjectRecord>(*one);
  for (int i = 1; i <= 4; ++i) {
    other->DiluteParameterNames[i] = "Parameter";
    other->DiluteBulk[i] = other->DiluteElutriate[i] = other->DiluteCriteria[i] = i;
  }
  EXPECT_EQ(Differences_Of(*one, *other),
            (std::vector<Project_Difference>{
                {"Dilution calculator", "Dilution calculator", "", "16 values differ"}}));
}

TEST_F(RecoveryData, A_Crash_Is_Offered_And_Restored_With_Its_Path_And_Not_Saved) {
  Crash([](ProjectRecord& record) { record.ProjectTitle = "After the crash"; });
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].name, "site.DUI");
  EXPECT_EQ(rows[0].state, path + " is as it was.");
  EXPECT_EQ(rows[0].column, "In the file");
  ASSERT_EQ(rows[0].differences.size(), 1U);
  EXPECT_EQ(rows[0].differences[0].what, "Project Title");
  EXPECT_EQ(rows[0].differences[0].other, "After the crash");

  const auto record = Fresh_Record();
  record->ShowMode = 1;
  Recovery_Keeper keeper(*record);
  std::string caption;
  Port().board.set_caption = [&](const std::string& text) { caption = text; };
  Scripted_Messages none;
  ASSERT_TRUE(Restore_Project(rows[0], keeper, *record));
  EXPECT_EQ(record->ProjectTitle, "After the crash");
  EXPECT_EQ(record->ProjectFileName, path);
  EXPECT_EQ(record->DataSaved, kFalse);
  EXPECT_EQ(record->ShowMode, 1);
  EXPECT_EQ(caption, "BARVON - " + path);
  EXPECT_TRUE(Exists(Lock_Path_Of(path)));
  // This window's copy has taken the place of the one that was left.
  EXPECT_EQ(Left().size(), 2U);
  EXPECT_TRUE(Recovery_Rows().empty());
  Port().recovery.settled = [&] { keeper.Settle(); };
  ASSERT_TRUE(Save_File(path, kProjectKind, *record));
  EXPECT_EQ(Left(), std::vector<std::string>{});
  EXPECT_EQ(Load_Record(path).record->ProjectTitle, "After the crash");
}

TEST_F(RecoveryData, A_Restored_Project_Asks_Before_It_Saves_Over_A_Changed_File) {
  Crash([](ProjectRecord& record) { record.ProjectTitle = "After the crash"; });
  Write_Text(path, Read_Text(path) + "another program's line\n");
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].state,
            path + " has been changed since. A save asks before it writes over that.");
  const auto record = Fresh_Record();
  Recovery_Keeper keeper(*record);
  ASSERT_TRUE(Restore_Project(rows[0], keeper, *record));
  Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Save_File(path, kProjectKind, *record));
  EXPECT_NE(messages.shown.at(0).text.find("has been changed on the disk"), std::string::npos);
}

TEST_F(RecoveryData, A_File_That_Is_Gone_And_One_That_Never_Was_Are_Told) {
  Crash([](ProjectRecord& record) { record.ProjectTitle = "gone"; });
  fs::remove(path);
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].state, path + " is no longer there. Save writes it anew.");
  EXPECT_EQ(rows[0].column, "In a new project");
  Scripted_Messages messages({Answer::No, Answer::Yes});
  EXPECT_FALSE(Throw_Copy_Away(rows[0]));
  EXPECT_TRUE(Throw_Copy_Away(rows[0]));
  EXPECT_EQ(messages.shown[0].text,
            "Throw away the changes of site.DUI that were not saved? They can't be brought back.");
  EXPECT_EQ(Left(), std::vector<std::string>{});

  Crash([](ProjectRecord& record) { record.ProjectTitle = "never saved"; }, false);
  rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].name, "UNTITLED.DUI");
  EXPECT_EQ(rows[0].state, "It has never been saved.");
  const auto record = Fresh_Record();
  Recovery_Keeper keeper(*record);
  ASSERT_TRUE(Restore_Project(rows[0], keeper, *record));
  EXPECT_EQ(record->ProjectTitle, "never saved");
  EXPECT_EQ(record->ProjectFileName, "");
}

TEST_F(RecoveryData, A_File_That_Can_Not_Be_Read_Any_More_Is_Told) {
  Crash([](ProjectRecord& record) { record.ProjectTitle = "mine"; });
  Write_Text(path, "no project");
  const auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].state, path + " can't be read: the file is cut off, or it is no project file.");
  EXPECT_EQ(rows[0].column, "In a new project");
  EXPECT_TRUE(rows[0].Can_Be_Restored());
}

// Element 9 is the disposal operation, element 10 the coefficients, which have their own words.
TEST_F(RecoveryData, Screens_That_Were_Accepted_Are_Marked_In_The_Edit_Menu_Again) {
  Crash([](ProjectRecord& record) {
    record.ProjectTitle = "mine";
    record.ScreenDataSupplied[9] = kTrue;
  });
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  std::vector<int> marked;
  Port().board.mark_edit_item = [&](int index) { marked.push_back(index); };
  const auto record = Fresh_Record();
  Recovery_Keeper keeper(*record);
  ASSERT_TRUE(Restore_Project(rows[0], keeper, *record));
  EXPECT_EQ(marked, std::vector<int>{kEditOperation});
}

TEST_F(RecoveryData, What_Was_Saved_Just_Before_The_End_Is_Not_Offered) {
  Crash([](ProjectRecord& record) { record.ProjectTitle = "saved"; });
  {
    const auto rows = Recovery_Rows();
    const auto record = std::make_unique<ProjectRecord>(*rows.at(0).left.copy->record);
    ASSERT_TRUE(Save_File(path, kProjectKind, *record));
    Release_Project();
  }
  EXPECT_TRUE(Recovery_Rows().empty());
  EXPECT_EQ(Left(), std::vector<std::string>{});
}

TEST_F(RecoveryData, A_List_Of_Dilutions_Comes_Back_With_Its_Project) {
  Crash([](ProjectRecord& record) {
    record.DiluteRowCount = 1;
    record.DiluteParameterNames[1] = "Copper";
    record.DiluteBulk[1] = 1000;
  });
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].differences.at(0),
            (Project_Difference{"Dilution calculator", "Parameters", "0", "1"}));
  const auto record = Fresh_Record();
  Recovery_Keeper keeper(*record);
  ASSERT_TRUE(Restore_Project(rows[0], keeper, *record));
  EXPECT_EQ(record->DiluteParameterNames[1], "Copper");
  EXPECT_EQ(record->DiluteBulk[1], 1000);
}

TEST_F(RecoveryData, A_Damaged_Copy_Is_Told_Can_Not_Be_Restored_And_Stays) {
  Crash([](ProjectRecord& record) { record.ProjectTitle = "x"; });
  const std::string copy = scratch / ("barvon/recovery/" + Left().at(0));
  std::string bytes = Read_Text(copy);
  bytes[bytes.size() / 2] ^= 1;
  Write_Text(copy, bytes);
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_FALSE(rows[0].Can_Be_Restored());
  EXPECT_EQ(rows[0].state.find("This copy is damaged"), 0U);
  const auto record = Fresh_Record();
  Recovery_Keeper keeper(*record);
  EXPECT_FALSE(Restore_Project(rows[0], keeper, *record));
  EXPECT_EQ(Read_Text(copy), bytes);
}

TEST_F(RecoveryData, A_Copy_That_Can_Not_Be_Thrown_Away_Is_Told_And_Stays) {
  Crash([](ProjectRecord& record) { record.ProjectTitle = "x"; });
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  fs::remove(rows[0].left.path);
  fs::create_directory(rows[0].left.path);
  const Scripted_Messages messages({Answer::Yes, Answer::Ok});
  EXPECT_FALSE(Throw_Copy_Away(rows[0]));
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(messages.shown[0].text,
            "Throw away the changes of site.DUI that were not saved? They can't be brought back.");
  EXPECT_EQ(messages.shown[1].text, "The copy could not be removed: Is a directory.");
  EXPECT_TRUE(Exists(rows[0].left.path));
}

TEST_F(RecoveryData, A_Name_That_Was_Typed_For_A_Save_That_Did_Not_Come_About_Is_Asked_About) {
  Crash(
      [&](ProjectRecord& record) {
        record.ProjectTitle = "typed";
        record.ProjectFileName = path;
      },
      false);
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].state,
            path + " has been changed since. A save asks before it writes over that.");
  const auto record = Fresh_Record();
  Recovery_Keeper keeper(*record);
  ASSERT_TRUE(Restore_Project(rows[0], keeper, *record));
  const std::string before = Read_Text(path);
  const Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Save_File(path, kProjectKind, *record));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(
      messages.shown[0].text,
      "site.DUI has been changed on the disk since it was opened or saved here. Save over it?");
  EXPECT_EQ(Read_Text(path), before);
}

TEST_F(RecoveryData, A_List_Of_Dilutions_Beside_A_Project_Leaves_The_Project_Its_File) {
  const std::string list = scratch / "l.DUD";
  Crash([&](ProjectRecord& record) {
    record.ProjectTitle = "of the list";
    record.ProjectFileName = list;
  });
  auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].name, "site.DUI");
  EXPECT_EQ(rows[0].state, path + " is as it was. The list of dilutions " + list +
                               " was opened after it and gives the title: Save asks for the "
                               "project's name, and offers the old one.");
  EXPECT_EQ(rows[0].column, "In the file");
  ASSERT_EQ(rows[0].differences.size(), 1U);
  EXPECT_EQ(rows[0].differences[0].other, "of the list");

  const auto record = Fresh_Record();
  Recovery_Keeper keeper(*record);
  ASSERT_TRUE(Restore_Project(rows[0], keeper, *record));
  EXPECT_EQ(record->ProjectFileName, list);
  EXPECT_EQ(Held_Project(), path);
  EXPECT_TRUE(Exists(Lock_Path_Of(path)));
  // The dialog offers the project's own file, and what another has saved there is asked about.
  std::string offered;
  const auto former = Set_File_Dialog_Presenter({nullptr,
                                                 [&](const File_Request& request) {
                                                   offered = request.name;
                                                   return std::optional(request.name);
                                                 },
                                                 nullptr});
  EXPECT_EQ(Ask_Name_To_Save(*record), path);
  Set_File_Dialog_Presenter(former);
  EXPECT_EQ(offered, path);
  Write_Text(path, Read_Text(path) + "another program's line\n");
  Scripted_Messages messages({Answer::No});
  EXPECT_FALSE(Save_File(path, kProjectKind, *record));
  EXPECT_NE(messages.shown.at(0).text.find("has been changed on the disk"), std::string::npos);
}

TEST_F(RecoveryData, A_List_Of_Dilutions_Without_A_Project_Is_Told_As_That) {
  const std::string list = scratch / "l.DUD";
  Crash([&](ProjectRecord& record) { record.ProjectFileName = list; }, false);
  Crash(
      [&](ProjectRecord& record) {
        record.ProjectFileName = list;
        record.DEPC0 = 17;
      },
      false);
  const auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].name, "UNTITLED.DUI");
  EXPECT_EQ(rows[0].state, "It has never been saved. The list of dilutions " + list +
                               " was opened after it and gives the title: Save asks for the "
                               "project's name.");
}

TEST_F(RecoveryData, The_Open_Calculators_List_Does_Not_Stand_In_For_The_Projects_File) {
  Port().dilution.name_project = [&](ProjectRecord& copy) {
    copy.ProjectFileName = path;
    copy.ProjectTitle = "of the project";
  };
  Crash([&](ProjectRecord& record) {
    record.ProjectTitle = "of the list";
    record.ProjectFileName = scratch / "l.DUD";
    record.DEPC0 = 17;
  });
  const auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].state, path + " is as it was.");
}

TEST_F(RecoveryData, What_An_Open_Wizard_Has_Put_Into_The_Record_Is_No_Change) {
  const std::int16_t points = Load_Record(path).record->NMAX0;
  Port().wizard.take_back = [points](ProjectRecord& copy) { copy.NMAX0 = points; };
  Crash([](ProjectRecord& record) { record.NMAX0 = 65; });
  EXPECT_TRUE(Recovery_Rows().empty());
  Crash([](ProjectRecord& record) {
    record.NMAX0 = 65;
    record.ProjectTitle = "accepted before";
  });
  const auto rows = Recovery_Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].left.copy->record->NMAX0, points);
  EXPECT_EQ(rows[0].left.copy->record->ProjectTitle, "accepted before");
}

}  // namespace
}  // namespace barvon
