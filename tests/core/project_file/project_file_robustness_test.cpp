#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/desk/load_record.h"
#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "support/plain_support.h"
#include "support/project_text.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class ProjectFileRobustness : public ::testing::Test {
 protected:
  ProjectFileRobustness() { Set_Project_Defaults(record_); }

  std::vector<std::string> Save() {
    Pack_Slots(record_);
    return Lines_Of(Save_Project("site.dui", record_));
  }
  Load_Result Load(const std::string& text) { return Load_Project("site.dui", text, record_); }

  /// A file of the short layout: 45 points a side, no tail.
  std::vector<std::string> Short_File() {
    std::vector<std::string> lines(1);
    lines.push_back("   DUMP    3");
    lines.push_back("An older site");
    lines.push_back(
        "    0    0    0    0    0    4    0    0    0    0    3    0    0    1    0    0");
    lines.push_back(
        "    1    0    0   40    0    0    0    0    0   20    1    2    1    1    0    0");
    lines.push_back("    0    0    0    0    0    0    0    0    0");
    int slot = 1;
    for (int line = 0; line < 366; ++line) {
      std::string text;
      for (int k = 0; k < 6 && slot <= 2194; ++k, ++slot) {
        const std::string value = slot >= 170 ? std::to_string(slot) : "0";
        text += std::string(11 - value.size(), ' ') + value;
      }
      lines.push_back(text);
    }
    lines.push_back("Sand    Silt                    Copper  ");
    lines.push_back("------");
    lines.push_back("FFFFFFFFFFFFFFFFFF");
    for (int field = 1; field <= 2; ++field) {
      for (int a = 1; a <= 45; ++a) {
        std::string text;
        for (int b = 1; b <= 45; ++b) {
          const std::string value = std::to_string(field * 10000 + a * 100 + b);
          text += " " + value + (b % 10 == 0 && b < 45 ? "\r\n" : "");
        }
        lines.push_back(text);
      }
    }
    return lines;
  }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(ProjectFileRobustness, A_Short_File_Loads_And_Is_Marked) {
  record_.DepthGrid[96][96] = 77;  // of an earlier project
  record_.TidalDepth = 3;
  const Load_Result result = Load(Joined(Short_File()));
  ASSERT_EQ(result.failure, Failure::None);
  EXPECT_EQ(record_.OldGridFile, 1);
  EXPECT_EQ(record_.OldGridRetry, kTrue);
  EXPECT_EQ(record_.ProjectTitle, "An older site");
  EXPECT_EQ(record_.DepthGrid[1][1], 170);
  EXPECT_EQ(record_.DepthGrid[2][1], 171);
  EXPECT_EQ(record_.DepthGrid[1][2], 215);
  EXPECT_EQ(record_.DepthGrid[45][45], 2194);
  EXPECT_EQ(record_.DepthGrid[46][1], 0);
  EXPECT_EQ(record_.DepthGrid[96][96], 0);
  EXPECT_EQ(record_.VelocityFieldX[2][3], 10203);
  EXPECT_EQ(record_.VelocityFieldZ[45][45], 24545);
  EXPECT_EQ(record_.VelocityFieldX[46][46], 0);
  EXPECT_EQ(record_.SolidNames[5], "Copper");
  EXPECT_EQ(record_.TidalDepth, 3);  // the short layout has no tidal table
}

TEST_F(ProjectFileRobustness, A_Short_File_With_A_Number_Beyond_16_Bits_Changes_Nothing) {
  auto lines = Short_File();
  lines[3].replace(0, 5, "99999");
  const Load_Result result = Load(Joined(lines));
  EXPECT_EQ(result.failure, Failure::Overflow);
  EXPECT_FALSE(result.told);
  EXPECT_EQ(record_.ProjectTitle, "");
  const Scratch_Folder folder;
  Write_Text(folder / "site.DUI", Joined(lines));
  EXPECT_EQ(Load_Record(folder / "site.DUI").problem, "Overflow (6)");
}

TEST_F(ProjectFileRobustness, A_Disposal_Method_That_Is_No_Number_To_Compute_With_Is_Refused) {
  auto lines = Save();
  lines[1] = "   DUMP    1e999";
  Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Load(Joined(lines)).failure, Failure::Overflow);
  EXPECT_EQ(messages.shown.at(0).text, "Error Reading File:  6");
}

