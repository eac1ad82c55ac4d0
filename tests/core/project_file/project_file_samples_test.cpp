#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/project_defaults.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

class ProjectFileSamples : public ::testing::Test {
 protected:
  ProjectFileSamples() { Set_Project_Defaults(record_); }

  static std::string Bytes_Of(const std::string& name) {
    const std::string bytes = Read_Text(std::string(BARVON_TEST_DATA) + "/dui/" + name);
    EXPECT_FALSE(bytes.empty()) << name;
    return bytes;
  }
  Load_Result Load(const std::string& name) { return Load_Project(name, Bytes_Of(name), record_); }

  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(ProjectFileSamples, Every_Slot_Has_Its_Own_Value_And_Is_Saved_As_The_Same_Bytes) {
  ASSERT_EQ(Load("every_slot_has_its_own_value.dui").failure, Failure::None);
  EXPECT_EQ(record_.SolidCohesive[4], 204);
  EXPECT_EQ(record_.MMAX0, 220);
  EXPECT_EQ(record_.NMAX0, 226);
  EXPECT_EQ(record_.ZidRight, 232);
  EXPECT_EQ(record_.PritchardFlag, 241);
  EXPECT_EQ(record_.AKY0, 1001);
  EXPECT_EQ(record_.LayerSolidFraction[2][3], 1045);  // 35 + 4 x 2 + 2
  EXPECT_EQ(record_.DischargeDuration, 1114);
  EXPECT_EQ(record_.ZidToxicityDilution, 1169);
  EXPECT_EQ(record_.DepthGrid[3][2], 1268);  // slot 170 + 96 + 2
  EXPECT_EQ(record_.VelocityFieldX[7][5], 7.05);
  EXPECT_EQ(record_.VelocityFieldZ[13][40], -40.3);
  EXPECT_EQ(record_.TidalStartTime, 12.5F);
  EXPECT_EQ(record_.TidalVelZ[26], -26.26F);
  EXPECT_EQ(record_.SectionFlags[3], 9999);
  EXPECT_EQ(record_.KEY4, 6);
  EXPECT_EQ(record_.TracerName(), "Cadmium");
  Pack_Slots(record_);
  EXPECT_EQ(Save_Project("site.dui", record_), Bytes_Of("every_slot_has_its_own_value.dui"));
}

TEST_F(ProjectFileSamples, A_Real_With_15_Digits_In_Field_6_Is_Misread) {
  ASSERT_EQ(Load("real_with_15_digits_in_field_6.dui").failure, Failure::None);
  EXPECT_EQ(record_.ALPHA2, 0.3536);
  EXPECT_EQ(record_.ALPHA3, 333333333333.0);
}

TEST_F(ProjectFileSamples, A_Corner_Of_1250_5_Feet_Shifts_Its_Line) {
  // "    11250.5 2500   32" in fives: "    1", "1250.", "5 250", "0   3".
  ASSERT_EQ(Load("corner_of_1250_5_ft_without_exact_values.dui").failure, Failure::None);
  EXPECT_EQ(record_.LAYERS, 1);
  EXPECT_EQ(record_.SiteTop, 1250);
  EXPECT_EQ(record_.SiteBottom, 5250);
  EXPECT_EQ(record_.MMAX0, 3);
}

TEST_F(ProjectFileSamples,
       A_Full_File_Without_Its_Comment_Gets_The_Short_Mark_And_Keeps_Its_Depths) {
  ASSERT_EQ(Load("full_layout_without_the_comment.dui").failure, Failure::None);
  EXPECT_EQ(record_.OldGridFile, 1);
  EXPECT_EQ(record_.KEY4, 2);
  EXPECT_EQ(record_.DepthGrid[96][96], 44);
}

TEST_F(ProjectFileSamples, A_Cut_Where_A_Short_File_Could_End_Is_A_Failure) {
  EXPECT_EQ(Load("full_layout_cut_where_a_short_one_could_end.dui").failure,
            Failure::Input_Past_End);
}

TEST_F(ProjectFileSamples, Line_Feeds_And_Letters_Beyond_Ascii_Load) {
  ASSERT_EQ(Load("lines_end_in_a_line_feed.dui").failure, Failure::None);
  EXPECT_EQ(record_.ProjectTitle, "Rh\xC3\xB4ne d\xC3\xA9p\xC3\xB4t");
  EXPECT_EQ(record_.SolidNames[1],
            "S\xC3\xA9"
            "diment");
  EXPECT_EQ(record_.KEY4, 2);
  EXPECT_EQ(record_.OldGridFile, 0);
}

TEST_F(ProjectFileSamples, The_Short_Layout_Loads_45_By_45) {
  ASSERT_EQ(Load("short_layout_of_45_by_45_points.dui").failure, Failure::None);
  EXPECT_EQ(record_.OldGridFile, 1);
  EXPECT_EQ(record_.MMAX0, 40);
  EXPECT_EQ(record_.NMAX0, 20);
  EXPECT_EQ(record_.DepthGrid[40][20], 40.2);
  EXPECT_EQ(record_.DepthGrid[20][40], 20.4);
  EXPECT_EQ(record_.VelocityFieldX[2][45], 2.45);
  EXPECT_EQ(record_.VelocityFieldZ[45][2], -45.02);
  EXPECT_EQ(record_.SiteDensity, 1.02);
}

TEST_F(ProjectFileSamples, A_Short_File_That_Goes_On_Is_A_Failure) {
  EXPECT_EQ(Load("short_layout_that_goes_on.dui").failure, Failure::Input_Past_End);
}

}  // namespace
}  // namespace barvon
