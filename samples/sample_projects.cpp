#include "sample_projects.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "core/keys.h"
#include "core/project_defaults.h"
#include "core/velocity_types.h"

namespace barvon::samples {
namespace {

struct Solid {
  const char* name;
  double specific_gravity;
  double volume_fraction;
  double fall_velocity;   // ft/s
  double void_ratio;      // when deposited
  double critical_shear;  // lb/sq ft
  bool cohesive;
  bool stripped;
};

void Set_Solids(ProjectRecord& r, std::initializer_list<Solid> solids) {
  r.NumSolids = 0;
  for (const Solid& solid : solids) {
    const int i = ++r.NumSolids;
    r.SolidNames[i] = solid.name;
    r.SolidSG[i] = solid.specific_gravity;
    r.SolidVolFraction[i] = solid.volume_fraction;
    r.SolidFallVelocity[i] = solid.fall_velocity;
    r.SolidVoidRatio[i] = solid.void_ratio;
    r.SolidCriticalShear[i] = solid.critical_shear;
    r.SolidCohesive[i] = solid.cohesive ? 1 : 0;
    r.SolidStripped[i] = solid.stripped ? 1 : 0;
  }
}

/// Points x spacing: down the grid, then across it.
void Set_Grid(ProjectRecord& r, int points_x, double spacing_x, int points_z, double spacing_z) {
  r.MMAX0 = static_cast<std::int16_t>(points_x);
  r.DX0 = spacing_x;
  r.NMAX0 = static_cast<std::int16_t>(points_z);
  r.DZ0 = spacing_z;
  r.DistX = (points_x - 1) * spacing_x;
  r.DistZ = (points_z - 1) * spacing_z;
}

struct Water {
  double depth;    // ft
  double density;  // g/cc
};

void Set_Water(ProjectRecord& r, std::initializer_list<Water> profile) {
  r.NROA0 = 0;
  for (const Water& point : profile) {
    const int i = ++r.NROA0;
    r.DensityDepths[i] = point.depth;
    r.Densities[i] = point.density;
  }
}

void Set_Time(ProjectRecord& r, double duration, double step,
              std::initializer_list<double> print_times = {}) {
  r.SimulationDuration = duration;
  r.LongTermTimeStep = step;
  r.PrintConvectiveDescent = 1;
  r.PrintCollapse = 1;
  r.NumPrintTimes = static_cast<std::int16_t>(print_times.size());
  std::copy(print_times.begin(), print_times.end(), r.PrintTimes.begin() + 1);
}

void Set_Output_Depths(ProjectRecord& r, std::initializer_list<double> depths) {
  r.NumOutputDepths = static_cast<double>(depths.size());
  std::copy(depths.begin(), depths.end(), r.OutputDepths.begin() + 1);
}

/// KEY4 names the analysis and the method together: 1, 3, 5 hopper, 2, 4, 6 barge.
void Set_Analysis(ProjectRecord& r, int key4, int key3) {
  r.KEY1 = 1;
  r.KEY3 = static_cast<std::int16_t>(key3);
  r.KEY4 = static_cast<std::int16_t>(key4);
  r.AnalysisType = static_cast<std::int16_t>((key4 + 1) / 2);
  r.DisposalMethod = key4 % 2 == 1 ? kHopper : kBarge;
  r.PreviousDisposalMethod = r.DisposalMethod;
}

/// Maintenance dredging: a hopper dredge that empties two of its twelve bins at a time while it
/// creeps ahead. Solids only.
void Hopper_Six_Openings(ProjectRecord& r) {
  r.ProjectTitle = "TERN SHOAL CHANNEL - HOPPER DREDGE, SIX OPENINGS OF TWO BINS";
  Set_Analysis(r, 1, 0);
  Set_Grid(r, 45, 100, 40, 125);
  r.DEPC0 = 60;
  r.RHDA0 = 0.005;
  r.SLOPEX0 = 0.2;
  Set_Water(r, {{0, 1.0212}, {30, 1.022}, {60, 1.0234}});
  r.VelocityProfileType = kSingleVelocity;
  r.AvgVelocityDepth = 60;
  r.AvgVelocityX = 0.5;
  r.AvgVelocityZ = -0.2;
  Set_Time(r, 2400, 200);
  Set_Output_Depths(r, {15, 50});
  Set_Solids(r, {{"Sand", 2.65, 0.12, 0.07, 0.8, 0.025, false, true},
                 {"Silt", 2.65, 0.08, 0.01, 4.5, 0.009, false, true},
                 {"Clay", 2.6, 0.05, 0.002, 7, 0.004, true, true}});
  r.TotalVolume = 4200;
  r.MoistureContent = 1.5;
  r.SiteDensity = 1.022;
  r.XBARGE = 1800;
  r.ZBARGE = 2400;
  r.BINL = 30;
  r.BINW = 20;
  r.DBINS = 5;
  r.NBINS = 2;
  r.NOPENS = 6;
  r.DREL1 = 24;
  r.DREL2 = 13.5;
  r.TDIS = 180;
  for (int i = 1; i <= r.NOPENS; ++i) r.LayerVelX[i] = 2;
}

/// A barge whose load has settled on the way: coarse below, fines and water above, and released
/// from the bottom up. A conservative tracer is followed.
void Barge_Four_Layers(ProjectRecord& r) {
  r.ProjectTitle = "GANNET BANK - SPLIT-HULL BARGE, SEPARATED IN FOUR LAYERS";
  Set_Analysis(r, 2, 1);
  Set_Grid(r, 32, 80, 48, 80);
  r.DEPC0 = 85;
  r.RHDA0 = 0.01;
  Set_Water(r, {{0, 1.021}, {40, 1.0222}, {60, 1.0241}, {85, 1.0244}});
  r.VelocityProfileType = kSingleVelocity;
  r.AvgVelocityDepth = 85;
  r.AvgVelocityX = 0.3;
  r.AvgVelocityZ = 0.6;
  Set_Time(r, 3600, 300, {900, 1800, 2700, 3600});
  Set_Output_Depths(r, {20, 80});
  Set_Solids(r, {{"Gravel", 2.7, 0.05, 0.5, 0.6, 0.1, false, false},
                 {"Sand", 2.65, 0.14, 0.08, 0.8, 0.025, false, true},
                 {"Clay", 2.6, 0.06, 0.002, 7.5, 0.004, true, true}});
  r.SiteDensity = 1.0215;
  r.SeparationFlag = 1;
  r.LAYERS = 4;
  constexpr std::array<std::array<double, 3>, 4> kFractions = {
      {{0.12, 0.2, 0.02}, {0.05, 0.2, 0.04}, {0.02, 0.12, 0.08}, {0.01, 0.04, 0.1}}};
  constexpr std::array<double, 4> kMoisture = {0.9, 1.1, 1.5, 2.2};
  for (int j = 1; j <= r.LAYERS; ++j) {
    r.LayerVolume[j] = 500;
    r.LayerMoisture[j] = kMoisture[j - 1];
    r.LayerVelX[j] = 0.5;
    for (int i = 1; i <= r.NumSolids; ++i) {
      r.LayerSolidFraction[i][j] = kFractions[j - 1][i - 1];
    }
  }
  r.TracerName() = "Dye";
  r.TracerConcentration = 100;
  r.XBARGE = 1000;
  r.ZBARGE = 1400;
  r.BargeLength = 200;
  r.BargeWidth = 50;
  r.DREL1 = 14;
  r.DREL2 = 5.5;
  r.BargeEmptyTime = 30;
}

/// Ocean site: is the water quality criterion met outside the disposal site? One
/// name is longer than its columns.
void Section_103_Water_Quality(ProjectRecord& r) {
  r.ProjectTitle = "PETREL DEEP OCEAN SITE - SECTION 103, TIER II WATER QUALITY";
  Set_Analysis(r, 4, 2);
  Set_Grid(r, 60, 200, 50, 200);
  r.DEPC0 = 120;
  r.RHDA0 = 0.005;
  Set_Water(r, {{0, 1.0225}, {50, 1.0231}, {70, 1.0252}, {120, 1.0256}});
  r.VelocityProfileType = kTwoPointVelocity;
  r.VelXDepth1 = r.VelZDepth1 = 20;
  r.VelXDepth2 = r.VelZDepth2 = 100;
  r.VelX1 = 0.35;
  r.VelX2 = 0.15;
  r.VelZ1 = 0.25;
  r.VelZ2 = 0.1;
  Set_Time(r, 14400, 900, {3600, 7200, 10800, 14400});
  Set_Output_Depths(r, {10, 60, 115});
  Set_Solids(r, {{"Sand", 2.65, 0.05, 0.06, 0.8, 0.02, false, true},
                 {"Silty clay", 2.6, 0.16, 0.003, 6, 0.005, true, true}});
  r.SiteDensity = 1.015;
  r.LAYERS = 1;
  r.LayerVolume[1] = 3000;
  r.MoistureContent = 1.8;
  r.TracerName() = "Copper";
  r.TracerConcentration = 0.085;
  r.BackgroundConcentration = 0.0006;
  r.CriterionConcentration = 0.0048;
  r.SiteTop = 3012;
  r.SiteLeft = 2988;
  r.SiteBottom = 9012;
  r.SiteRight = 6988;
  r.XBARGE = 6000;
  r.ZBARGE = 5000;
  r.BargeLength = 240;
  r.BargeWidth = 54;
  r.DREL1 = 17;
  r.DREL2 = 6;
  r.BargeEmptyTime = 45;
}

/// River site: a mixing zone with a zone of initial dilution inside it, in a current with a
/// logarithmic profile.
void Section_404_Zid(ProjectRecord& r) {
  r.ProjectTitle = "HERON RIVER MILE 12 - SECTION 404(B)(1) WITH A ZID";
  Set_Analysis(r, 5, 5);
  Set_Grid(r, 64, 50, 24, 50);
  r.DEPC0 = 35;
  r.RHDA0 = 0.02;
  r.SLOPEX0 = 0.05;
  Set_Water(r, {{0, 0.9978}, {35, 0.9981}});
  r.VelocityProfileType = kLogarithmicVelocity;
  r.AvgVelocityDepth = 35;
  r.AvgVelocityX = 1.2;
  Set_Time(r, 1800, 150);
  Set_Output_Depths(r, {5, 20, 34});
  Set_Solids(r, {{"Sand", 2.65, 0.15, 0.05, 0.8, 0.02, false, true},
                 {"Silt", 2.65, 0.07, 0.008, 4.5, 0.008, false, true}});
  r.TotalVolume = 1800;
  r.MoistureContent = 1.2;
  r.SiteDensity = 0.998;
  r.TracerName() = "Ammonia";
  r.TracerConcentration = 14.5;
  r.BackgroundConcentration = 0.1;
  r.CriterionConcentration = 2.2;
  r.SiteTop = 300;
  r.SiteLeft = 150;
  r.SiteBottom = 2500;
  r.SiteRight = 1000;
  r.ZidFlag = 1;
  r.ZidTop = 400;
  r.ZidLeft = 350;
  r.ZidBottom = 1000;
  r.ZidRight = 750;
  r.ZCRIT = 8.4;
  r.XBARGE = 600;
  r.ZBARGE = 550;
  r.BINL = 25;
  r.BINW = 18;
  r.DBINS = 4;
  r.NBINS = 3;
  r.NOPENS = 2;
  r.DREL1 = 16;
  r.DREL2 = 8;
  r.TDIS = 90;
}

/// Contaminant given in the sediment: what the fluid carries of it follows from the layers.
void Section_404_Sediment(ProjectRecord& r) {
  r.ProjectTitle = "AVOCET LAKE - SECTION 404(B)(1), CONTAMINANT IN THE SEDIMENT";
  Set_Analysis(r, 6, 7);
  Set_Grid(r, 40, 60, 40, 60);
  r.DEPC0 = 48;
  r.RHDA0 = 0.008;
  Set_Water(r, {{0, 0.9972}, {20, 0.9985}, {48, 0.9999}});
  r.VelocityProfileType = kSingleVelocity;
  r.AvgVelocityDepth = 48;
  r.AvgVelocityX = 0.15;
  r.AvgVelocityZ = 0.1;
  Set_Time(r, 5400, 450);
  Set_Output_Depths(r, {10, 45});
  Set_Solids(r, {{"Sand", 2.65, 0.08, 0.06, 0.8, 0.02, false, true},
                 {"Silt", 2.62, 0.1, 0.006, 4.2, 0.007, false, true}});
  r.SiteDensity = 0.999;
  r.SeparationFlag = 1;
  r.LAYERS = 2;
  r.LayerVolume[1] = 700;
  r.LayerVolume[2] = 500;
  r.LayerMoisture[1] = 1.1;
  r.LayerMoisture[2] = 1.9;
  r.LayerSolidFraction[1][1] = 0.11;
  r.LayerSolidFraction[2][1] = 0.1;
  r.LayerSolidFraction[1][2] = 0.04;
  r.LayerSolidFraction[2][2] = 0.1;
  r.TracerName() = "Zinc";
  r.SedimentConcentration = 30;
  r.BackgroundConcentration = 0.008;
  r.CriterionConcentration = 0.12;
  r.SiteTop = 400;
  r.SiteLeft = 400;
  r.SiteBottom = 2000;
  r.SiteRight = 2000;
  r.XBARGE = 1200;
  r.ZBARGE = 1200;
  r.BargeLength = 160;
  r.BargeWidth = 42;
  r.DREL1 = 11;
  r.DREL2 = 4.5;
  r.BargeEmptyTime = 25;
}

/// The largest grid: a bottom that falls away from the shore, with a mound of earlier loads, and
/// a current that turns around it.
void Variable_96_By_96(ProjectRecord& r) {
  r.ProjectTitle = "SANDPIPER SLOPE - 96 BY 96, VARIABLE DEPTH AND VELOCITY";
  Set_Analysis(r, 2, 0);
  Set_Grid(r, kMaxGridPoints, 50, kMaxGridPoints, 50);
  r.ConstantDepthFlag = 0;
  // Tenths of a foot and hundredths of a foot per second, in whole numbers: the same on every
  // machine.
  for (int a = 1; a <= kMaxGridPoints; ++a) {
    for (int b = 1; b <= kMaxGridPoints; ++b) {
      const int from_mound = (a - 60) * (a - 60) + (b - 40) * (b - 40);
      const int mound = std::max(0, 80 - from_mound / 4);
      r.DepthGrid[a][b] = (420 + 3 * a + b / 4 - mound) / 10.0;
      r.VelocityFieldX[a][b] = (40 + a / 8 - (b - 40) / 6 + mound / 10) / 100.0;
      r.VelocityFieldZ[a][b] = (5 + (a - 60) / 5) / 100.0;
    }
  }
  r.RHDA0 = 0.005;
  r.SLOPEX0 = 0.34;
  Set_Water(r, {{0, 1.0218}, {35, 1.0229}, {80, 1.0247}});
  r.VelocityProfileType = kVelocityField;
  Set_Time(r, 3600, 200, {900, 1800, 2700, 3600});
  Set_Output_Depths(r, {10, 30, 55});
  Set_Solids(r, {{"Sand", 2.65, 0.2, 0.07, 0.8, 0.025, false, true},
                 {"Silt", 2.65, 0.06, 0.01, 4.5, 0.009, false, true}});
  r.SiteDensity = 1.0224;
  r.LAYERS = 2;
  r.LayerVolume[1] = 900;
  r.LayerVolume[2] = 900;
  r.MoistureContent = 1.2;
  r.XBARGE = 2400;
  r.ZBARGE = 2350;
  r.BargeLength = 190;
  r.BargeWidth = 48;
  r.DREL1 = 15;
  r.DREL2 = 5;
  r.BargeEmptyTime = 40;
}

/// A tide that turns: 26 half-hourly velocities, of which the run uses three hours of the flood.
void Tidal_Estuary(ProjectRecord& r) {
  r.ProjectTitle = "CURLEW ESTUARY - UNSTEADY TIDAL CURRENT";
  Set_Analysis(r, 2, 1);
  Set_Grid(r, 56, 150, 36, 100);
  r.DEPC0 = 42;
  r.RHDA0 = 0.01;
  Set_Water(r, {{0, 1.008}, {15, 1.0112}, {42, 1.0185}});
  r.VelocityProfileType = kUnsteadyVelocity;
  constexpr std::array<std::array<float, 2>, kTidalRows> kTide = {
      {{0.00F, -0.04F}, {0.16F, -0.07F}, {0.31F, -0.10F}, {0.43F, -0.12F}, {0.53F, -0.13F},
       {0.60F, -0.14F}, {0.63F, -0.13F}, {0.62F, -0.12F}, {0.57F, -0.10F}, {0.48F, -0.07F},
       {0.36F, -0.04F}, {0.22F, -0.01F}, {0.07F, 0.03F},  {-0.09F, 0.06F}, {-0.25F, 0.09F},
       {-0.38F, 0.11F}, {-0.50F, 0.13F}, {-0.58F, 0.14F}, {-0.62F, 0.14F}, {-0.63F, 0.13F},
       {-0.59F, 0.11F}, {-0.52F, 0.08F}, {-0.41F, 0.05F}, {-0.28F, 0.02F}, {-0.13F, -0.01F},
       {0.02F, -0.05F}}};
  for (int i = 1; i <= kTidalRows; ++i) {
    r.TidalVelX[i] = kTide[i - 1][0];
    r.TidalVelZ[i] = kTide[i - 1][1];
  }
  r.TidalStartTime = 2.0F;
  r.TidalDepth = 42.0F;
  r.TidalAvgVelX = 0.56F;
  r.TidalAvgVelZ = -0.11F;
  Set_Time(r, 10800, 600);
  Set_Output_Depths(r, {10, 40});
  Set_Solids(r, {{"Silt", 2.65, 0.12, 0.009, 4.5, 0.009, false, true},
                 {"Clay", 2.6, 0.07, 0.002, 7.5, 0.004, true, true}});
  r.SiteDensity = 1.01;
  r.LAYERS = 1;
  r.LayerVolume[1] = 1400;
  r.MoistureContent = 1.9;
  r.TracerName() = "Tracer";
  r.TracerConcentration = 50;
  r.BackgroundConcentration = 0.5;
  r.XBARGE = 1500;
  r.ZBARGE = 1900;
  r.BargeLength = 180;
  r.BargeWidth = 46;
  r.DREL1 = 12;
  r.DREL2 = 5;
  r.BargeEmptyTime = 60;
}

/// A pipeline that discharges below the surface. There is no solver for it here; its model input
/// can be exported.
void Pipeline_Continuous(ProjectRecord& r) {
  r.ProjectTitle = "WHIMBREL SOUND - PIPELINE DISCHARGE BELOW THE SURFACE";
  r.KEY1 = 1;
  r.DisposalMethod = r.PreviousDisposalMethod = kContinuous;
  Set_Grid(r, 50, 50, 30, 50);
  r.DEPC0 = 22;
  r.RHDA0 = 0.01;
  Set_Water(r, {{0, 1.0178}, {22, 1.0192}});
  r.VelocityProfileType = kSingleVelocity;
  r.AvgVelocityDepth = 22;
  r.AvgVelocityX = 0.4;
  r.AvgVelocityZ = 0.1;
  Set_Time(r, 7200, 300);
  Set_Output_Depths(r, {5, 20});
  Set_Solids(r, {{"Sand", 2.65, 0.04, 0.05, 0.8, 0.02, false, false},
                 {"Silt", 2.6, 0.05, 0.007, 4.5, 0.008, false, false}});
  r.BulkDensity = 1.1642;
  r.XBARGE = 800;
  r.ZBARGE = 750;
  r.DischargeDuration = 5400;
  r.DischargeRate = 28.5;
  r.PipeRadius = 0.85;
  r.DischargeDepth = 4;
  r.DischargeAngle = 30;
  r.CD = 1.3;
  r.CD3 = 0.2;
  r.CD4 = 2;
  r.ALAMDA = 0.005;
  r.AKY0 = 0.05;
  r.ALPHAC = 0.001;
  Compute_Site_Density_From_Bulk(r);
}

constexpr std::array kSamples = {
    Sample{"Hopper_Six_Openings.DUI", Hopper_Six_Openings},
    Sample{"Barge_Four_Layers.DUI", Barge_Four_Layers},
    Sample{"Section_103_Water_Quality.DUI", Section_103_Water_Quality},
    Sample{"Section_404_Zid.DUI", Section_404_Zid},
    Sample{"Section_404_Sediment.DUI", Section_404_Sediment},
    Sample{"Variable_96_By_96.DUI", Variable_96_By_96},
    Sample{"Tidal_Estuary.DUI", Tidal_Estuary},
    Sample{"Pipeline_Continuous.DUI", Pipeline_Continuous},
};

}  // namespace

std::span<const Sample> Samples() { return kSamples; }

void Fill_Sample(const Sample& sample, ProjectRecord& record) {
  Set_Project_Defaults(record);
  record.FileKind = kProjectKind;
  sample.fill(record);
}

}  // namespace barvon::samples
