#include "core/model_input/model_examples.h"

#include <gtest/gtest.h>

#include "core/model_input/model_input.h"
#include "core/project_defaults.h"

namespace barvon::testing {

ProjectRecord Hopper_Example() {
  ProjectRecord r;
  Set_Project_Defaults(r);
  r.FileTypeTag = "DUE";
  r.DisposalMethod = 1;
  r.ProjectTitle = "Hopper dredge, two openings";
  r.NMAX0 = 40, r.MMAX0 = 30;
  r.NumSolids = 2, r.NOPENS = 2, r.NBINS = 4;
  r.KEY1 = 1, r.KEY2 = 2, r.KEY3 = 7;
  r.JBFCFlag = 1, r.ZidFlag = 1, r.PritchardFlag = 1;
  r.CohesiveCount = r.StrippedCount = r.TracerSolidCount = r.DepthGridFlagOut = 9;
  r.DX0 = 100, r.DZ0 = 125;
  r.SiteTop = 950, r.SiteBottom = 1825, r.SiteLeft = 1500, r.SiteRight = 3070;
  r.ZidTop = 1110, r.ZidBottom = 1560, r.ZidLeft = 1630, r.ZidRight = 2250;
  r.PrintConvectiveDescent = 1, r.PrintCollapse = 0, r.NumPrintTimes = 9;
  r.PrintTimes = {0, 1200, 2400, 3600, 4800, 6000, 7200, 8400, 9600, 14400};
  r.NumOutputDepths = 3;
  r.OutputDepths = {0, 10, 25.5, 47};
  r.DEPC0 = 60;
  r.XBARGE = 1430, r.ZBARGE = 1870, r.SLOPEX0 = 0.5, r.SLOPEZ0 = 1.25;
  r.XHOLE = 300, r.ZHOLE = 420, r.DHOLE = 7.5;
  r.RHDA0 = 0.005;
  r.NROA0 = 2;
  r.DensityDepths = {0, 0, 45};
  r.Densities = {0, 1.0012, 1.0034};
  r.VelocityProfileType = 3;
  r.VelXDepth1 = 20, r.VelXDepth2 = 55, r.VelX1 = 0.8, r.VelX2 = 0.3;
  r.VelZDepth1 = 21, r.VelZDepth2 = 54, r.VelZ1 = -0.4, r.VelZ2 = 0.15;
  r.SimulationDuration = 14400, r.LongTermTimeStep = 300, r.TDIS = 90;
  r.BINL = 48, r.BINW = 22, r.DBINS = 6, r.DREL1 = 24.5, r.DREL2 = 11.5;
  r.SiteDensity = 1.0021;
  r.ALPHA0 = 0.235, r.BETA = 0.11, r.CM = 1.02, r.CD = 0.51;
  r.GAMA = 0.26, r.CDRAG = 1.03, r.CFRIC = 0.012, r.CD3 = 0.13, r.CD4 = 1.04;
  r.ALPHAC = 0.14, r.FRICTN = 0.015;
  r.ALAMDA = 0.0016, r.AKY0 = 0.027, r.CSTRIP = 0.0038;
  r.LayerVelX = {0, 1.5, 2.5};
  r.LayerVelZ = {0, -0.5, 0.75};
  r.TotalVolume = 5000, r.MoistureContent = 1.7;
  r.SolidNames = {"", "Sand", "Clay", "", "", "Copper"};
  r.SolidSG = {0, 2.65, 2.71};
  r.SolidVolFraction = {0, 0.12, 0.05};
  r.SolidFallVelocity = {0, 0.07, 0.003};
  r.SolidVoidRatio = {0, 0.6, 4.5};
  r.SolidCriticalShear = {0, 0.02, 0.009};
  r.SolidCohesive = {0, 0, 1};
  r.SolidStripped = {0, 1, 0};
  r.BackgroundConcentration = 0.9, r.SedimentConcentration = 33.33331;
  r.CriterionConcentration = 4.8, r.ZCRIT = 2.9;
  return r;
}

ProjectRecord Barge_Example() {
  ProjectRecord r;
  Set_Project_Defaults(r);
  r.FileTypeTag = "DUE";
  r.DisposalMethod = 3;
  r.ProjectTitle = "  Split hull, three layers  ";
  r.NMAX0 = 11, r.MMAX0 = 8;
  r.NumSolids = 2, r.LAYERS = 3, r.NBINS = 7;
  r.KEY1 = 1, r.KEY2 = 0, r.KEY3 = 4;
  r.SeparationFlag = 1, r.ZidFlag = 1;
  r.DX0 = 50, r.DZ0 = 0;
  r.SiteTop = 100, r.SiteBottom = 260, r.SiteLeft = 160, r.SiteRight = 340;
  r.PrintConvectiveDescent = 0, r.PrintCollapse = 1, r.NumPrintTimes = 0;
  r.NumOutputDepths = 1;
  r.OutputDepths = {0, 30};
  r.DEPC0 = 40;
  r.ConstantDepthFlag = 0;
  for (int a = 1; a <= 8; ++a) {
    for (int b = 1; b <= 11; ++b) r.DepthGrid[a][b] = 100 * a + b;
  }
  r.XBARGE = 205, r.ZBARGE = 255, r.SLOPEZ0 = 2, r.XHOLE = 15, r.ZHOLE = 16, r.DHOLE = 3;
  r.RHDA0 = 0.0125;
  r.NROA0 = 5;
  r.DensityDepths = {0, 0, 10, 20, 30, 35};
  r.Densities = {0, 1.021, 1.022, 1.023, 1.024, 1.025};
  r.VelocityProfileType = 5;
  r.TidalAvgVelX = 0.1F, r.TidalAvgVelZ = -0.7F, r.TidalDepth = 38.5F;
  r.SimulationDuration = 7200, r.LongTermTimeStep = 60, r.BargeEmptyTime = 25;
  r.BargeLength = 180, r.BargeWidth = 45, r.DREL1 = 13, r.DREL2 = 4;
  r.SiteDensity = 1.0215;
  r.ALPHA0 = 0.236, r.BETA = 0.12, r.CM = 1.01, r.CD = 0.52;
  r.GAMA = 0.27, r.CDRAG = 1.05, r.CFRIC = 0.013, r.CD3 = 0.14, r.CD4 = 1.06;
  r.ALPHAC = 0.16, r.FRICTN = 0.017;
  r.ALAMDA = 0.0012, r.AKY0 = 0.028, r.CSTRIP = 0.0035;
  r.LayerVelX = {0, 1.1, 1.2, 1.3};
  r.LayerVelZ = {0, 0.15, 0.25, 0.35};
  r.LayerVolume = {0, 600, 300, 100};
  r.LayerMoisture = {0, 1.3, 1.4, 1.5};
  r.LayerSolidFraction[1] = {0, 0.2, 0.15, 0.1};
  r.LayerSolidFraction[2] = {0, 0.1, 0.11, 0.12};
  r.SolidNames = {"", "Sand", "Silt", "", "", "Zinc"};
  r.SolidSG = {0, 2.65, 2.7};
  r.SolidVolFraction = {0, 0.9, 0.8};
  r.SolidFallVelocity = {0, 0.05, 0.01};
  r.SolidVoidRatio = {0, 0.7, 3.8};
  r.SolidCriticalShear = {0, 0.03, 0.008};
  r.SolidCohesive = {0, 0, 1};
  r.SolidStripped = {0, 0, 1};
  r.BackgroundConcentration = 0.02, r.SedimentConcentration = 80;
  r.ZidToxicityDilution = 5.5, r.MoistureContent = 9.9;
  return r;
}

ProjectRecord Continuous_Example() {
  ProjectRecord r;
  Set_Project_Defaults(r);
  r.FileTypeTag = "DUE";
  r.DisposalMethod = 2;
  r.ProjectTitle = " Pipeline ";
  r.NMAX0 = 30, r.MMAX0 = 20, r.NumSolids = 2;
  r.KEY1 = 1, r.KEY2 = 1, r.KEY3 = 3;
  r.DX0 = 50, r.DZ0 = 60;
  r.SiteTop = 300, r.SiteBottom = 700, r.SiteLeft = 600, r.SiteRight = 1330;
  r.PrintConvectiveDescent = 1, r.PrintCollapse = 0, r.NumPrintTimes = 2;
  r.PrintTimes = {0, 3600, 7200};
  r.NumOutputDepths = 2;
  r.OutputDepths = {0, 12.5, 30};
  r.DEPC0 = 45.125;
  r.ContinuousTimeStart = 5, r.SimulationDuration = 21600, r.LongTermTimeStep = 150;
  r.DischargeDuration = 5400;
  r.DischargeRate = 31.4, r.PipeRadius = 1.25, r.DischargeDepth = 6.5, r.DischargeAngle = 35;
  r.BulkDensity = 1.23456, r.MaterialVolumeOption = 0.75;
  r.XBARGE = 510.25, r.ZBARGE = 905, r.VesselCourse = 45, r.VesselSpeed = 2.505;
  r.SolidNames = {"", "Sand", "Fine silt", "", "", "Effluent"};
  r.SolidSG = {0, 2.65, 2.7};
  r.SolidVolFraction = {0, 0.1, 0.04};
  r.SolidFallVelocity = {0, 0.05, 0.0012};
  r.SolidVoidRatio = {0, 0.8, 3.5};
  r.SolidCohesive = {0, 0, 1};
  r.TracerConcentration = 12.5, r.BackgroundConcentration = 0.25;
  r.ToxicityDilution = 1.5, r.SedimentConcentration = 7, r.CriterionConcentration = 0.125;
  r.ALPHA1 = 0.0806, r.ALPHA2 = 0.3536, r.BETA = 0, r.CD = 0.5, r.CM = 1, r.GAMA = 0.25;
  r.CDRAG = 1.1, r.CFRIC = 0.01, r.CD3 = 0.15, r.CD4 = 1.2, r.ALPHA3 = 0.3537;
  r.ALPHA4 = 0.001, r.FRICTN = 0.02, r.ALAMDA = 0.005, r.AKY0 = 0.025;
  r.NROA0 = 2;
  r.DensityDepths = {0, 0, 45.125};
  r.Densities = {0, 1.0213, 1.02456};
  r.VelocityProfileType = 3;
  r.VelXDepth1 = 20, r.VelXDepth2 = 50, r.VelX1 = 0.5, r.VelX2 = 0.25;
  r.VelZDepth1 = 21, r.VelZDepth2 = 49, r.VelZ1 = -0.1, r.VelZ2 = 0.125;
  return r;
}

std::string Written(ProjectRecord& record) {
  std::string text;
  EXPECT_EQ(Write_Model_Input(record, text), Failure::None);
  return text;
}

std::vector<std::string> Whole_Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t at = 0;
  for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", at)) {
    lines.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  EXPECT_EQ(at, text.size()) << "the last line has no end";
  return lines;
}

std::vector<std::string> Written_Lines(ProjectRecord record) {
  return Whole_Lines(Written(record));
}

}  // namespace barvon::testing
