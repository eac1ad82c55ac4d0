#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
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

constexpr int kFirstVelocityLine = 1574;  // lines are counted from 1
constexpr int kTidalLine = kFirstVelocityLine + 2 * 960;

class ProjectFileLayout : public ::testing::Test {
 protected:
  ProjectFileLayout() { Set_Project_Defaults(record_); }

  /// The lines of the saved record, line 1 at index 1.
  std::vector<std::string> Save() {
    Pack_Slots(record_);
    return Lines_Of(Save_Project("site.dui", record_));
  }
  Load_Result Load(const std::string& text) { return Load_Project("site.dui", text, record_); }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(ProjectFileLayout, A_Fresh_Project_Byte_For_Byte) {
  // 5 lines, 1565 lines of reals, 3 text lines, 2 x 960 of velocities, 1 + 26 tidal, 1 last.
  std::vector<std::string> expected(1, "");
  expected.push_back("   DUMP    1");
  expected.push_back(std::string(60, ' '));
  expected.push_back(
      "    0    0    0    0    1    1    0    0    0    0    1    0    0    0    0    0");
  expected.push_back(
      "    1    0    0   32    0    0    0    0    0   32    1    2    1    1    0    0");
  expected.push_back("    0    0    0    0    0    0    0    0    0");
  // Slots 1 to 8: AKY0, ALAMDA, ALPHA0, ALPHA1, ALPHA2, ALPHA3, ALPHA4, ALPHAC. 25 to 29: CD, CD3,
  // CD4, CDRAG, CFRIC. 31 CM, 60 CSTRIP, 82 SiteDensity, 91 FRICTN, 92 GAMA. All others are 0.
  std::map<int, std::string> reals = {
      {1, "0.025"}, {2, "0.001"}, {3, "0.235"},  {4, "0.0806"}, {5, "0.3536"}, {6, "0.3536"},
      {7, "0.001"}, {8, "0.1"},   {25, "0.5"},   {26, "0.1"},   {27, "1"},     {28, "1"},
      {29, "0.01"}, {31, "1"},    {60, "0.003"}, {82, "1"},     {91, "0.01"},  {92, "0.25"}};
  for (int line = 0; line < 1565; ++line) {
    std::string text;
    for (int slot = 6 * line + 1; slot <= 6 * line + 6 && slot <= 9385; ++slot) {
      const std::string value = reals.count(slot) != 0 ? reals[slot] : "0";
      text += std::string(11 - value.size(), ' ') + value;
    }
    expected.push_back(text);
  }
  expected.push_back(std::string(40, ' '));
  expected.push_back("------");
  expected.push_back("FFFFFFFFFFFFFFFFFF");
  for (int row = 0; row < 2 * 96; ++row) {
    for (int line = 0; line < 10; ++line) {
      std::string text;
      for (int i = 0; i < (line < 9 ? 10 : 6); ++i) text += "       0";
      expected.push_back(text);
    }
  }
  expected.push_back(".00     .00     .00     .00");
  for (int i = 0; i < 26; ++i) expected.push_back(".00     .00");
  expected.push_back("0 Used To Determine Type of Simulation");

  const std::vector<std::string> lines = Save();
  ASSERT_EQ(lines.size(), expected.size());
  for (std::size_t i = 1; i < lines.size(); ++i) ASSERT_EQ(lines[i], expected[i]) << "line " << i;
}

TEST_F(ProjectFileLayout, Every_Line_Ends_In_Carriage_Return_And_Line_Feed) {
  Pack_Slots(record_);
  const std::string text = Save_Project("site.dui", record_);
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
    ASSERT_EQ(text[at - 1], '\r');
  }
  EXPECT_EQ(text.substr(text.size() - 2), "\r\n");
}

TEST_F(ProjectFileLayout, Every_Integer_Slot_Stands_In_Its_Own_Five_Columns) {
  for (int slot = 1; slot <= kIntSlots; ++slot) record_.IntSlots[slot] = 100 + slot;
  const auto lines = Lines_Of(Save_Project("site.dui", record_));
  for (int slot = 1; slot <= kIntSlots; ++slot) {
    const std::size_t line = 3 + static_cast<std::size_t>(slot - 1) / 16;
    const std::size_t column = 5 * (static_cast<std::size_t>(slot - 1) % 16);
    EXPECT_EQ(lines[line].substr(column, 5), "  " + std::to_string(100 + slot)) << slot;
  }
  EXPECT_EQ(lines[3].size(), 80U);
  EXPECT_EQ(lines[5].size(), 45U);
}

