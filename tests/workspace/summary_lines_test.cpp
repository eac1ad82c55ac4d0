#include "workspace/summary_lines.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

#include "core/project_defaults.h"

namespace barvon {
namespace {

class SummaryLines : public ::testing::Test {
 protected:
  SummaryLines() { Set_Project_Defaults(*record); }
  std::unique_ptr<ProjectRecord> record = std::make_unique<ProjectRecord>();
};

TEST_F(SummaryLines, Site_Of_A_New_Project) {
  record->DEPC0 = 62.5;
  const auto lines = Compose_Summary(*record).SiteLabel;
  EXPECT_EQ(lines[0], "32 x 32 Grid Size");
  EXPECT_EQ(lines[1], "Grid Spacing Not Specified");
  EXPECT_EQ(lines[2], "Water Depth is Constant at 62.50 Ft");
  EXPECT_EQ(lines[3], "Roughness Height Not Specified");
  EXPECT_EQ(lines[6], "2 Points Used To Describe Density");
}

TEST_F(SummaryLines, Spacing_Is_Shown_As_Soon_As_One_Is_Given) {
  record->DX0 = 250;
  EXPECT_EQ(Compose_Summary(*record).SiteLabel[1], "250 x  Cell Spacing");
}

TEST_F(SummaryLines, Variable_Depth_And_Roughness) {
  record->ConstantDepthFlag = 0;
  record->RHDA0 = 0.005;
  const auto lines = Compose_Summary(*record).SiteLabel;
  EXPECT_EQ(lines[2], "Variable Water Depth Grid Specified");
  EXPECT_EQ(lines[3], "Roughness Height is .0050");
}

TEST_F(SummaryLines, The_Line_Of_The_Z_Slope_Says_X_Dir) {
  record->SLOPEX0 = 1.5;
  record->SLOPEZ0 = 0.25;
  const auto lines = Compose_Summary(*record).SiteLabel;
  EXPECT_EQ(lines[4], "X-Dir Slope is 1.5000");
  EXPECT_EQ(lines[5], "X-Dir Slope is .2500");
}

TEST_F(SummaryLines, Nothing_Prints_As_Nothing_Where_A_Digit_Is_Optional) {
  record->MMAX0 = record->NMAX0 = record->NROA0 = record->NumSolids = 0;
  record->DZ0 = 0.4;  // given, but nothing is left of it
  record->DEPC0 = 0;
  record->TotalVolume = record->XBARGE = record->ZBARGE = 0;
  record->SimulationDuration = record->LongTermTimeStep = 0;
  Summary_Lines lines = Compose_Summary(*record);
  EXPECT_EQ(lines.SiteLabel[0], " x  Grid Size");
  EXPECT_EQ(lines.SiteLabel[1], " x  Cell Spacing");
  EXPECT_EQ(lines.SiteLabel[2], "Water Depth is Constant at 0.00 Ft");
  EXPECT_EQ(lines.SiteLabel[4], "X-Dir Slope is .0000");
  EXPECT_EQ(lines.SiteLabel[5], "X-Dir Slope is .0000");
  EXPECT_EQ(lines.SiteLabel[6], " Points Used To Describe Density");
  EXPECT_EQ(lines.Label5[0], "Simulation Duration: .0");
  EXPECT_EQ(lines.Label5[1], "Long Term Time Step: .0");
  EXPECT_EQ(lines.Matlabel3, "Volume of Dredged Material: .0 Cu. Yds.");
  EXPECT_EQ(lines.Matlabel4, "Number of Distinct Solids Fraction: ");
  EXPECT_EQ(lines.Matlabel5, "Moisture Content: .0");
  EXPECT_EQ(lines.Label6[1], "Location From Top: .0 Ft");
  EXPECT_EQ(lines.Label6[2], "Location From Left: .0 Ft");
  record->DisposalMethod = 3;
  record->LAYERS = 0;
  record->SiteDensity = 0.972;
  lines = Compose_Summary(*record);
  EXPECT_EQ(lines.Matlabel3, "Number of Layers ");
  EXPECT_EQ(lines.Matlabel6, "Dredging Site Water Density: .97 grams/cc");
}

TEST_F(SummaryLines, Numbers_Longer_Than_Their_Pattern_Are_Shown_Whole_And_Rounded) {
  record->DX0 = 12345.5;
  record->DZ0 = 99.4;
  record->SLOPEX0 = -2.00006;
  record->RHDA0 = 0.00004;  // given, but nothing is left of it
  const auto lines = Compose_Summary(*record).SiteLabel;
  EXPECT_EQ(lines[1], "12346 x 99 Cell Spacing");
  EXPECT_EQ(lines[3], "Roughness Height is .0000");
  EXPECT_EQ(lines[4], "X-Dir Slope is -2.0001");
}

TEST_F(SummaryLines, The_Spacing_Along_Z_Alone_Is_Shown_Too) {
  record->DZ0 = 250;
  EXPECT_EQ(Compose_Summary(*record).SiteLabel[1], " x 250 Cell Spacing");
}

TEST_F(SummaryLines, Only_A_1_Ticks_What_Is_Printed_And_Any_Count_The_Print_Times) {
  for (const std::int16_t flag : {-1, 0, 1, 2}) {
    record->PrintConvectiveDescent = record->PrintCollapse = record->NumPrintTimes = flag;
    EXPECT_EQ(Compose_Summary(*record).SSCheck2,
              (std::array<bool, 3>{flag == 1, flag == 1, flag >= 1}))
        << flag;
  }
}

TEST_F(SummaryLines, Output_Options) {
  record->SimulationDuration = 14400;
  record->LongTermTimeStep = 300;
  record->PrintCollapse = 1;
  record->NumPrintTimes = 1;
  const Summary_Lines lines = Compose_Summary(*record);
  EXPECT_EQ(lines.Label5[0], "Simulation Duration: 14400.0");
  EXPECT_EQ(lines.Label5[1], "Long Term Time Step: 300.0");
  EXPECT_EQ(lines.SSCheck2, (std::array<bool, 3>{false, true, true}));
}

TEST_F(SummaryLines, Hopper_Material) {
  record->TotalVolume = 4000;
  record->SiteDensity = 1.02;
  record->MoistureContent = 1.5;
  record->LAYERS = 3;
  record->JBFCFlag = 1;
  const Summary_Lines lines = Compose_Summary(*record);
  EXPECT_EQ(lines.Matlabel3, "Volume of Dredged Material: 4000.0 Cu. Yds.");
  EXPECT_EQ(lines.Matlabel4, "Number of Distinct Solids Fraction: 1");
  EXPECT_EQ(lines.Matlabel5, "Moisture Content: 1.5");
  EXPECT_EQ(lines.Matlabel6, "Dredging Site Water Density: 1.0200 g/cc");
  EXPECT_TRUE(lines.shows_moisture);
}

TEST_F(SummaryLines, Barge_Material_Has_Another_Density_Pattern_And_Unit) {
  record->DisposalMethod = 3;
  record->SiteDensity = 1.02;
  record->LAYERS = 4;
  const Summary_Lines lines = Compose_Summary(*record);
  EXPECT_EQ(lines.Matlabel3, "Number of Layers 4");
  EXPECT_EQ(lines.Matlabel6, "Dredging Site Water Density: 1.02 grams/cc");
  EXPECT_FALSE(lines.Matlabel5.has_value());
  EXPECT_FALSE(lines.shows_moisture);
}

TEST_F(SummaryLines, A_Barge_Of_One_Layer_Writes_Its_Moisture) {
  record->DisposalMethod = 3;
  record->MoistureContent = 2;
  EXPECT_EQ(Compose_Summary(*record).Matlabel5, "Moisture Content: 2.0");
}

TEST_F(SummaryLines, A_Continuous_Discharge_Leaves_The_Material_Lines_As_They_Are) {
  record->DisposalMethod = 2;
  const Summary_Lines lines = Compose_Summary(*record);
  EXPECT_FALSE(lines.Matlabel3 || lines.Matlabel4 || lines.Matlabel5 || lines.Matlabel6);
}

TEST_F(SummaryLines, A_Depression_Is_Told_By_Its_Lengths_And_Not_By_Its_Depth) {
  const std::tuple<double, double, bool> rows[] = {
      {0, 0, false}, {1, 0, true}, {0, 1, true}, {-1, 0, false}, {-1, 1, true}};
  record->DHOLE = 10;
  for (const auto& [x, z, shown] : rows) {
    record->XHOLE = x;
    record->ZHOLE = z;
    EXPECT_EQ(Compose_Summary(*record).SSCheck3, shown) << x << ' ' << z;
  }
}

TEST_F(SummaryLines, Every_Vessel_But_The_Barge_Is_Called_A_Hopper_Dredge) {
  for (const std::int16_t method : {0, 1, 2, 4}) {
    record->DisposalMethod = method;
    EXPECT_EQ(Compose_Summary(*record).Label6[0], "Vessel Type: Hopper Dredge");
  }
}

TEST_F(SummaryLines, Disposal_Operation) {
  record->XBARGE = 1250.5;
  record->ZBARGE = 800;
  record->DHOLE = 10;
  Summary_Lines lines = Compose_Summary(*record);
  EXPECT_EQ(lines.Label6[0], "Vessel Type: Hopper Dredge");
  EXPECT_EQ(lines.Label6[1], "Location From Top: 1250.5 Ft");
  EXPECT_EQ(lines.Label6[2], "Location From Left: 800.0 Ft");
  EXPECT_FALSE(lines.SSCheck3);
  record->ZHOLE = 1;
  record->DisposalMethod = 3;
  lines = Compose_Summary(*record);
  EXPECT_EQ(lines.Label6[0], "Vessel Type: Barge or Scow");
  EXPECT_TRUE(lines.SSCheck3);
}

}  // namespace
}  // namespace barvon
