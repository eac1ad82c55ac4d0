#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "support/plain_support.h"
#include "support/project_text.h"

namespace barvon {
namespace {

using namespace barvon::testing;

constexpr std::size_t kFullLines = 3521;  // lines of a full file

class ExactValues : public ::testing::Test {
 protected:
  ExactValues() { Set_Project_Defaults(record_); }

  std::vector<std::string> Save() {
    Pack_Slots(record_);
    return Lines_Of(Save_Project("site.dui", record_));
  }
  Failure Load(const std::vector<std::string>& lines) {
    Set_Project_Defaults(record_);
    return Load_Project("site.dui", Joined(lines), record_).failure;
  }
  /// The lines behind the columns.
  static std::vector<std::string> Trailer(const std::vector<std::string>& lines) {
    return {lines.begin() + kFullLines + 1, lines.end()};
  }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(ExactValues, Nothing_Is_Added_When_Everything_Survives) {
  record_.DX0 = 100;
  record_.SiteTop = 99999;
  record_.SolidNames[1] = "Sand";
  EXPECT_TRUE(Trailer(Save()).empty());
}

TEST_F(ExactValues, A_Long_Real_Is_Kept_And_Comes_Back) {
  record_.ALPHA3 = 1.0 / 3;  // slot 6, the last field of its line
  const auto lines = Save();
  EXPECT_EQ(Trailer(lines),
            (std::vector<std::string>{
                "Exact values of this project that the columns above this line can not hold: 1",
                "RealSlots(6) = 0.3333333333333333; the columns give 333333333333",
                "End of the exact values"}));
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.ALPHA3, 1.0 / 3);
  EXPECT_EQ(record_.ALPHA2, 0.3536);
}

TEST_F(ExactValues, A_Corner_Of_1250_5_Feet_Is_Kept_With_All_That_It_Shifts) {
  record_.SiteTop = 1250.5;
  record_.SiteBottom = 2000;
  const auto lines = Save();
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.SiteTop, 1250.5);
  EXPECT_EQ(record_.SiteBottom, 2000);
  EXPECT_EQ(record_.MMAX0, 32);
  EXPECT_EQ(record_.NMAX0, 32);
}

TEST_F(ExactValues, A_Corner_Beyond_Five_Columns_Is_Kept) {
  record_.SiteRight = 123456;
  const auto lines = Save();
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.SiteRight, 123456);
}

TEST_F(ExactValues, A_Name_Of_12_Characters_Is_Kept) {
  record_.SolidNames[1] = "Coarse \"sand";
  record_.SolidNames[5] = " Copper; the columns give = ";
  const auto lines = Save();
  EXPECT_EQ(Trailer(lines)[1],
            "SolidNames(1) = \"Coarse \\x22sand\"; the columns give \"Coarse \\x22\"");
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.SolidNames[1], "Coarse \"sand");
  EXPECT_EQ(record_.TracerName(), " Copper; the columns give = ");
}

TEST_F(ExactValues, Velocities_That_Run_Together_And_Fine_Tides_Are_Kept) {
  for (auto& row : record_.VelocityFieldX) row.fill(-1.0 / 3);
  record_.VelocityFieldX[0] = {};
  for (auto& row : record_.VelocityFieldX) row[0] = 0;
  record_.VelocityFieldZ[96][96] = 0.123456789;
  record_.TidalVelX[3] = 0.125F;
  record_.TidalStartTime = 0.1F;  // two decimals hold it
  record_.KEY4 = 4;
  const auto saved = std::make_unique<ProjectRecord>(record_);
  const auto lines = Save();
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.VelocityFieldX, saved->VelocityFieldX);
  EXPECT_EQ(record_.VelocityFieldZ, saved->VelocityFieldZ);
  EXPECT_EQ(record_.TidalVelX[3], 0.125F);
  EXPECT_EQ(record_.TidalStartTime, 0.1F);
  EXPECT_EQ(record_.KEY4, 4);
}

TEST_F(ExactValues, A_Count_Or_An_End_That_Is_Damaged_Is_Told_With_Its_Line) {
  record_.ALPHA3 = 1.0 / 3;
  const auto lines = Save();
  const auto told = [&](std::size_t line, const std::string& text) {
    auto damaged = lines;
    damaged[line] = text;
    Set_Project_Defaults(record_);
    Scripted_Messages messages({Answer::Ok});
    const Load_Result result = Load_Project("site.dui", Joined(damaged), record_);
    EXPECT_EQ(result.failure, Failure::Type_Mismatch) << text;
    EXPECT_EQ(record_.ALPHA3, 0.3536) << text;
    return result.remark;
  };
  const std::string head =
      "Exact values of this project that the columns above this line can not hold: ";
  EXPECT_EQ(told(kFullLines + 1, head + "one"), "What is damaged is line 3522: " + head + "one");
  EXPECT_EQ(told(kFullLines + 1, head + "1x"), "What is damaged is line 3522: " + head + "1x");
  EXPECT_EQ(told(kFullLines + 3, "End of the exact volumes"),
            "What is damaged is line 3524: End of the exact volumes");
}

TEST_F(ExactValues, A_Name_Whose_Marks_Are_Damaged_Is_Refused) {
  record_.SolidNames[1] = "Coarse \"sand";
  const auto lines = Save();
  for (const char* name : {"\"Coarse \\x2\"", "\"Coarse \\x\"", "\"Coarse \\\"",
                           "\"Coarse \\y22sand\"", "\"Coarse", "\""}) {
    auto damaged = lines;
    damaged[kFullLines + 2] =
        std::string("SolidNames(1) = ") + name + "; the columns give \"Coarse \\x22\"";
    Scripted_Messages messages({Answer::Ok});
    EXPECT_EQ(Load(damaged), Failure::Type_Mismatch) << name;
  }
}