TEST_F(ProjectFileRobustness, A_Key_Beyond_16_Bits_At_The_End_Leaves_The_Key) {
  auto lines = Save();
  const std::string comment = lines.back().substr(lines.back().find(" Used To"));
  lines.back() = "99999" + comment;
  record_.KEY4 = 4;
  EXPECT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.KEY4, 4);
}

TEST_F(ProjectFileRobustness, After_Its_First_Save_A_Short_File_Is_A_Full_One) {
  ASSERT_EQ(Load(Joined(Short_File())).failure, Failure::None);
  const auto lines = Save();
  EXPECT_EQ(lines.size() - 1, 3521U);
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.OldGridFile, 0);
  EXPECT_EQ(record_.DepthGrid[45][45], 2194);
  EXPECT_EQ(record_.DepthGrid[1][2], 215);
}

TEST_F(ProjectFileRobustness, A_Full_File_Without_Its_Comment_Gets_The_Short_Mark) {
  record_.DepthGrid[96][96] = 12;
  record_.KEY4 = 3;
  auto lines = Save();
  lines.back() = "3";
  Set_Project_Defaults(record_);
  const Load_Result result = Load(Joined(lines));
  ASSERT_EQ(result.failure, Failure::None);
  EXPECT_EQ(record_.OldGridFile, 1);
  EXPECT_EQ(record_.KEY4, 3);
  EXPECT_EQ(record_.DepthGrid[96][96], 12) << "no depth is lost for it";
  EXPECT_FALSE(result.remark.empty());
}

TEST_F(ProjectFileRobustness,
       Failures_Behind_The_Velocities_Are_Skipped_And_Fields_Keep_What_They_Had) {
  record_.TidalDepth = 1;
  record_.TidalVelX[2] = 2;
  record_.TidalVelX[3] = 3;
  record_.KEY4 = 4;
  auto lines = Save();
  lines[3494] = ".00     x     .00     .00";  // the header: its second number is none
  lines[3496] = "abc     9.00";               // row 2 of the table
  const Load_Result result = Load(Joined(lines));
  ASSERT_EQ(result.failure, Failure::None);
  EXPECT_EQ(record_.TidalDepth, 1);
  EXPECT_EQ(record_.TidalVelX[2], 2);
  EXPECT_EQ(record_.TidalVelX[3], 3);
  EXPECT_EQ(record_.KEY4, 4);
  EXPECT_FALSE(result.remark.empty());
}

TEST_F(ProjectFileRobustness, A_Tidal_Value_Beyond_32_Bits_Leaves_Its_Field) {
  record_.TidalAvgVelZ = 1.5F;
  record_.TidalVelX[2] = 2;
  auto lines = Save();
  lines[3494] = "1.00     2.00     3.00     1E39";
  lines[3496] = "-4E38     9.00";
  const Load_Result result = Load(Joined(lines));
  ASSERT_EQ(result.failure, Failure::None);
  EXPECT_EQ(record_.TidalAvgVelX, 3);
  EXPECT_EQ(record_.TidalAvgVelZ, 1.5F);
  EXPECT_EQ(record_.TidalVelX[2], 2);
  EXPECT_FALSE(result.remark.empty());
}

TEST_F(ProjectFileRobustness, Free_Form_Numbers_May_Stand_Between_Commas_And_Blanks) {
  auto lines = Save();
  lines[1574] = "1,2 ,3 , 4,  5   6 7 8 9 10";
  lines[3494] = "1.5 , 2.5, 3.5 ,4.5";
  const Load_Result result = Load(Joined(lines));
  ASSERT_EQ(result.failure, Failure::None);
  for (int b = 1; b <= 10; ++b) EXPECT_EQ(record_.VelocityFieldX[1][b], b);
  EXPECT_EQ(record_.TidalDepth, 2.5F);
  EXPECT_EQ(record_.TidalAvgVelZ, 4.5F);
}

