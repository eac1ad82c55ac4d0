#include "checks/check_data.h"

#include <gtest/gtest.h>

#include "checks/sound_project.h"
#include "core/model_input/model_input.h"

namespace barvon::testing {
namespace {

const Finding kNoFraction = {"Volumetric Fraction for  is Zero", "frmMatHopper!F1Book1", 2490};

TEST(CheckData, A_Sound_Project_Has_No_Findings) {
  const Error_List errors = Check_Data(Sound_Project());
  EXPECT_EQ(errors.ErrorsFound, kFalse);
  EXPECT_EQ(errors.ErrorCount, 0);
  EXPECT_TRUE(errors.entries.empty());
}

TEST(CheckData, A_Fresh_Project_Is_Missing_These) {
  ProjectRecord fresh;
  Set_Project_Defaults(fresh);
  const Finding no_density = {"Density Value Not Supplied at Depth = ", "frmDescription!F1Book1"};
  EXPECT_EQ(
      Findings_Of(Check_Data(fresh)),
      (std::vector<Finding>{
          {"Roughness Height Outside Bounds", "frmDescription!Text1(5)"},
          {"Depth of Receiving Water Not Supplied", "frmDescription!F1Book1"},
          no_density,
          no_density,
          kNoFraction,
          {"Inapproprite Length of Vessel Bin", "frmOperation!Text1(2)"},
          {"Inapproprite Width of Vessel Bin", "frmOperation!Text1(3)"},
          {"Please Specify the Duration of the Simulation.", "frmSimulation!Text1(0)", 3000},
          {"Please Specify Long Term Time Step for Diffusion.", "frmSimulation!Text1(1)", 3000},
          {"Simulation Time Step Is Too Large.  Please Reduce.", "frmSimulation!Text1(1)", 3000},
      }));
}

TEST(CheckData, Findings_Come_By_Site_Material_Operation_And_Time) {
  ProjectRecord record = Sound_Project();
  record.SimulationDuration = 0;
  record.XBARGE = -1;
  record.SolidVolFraction[1] = 0;
  record.RHDA0 = 0;
  const Error_List errors = Check_Data(record);
  EXPECT_EQ(errors.ErrorsFound, kTrue);
  EXPECT_EQ(errors.ErrorCount, 5);
  EXPECT_EQ(
      Findings_Of(errors),
      (std::vector<Finding>{
          {"Roughness Height Outside Bounds", "frmDescription!Text1(5)"},
          {"Volumetric Fraction for Sand is Zero", "frmMatHopper!F1Book1", 2490},
          {"Location of Vessel Outside of Grid", "frmOperation!Text1(0)"},
          {"Please Specify the Duration of the Simulation.", "frmSimulation!Text1(0)", 3000},
          {"Simulation Time Step Is Too Large.  Please Reduce.", "frmSimulation!Text1(1)", 3000},
      }));
}

TEST(CheckData, A_Profile_Above_The_Bottom_Is_Found_And_The_Model_Input_Still_Adds_A_Point) {
  ProjectRecord record = Sound_Project();
  record.DEPC0 = 100;
  record.DensityDepths[2] = 80;
  EXPECT_EQ(Findings_Of(Check_Data(record)),
            (std::vector<Finding>{
                {"Receiving Water Densities Unacceptable.", "frmDescription!Text1(4)"}}));
  EXPECT_EQ(record.NROA0, 2);
  std::string text;
  EXPECT_EQ(Write_Model_Input(record, text), Failure::None);
  EXPECT_EQ(record.NROA0, 3);
  EXPECT_TRUE(Check_Data(record).entries.empty());
}

TEST(CheckData, More_Findings_Than_Topics_Keep_The_List_And_Drop_The_Topics) {
  ProjectRecord record = Sound_Project();
  record.DisposalMethod = 3;
  record.SeparationFlag = 1;
  record.NumSolids = 4;
  record.LAYERS = 6;
  record.SimulationDuration = 0;
  const Error_List errors = Check_Data(record);
  ASSERT_EQ(errors.entries.size(), 26U);
  EXPECT_EQ(errors.ErrorCount, 26);
  EXPECT_EQ(errors.entries[25].message, "Simulation Time Step Is Too Large.  Please Reduce.");
  EXPECT_EQ(errors.ErrorHelpTopics[0], 0);
  EXPECT_EQ(errors.ErrorHelpTopics[1], 2550);
  EXPECT_EQ(errors.ErrorHelpTopics[20], 2550);
}

TEST(CheckData, Every_Check_Starts_From_An_Empty_List) {
  ProjectRecord record = Sound_Project();
  record.RHDA0 = 0;
  EXPECT_EQ(Check_Project(record), kTrue);
  EXPECT_EQ(Check_Project(record), kTrue);
  EXPECT_EQ(Current_Errors().ErrorCount, 1);
  EXPECT_EQ(Check_Project(Sound_Project()), kFalse);
  EXPECT_EQ(Current_Errors().ErrorCount, 0);
  EXPECT_TRUE(Current_Errors().entries.empty());
}

}  // namespace
}  // namespace barvon::testing