TEST_F(ProjectFileLayout, Every_Real_Slot_Stands_In_Its_Own_Eleven_Columns) {
  for (int slot = 1; slot <= kFullFileRealSlots; ++slot) record_.RealSlots[slot] = 10000 + slot;
  const auto lines = Lines_Of(Save_Project("site.dui", record_));
  for (int slot = 1; slot <= kFullFileRealSlots; ++slot) {
    const std::size_t line = 6 + static_cast<std::size_t>(slot - 1) / 6;
    const std::size_t column = 11 * (static_cast<std::size_t>(slot - 1) % 6);
    const std::string value = std::to_string(10000 + slot);
    ASSERT_EQ(lines[line].substr(column, 11), std::string(11 - value.size(), ' ') + value) << slot;
  }
  EXPECT_EQ(lines[1570].size(), 11U);
}

TEST_F(ProjectFileLayout, Every_Slot_Reloads_From_Its_Own_Place) {
  for (int slot = 1; slot <= kIntSlots; ++slot) record_.IntSlots[slot] = 100 + slot;
  for (int slot = 1; slot <= kFullFileRealSlots; ++slot) record_.RealSlots[slot] = 10000 + slot;
  const std::string text = Save_Project("site.dui", record_);
  EXPECT_EQ(Lines_Of(text).size() - 1, 3521U);  // nothing is too wide: no exact values behind it
  record_.IntSlots.fill(0);
  record_.RealSlots.fill(0);
  ASSERT_EQ(Load(text).failure, Failure::None);
  for (int slot = 1; slot <= kIntSlots; ++slot) EXPECT_EQ(record_.IntSlots[slot], 100 + slot);
  for (int slot = 1; slot <= kFullFileRealSlots; ++slot) {
    ASSERT_EQ(record_.RealSlots[slot], 10000 + slot);
  }
  EXPECT_EQ(record_.DepthGrid[2][1], 10171);
  EXPECT_EQ(record_.DepthGrid[1][2], 10266);
}

TEST_F(ProjectFileLayout, Velocities_Stand_Row_By_Row_And_The_Tail_In_Its_Patterns) {
  record_.VelocityFieldX[1][2] = 0.25;
  record_.VelocityFieldX[2][1] = -1.5;
  record_.VelocityFieldX[1][96] = 3;
  record_.VelocityFieldZ[96][96] = 9.75;
  record_.TidalStartTime = 10;
  record_.TidalDepth = 0.1F;
  record_.TidalAvgVelX = -0.25F;
  record_.TidalAvgVelZ = 1234.5F;
  record_.TidalVelX[1] = 1.5F;
  record_.TidalVelZ[26] = -2.25F;
  record_.KEY4 = 6;
  const auto lines = Save();
  EXPECT_EQ(lines[kFirstVelocityLine].substr(0, 24), "       0    0.25       0");
  EXPECT_EQ(lines[kFirstVelocityLine + 9], "       0       0       0       0       0       3");
  EXPECT_EQ(lines[kFirstVelocityLine + 10].substr(0, 16), "    -1.5       0");
  EXPECT_EQ(lines[kTidalLine - 1].substr(40), "    9.75");
  EXPECT_EQ(lines[kTidalLine], "10.00     .10     -.25     1234.50");
  EXPECT_EQ(lines[kTidalLine + 1], "1.50     .00");
  EXPECT_EQ(lines[kTidalLine + 26], ".00     -2.25");
  EXPECT_EQ(lines[kTidalLine + 27], "6 Used To Determine Type of Simulation");
  const auto saved = std::make_unique<ProjectRecord>(record_);
  Set_Project_Defaults(record_);
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.VelocityFieldX, saved->VelocityFieldX);
  EXPECT_EQ(record_.VelocityFieldZ, saved->VelocityFieldZ);
  EXPECT_EQ(record_.TidalDepth, 0.1F);
  EXPECT_EQ(record_.TidalVelZ[26], -2.25F);
  EXPECT_EQ(record_.KEY4, 6);
}