TEST_F(ProjectFileRobustness, A_Velocity_Constant_Of_The_Project_Before_Does_Not_Outlive_It) {
  const auto lines = Save();
  record_.ConstVelocityX = record_.ConstVelocityZ = 2;
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.ConstVelocityX, 0);
  EXPECT_EQ(record_.ConstVelocityZ, 0);
}

TEST_F(ProjectFileRobustness, A_Cut_Off_Tail_Keeps_What_It_Has_And_Tells) {
  record_.KEY4 = 4;
  record_.DepthGrid[96][1] = 5;
  auto lines = Save();
  lines.resize(3500);
  record_.DepthGrid = {};
  const Load_Result result = Load(Joined(lines));
  ASSERT_EQ(result.failure, Failure::None);
  EXPECT_EQ(record_.DepthGrid[96][1], 5);
  EXPECT_EQ(record_.KEY4, 4);
  EXPECT_NE(result.remark, "");
}

TEST_F(ProjectFileRobustness, A_Full_File_Cut_In_Front_Of_Its_Tail_Never_Passes_For_A_Short_One) {
  Scripted_Messages messages;
  record_.ProjectTitle = "whole";
  const auto lines = Save();
  record_.ProjectTitle = "before";
  std::vector<std::string> kept(1);
  for (std::size_t count = 0; count < 3493; ++count) {
    if (count > 0) kept.push_back(lines[count]);
    // Every cut near a border of the layouts, and every seventh elsewhere.
    const bool near_border = count < 20 || (count > 365 && count < 380) ||
                             (count > 1040 && count < 1060) || (count > 1565 && count < 1580) ||
                             count > 3480;
    if (!near_border && count % 7 != 0) continue;
    const Load_Result result = Load(Joined(kept));
    ASSERT_EQ(result.failure, Failure::Input_Past_End) << "cut behind line " << count;
    ASSERT_FALSE(result.told);
    ASSERT_EQ(record_.ProjectTitle, "before");
    ASSERT_EQ(record_.OldGridFile, 99);
  }
}

TEST_F(ProjectFileRobustness, A_Short_File_That_Goes_On_Fails) {
  EXPECT_EQ(Load(Joined(Short_File()) + "1 2 3\r\n").failure, Failure::Input_Past_End);
  EXPECT_EQ(Load(Joined(Short_File()) + " \r\n\r\n").failure, Failure::None);
}

TEST_F(ProjectFileRobustness, An_Integer_Beyond_16_Bits_Stops_The_Load_With_Its_Number) {
  auto lines = Save();
  lines[4].replace(15, 5, "40000");  // MMAX0
  record_.ProjectTitle = "before";
  Scripted_Messages messages({Answer::Ok});
  const Load_Result result = Load(Joined(lines));
  EXPECT_EQ(result.failure, Failure::Overflow);
  EXPECT_TRUE(result.told);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "Error Reading File:  6");
  EXPECT_EQ(record_.ProjectTitle, "before");
  EXPECT_EQ(record_.MMAX0, 32);
}

TEST_F(ProjectFileRobustness, A_Real_Beyond_A_Doubles_Range_Stops_The_Load) {
  auto lines = Save();
  lines[6] = "      1E999";
  Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Load(Joined(lines)).failure, Failure::Overflow);
  EXPECT_EQ(messages.shown.at(0).text, "Error Reading File:  6");
}

TEST_F(ProjectFileRobustness, A_Velocity_That_Is_No_Number_Stops_The_Load) {
  auto lines = Save();
  lines[1574].replace(8, 16, "0.12345678-0.125");
  Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Load(Joined(lines)).failure, Failure::Type_Mismatch);
  EXPECT_EQ(messages.shown.at(0).text, "Error Reading File:  13");
}

TEST_F(ProjectFileRobustness, Empty_And_Tiny_Files_Fail_Without_A_Word_Of_Their_Own) {
  Scripted_Messages messages;
  for (const char* text : {"", "\r\n", "   DUMP    1\r\n", "\x1A", "DUMP"}) {
    const Load_Result result = Load(text);
    EXPECT_EQ(result.failure, Failure::Input_Past_End);
    EXPECT_FALSE(result.told);
  }
}

