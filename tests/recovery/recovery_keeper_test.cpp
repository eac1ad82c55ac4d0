#include "recovery/recovery_keeper.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>

#include "core/byte_strings.h"
#include "core/desk/load_record.h"
#include "core/desk/workspace_port.h"
#include "core/record_bytes.h"
#include "platform/files/check_sum.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace testing;
namespace fs = std::filesystem;

struct Recovery : ::testing::Test {
  Recovery() { ::setenv("XDG_DATA_HOME", scratch.path().c_str(), 1); }
  ~Recovery() override {
    Release_Project();
    Reset_Port();
  }

  std::vector<std::string> Copies() {
    std::vector<std::string> names;
    if (!Exists(folder)) return names;
    for (const std::string& name : Names_In(folder)) {
      if (name.ends_with(".barvon-copy")) names.push_back(name);
    }
    return names;
  }

  Scratch_Folder scratch;
  std::string folder = scratch / "barvon/recovery";
  std::unique_ptr<ProjectRecord> record = Fresh_Record();
};

TEST_F(Recovery, Every_Field_Comes_Back_Bit_For_Bit) {
  int value = 0;
  for (const Record_Field& field : Record_Fields()) {
    for (int i = field.count > 0 ? 1 : 0; i <= field.count; ++i) {
      for (int j = field.across > 0 ? 1 : 0; j <= field.across; ++j) {
        value = value % 59 + 1;
        field.set(*record, i, j, field.type == Field_Type::Real ? 1.0 / value : 34 + value);
      }
    }
  }
  record->DiluteRowCount = 500;
  record->ProjectTitle = "zwei\nZeilen, Grüße";
  const auto everything = [](const Record_Field&) { return true; };
  const auto back = std::make_unique<ProjectRecord>();
  const std::string bytes = Record_Bytes(*record, everything);
  ASSERT_TRUE(Set_Record_Bytes(bytes, *back));
  EXPECT_EQ(Record_Bytes(*back, everything), bytes);
  EXPECT_EQ(back->ProjectTitle, record->ProjectTitle);
}

TEST_F(Recovery, A_Number_That_A_Field_Can_Not_Hold_Is_Refused) {
  const auto only_count = [](const Record_Field& field) {
    return std::string(field.name) == "DiluteRowCount";
  };
  for (const int rows : {-1, 501}) {
    record->DiluteRowCount = static_cast<std::int16_t>(rows);
    const auto back = Fresh_Record();
    EXPECT_FALSE(Set_Record_Bytes(Record_Bytes(*record, only_count), *back));
    EXPECT_EQ(back->DiluteRowCount, 0);
  }
}

TEST_F(Recovery, A_Cut_Or_Changed_Copy_Is_No_Copy) {
  const std::string bytes =
      Copy_Bytes({std::make_unique<ProjectRecord>(*record), 1, File_State{2, 3}, true, false});
  ASSERT_TRUE(Read_Copy(bytes));
  std::mt19937 chance(20261122);
  for (int i = 0; i < 40; ++i) {
    EXPECT_FALSE(Read_Copy(std::string_view(bytes).substr(0, chance() % bytes.size())));
    std::string changed = bytes;
    changed[chance() % bytes.size()] ^= static_cast<char>(1 + chance() % 255);
    EXPECT_FALSE(Read_Copy(changed));
  }
  EXPECT_FALSE(Read_Copy(""));
}

TEST_F(Recovery, A_Field_That_The_Record_Does_Not_Have_Is_Passed_Over) {
  std::string bytes;
  Append_Text(bytes, "FieldToCome");
  Append_Text(bytes, "any bytes");
  record->DEPC0 = 42;
  bytes += Record_Bytes(
      *record, [](const Record_Field& field) { return std::string(field.name) == "DEPC0"; });
  const auto back = Fresh_Record();
  EXPECT_TRUE(Set_Record_Bytes(bytes, *back));
  EXPECT_EQ(back->DEPC0, 42);
}

// Its sum is right: somebody has written it so.
TEST_F(Recovery, A_Copy_With_A_Number_That_Is_None_Is_No_Copy) {
  std::string bytes =
      Copy_Bytes({std::make_unique<ProjectRecord>(*record), 1, File_State{2, 3}, true, false});
  bytes.resize(bytes.size() - sizeof(std::uint64_t));
  const std::size_t made = bytes.find('\n') + 1 + sizeof(std::uint32_t);  // behind its length
  ASSERT_EQ(bytes.at(made), '1');
  const auto with_sum = [](std::string whole) {
    const std::uint64_t sum = Check_Sum(whole);
    return whole.append(reinterpret_cast<const char*>(&sum), sizeof sum);
  };
  ASSERT_TRUE(Read_Copy(with_sum(bytes)));
  bytes[made] = 'x';
  EXPECT_FALSE(Read_Copy(with_sum(bytes)));
}