TEST_F(ExactValues, A_Tidal_Value_Is_Written_By_Its_32_Bit_Text) {
  record_.TidalDepth = 0.123F;
  EXPECT_EQ(Trailer(Save())[1], "TidalDepth = 0.123; the columns give 0.12");
}

TEST_F(ExactValues, An_Edit_Of_The_Columns_By_Hand_Wins) {
  record_.ALPHA3 = 1.0 / 3;
  record_.ALPHA2 = 2.0 / 3;
  auto lines = Save();
  lines[6] = "      0.025      0.001      0.235     0.0806       0.35       0.25";
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.ALPHA2, 0.35);
  EXPECT_EQ(record_.ALPHA3, 0.25);
}

TEST_F(ExactValues, Values_On_Lines_That_Were_Not_Edited_Stay_Exact) {
  record_.ALPHA3 = 1.0 / 3;
  record_.BargeLength = 200.0 / 3;
  auto lines = Save();
  lines[6] = "      0.025      0.001      0.235     0.0806     0.3536       0.25";
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.ALPHA3, 0.25);
  EXPECT_EQ(record_.BargeLength, 200.0 / 3);
}

TEST_F(ExactValues, Lines_That_Are_Cut_Off_Fail_And_Leave_The_Record) {
  record_.ALPHA3 = 1.0 / 3;
  record_.ALPHA4 = 1.0 / 7;
  const auto lines = Save();
  const std::string text = Joined(lines);
  const std::size_t head = text.find("Exact values");
  record_.ProjectTitle = "before";
  // Cut anywhere between the head's first character and its end line's last.
  for (std::size_t size = head + 1; size < text.size() - 2; ++size) {
    const Load_Result result = Load_Project("site.dui", text.substr(0, size), record_);
    ASSERT_NE(result.failure, Failure::None) << size - head;
    ASSERT_FALSE(result.told);
    ASSERT_EQ(record_.ProjectTitle, "before");
  }
}

TEST_F(ExactValues, Damaged_Lines_Fail) {
  record_.ALPHA3 = 1.0 / 3;
  const auto lines = Save();
  for (const char* damaged :
       {"RealSlots(6) = 0.33x; the columns give 333333333333",
        "RealSlots(6) = 0.33; the columns give ", "RealSlots(9999) = 1; the columns give 2",
        "Nonsense = 1; the columns give 2", "no entry at all",
        "SolidNames(1) = \"x\\x4\"; the columns give \"\"",
        "SolidNames(1) = x; the columns give \"\""}) {
    auto copy = lines;
    copy[kFullLines + 2] = damaged;
    EXPECT_EQ(Load(copy), Failure::Type_Mismatch) << damaged;
  }
}

TEST_F(ExactValues, What_Is_No_Number_Is_Refused_With_Its_Line_But_For_What_A_Save_Writes) {
  record_.ALPHA3 = 1.0 / 3;
  record_.ALPHA4 = 1.0 / 7;
  const auto lines = Save();
  for (const char* text :
       {"abc", "", "0.1 0.2", "NaN", "nan(7)", "-nan", "infinity", "INF", "0x1"}) {
    auto copy = lines;
    copy[kFullLines + 3] = std::string("RealSlots(7) = ") + text + "; the columns give 0";
    Scripted_Messages messages({Answer::Ok});
    const Load_Result result = Load_Project("site.dui", Joined(copy), record_);
    EXPECT_EQ(result.failure, Failure::Type_Mismatch) << text;
    EXPECT_EQ(result.remark, "What is damaged is line 3524: " + copy[kFullLines + 3]) << text;
  }
  for (const char* text : {"nan", "inf", "-inf"}) {
    auto copy = lines;
    copy[kFullLines + 3] = std::string("RealSlots(7) = ") + text + "; the columns give 0";
    EXPECT_EQ(Load(copy), Failure::None) << text;
  }
}

TEST_F(ExactValues, Faults_Of_A_File_With_Exact_Values_Are_Told_By_Their_Number) {
  record_.ALPHA3 = 1.0 / 3;
  const auto lines = Save();
  auto velocity = lines;
  velocity[1574].replace(8, 8, "     abc");
  auto real = lines;
  real[7] = "      1E999";
  auto exact = lines;
  exact[kFullLines + 2] = "no entry at all";
  const std::vector<std::pair<std::vector<std::string>, std::string>> faults = {
      {velocity, "Error Reading File:  13"},
      {real, "Error Reading File:  6"},
      {exact, "Error Reading File:  13"}};
  for (const auto& [faulty, text] : faults) {
    Scripted_Messages messages({Answer::Ok});
    const Load_Result result = Load_Project("site.dui", Joined(faulty), record_);
    EXPECT_NE(result.failure, Failure::None) << text;
    EXPECT_TRUE(result.told) << text;
    ASSERT_EQ(messages.shown.size(), 1U) << text;
    EXPECT_EQ(messages.shown[0].text, text);
  }
}

TEST_F(ExactValues, A_Title_Can_Not_Pass_For_The_Head_Line) {
  record_.ProjectTitle =
      "Exact values of this project that the columns above this line can not hold: 1";
  const auto lines = Save();
  ASSERT_EQ(Load(lines), Failure::None);
  EXPECT_EQ(record_.ProjectTitle, "Exact values of this project that the columns above this lin");
}

}  // namespace
}  // namespace barvon
