#include "core/project_defaults.h"

#include <algorithm>
#include <cmath>

#include "core/density_limits.h"
#include "core/keys.h"
#include "core/velocity_types.h"

namespace barvon {
namespace {

constexpr std::int16_t kFreshGridFile = 99;

void Clear_File_Marks(ProjectRecord& record) {
  std::fill(record.SectionStatus.begin() + 1, record.SectionStatus.end(), '-');
  record.SectionFlags.fill(0);
}

void Set_Site_Defaults(ProjectRecord& record) {
  record.MMAX0 = 32;
  record.NMAX0 = 32;
  record.DX0 = record.DZ0 = 0;
  record.DEPC0 = 0;
  record.ConstantDepthFlag = 1;
  record.DepthGrid = {};
  record.DEPTHI = 0;
  record.RHDA0 = record.SLOPEX0 = record.SLOPEZ0 = 0;
  record.NROA0 = 2;
  record.DensityDepths = {};
  record.Densities = {};
  record.DensitySalinities = {};
  record.DensityTemperatures = {};
  record.DensityComputeFlag = 0;
}

void Set_Velocity_Defaults(ProjectRecord& record) {
  record.VelocityProfileType = kSingleVelocity;
  record.VelXDepth1 = record.VelXDepth2 = record.VelX1 = record.VelX2 = 0;
  record.VelZDepth1 = record.VelZDepth2 = record.VelZ1 = record.VelZ2 = 0;
  record.VelocityFieldX = {};
  record.VelocityFieldZ = {};
  record.ConstVelocityX = record.ConstVelocityZ = 0;
  record.AvgVelocityDepth = record.AvgVelocityX = record.AvgVelocityZ = 0;
  record.TidalDepth = record.TidalAvgVelX = record.TidalAvgVelZ = 0;
}

void Set_Output_And_Evaluation_Defaults(ProjectRecord& record) {
  record.SimulationDuration = record.LongTermTimeStep = 0;
  record.PrintConvectiveDescent = record.PrintCollapse = 0;
  record.NumPrintTimes = 0;
  record.PrintTimes = {};
  record.TracerConcentration = record.BackgroundConcentration = 0;
  record.CriterionConcentration = record.SedimentConcentration = 0;
  record.ToxicityDilution = 0;
  record.SiteTop = record.SiteLeft = record.SiteBottom = record.SiteRight = 0;
  record.ZidFlag = 0;
  record.ZidTop = record.ZidLeft = record.ZidBottom = record.ZidRight = 0;
  record.ZCRIT = record.ZidToxicityDilution = 0;
  record.NumOutputDepths = 1;
  record.OutputDepths = {};
}

void Set_Material_Defaults(ProjectRecord& record) {
  record.NumSolids = 1;
  record.SolidNames = {};
  record.SolidSG = {};
  record.SolidVolFraction = {};
  record.SolidFallVelocity = {};
  record.SolidVoidRatio = {};
  record.SolidCriticalShear = {};
  record.SolidCohesive = {};
  record.SolidStripped = {};
  record.SolidTracerFlag = {};
  record.TotalVolume = record.MoistureContent = 0;
  record.JBFCFlag = 0;
  record.SiteDensity = 1.0;
  record.BulkDensity = record.MaterialVolumeOption = 0;
  record.LAYERS = 1;
  record.SeparationFlag = 0;
  record.LayerVelX = {};
  record.LayerVelZ = {};
  record.LayerVolume = {};
  record.LayerMoisture = {};
  record.LayerSolidFraction = {};
}

void Set_Operation_Defaults(ProjectRecord& record) {
  record.XBARGE = record.ZBARGE = 0;
  record.BINL = record.BINW = record.DBINS = 0;
  record.DREL1 = record.DREL2 = record.TDIS = 0;
  record.NBINS = 0;
  record.NOPENS = 1;
  record.BargeLength = record.BargeWidth = record.BargeEmptyTime = 0;
  record.XHOLE = record.ZHOLE = record.DHOLE = 0;
  record.VesselSpeed = record.VesselCourse = 0;
  record.DischargeDuration = 0;
  record.DischargeRate = record.PipeRadius = record.DischargeDepth = record.DischargeAngle = 0;
  record.ContinuousTimeStart = 0;
}

void Set_Coefficient_Defaults(ProjectRecord& record) {
  record.BETA = 0;
  record.CM = 1.0;
  record.CD = 0.5;
  record.CDRAG = 1.0;
  record.CFRIC = 0.01;
  record.CD3 = 0.1;
  record.CD4 = 1.0;
  record.FRICTN = 0.01;
  record.ALAMDA = 0.001;
  record.AKY0 = 0.025;
  record.GAMA = 0.25;
  record.ALPHA1 = 0.0806;
  record.ALPHA2 = 0.3536;
  record.ALPHA0 = 0.235;
  record.ALPHAC = 0.1;
  record.ALPHA3 = 0.3536;
  record.ALPHA4 = 0.001;
  record.CSTRIP = 0.003;
  record.PritchardFlag = 0;
  record.SpareReal21 = record.SpareReal61 = record.SpareReal68 = 0;
}

void Set_Key_And_Working_Defaults(ProjectRecord& record) {
  record.AnalysisType = kOpenWater;
  record.OldGridFile = kFreshGridFile;
  record.OldGridRetry = kFalse;
  record.DisposalMethod = record.PreviousDisposalMethod = kHopper;
  record.KEY1 = 0;
  record.KEY2 = kDiffusion;
  record.KEY3 = kNoTracer;
  record.KEY4 = kNoStudy;
  record.SolidsVolumeSum = record.SolidsMassSum = 0;
  record.SiteGridTop = record.SiteGridBottom = record.SiteGridLeft = record.SiteGridRight = 0;
  record.ZidGridTop = record.ZidGridBottom = record.ZidGridLeft = record.ZidGridRight = 0;
  record.CohesiveCount = record.StrippedCount = 0;
  record.TracerSolidCount = record.DepthGridFlagOut = 0;
}

}  // namespace

void Set_Dilution_Defaults(ProjectRecord& record) {
  record.DiluteParameterNames = {};
  record.DiluteBulk = {};
  record.DiluteCriteria = {};
  record.DiluteBackground = {};
  record.DiluteElutriate = {};
  record.DiluteBulkDilution = {};
  record.DiluteElutDilution = {};
  record.DiluteSolidsConc = 0;
}

void Forget_Database(ProjectRecord& record) {
  record.SelectedSiteCode = record.SelectedMonth = 0;
  record.SelectedMaterialCode = record.SelectedVesselCode = 0;
  record.SiteFound = record.MaterialFound = record.VesselFound = kFalse;
  record.ActiveDatabaseList = 0;
}

void Set_Project_Defaults(ProjectRecord& record) {
  record.ProjectFileName.clear();
  record.ProjectTitle.clear();
  record.RealSlots.fill(0);
  record.IntSlots.fill(0);
  Clear_File_Marks(record);
  Set_Key_And_Working_Defaults(record);
  Set_Site_Defaults(record);
  Set_Velocity_Defaults(record);
  Set_Output_And_Evaluation_Defaults(record);
  Set_Material_Defaults(record);
  Set_Operation_Defaults(record);
  Set_Coefficient_Defaults(record);
  Set_Dilution_Defaults(record);
  Forget_Database(record);
  Compute_Site_Density_From_Bulk(record);
  record.DataSaved = record.SavedUnderScreens = kFalse;
  record.ScreenDataSupplied = {};
}

void Compute_Site_Density_From_Bulk(ProjectRecord& record) {
  if (record.NumSolids <= 0) return;
  record.SolidsVolumeSum = 0;
  record.SolidsMassSum = 0;
  const int solids = std::min<int>(record.NumSolids, kSolidEntries);
  for (int i = 1; i <= solids; ++i) {
    if (record.SolidVolFraction[i] > 0) {
      record.SolidsVolumeSum += record.SolidVolFraction[i];
      if (record.SolidSG[i] > 0) {
        record.SolidsMassSum += record.SolidVolFraction[i] * record.SolidSG[i];
      }
    }
  }
  const double water_mass = record.BulkDensity - record.SolidsMassSum;
  if (water_mass > 0) {
    const double density = water_mass / (1 - record.SolidsVolumeSum);
    if (std::isfinite(density)) record.SiteDensity = density;
  }
  record.SiteDensity = Held_Site_Density(record.SiteDensity);
}

}  // namespace barvon