TEST_F(Recovery, A_New_Project_Has_Nothing_To_Keep) {
  Recovery_Keeper keeper(*record);
  keeper.Look();
  EXPECT_EQ(Copies(), std::vector<std::string>{});
  EXPECT_FALSE(Exists(folder));
}

TEST_F(Recovery, What_Is_Unsaved_Is_Kept_For_The_User_Alone_And_A_Save_Removes_It) {
  Recovery_Keeper keeper(*record);
  record->DEPC0 = 12;
  keeper.Look();
  ASSERT_EQ(Copies().size(), 1U);
  struct stat state {};
  ASSERT_EQ(::stat((folder + "/" + Copies()[0]).c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777U, 0600U);
  ASSERT_EQ(::stat(folder.c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777U, 0700U);
  record->DataSaved = kTrue;
  keeper.Settle();
  EXPECT_EQ(Names_In(folder), std::vector<std::string>{});
}

TEST_F(Recovery, Nothing_Is_Written_While_Nothing_Changes) {
  Recovery_Keeper keeper(*record);
  record->DEPC0 = 12;
  keeper.Look();
  const std::string copy = folder + "/" + Copies().at(0);
  fs::permissions(copy, fs::perms::owner_read);
  keeper.Look();
  EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read);  // the same file
  record->DEPC0 = 13;
  keeper.Look();
  EXPECT_NE(fs::status(copy).permissions(), fs::perms::owner_read);
  EXPECT_EQ(Read_Copy(Read_Text(copy))->record->DEPC0, 13);
  EXPECT_EQ(Copies().size(), 1U);
}

TEST_F(Recovery, A_List_Of_Dilutions_Counts_On_Its_Own) {
  record->DataSaved = kTrue;
  Recovery_Keeper keeper(*record);
  record->DiluteRowCount = 1;
  record->DiluteParameterNames[1] = "Copper";
  keeper.Look();
  ASSERT_EQ(Copies().size(), 1U);
  const auto copy = Read_Copy(Read_Text(folder + "/" + Copies()[0]));
  EXPECT_TRUE(copy->dilutions_are_unsaved);
  EXPECT_FALSE(copy->project_is_unsaved);
  EXPECT_EQ(copy->record->DiluteParameterNames[1], "Copper");
  keeper.Settle();
  EXPECT_EQ(Copies().size(), 1U);
  keeper.Settle_Dilutions();
  EXPECT_EQ(Copies().size(), 0U);
}

TEST_F(Recovery, Leaving_Removes_The_Copy_And_Leaving_Unasked_Keeps_It) {
  {
    Recovery_Keeper keeper(*record);
    record->DEPC0 = 12;
    keeper.Look();
    keeper.Leave();
    keeper.Look();
    EXPECT_EQ(Names_In(folder), std::vector<std::string>{});
  }
  record->DEPC0 = 14;
  Recovery_Keeper keeper(*Fresh_Record());
  {
    const auto other = Fresh_Record();
    Recovery_Keeper second(*other);
    other->DEPC0 = 15;  // nobody has looked since
    second.Leave_Unasked();
    second.Leave();
  }
  ASSERT_EQ(Names_In(folder).size(), 1U);
  EXPECT_EQ(Read_Copy(Read_Text(folder + "/" + Copies()[0]))->record->DEPC0, 15);
}

TEST_F(Recovery, Of_A_Running_Window_Nothing_Is_Offered_And_Of_A_Killed_One_Everything) {
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  const pid_t process = ::fork();
  if (process == 0) {
    Recovery_Keeper keeper(*record);
    record->DEPC0 = 16;
    keeper.Look();
    if (::write(pipe[1], "x", 1) == 1) ::pause();
    ::_exit(1);
  }
  char byte = 0;
  ASSERT_EQ(::read(pipe[0], &byte, 1), 1);
  EXPECT_EQ(Copies().size(), 1U);
  EXPECT_TRUE(Take_Left_Copies().empty());
  ::kill(process, SIGKILL);
  ::waitpid(process, nullptr, 0);
  {
    const std::vector<Left_Copy> left = Take_Left_Copies();
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left[0].copy->record->DEPC0, 16);
    // A second window that starts meanwhile does not offer it too.
    EXPECT_TRUE(Take_Left_Copies().empty());
  }
  std::vector<Left_Copy> again = Take_Left_Copies();
  ASSERT_EQ(again.size(), 1U);
  EXPECT_TRUE(Remove_Left_Copy(again[0]));
  EXPECT_EQ(Names_In(folder), std::vector<std::string>{});
}

