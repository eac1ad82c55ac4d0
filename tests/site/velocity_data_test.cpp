#include "site/velocity_data.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/project_defaults.h"
#include "core/wizard_answers.h"
#include "support/record_differences.h"

namespace barvon::testing {
namespace {

class VelocityData : public ::testing::Test {
 protected:
  VelocityData() { Set_Project_Defaults(record); }
  ~VelocityData() override { Answers_Of_Wizard() = {}; }

  /// What OK makes of the screen as it opens for the type.
  void Open_And_Save(double type) {
    record.VelocityProfileType = type;
    SaveVelocityData(ShowVelocityData(record), record);
  }

  std::unique_ptr<ProjectRecord> record_owner = std::make_unique<ProjectRecord>();
  ProjectRecord& record = *record_owner;
};

using Texts3 = std::array<std::string, 3>;
using Texts5 = std::array<std::string, 5>;

template <std::size_t N>
std::array<std::string, N> Texts_Of(const std::array<Typed_Number, N>& fields) {
  std::array<std::string, N> texts;
  for (std::size_t i = 0; i < N; ++i) texts[i] = fields[i].text;
  return texts;
}

TEST_F(VelocityData, A_Single_Velocity_Is_Shown_With_One_Decimal) {
  record.AvgVelocityDepth = 60;
  record.AvgVelocityX = 0.25;
  record.AvgVelocityZ = -1.04;
  EXPECT_EQ(Texts_Of(ShowVelocityData(record).Text1), (Texts3{"60.0", "0.3", "-1.0"}));
}

TEST_F(VelocityData, The_Logarithmic_Box_Is_Set_For_Type_2_Alone) {
  for (const double type : {0.0, 1.0, 2.0, 3.0, 4.0, 5.0}) {
    record.VelocityProfileType = type;
    EXPECT_EQ(ShowVelocityData(record).Check3D1, type == 2) << type;
  }
}

TEST_F(VelocityData, A_Single_Velocity_Is_Stored_As_Typed_And_Text_Reads_As_0) {
  record.DataSaved = kTrue;
  Velocity_Entry entry = ShowVelocityData(record);
  entry.Text1 = {"12.345", "-0.75 fps", "none"};
  SaveVelocityData(entry, record);
  EXPECT_EQ(record.AvgVelocityDepth, 12.345);
  EXPECT_EQ(record.AvgVelocityX, -0.75);
  EXPECT_EQ(record.AvgVelocityZ, 0);
  EXPECT_EQ(record.VelocityProfileType, 1);
  EXPECT_EQ(record.DataSaved, kFalse);
}

TEST_F(VelocityData, The_Logarithmic_Box_Makes_It_Type_2) {
  Velocity_Entry entry = ShowVelocityData(record);
  entry.Check3D1 = true;
  SaveVelocityData(entry, record);
  EXPECT_EQ(record.VelocityProfileType, 2);
}

TEST_F(VelocityData, Two_Points_Stand_By_Depth_And_Velocity_First_X_Then_Z) {
  record.VelocityProfileType = 3;
  record.VelXDepth1 = 1, record.VelX1 = 2, record.VelZDepth1 = 3, record.VelZ1 = 4;
  record.VelXDepth2 = 5, record.VelX2 = 6, record.VelZDepth2 = 7, record.VelZ2 = 8;
  Velocity_Entry entry = ShowVelocityData(record);
  for (std::size_t i = 1; i <= 4; ++i) {
    EXPECT_EQ(entry.F1Book1[1][i], i);
    EXPECT_EQ(entry.F1Book1[2][i], i + 4);
    entry.F1Book1[1][i] += 10;
    entry.F1Book1[2][i] += 10;
  }
  SaveVelocityData(entry, record);
  EXPECT_EQ(record.VelXDepth1, 11);
  EXPECT_EQ(record.VelX1, 12);
  EXPECT_EQ(record.VelZDepth1, 13);
  EXPECT_EQ(record.VelZ1, 14);
  EXPECT_EQ(record.VelXDepth2, 15);
  EXPECT_EQ(record.VelX2, 16);
  EXPECT_EQ(record.VelZDepth2, 17);
  EXPECT_EQ(record.VelZ2, 18);
}

TEST_F(VelocityData, Only_The_Two_Point_Note_Asks_For_A_Speed) {
  const std::string note =
      "BARVON treats positive velocities in the X-Direction as moving from the top of the grid "
      "towards the bottom.  Positive velocities in the Z-Direction move from left to right.";
  for (const double type : {0, 1, 2, 4, 5}) EXPECT_EQ(Direction_Note(type), note);
  EXPECT_EQ(Direction_Note(3), note +
                                   " The Resulting Speed of the Velocity Vector Should Be at "
                                   "Least 0.1 Ft/Sec.");
}

TEST_F(VelocityData, A_Field_Has_A_Row_For_Each_Point_Along_X) {
  record.VelocityProfileType = 4;
  record.MMAX0 = 20;
  record.NMAX0 = 12;
  record.VelocityFieldX[20][12] = 1.5;
  record.VelocityFieldZ[12][11] = -2;
  const Velocity_Entry entry = ShowVelocityData(record);
  EXPECT_EQ(entry.rows, 20);
  EXPECT_EQ(entry.columns, 12);
  EXPECT_EQ(entry.fields[kAlongX].F1Book2[20][12], 1.5);
  EXPECT_EQ(entry.fields[kAlongZ].F1Book2[12][11], -2);
}

TEST_F(VelocityData, A_Constant_Above_0_Stands_In_For_The_Field) {
  record.VelocityProfileType = 4;
  record.ConstVelocityX = 1.25;
  record.VelocityFieldX[3][3] = 9;
  record.VelocityFieldZ[3][3] = 9;
  const Velocity_Entry entry = ShowVelocityData(record);
  EXPECT_TRUE(entry.fields[kAlongX].Check3D2);
  EXPECT_EQ(entry.fields[kAlongX].Text2.text, "1.3");
  for (int row = 1; row <= entry.rows; ++row) {
    for (int col = 1; col <= entry.columns; ++col) {
      EXPECT_EQ(entry.fields[kAlongX].F1Book2[row][col], 1.25);
    }
  }
  EXPECT_FALSE(entry.fields[kAlongZ].Check3D2);
  EXPECT_EQ(entry.fields[kAlongZ].Text2.text, "");
  EXPECT_EQ(entry.fields[kAlongZ].F1Book2[3][3], 9);
}

TEST_F(VelocityData, A_Negative_Constant_Shows_The_Stored_Field_Instead) {
  record.VelocityProfileType = 4;
  record.ConstVelocityX = -1.5;
  record.VelocityFieldX[2][2] = -0.5;
  const Velocity_Entry entry = ShowVelocityData(record);
  EXPECT_FALSE(entry.fields[kAlongX].Check3D2);
  EXPECT_EQ(entry.fields[kAlongX].Text2.text, "");
  EXPECT_EQ(entry.fields[kAlongX].F1Book2[2][2], -0.5);
}

TEST_F(VelocityData, A_Field_Is_Stored_With_Its_Constant_Or_With_0) {
  record.VelocityProfileType = 4;
  record.ConstVelocityZ = 3;
  Velocity_Entry entry = ShowVelocityData(record);
  entry.fields[kAlongX].Check3D2 = true;
  entry.fields[kAlongX].Text2 = "-1.5";
  entry.fields[kAlongX].F1Book2[1][32] = 7;
  entry.fields[kAlongZ].Check3D2 = false;
  entry.fields[kAlongZ].Text2 = "3.0";
  SaveVelocityData(entry, record);
  EXPECT_EQ(record.ConstVelocityX, -1.5);
  EXPECT_EQ(record.ConstVelocityZ, 0);
  EXPECT_EQ(record.VelocityFieldX[1][32], 7);
  EXPECT_EQ(record.VelocityFieldX[32][1], 0);
  EXPECT_EQ(record.VelocityFieldZ[32][32], 3) << "the cells that the constant had filled stay";
}

TEST_F(VelocityData, What_Lies_Beyond_The_Grid_Stays_As_It_Is) {
  record.MMAX0 = 8;
  record.NMAX0 = 10;
  record.ConstVelocityX = 2;
  record.VelocityFieldX[9][1] = record.VelocityFieldX[1][11] = 5;
  Open_And_Save(4);
  EXPECT_EQ(record.VelocityFieldX[8][10], 2);
  EXPECT_EQ(record.VelocityFieldX[9][1], 5);
  EXPECT_EQ(record.VelocityFieldX[1][11], 5);
}

TEST_F(VelocityData, A_Grid_Beyond_The_Arrays_Shows_What_They_Hold) {
  record.VelocityProfileType = 4;
  record.MMAX0 = 200;
  record.NMAX0 = -3;
  const Velocity_Entry entry = ShowVelocityData(record);
  EXPECT_EQ(entry.rows, 96);
  EXPECT_EQ(entry.columns, 0);
  SaveVelocityData(entry, record);
  EXPECT_EQ(record.MMAX0, 200);
}

// 1.25 hours are 4500 seconds; 0.05 of the average rounds away from zero.
TEST_F(VelocityData, The_Unsteady_Profile_Is_Shown_In_Hours) {
  record.VelocityProfileType = 5;
  record.TidalStartTime = 1.005F;
  record.TidalDepth = 40;
  record.SimulationDuration = 4500;
  record.TidalAvgVelX = 0.25F;
  record.TidalAvgVelZ = -0.04F;
  record.TidalVelX[1] = 0.1F;
  record.TidalVelZ[26] = -2.5F;
  const Velocity_Entry entry = ShowVelocityData(record);
  EXPECT_EQ(Texts_Of(entry.Text3), (Texts5{"1.01", "40.00", "1.3", "0.3", "0.0"}));
  EXPECT_EQ(entry.F1Book3[1][1], 0.1) << "not 0.100000001490116";
  EXPECT_EQ(entry.F1Book3[26][2], -2.5);
}

// From 1 h to 2 h: 0.5 x (0.8 + 1.0) x 0.5 + 0.5 x (1.0 + 1.2) x 0.5 = 1 for X, and 2 for Z.
TEST_F(VelocityData, The_Unsteady_Profile_Is_Stored_With_Its_Averages) {
  record.VelocityProfileType = 5;
  record.TidalStartTime = 9;
  Velocity_Entry entry = ShowVelocityData(record);
  entry.Text3 = {"1", "35.5", "1 hr", "7", "7"};
  entry.F1Book3[3] = {0, 0.75, 2};
  entry.F1Book3[4] = {0, 1, 2};
  entry.F1Book3[5] = {0, 1.25, 2};
  SaveVelocityData(entry, record);
  EXPECT_EQ(record.TidalStartTime, 1);
  EXPECT_EQ(record.TidalDepth, 35.5F);
  EXPECT_EQ(record.SimulationDuration, 3600);
  EXPECT_EQ(record.TidalVelX[3], 0.75F);
  EXPECT_EQ(record.TidalVelZ[5], 2);
  EXPECT_EQ(record.TidalAvgVelX, 1);
  EXPECT_EQ(record.TidalAvgVelZ, 2);
}

TEST_F(VelocityData, The_Average_Uses_The_Start_As_Typed_And_Stores_Nothing) {
  record.VelocityProfileType = 5;
  record.TidalStartTime = 5;
  Velocity_Entry entry = ShowVelocityData(record);
  entry.Text3[0] = "0";
  entry.Text3[2] = "0.5";
  entry.F1Book3[1] = {0, 1, 2};
  entry.F1Book3[2] = {0, 3, 4};
  const ProjectRecord before = record;
  EXPECT_EQ(Average_Velocities(entry), (std::array<double, 2>{2, 3}));
  EXPECT_TRUE(Differing_Fields(record, before).empty());
}

TEST_F(VelocityData, There_Is_No_Average_Over_A_Duration_That_32_Bits_Take_For_0) {
  Velocity_Entry entry;
  entry.F1Book3[1] = {0, 1, 2};
  for (const char* typed : {"", "0", "1E-60"}) {
    entry.Text3[2] = typed;
    EXPECT_EQ(Average_Velocities(entry), std::nullopt) << typed;
  }
}

TEST_F(VelocityData, The_Interval_Is_Told_With_Two_Decimals) {
  EXPECT_EQ(Interval_Note({1.25F, 2}),
            "Start Time: 1.25\nSimulation Duration: 2.00\nEnding Time: 3.25");
  EXPECT_EQ(Interval_Note({0, 0}), "Start Time: .00\nSimulation Duration: .00\nEnding Time: .00");
  EXPECT_EQ(Interval_Note({0.1F, 0.2F}),
            "Start Time: .10\nSimulation Duration: .20\nEnding Time: .30");
}

TEST_F(VelocityData, An_Interval_Beyond_32_Bits_Is_Held_To_Their_Range) {
  Velocity_Entry entry;
  entry.Text3[0] = entry.Text3[2] = "-1e300";
  EXPECT_LT(Interval_Of(entry).start, -3e38F);
  EXPECT_NE(Interval_Note(Interval_Of(entry)).find("Ending Time: -3402823"), std::string::npos);
}

TEST_F(VelocityData, Without_A_Form_Nothing_Is_Stored) {
  const ProjectRecord before = record;
  record.DataSaved = kTrue;
  Open_And_Save(0);
  EXPECT_EQ(Differing_Fields(record, before), std::vector<std::string>{"VelocityProfileType"});
  EXPECT_EQ(record.DataSaved, kFalse);
}

TEST_F(VelocityData, A_Form_Stores_Nothing_Of_The_Others) {
  record.AvgVelocityX = 0.25;
  record.VelX1 = 0.25;
  record.ConstVelocityX = 2;
  record.TidalVelX[2] = 0.25F;
  record.SimulationDuration = 5000;
  const ProjectRecord before = record;
  Open_And_Save(3);
  EXPECT_EQ(Differing_Fields(record, before), std::vector<std::string>{"VelocityProfileType"});
  Open_And_Save(1);
  EXPECT_EQ(Differing_Fields(record, before), std::vector<std::string>{});
}

TEST_F(VelocityData, Cancel_Puts_Back_The_Type_And_Eleven_Fields_And_No_More) {
  const Velocity_Copy saved = Copy_Velocity(record);
  const ProjectRecord before = record;
  record.VelocityProfileType = 5;
  record.AvgVelocityDepth = record.AvgVelocityX = record.AvgVelocityZ = 1;
  record.VelXDepth1 = record.VelXDepth2 = record.VelX1 = record.VelX2 = 2;
  record.VelZDepth1 = record.VelZDepth2 = record.VelZ1 = record.VelZ2 = 3;
  record.ConstVelocityX = record.ConstVelocityZ = 4;
  record.VelocityFieldX[1][1] = record.VelocityFieldZ[1][1] = 5;
  record.TidalStartTime = record.TidalDepth = record.TidalAvgVelX = record.TidalAvgVelZ = 6;
  record.TidalVelX[1] = record.TidalVelZ[1] = 7;
  record.SimulationDuration = 8;
  Reset_Vars(saved, record);
  EXPECT_EQ(
      Differing_Fields(record, before),
      (std::vector<std::string>{"VelocityFieldX", "VelocityFieldZ", "ConstVelocityX",
                                "ConstVelocityZ", "TidalStartTime", "TidalDepth", "TidalAvgVelX",
                                "TidalAvgVelZ", "TidalVelX", "TidalVelZ", "SimulationDuration"}));
}

TEST_F(VelocityData, Cancel_After_A_Save_Leaves_Something_To_Save) {
  record.SavedUnderScreens = kTrue;
  for (double ProjectRecord::*field : {&ProjectRecord::AvgVelocityX, &ProjectRecord::VelZ2}) {
    const Velocity_Copy saved = Copy_Velocity(record);
    record.DataSaved = kTrue;
    Reset_Vars(saved, record);
    EXPECT_EQ(record.DataSaved, kTrue);
    record.*field += 1;
    Reset_Vars(saved, record);
    EXPECT_EQ(record.DataSaved, kFalse);
  }
}

TEST_F(VelocityData, What_Is_Not_Typed_Keeps_The_Digits_That_Are_Not_Shown) {
  record.VelocityProfileType = kSingleVelocity;
  record.AvgVelocityDepth = 30.664;
  record.AvgVelocityX = 0.25;
  Velocity_Entry single = ShowVelocityData(record);
  single.Text1[2] = "0.7";
  SaveVelocityData(single, record);
  EXPECT_EQ(record.AvgVelocityDepth, 30.664);
  EXPECT_EQ(record.AvgVelocityX, 0.25);
  EXPECT_EQ(record.AvgVelocityZ, 0.7);

  record.VelocityProfileType = kUnsteadyVelocity;
  record.TidalStartTime = 1.234f;
  record.SimulationDuration = 5000.1;  // 1.38891... hours, shown as 1.4
  const Velocity_Entry unsteady = ShowVelocityData(record);
  EXPECT_EQ(Interval_Of(unsteady).duration, static_cast<float>(5000.1 / 3600));
  SaveVelocityData(unsteady, record);
  EXPECT_EQ(record.TidalStartTime, 1.234f);
  EXPECT_EQ(record.SimulationDuration, 5000.1);

  record.VelocityProfileType = kVelocityField;
  record.MMAX0 = record.NMAX0 = 8;
  record.ConstVelocityX = 1.25;
  SaveVelocityData(ShowVelocityData(record), record);
  EXPECT_EQ(record.ConstVelocityX, 1.25);
}

TEST_F(VelocityData, A_Filled_Text_Tells_What_Its_Decimals_Leave_Out) {
  EXPECT_EQ(Filled_Note({"0.3", 0.25}), "rounded from 0.25, which OK keeps");
  EXPECT_EQ(Filled_Note({"0.3", 0.3}), "");
  EXPECT_EQ(Filled_Note(As_Filled("0.30", {"0.3", 0.25})), "") << "typed anew";
  EXPECT_EQ(Filled_Note("0,3"), "reads as 0");
}

TEST_F(VelocityData, The_Open_Wizard_Names_The_Type) {
  record.VelocityProfileType = 2;
  const double types[] = {2, 3, 4, 5};  // a logarithmic profile stays one
  for (int option = 0; option < 4; ++option) {
    Answers_Of_Wizard().velocity_option = option;
    record.WizardActive = kTrue;
    EXPECT_EQ(Type_From_Wizard(record), types[option]);
    record.WizardActive = kFalse;
    EXPECT_EQ(Type_From_Wizard(record), 2);
  }
  record.WizardActive = kTrue;
  Answers_Of_Wizard().velocity_option = -1;
  EXPECT_EQ(Type_From_Wizard(record), 2);
  record.VelocityProfileType = 4;
  Answers_Of_Wizard().velocity_option = 0;
  EXPECT_EQ(Type_From_Wizard(record), 1);
}

TEST_F(VelocityData, The_Open_Wizard_Names_The_Duration_In_Seconds) {
  record.SimulationDuration = 2400;
  Answers_Of_Wizard().max_duration = "5400";
  EXPECT_EQ(Duration_From_Wizard(record).text, "1.50");
  EXPECT_EQ(Duration_From_Wizard(record).kept, std::nullopt);
  Answers_Of_Wizard().max_duration = "";
  EXPECT_EQ(Duration_From_Wizard(record).text, ".00");
  Answers_Of_Wizard().max_duration = "2400";
  EXPECT_EQ(Duration_From_Wizard(record).text, ".67");
  EXPECT_EQ(Duration_From_Wizard(record).kept, 2400.0 / 3600);
}

}  // namespace
}  // namespace barvon::testing