TEST_F(ProjectFileLayout, A_Load_Marks_The_Record_As_Saved_And_As_A_Full_File) {
  const auto lines = Save();
  record_.DataSaved = kFalse;
  record_.OldGridFile = 99;
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.DataSaved, kTrue);
  EXPECT_EQ(record_.OldGridFile, 0);
  EXPECT_EQ(record_.OldGridRetry, kFalse);
  EXPECT_EQ(record_.FileTypeTag, "DUMP");
}

TEST_F(ProjectFileLayout, Lines_May_End_In_A_Line_Feed_Alone) {
  record_.ProjectTitle = "Bay of Plenty";
  record_.KEY4 = 2;
  const auto lines = Save();
  record_.KEY4 = 0;
  record_.ProjectTitle.clear();
  ASSERT_EQ(Load(Joined(lines, "\n")).failure, Failure::None);
  EXPECT_EQ(record_.ProjectTitle, "Bay of Plenty");
  EXPECT_EQ(record_.KEY4, 2);
}

TEST_F(ProjectFileLayout, The_Title_Is_Cut_To_60_Characters_On_Save_And_On_Load) {
  record_.ProjectTitle = std::string(70, 'T');
  auto lines = Save();
  EXPECT_EQ(lines[2], std::string(60, 'T'));
  lines[2] = std::string(60, 'A') + "whatever stands behind";
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.ProjectTitle, std::string(60, 'A'));
}

TEST_F(ProjectFileLayout, Loading_Drops_The_Blanks_That_Padded_The_Title_And_No_Others) {
  record_.ProjectTitle = "  two in front";
  const auto lines = Save();
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.ProjectTitle, "  two in front");
}

TEST_F(ProjectFileLayout, An_Empty_Solid_Name_Is_Eight_Blanks_And_A_Long_One_Is_Cut_To_Eight) {
  record_.SolidNames[2] = "Coarse sand!";
  record_.SolidNames[5] = "Cu";
  const auto lines = Save();
  EXPECT_EQ(lines[1571], "        Coarse s                Cu      ");
}

TEST_F(ProjectFileLayout, Names_Are_One_Byte_A_Column) {
  record_.SolidNames[1] =
      "S\xC3\xA9"
      "diment";  // e acute
  const auto lines = Save();
  EXPECT_EQ(lines[1571].substr(0, 8),
            "S\xE9"
            "diment");
  record_.SolidNames[1].clear();
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.SolidNames[1],
            "S\xC3\xA9"
            "diment");
}

TEST_F(ProjectFileLayout, Flags_TFGX_Load_As_Numbers_And_Save_As_TFGG) {
  auto lines = Save();
  lines[1573] = "TFGX";
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.SectionFlags[1], -1);
  EXPECT_EQ(record_.SectionFlags[2], 0);
  EXPECT_EQ(record_.SectionFlags[3], 9999);
  EXPECT_EQ(record_.SectionFlags[4], 9999);
  EXPECT_EQ(record_.SectionFlags[5], 0);
  EXPECT_EQ(Save()[1573], "TFGGFFFFFFFFFFFFFF");
}

TEST_F(ProjectFileLayout, Status_Characters_And_Spare_Values_Survive) {
  for (int i = 1; i <= 6; ++i) record_.SectionStatus[i] = static_cast<char>('A' + i);
  record_.SpareReal21 = 21.5;
  record_.SpareReal61 = 61.5;
  record_.SpareReal68 = 68.5;
  record_.MaterialVolumeOption = 3;
  const auto lines = Save();
  EXPECT_EQ(lines[1572], "BCDEFG");
  Set_Project_Defaults(record_);
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.SectionStatus[6], 'G');
  EXPECT_EQ(record_.SpareReal21, 21.5);
  EXPECT_EQ(record_.SpareReal61, 61.5);
  EXPECT_EQ(record_.SpareReal68, 68.5);
  EXPECT_EQ(record_.MaterialVolumeOption, 3);
}

