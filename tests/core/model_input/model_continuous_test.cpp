#include <gtest/gtest.h>

#include "core/model_input/model_examples.h"
#include "core/model_input/model_input.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

TEST(ModelContinuous, A_Pipeline_Is_The_Expected_File) {
  ProjectRecord record = Continuous_Example();
  EXPECT_EQ(Written(record),
            Read_Text(std::string(BARVON_TEST_DATA) + "/model_input/continuous_pipeline.due"));
}

TEST(ModelContinuous, Zeros_In_Integer_Patterns_Leave_Nothing) {
  ProjectRecord record = Continuous_Example();
  record.KEY1 = record.KEY3 = 0;
  record.KEY2 = 0;
  record.PrintConvectiveDescent = record.PrintCollapse = record.NumPrintTimes = 0;
  record.NumOutputDepths = 0;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[3], "");
  EXPECT_EQ(lines[4], "");
  EXPECT_EQ(lines[5], "");
  EXPECT_EQ(lines[6].substr(0, 8), "1     45");
  EXPECT_EQ(lines.back(), "");
}

TEST(ModelContinuous, Site_Indices_Need_An_Evaluation_From_2) {
  ProjectRecord record = Continuous_Example();
  record.KEY3 = 2;
  EXPECT_EQ(Written_Lines(record)[4], "7151123");
  record.KEY3 = 1;
  EXPECT_EQ(Written_Lines(record)[4], "12");
}

struct Key2_Case {
  int before;
  double speed;
  int after;
};

TEST(ModelContinuous, KEY2_Is_Adjusted_Before_It_Is_Written) {
  for (const auto& row : {Key2_Case{1, 0, 2}, Key2_Case{1, 3, 2}, Key2_Case{2, 0, 2},
                          Key2_Case{0, 0, 1}, Key2_Case{0, 3, 0}, Key2_Case{5, 0, 1}}) {
    ProjectRecord record = Continuous_Example();
    record.KEY1 = 7, record.KEY3 = 0;
    record.KEY2 = static_cast<std::int16_t>(row.before);
    record.VesselSpeed = row.speed;
    const auto lines = Whole_Lines(Written(record));
    EXPECT_EQ(record.KEY2, row.after) << row.before << ' ' << row.speed;
    EXPECT_EQ(lines[3], row.after == 0 ? "7" : "7" + std::to_string(row.after));
  }
}

TEST(ModelContinuous, A_Still_Vessel_Has_KEY2_1_At_First_And_2_Ever_After) {
  ProjectRecord record = Continuous_Example();
  record.KEY2 = 0;
  record.VesselSpeed = 0;
  Written(record);
  EXPECT_EQ(record.KEY2, 1);
  Written(record);
  EXPECT_EQ(record.KEY2, 2);
  Written(record);
  EXPECT_EQ(record.KEY2, 2);
}

TEST(ModelContinuous, The_Start_Of_Time_Becomes_Zero_For_Good) {
  ProjectRecord record = Continuous_Example();
  Written(record);
  EXPECT_EQ(record.ContinuousTimeStart, 0);
}

TEST(ModelContinuous, Other_Sections_Leave_KEY2_And_The_Start_Of_Time) {
  for (ProjectRecord record : {Hopper_Example(), Barge_Example()}) {
    record.KEY2 = 1;
    record.ContinuousTimeStart = 5;
    Written(record);
    EXPECT_EQ(record.KEY2, 1);
    EXPECT_EQ(record.ContinuousTimeStart, 5);
  }
}

TEST(ModelContinuous, Variable_Depths_Stand_One_To_A_Line_By_Rows_Of_X) {
  ProjectRecord record = Continuous_Example();
  record.ConstantDepthFlag = 0;
  record.MMAX0 = 8, record.NMAX0 = 9;
  for (int a = 1; a <= 8; ++a) {
    for (int b = 1; b <= 9; ++b) record.DepthGrid[a][b] = 10 * a + b + 0.25;
  }
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[9], "     45.12550.60.");
  EXPECT_EQ(lines[10], "11.3");
  EXPECT_EQ(lines[18], "19.3");
  EXPECT_EQ(lines[19], "21.3");
  EXPECT_EQ(lines[10 + 71], "89.3");
  EXPECT_EQ(lines[10 + 72], ".21600.150.5400.");
}

TEST(ModelContinuous, The_Velocity_Field_Stands_One_To_A_Line_X_Before_Z) {
  ProjectRecord record = Continuous_Example();
  record.VelocityProfileType = 4;
  record.MMAX0 = 8, record.NMAX0 = 9;
  for (int a = 1; a <= 8; ++a) {
    for (int b = 1; b <= 9; ++b) {
      record.VelocityFieldX[a][b] = a + b / 1000.0;
      record.VelocityFieldZ[a][b] = -a - b / 1000.0;
    }
  }
  const auto lines = Written_Lines(record);
  ASSERT_EQ(lines.size(), 25U + 144U + 1U);
  EXPECT_EQ(lines[24], "4");
  EXPECT_EQ(lines[25], "1.001");
  EXPECT_EQ(lines[26], "1.002");
  EXPECT_EQ(lines[25 + 71], "8.009");
  EXPECT_EQ(lines[25 + 72], "-1.001");
  EXPECT_EQ(lines[25 + 143], "-8.009");
}

TEST(ModelContinuous, Other_Velocity_Types_Are_The_Type_Alone) {
  for (const int type : {1, 2, 5}) {
    ProjectRecord record = Continuous_Example();
    record.VelocityProfileType = type;
    const auto lines = Whole_Lines(Written(record));
    EXPECT_EQ(lines[24], std::to_string(type));
    EXPECT_EQ(lines[25], "23600.7200.");
    EXPECT_EQ(record.VelocityProfileType, type);
  }
}

TEST(ModelContinuous, A_Profile_That_Ends_Above_The_Bottom_Gets_Its_Point_Here_Too) {
  ProjectRecord record = Continuous_Example();
  record.DEPC0 = 50;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[19], "350.");
  EXPECT_EQ(lines[22], "50.");
  EXPECT_EQ(lines[25], "1.02456");
}

TEST(ModelContinuous, Numbers_Wider_Than_Their_Pattern_Are_Not_Cut) {
  ProjectRecord record = Continuous_Example();
  record.SimulationDuration = 123456789;
  record.DischargeRate = -12345.678919;
  const auto lines = Written_Lines(record);
  EXPECT_EQ(lines[10], ".123456789.150.5400.");
  EXPECT_EQ(lines[11], "-12345.678921.256.535.1.23456.75");
}

}  // namespace
}  // namespace barvon::testing
