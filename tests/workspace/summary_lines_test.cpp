#include "workspace/summary_lines.h"

#include <gtest/gtest.h>

#include <memory>

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
