#include "core/project_defaults.h"

#include <gtest/gtest.h>

#include <memory>

namespace barvon {
namespace {

class ProjectDefaults : public ::testing::Test {
 protected:
  ProjectDefaults() { Set_Project_Defaults(record_); }
  std::unique_ptr<ProjectRecord> owner_ = std::make_unique<ProjectRecord>();
  ProjectRecord& record_ = *owner_;
};

TEST_F(ProjectDefaults, A_Fresh_Project_Is_A_32_By_32_Hopper_Project) {
  EXPECT_EQ(record_.MMAX0, 32);
  EXPECT_EQ(record_.NMAX0, 32);
  EXPECT_EQ(record_.NROA0, 2);
  EXPECT_EQ(record_.NumSolids, 1);
  EXPECT_EQ(record_.LAYERS, 1);
  EXPECT_EQ(record_.NOPENS, 1);
  EXPECT_EQ(record_.DisposalMethod, 1);
  EXPECT_EQ(record_.PreviousDisposalMethod, 1);
  EXPECT_EQ(record_.VelocityProfileType, 1);
  EXPECT_EQ(record_.SiteDensity, 1.0);
  EXPECT_EQ(record_.AnalysisType, 1);
  EXPECT_EQ(record_.ConstantDepthFlag, 1);
  EXPECT_EQ(record_.NumOutputDepths, 1);
  EXPECT_EQ(record_.OldGridFile, 99);
  EXPECT_EQ(record_.KEY1, 0);
  EXPECT_EQ(record_.KEY4, 0);
  for (int i = 1; i <= 6; ++i) EXPECT_EQ(record_.SectionStatus[i], '-');
  for (int i = 1; i <= 18; ++i) EXPECT_EQ(record_.SectionFlags[i], 0);
}

TEST_F(ProjectDefaults, Coefficients_Have_The_Values_Of_Their_Table) {
  EXPECT_EQ(record_.BETA, 0);
  EXPECT_EQ(record_.CM, 1.0);
  EXPECT_EQ(record_.CD, 0.5);
  EXPECT_EQ(record_.CDRAG, 1.0);
  EXPECT_EQ(record_.CFRIC, 0.01);
  EXPECT_EQ(record_.CD3, 0.1);
  EXPECT_EQ(record_.CD4, 1.0);
  EXPECT_EQ(record_.FRICTN, 0.01);
  EXPECT_EQ(record_.ALAMDA, 0.001);
  EXPECT_EQ(record_.AKY0, 0.025);
  EXPECT_EQ(record_.GAMA, 0.25);
  EXPECT_EQ(record_.ALPHA1, 0.0806);
  EXPECT_EQ(record_.ALPHA2, 0.3536);
  EXPECT_EQ(record_.ALPHA0, 0.235);
  EXPECT_EQ(record_.ALPHAC, 0.1);
  EXPECT_EQ(record_.ALPHA3, 0.3536);
  EXPECT_EQ(record_.ALPHA4, 0.001);
  EXPECT_EQ(record_.CSTRIP, 0.003);
  EXPECT_EQ(record_.PritchardFlag, 0);
}

TEST_F(ProjectDefaults, A_Used_Record_Is_Brought_Back) {
  record_.ProjectFileName = "/a.dui";
  record_.ProjectTitle = "title";
  record_.DepthGrid[96][96] = 5;
  record_.DEPTHI = 5;
  record_.VelocityFieldZ[1][1] = 5;
  record_.ConstVelocityX = record_.ConstVelocityZ = 5;
  record_.SolidNames[5] = "Copper";
  record_.SolidTracerFlag[2] = 1;
  record_.SpareReal61 = 3;
  record_.RealSlots[9403] = 3;
  record_.IntSlots[41] = 3;
  record_.ScreenDataSupplied[10] = kTrue;
  record_.DiluteBulk[500] = 4;
  record_.SiteDensity = 1.03;
  Set_Project_Defaults(record_);
  EXPECT_EQ(record_.ProjectFileName, "");
  EXPECT_EQ(record_.ProjectTitle, "");
  EXPECT_EQ(record_.DepthGrid[96][96], 0);
  EXPECT_EQ(record_.DEPTHI, 0);
  EXPECT_EQ(record_.VelocityFieldZ[1][1], 0);
  EXPECT_EQ(record_.ConstVelocityX, 0);
  EXPECT_EQ(record_.ConstVelocityZ, 0);
  EXPECT_EQ(record_.SolidNames[5], "");
  EXPECT_EQ(record_.SolidTracerFlag[2], 0);
  EXPECT_EQ(record_.SpareReal61, 0);
  EXPECT_EQ(record_.RealSlots[9403], 0);
  EXPECT_EQ(record_.IntSlots[41], 0);
  EXPECT_EQ(record_.ScreenDataSupplied[10], kFalse);
  EXPECT_EQ(record_.DiluteBulk[500], 0);
  EXPECT_EQ(record_.SiteDensity, 1.0);
}

TEST_F(ProjectDefaults, Fields_Without_A_Default_Keep_The_Value_Of_The_Earlier_Project) {
  record_.BaseFileName = "/sites/a";
  record_.FileKind = 2;
  record_.TidalStartTime = 1.5F;
  record_.TidalVelX[26] = 0.5F;
  record_.SiteSalinity = 30;
  record_.DiluteRowCount = 3;
  record_.TidalDepth = 2;
  Set_Project_Defaults(record_);
  EXPECT_EQ(record_.BaseFileName, "/sites/a");
  EXPECT_EQ(record_.FileKind, 2);
  EXPECT_EQ(record_.TidalStartTime, 1.5F);
  EXPECT_EQ(record_.TidalVelX[26], 0.5F);
  EXPECT_EQ(record_.SiteSalinity, 30);
  EXPECT_EQ(record_.DiluteRowCount, 3);
  EXPECT_EQ(record_.TidalDepth, 0);
}

TEST_F(ProjectDefaults, A_New_Project_Has_No_Print_Times) {
  record_.NumPrintTimes = 4;
  Set_Project_Defaults(record_);
  EXPECT_EQ(record_.NumPrintTimes, 0);
}

TEST_F(ProjectDefaults, Zero_Volumes_And_Bulk_Density_Leave_The_Site_Density_At_1) {
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_EQ(record_.SiteDensity, 1.0);
}

TEST_F(ProjectDefaults, A_Stored_Bulk_Density_Overrides_The_Site_Density) {
  // mass 0.25 x 2.6 = 0.65; (1.42 - 0.65) / (1 - 0.25) = 0.77 / 0.75 = 1.0266...
  record_.SolidVolFraction[1] = 0.25;
  record_.SolidSG[1] = 2.6;
  record_.BulkDensity = 1.42;
  record_.SiteDensity = 1.0;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_NEAR(record_.SiteDensity, 0.77 / 0.75, 1e-12);
  EXPECT_NEAR(record_.SolidsMassSum, 0.65, 1e-12);
  EXPECT_EQ(record_.SolidsVolumeSum, 0.25);
}

TEST_F(ProjectDefaults, A_Low_Bulk_Density_Gives_The_Lower_Limit_Never_Less) {
  record_.BulkDensity = 0.5;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_EQ(record_.SiteDensity, 0.972);
}

TEST_F(ProjectDefaults, The_Limits_Hold_A_Density_That_Was_Not_Recomputed) {
  record_.SiteDensity = 1.2;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_EQ(record_.SiteDensity, 1.05);
}

TEST_F(ProjectDefaults, A_Volume_Without_Gravity_Counts_As_Volume_Only) {
  record_.SolidVolFraction[1] = 0.2;
  record_.SolidSG[1] = 0;
  record_.BulkDensity = 0.816;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_NEAR(record_.SiteDensity, 1.02, 1e-12);  // 0.816 / 0.8
}

TEST_F(ProjectDefaults, Only_The_Solids_In_Use_Count) {
  record_.SolidVolFraction[2] = 0.5;
  record_.SolidSG[2] = 2;
  record_.BulkDensity = 1.01;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_EQ(record_.SiteDensity, 1.01);
}

TEST_F(ProjectDefaults, Without_Solids_The_Rule_Does_Not_Run) {
  record_.NumSolids = 0;
  record_.SiteDensity = 1.2;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_EQ(record_.SiteDensity, 1.2);
}

TEST_F(ProjectDefaults, Solids_That_Fill_Everything_Leave_The_Site_Density) {
  record_.SolidVolFraction[1] = 1;
  record_.SolidSG[1] = 1;
  record_.BulkDensity = 2;
  record_.SiteDensity = 1.01;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_EQ(record_.SiteDensity, 1.01);
}

TEST_F(ProjectDefaults, A_Count_Beyond_The_Arrays_Does_No_Harm) {
  record_.NumSolids = 32767;
  record_.BulkDensity = 1.01;
  Compute_Site_Density_From_Bulk(record_);
  EXPECT_EQ(record_.SiteDensity, 1.01);
}

}  // namespace
}  // namespace barvon