TEST_F(Recovery, A_Copy_Of_A_Host_That_Had_Another_Name_Is_Offered) {
  fs::create_directories(folder);
  fs::permissions(folder, fs::perms::owner_all);
  Lock_Holder former = This_Program();
  former.host += "-before";
  Write_Text(folder + "/1-1-0.barvon-lock", Holder_Lines(former));
  Write_Text(folder + "/1-1-0.barvon-copy", "whatever");
  EXPECT_EQ(Take_Left_Copies().size(), 1U);
}

TEST_F(Recovery, A_Folder_That_Was_Removed_Is_Made_Anew_With_Copy_And_Lock) {
  Recovery_Keeper keeper(*record);
  record->DEPC0 = 16;
  keeper.Look();
  fs::remove_all(folder);
  keeper.Look();
  EXPECT_EQ(Copies().size(), 1U);
  EXPECT_EQ(Names_In(folder).size(), 2U) << "the copy and its lock";
  keeper.Leave();
  EXPECT_EQ(Names_In(folder), std::vector<std::string>{});
}

TEST_F(Recovery, A_Copy_That_Can_Not_Be_Removed_Is_Said_To_Stay) {
  fs::create_directories(folder + "/1-1-0.barvon-copy/full");
  fs::permissions(folder, fs::perms::owner_all);
  std::vector<Left_Copy> left = Take_Left_Copies();
  ASSERT_EQ(left.size(), 1U);
  EXPECT_FALSE(Remove_Left_Copy(left[0]));
}

TEST_F(Recovery, What_Else_A_Killed_Window_Left_Goes_And_Other_Files_Stay) {
  fs::create_directories(folder);
  fs::permissions(folder, fs::perms::owner_all);
  Lock_Holder former = This_Program();
  former.start = "1";
  Write_Text(folder + "/1-1-0.barvon-lock", Holder_Lines(former));
  Write_Text(folder + "/1-1-0.barvon-part", "half");
  Write_Text(folder + "/notes.txt", "mine");
  Write_Text(folder + "/2-2-0.barvon-copy", "damaged");
  const std::vector<Left_Copy> left = Take_Left_Copies();
  ASSERT_EQ(left.size(), 1U);
  EXPECT_FALSE(left[0].copy);
  EXPECT_EQ(Names_In(folder),
            (std::vector<std::string>{"2-2-0.barvon-copy", "2-2-0.barvon-lock", "notes.txt"}));
}

TEST_F(Recovery, Where_No_Copy_Can_Be_It_Is_Told_Once) {
  Write_Text(scratch / "file", "x");
  ::setenv("XDG_DATA_HOME", (scratch / "file").c_str(), 1);
  std::vector<std::string> notes;
  Port().board.show_note = [&](const Status_Note& note) { notes.push_back(note.text); };
  Recovery_Keeper keeper(*record);
  for (int depth = 12; depth < 15; ++depth) {
    record->DEPC0 = depth;
    keeper.Look();
  }
  EXPECT_EQ(notes, std::vector<std::string>{
                       "No copy can be kept of what is not saved yet: Permission denied."});
}

TEST_F(Recovery, What_Was_Told_Is_Taken_Back_When_There_Is_A_Copy_Again) {
  Write_Text(scratch / "later", "x");
  ::setenv("XDG_DATA_HOME", (scratch / "later").c_str(), 1);
  std::vector<std::string> told, taken_back;
  Port().board.show_note = [&](const Status_Note& note) { told.push_back(note.text); };
  Port().board.take_back_note = [&](const std::string& text) { taken_back.push_back(text); };
  Recovery_Keeper keeper(*record);
  record->DEPC0 = 12;
  keeper.Look();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_TRUE(taken_back.empty());

  fs::remove(scratch / "later");
  keeper.Look();
  EXPECT_EQ(taken_back, told);
  record->DEPC0 = 13;
  keeper.Look();
  EXPECT_EQ(taken_back.size(), 1U);

  // The next failure is told anew.
  fs::remove_all(scratch / "later");
  Write_Text(scratch / "later", "x");
  record->DEPC0 = 14;
  keeper.Look();
  EXPECT_EQ(told.size(), 2U);
}

}  // namespace
}  // namespace barvon