TEST_F(ProjectFileRobustness, Lines_Of_Ten_Megabytes_Do_No_Harm) {
  const std::string long_line(10'000'000, '7');
  Scripted_Messages messages(std::vector<Answer>(10, Answer::Ok));
  for (const std::size_t line : {1, 2, 3, 6, 1571, 1573, 1574, 3494, 3521}) {
    auto lines = Save();
    lines[line] = long_line;
    const Load_Result result = Load(Joined(lines));
    if (line == 3 || line == 1574) {
      EXPECT_NE(result.failure, Failure::None) << line;
    }
  }
  EXPECT_EQ(Load(long_line).failure, Failure::Input_Past_End);
}

TEST_F(ProjectFileRobustness, Null_Bytes_And_Broken_Text_Do_No_Harm) {
  auto lines = Save();
  lines[2] = std::string("a\0b\xFF\x81", 5);
  lines[1571] = std::string("\xE9\0 x", 4);
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.ProjectTitle, std::string("a\0b\xC3\xBF\xC2\x81", 7));
}

TEST_F(ProjectFileRobustness, Control_Characters_Of_A_Record_Never_Break_Its_Lines) {
  record_.SolidNames[1] = "a\r\nb";
  record_.SectionStatus[3] = '\n';
  record_.ProjectTitle = "x\ny";
  const auto lines = Save();
  EXPECT_EQ(lines[2].substr(0, 3), "x y");
  EXPECT_EQ(lines[1571].substr(0, 8), "a  b    ");
  EXPECT_EQ(lines[1572], "-- ---");
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.SolidNames[1], "a\r\nb");
  EXPECT_EQ(record_.SectionStatus[3], '\n');
}

TEST_F(ProjectFileRobustness, Counts_That_Make_No_Sense_Do_Not_Stop_A_Save) {
  record_.KEY3 = 7;
  record_.NumSolids = 9;
  record_.TracerConcentration = 3;
  record_.KEY4 = 2;
  const auto lines = Save();
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.NumSolids, 9);
  EXPECT_EQ(record_.TracerConcentration, 3);
}

/// Changes a good file at random: bytes, lines, runs.
std::string Mutated(std::string text, const std::vector<std::uint32_t>& choices) {
  static const std::vector<std::string> kPieces = {
      "\r\n",
      "\n",
      "1E400",
      "-",
      ".",
      "999999999",
      "DUMP",
      std::string(1, '\0'),
      "\x1A",
      ",,,",
      "Exact values of this project that the columns above this line can not hold: 1",
      "\xFF",
      "TFG",
      "nan"};
  for (std::size_t i = 0; i + 1 < choices.size(); i += 2) {
    const std::size_t at = text.empty() ? 0 : choices[i] % text.size();
    switch (choices[i + 1] % 5) {
      case 0:
        text.resize(at);
        break;
      case 1:
        text.insert(at, kPieces[choices[i + 1] / 5 % kPieces.size()]);
        break;
      case 2:
        text.erase(at, choices[i + 1] / 5 % 5000);
        break;
      case 3:
        if (!text.empty()) text[at] = static_cast<char>(choices[i + 1] / 5);
        break;
      default:
        text.insert(at, text.substr(at, choices[i + 1] / 5 % 3000));
    }
  }
  return text;
}

RC_GTEST_FIXTURE_PROP(ProjectFileRobustness, Changed_Files_Load_Or_Leave_The_Record,
                      (std::vector<std::uint32_t> choices)) {
  record_.ALPHA3 = 1.0 / 3;
  Pack_Slots(record_);
  static const std::string kGood = Save_Project("site.dui", record_);
  record_.ProjectTitle = "before";
  Set_Message_Presenter(nullptr);
  const Load_Result result = Load(Mutated(kGood, choices));
  if (result.failure != Failure::None) RC_ASSERT(record_.ProjectTitle == "before");
}

RC_GTEST_FIXTURE_PROP(ProjectFileRobustness, Random_Bytes_Load_Or_Leave_The_Record,
                      (std::string bytes)) {
  record_.ProjectTitle = "before";
  Set_Message_Presenter(nullptr);
  const Load_Result result = Load(bytes);
  if (result.failure != Failure::None) RC_ASSERT(record_.ProjectTitle == "before");
}

}  // namespace
}  // namespace barvon
