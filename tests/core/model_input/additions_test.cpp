#include "core/model_input/additions.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <string>

#include "core/model_input/model_examples.h"
#include "core/model_input/model_input.h"
#include "core/model_input/wild_record.h"
#include "core/project_defaults.h"

namespace barvon::testing {
namespace {

constexpr char kVersion[] = "BARVON additions: 1\r\n";

/// Nothing of it needs additions.
ProjectRecord Plain_Project() {
  ProjectRecord record;
  Set_Project_Defaults(record);
  record.DisposalMethod = 3;
  record.KEY3 = 2;
  record.ConstantDepthFlag = 1;
  record.VelocityProfileType = 1;
  record.CriterionConcentration = 0.05;
  record.ZCRIT = 0.4;
  record.TidalStartTime = 1.5F;
  record.ZidFlag = 1;
  return record;
}

std::string Additions(const ProjectRecord& record) {
  std::string text = "as it was";
  EXPECT_EQ(Write_Additions(record, text), Failure::None);
  return text;
}

TEST(Additions, What_The_Model_Input_Carries_Is_Not_Repeated) {
  ProjectRecord record = Plain_Project();
  EXPECT_EQ(Additions(record), "");
  for (const std::int16_t key3 : {0, 1, 3, 6, 7, 8, -1}) {
    record.KEY3 = key3;
    EXPECT_EQ(Additions(record), "") << key3;
  }
}

TEST(Additions, The_Criterion_Of_A_Contaminant_In_The_Sediment_Of_An_Ocean_Site) {
  ProjectRecord record = Plain_Project();
  record.KEY3 = 4;
  EXPECT_EQ(Additions(record), std::string(kVersion) + "Criterion: 0.05\r\n");
  record.CriterionConcentration = 1.0 / 3;
  EXPECT_EQ(Additions(record), std::string(kVersion) + "Criterion: 0.333333333333333\r\n");
  record.CriterionConcentration = 0.00005;
  EXPECT_EQ(Additions(record), std::string(kVersion) + "Criterion: 5E-05\r\n");
}

TEST(Additions, The_Standard_Of_A_Zone_Of_Initial_Dilution_Where_There_Is_One) {
  ProjectRecord record = Plain_Project();
  record.KEY3 = 5;
  EXPECT_EQ(Additions(record), std::string(kVersion) + "ZidStandard: 0.4\r\n");
  record.ZidFlag = 0;
  EXPECT_EQ(Additions(record), "");
}

TEST(Additions, The_Tide_With_Its_26_Half_Hours) {
  ProjectRecord record = Plain_Project();
  record.VelocityProfileType = 5;
  record.TidalVelX[1] = 0.1F;
  record.TidalVelX[2] = -0.25F;
  record.TidalVelX[26] = 2;
  record.TidalVelZ[26] = 1.234567F;
  std::string zeros;
  for (int i = 3; i <= 25; ++i) zeros += " 0";
  EXPECT_EQ(Additions(record), std::string(kVersion) + "TideStart: 1.5\r\nTideX: 0.1 -0.25" +
                                   zeros + " 2\r\nTideZ: 0 0" + zeros + " 1.234567\r\n");
}

TEST(Additions, The_Tide_Is_Still_The_Projects_Behind_Its_Model_Input) {
  ProjectRecord record = Hopper_Example();
  record.VelocityProfileType = 5;
  const std::string before = Additions(record);
  std::string input;
  ASSERT_EQ(Make_Model_Input(record, input), Failure::None);
  EXPECT_EQ(Additions(record), before);
  EXPECT_NE(before.find("\r\nTideX:"), std::string::npos);
}

/// A table of two rows and three columns; column c of row r holds 10 r + c.
ProjectRecord Deep_Project() {
  ProjectRecord record = Plain_Project();
  record.ConstantDepthFlag = 0;
  record.MMAX0 = 2;
  record.NMAX0 = 3;
  for (std::size_t row = 1; row <= 2; ++row) {
    for (std::size_t column = 1; column <= 3; ++column) {
      record.DepthGrid[column][row] = static_cast<double>(10 * row + column);
    }
  }
  return record;
}

TEST(Additions, The_Depths_As_The_Depth_Table_Shows_Them) {
  ProjectRecord record = Deep_Project();
  record.DepthGrid[3][2] = -7.5;
  EXPECT_EQ(Additions(record),
            std::string(kVersion) + "DepthRow: 11 12 13\r\nDepthRow: 21 22 -7.5\r\n");
}

TEST(Additions, Everything_Comes_In_One_Order) {
  ProjectRecord record = Deep_Project();
  record.KEY3 = 4;
  record.VelocityProfileType = 5;
  std::string tide = "TideStart: 1.5\r\n";
  for (const char* name : {"TideX:", "TideZ:"}) {
    tide += name;
    for (int i = 1; i <= 26; ++i) tide += " 0";
    tide += "\r\n";
  }
  EXPECT_EQ(Additions(record), std::string(kVersion) + "Criterion: 0.05\r\n" + tide +
                                   "DepthRow: 11 12 13\r\nDepthRow: 21 22 23\r\n");
}

TEST(Additions, No_Solver_Runs_A_Pipeline_And_There_Is_Nothing_To_Add) {
  ProjectRecord record = Deep_Project();
  record.KEY3 = 4;
  for (const std::int16_t method : {0, 2, 4}) {
    record.DisposalMethod = method;
    EXPECT_EQ(Additions(record), "") << method;
  }
}

TEST(Additions, A_Count_Beyond_The_Table_Is_A_Failure_And_Leaves_No_Half) {
  for (std::int16_t ProjectRecord::*count : {&ProjectRecord::MMAX0, &ProjectRecord::NMAX0}) {
    ProjectRecord record = Deep_Project();
    record.*count = 97;
    std::string text = "as it was";
    EXPECT_EQ(Write_Additions(record, text), Failure::Subscript);
    EXPECT_EQ(text, "");
  }
}

RC_GTEST_PROP(Additions, Of_Any_Record_Are_Lines_Of_A_Name_And_Values, ()) {
  const std::unique_ptr<ProjectRecord> record = Wild_Record();
  std::string text;
  if (Write_Additions(*record, text) != Failure::None) RC_ASSERT(text.empty());
  if (text.empty()) return;
  RC_ASSERT(text.starts_with(kVersion));
  RC_ASSERT(text.ends_with("\r\n"));
  for (const std::string& line : Whole_Lines(text)) {
    const std::size_t colon = line.find(':');
    RC_ASSERT(colon != std::string::npos);
    RC_ASSERT(line.find_first_not_of(" +-.0123456789Einfa", colon + 1) == std::string::npos);
  }
}

}  // namespace
}  // namespace barvon::testing