TEST_F(ProjectFileLayout, The_Tag_Is_Searched_And_The_Method_Read_Behind_It) {
  auto lines = Save();
  lines[1] = "x DUMP   3 and more";
  lines[3].replace(50, 5, "    3");
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.FileTypeTag, "DUMP");
  EXPECT_EQ(record_.DisposalMethod, 3);
}

TEST_F(ProjectFileLayout, Without_The_Tag_The_Line_Is_Read_From_Its_Start) {
  auto lines = Save();
  lines[1] = "HEAD    2";
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.FileTypeTag, "HEAD");
}

TEST_F(ProjectFileLayout, A_Line_Shorter_Than_Its_Fields_Reads_As_Zero) {
  record_.KEY3 = 5;
  record_.ALPHA0 = 0.5;
  auto lines = Save();
  lines[4] = "    2";  // LAYERS alone: the grid counts of this line are missing
  lines[6] = lines[6].substr(0, 22);
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.LAYERS, 2);
  EXPECT_EQ(record_.MMAX0, 0);
  EXPECT_EQ(record_.ALAMDA, 0.001);
  EXPECT_EQ(record_.ALPHA0, 0);
}

TEST_F(ProjectFileLayout, A_Real_With_15_Digits_In_Field_6_Loses_Its_First_Characters) {
  // The sixth value stands in columns 56 to 72. The reader's fifth field is columns 49 to 60,
  // "0.35360.333", which ends at the second point; its sixth is columns 61 to 72, "333333333333".
  auto lines = Save();
  lines[6] = "      0.025      0.001      0.235     0.0806     0.35360.333333333333333";
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.ALPHA2, 0.3536);
  EXPECT_EQ(record_.ALPHA3, 333333333333.0);
}

TEST_F(ProjectFileLayout, The_Reader_Ignores_Blanks_Inside_Its_Fields) {
  // Columns 1 to 12 hold the first value and the first column of the second.
  auto lines = Save();
  lines[6] = "          1234567";
  ASSERT_EQ(Load(Joined(lines)).failure, Failure::None);
  EXPECT_EQ(record_.AKY0, 12);
  EXPECT_EQ(record_.ALAMDA, 34567);
}

TEST_F(ProjectFileLayout, Values_Behind_A_Wide_Integer_Are_Shifted_In_The_Columns) {
  record_.SiteTop = 1250.5;  // six characters in five columns
  const auto lines = Save();
  EXPECT_EQ(lines[4].substr(0, 16), "    11250.5    0");
  EXPECT_EQ(lines[4].size(), 81U);
}

TEST_F(ProjectFileLayout, A_Save_Recomputes_The_Tracer_For_Contaminant_In_Sediment) {
  record_.KEY3 = 4;
  record_.NumSolids = 2;
  record_.SedimentConcentration = 10;
  record_.SolidSG[1] = 2.5;
  record_.SolidVolFraction[1] = 0.2;
  record_.SolidSG[2] = 2;
  record_.SolidVolFraction[2] = 0.1;
  record_.TracerConcentration = 1;
  const auto lines = Save();
  // 10 x 2.5 x 0.2 + 10 x 2 x 0.1 = 7, and the file holds it: slot 30 is the last of line 10.
  EXPECT_EQ(record_.TracerConcentration, 7);
  EXPECT_EQ(record_.FluidComputedConcentration, 7);
  EXPECT_EQ(lines[10].substr(55), "          7");
}

TEST_F(ProjectFileLayout, A_Save_Changes_Nothing_Else_But_The_Tag) {
  record_.TracerConcentration = 3;
  record_.KEY3 = 5;
  Pack_Slots(record_);
  const auto before = std::make_unique<ProjectRecord>(record_);
  Save_Project("site.dui", record_);
  EXPECT_EQ(record_.FileTypeTag, "   DUMP");
  EXPECT_EQ(record_.TracerConcentration, 3);
  EXPECT_EQ(record_.RealSlots, before->RealSlots);
  EXPECT_EQ(record_.DataSaved, before->DataSaved);
}

}  // namespace
}  // namespace barvon
