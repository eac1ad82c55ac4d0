#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace barvon {

/// Flags are 16-bit: 0 false, -1 true, unless a field lists other values.
using Flag = std::int16_t;
inline constexpr Flag kTrue = -1;
inline constexpr Flag kFalse = 0;

inline constexpr int kMaxGridPoints = 96;
inline constexpr int kMaxDensityPoints = 5;
inline constexpr int kMaxSolids = 4;     // solids of a project
inline constexpr int kSolidEntries = 5;  // entry 5 is the fluid's: its name is the tracer's
inline constexpr int kMaxLayers = 6;     // layers of a barge, openings of a hopper
inline constexpr int kMaxPrintTimes = 12;
inline constexpr int kMaxOutputDepths = 5;
inline constexpr int kTidalRows = 26;
inline constexpr int kMaxDilutionRows = 500;
inline constexpr int kTitleLength = 60;  // characters of the title line in the project file

/// An array used from 1; index 0 stays empty.
template <class T, std::size_t N>
using OneBased = std::array<T, N + 1>;

/// One value per grid point, [x][z]: X runs top to bottom, Z left to right, both from 1.
using Grid = OneBased<OneBased<double, kMaxGridPoints>, kMaxGridPoints>;

/// The project file's image in memory.
inline constexpr int kIntSlots = 41;
inline constexpr int kRealSlots = 9403;  // room; a full file uses kFullFileRealSlots
inline constexpr int kFullFileRealSlots = 9385;

/// The open project and the run-time state that goes with it. There is one instance, see Project().
/// Lengths are in feet, velocities in feet per second, times in seconds, densities in g/cc unless
/// a field says otherwise. Texts are UTF-8.
struct ProjectRecord {
  // ---- The open file
  std::string ProjectFileName;  // full path
  std::string BaseFileName;     // the path without its dot and extension; outputs are named from it
  double FileKind = 0;          // see keys.h
  Flag DataSaved = kFalse;      // -1 after a load or a save; 0 after an accepted screen
  // The last save took what an open input screen had written at once; its Cancel goes behind it.
  Flag SavedUnderScreens = kFalse;
  std::int16_t ShowMode = 0;  // 1 input screens open blocking, 0 non-blocking
  std::string ProjectTitle;
  std::string FileTypeTag;        // "   DUMP" project file, "DUE" model input
  std::int16_t AnalysisType = 0;  // see keys.h
  std::int16_t OldGridFile = 0;   // 1 short 45-by-45 layout, 0 while a load runs, 99 fresh record
  Flag OldGridRetry = kFalse;     // the loader fell back to the short layout
  OneBased<Flag, 10> ScreenDataSupplied{};    // per data category; 7 material, 8 site water density
  OneBased<std::int16_t, 18> SectionFlags{};  // T/F/G line of the file: -1, 0, 9999
  OneBased<char, 6> SectionStatus{};          // status line of the file, Windows-1252

  // ---- State of the program, not stored in the project file
  Flag WizardHelpOn = kFalse;
  Flag AlwaysSaveBeforeRun = kFalse;
  Flag WizardAtStart = kFalse;
  Flag WizardActive = kFalse;
  Flag LegacyKeyRebuild = kFalse;  // a refresh rebuilds KEY4; no command sets it
  Flag WizardAccepted = kFalse;
  Flag OutputsCopied = kFalse;
  int HelpContextToShow = 0;
  std::int16_t GridPointRadius = 0;  // of the graphical site grid, ft; 0: none is chosen

  // ---- Analysis keys
  // Numbers that stand for a choice are named in keys.h.
  std::int16_t DisposalMethod = 0;
  std::int16_t PreviousDisposalMethod = 0;
  std::int16_t KEY1 = 0;
  std::int16_t KEY2 = 0;  // type of simulation
  std::int16_t KEY3 = 0;  // evaluation
  std::int16_t KEY4 = 0;  // analysis type and method in one

  // ---- Site and grid
  std::int16_t MMAX0 = 0;  // grid points in X, top to bottom
  std::int16_t NMAX0 = 0;  // grid points in Z, left to right
  double DX0 = 0;
  double DZ0 = 0;
  double DistX = 0;                    // (MMAX0 - 1) x DX0
  double DistZ = 0;                    // (NMAX0 - 1) x DZ0
  double DEPC0 = 0;                    // constant water depth
  std::int16_t ConstantDepthFlag = 0;  // 1 constant, 0 variable depth grid
  Grid DepthGrid{};        // [column][row] of the depth table: its first subscript counts along Z
  double DEPTHI = 0;       // one depth for the whole grid; 0 none, or cells were edited
  double RHDA0 = 0;        // roughness height of the bottom
  double SLOPEX0 = 0;      // degrees
  double SLOPEZ0 = 0;      // degrees
  std::int16_t NROA0 = 0;  // points of the water density profile
  OneBased<double, kMaxDensityPoints> DensityDepths{};
  OneBased<double, kMaxDensityPoints> Densities{};
  OneBased<double, kMaxDensityPoints> DensitySalinities{};    // ppt
  OneBased<double, kMaxDensityPoints> DensityTemperatures{};  // deg C
  std::int16_t DensityComputeFlag = 0;

  // ---- Velocity
  double VelocityProfileType = 0;  // see velocity_types.h
  double VelXDepth1 = 0, VelXDepth2 = 0, VelX1 = 0, VelX2 = 0;
  double VelZDepth1 = 0, VelZDepth2 = 0, VelZ1 = 0, VelZ2 = 0;
  Grid VelocityFieldX{};
  Grid VelocityFieldZ{};
  // What the whole field was filled with on its screen, 0 when it was not; not stored in the file.
  double ConstVelocityX = 0, ConstVelocityZ = 0;
  double AvgVelocityDepth = 0;
  double AvgVelocityX = 0;
  double AvgVelocityZ = 0;
  float TidalStartTime = 0, TidalDepth = 0, TidalAvgVelX = 0, TidalAvgVelZ = 0;
  OneBased<float, kTidalRows> TidalVelX{};
  OneBased<float, kTidalRows> TidalVelZ{};

  // ---- Time and printing
  double SimulationDuration = 0;
  double LongTermTimeStep = 0;
  std::int16_t PrintConvectiveDescent = 0;
  std::int16_t PrintCollapse = 0;
  std::int16_t NumPrintTimes = 0;  // 0: the solver prints quarterly
  OneBased<double, kMaxPrintTimes> PrintTimes{};

  // ---- Evaluation
  double TracerConcentration = 0;      // mg/l
  double BackgroundConcentration = 0;  // mg/l
  double CriterionConcentration = 0;   // mg/l
  double SedimentConcentration = 0;    // mg/kg
  double ToxicityDilution = 0;         // per cent
  double FluidComputedConcentration = 0;
  double SiteTop = 0, SiteLeft = 0, SiteBottom = 0, SiteRight = 0;  // corners from the grid's edges
  std::int16_t ZidFlag = 0;  // 1 when a Zone of Initial Dilution is evaluated
  double ZidTop = 0, ZidLeft = 0, ZidBottom = 0, ZidRight = 0;
  double ZCRIT = 0;                // mg/l at the border of the ZID
  double ZidToxicityDilution = 0;  // per cent
  double NumOutputDepths = 0;
  OneBased<double, kMaxOutputDepths> OutputDepths{};

  // ---- Material
  std::int16_t NumSolids = 0;
  OneBased<std::string, kSolidEntries> SolidNames{};  // 5 is the tracer's name
  OneBased<double, kSolidEntries> SolidSG{};
  OneBased<double, kSolidEntries> SolidVolFraction{};
  OneBased<double, kSolidEntries> SolidFallVelocity{};
  OneBased<double, kSolidEntries> SolidVoidRatio{};
  OneBased<double, kSolidEntries> SolidCriticalShear{};
  OneBased<std::int16_t, kSolidEntries> SolidCohesive{};
  OneBased<std::int16_t, kSolidEntries> SolidStripped{};
  OneBased<double, kSolidEntries> SolidTracerFlag{};
  OneBased<std::string, kSolidEntries> SolidCohesiveText{};  // cells as typed
  OneBased<std::string, kSolidEntries> SolidStrippedText{};
  double TotalVolume = 0;      // cu yd, hopper
  double MoistureContent = 0;  // multiple of the liquid limit
  std::int16_t JBFCFlag = 0;
  double SiteSalinity = 0;     // ppt, dredging-site water
  double SiteTemperature = 0;  // deg C, dredging-site water
  double SiteDensity = 0;      // dredging-site water
  double BulkDensity = 0;
  double MaterialVolumeOption = 0;  // kept in the file only

  // ---- Barge layers
  std::int16_t LAYERS = 0;
  std::int16_t SeparationFlag = 0;  // 1 material separation during transport
  OneBased<double, kMaxLayers> LayerVelX{};
  OneBased<double, kMaxLayers> LayerVelZ{};
  OneBased<double, kMaxLayers> LayerVolume{};
  OneBased<double, kMaxLayers> LayerMoisture{};
  OneBased<OneBased<double, kMaxLayers>, kMaxSolids> LayerSolidFraction{};  // [solid][layer]

  // ---- Disposal operation
  double XBARGE = 0;                     // disposal point from the top of the grid
  double ZBARGE = 0;                     // disposal point from the left edge
  double BINL = 0, BINW = 0, DBINS = 0;  // a bin, and the distance between bins
  double DREL1 = 0, DREL2 = 0;           // pre- and post-disposal draft
  double TDIS = 0;                       // time to empty all bins, hopper
  std::int16_t NBINS = 0;                // bins that open together
  std::int16_t NOPENS = 0;               // discrete openings
  double BargeLength = 0, BargeWidth = 0, BargeEmptyTime = 0;
  double XHOLE = 0, ZHOLE = 0, DHOLE = 0;  // depression
  double VesselSpeed = 0;
  double VesselCourse = 0;  // degrees counter-clockwise from the X axis
  std::int16_t DischargeDuration = 0;
  double DischargeRate = 0;  // cfs
  double PipeRadius = 0;
  double DischargeDepth = 0;
  double DischargeAngle = 0;  // degrees with the water surface
  double ContinuousTimeStart = 0;

  // ---- Coefficients, by their keywords
  double BETA = 0;                 // settling coefficient
  double CM = 0;                   // apparent mass coefficient
  double CD = 0;                   // drag, sphere
  double CDRAG = 0;                // form drag, collapsing cloud
  double CFRIC = 0;                // skin friction, collapsing cloud
  double CD3 = 0;                  // drag, ellipsoidal wedge
  double CD4 = 0;                  // drag, plate
  double FRICTN = 0;               // friction between cloud and bottom
  double ALAMDA = 0;               // 4/3 law horizontal diffusion dissipation factor
  double AKY0 = 0;                 // vertical diffusion coefficient, unstratified water
  double GAMA = 0;                 // ratio of cloud and ambient density gradients
  double ALPHA1 = 0;               // jet entrainment
  double ALPHA2 = 0;               // thermal entrainment
  double ALPHA0 = 0;               // turbulent thermal entrainment
  double ALPHAC = 0;               // entrainment in collapse
  double ALPHA3 = 0;               // entrainment by convection in collapse
  double ALPHA4 = 0;               // entrainment due to element collapse
  double CSTRIP = 0;               // stripping factor
  std::int16_t PritchardFlag = 0;  // AKY0 by the Pritchard expression

  // ---- Database: what was chosen last, not stored in the project file
  double SelectedSiteCode = 0;      // a code is (place in its list, from 1) x 100; 0: none
  double SelectedMonth = 0;         // 1 to 12; 0: none
  double SelectedMaterialCode = 0;  // as SelectedSiteCode
  double SelectedVesselCode = 0;
  Flag SiteFound = kFalse, MaterialFound = kFalse, VesselFound = kFalse;
  std::int16_t ActiveDatabaseList = 0;  // the list used last, 0 to 3

  // ---- Kept through the file, shown nowhere
  double SpareReal21 = 0, SpareReal61 = 0, SpareReal68 = 0;

  // ---- Dilution calculator
  OneBased<std::string, kMaxDilutionRows> DiluteParameterNames{};
  OneBased<double, kMaxDilutionRows> DiluteBulk{};           // ug/kg
  OneBased<double, kMaxDilutionRows> DiluteElutriate{};      // ug/l
  OneBased<double, kMaxDilutionRows> DiluteCriteria{};       // ug/l
  OneBased<double, kMaxDilutionRows> DiluteBackground{};     // ug/l
  OneBased<double, kMaxDilutionRows> DiluteBulkWaterConc{};  // ug/l
  OneBased<double, kMaxDilutionRows> DiluteBulkDilution{};   // parts
  OneBased<double, kMaxDilutionRows> DiluteElutDilution{};   // parts
  OneBased<std::string, kMaxDilutionRows> DiluteBulkRemark{};
  OneBased<std::string, kMaxDilutionRows> DiluteElutRemark{};
  double DiluteSolidsConc = 0;  // g/l
  std::int16_t DiluteRowCount = 0;

  // ---- Working fields of the calculations, never stored
  double SolidsVolumeSum = 0;
  double SolidsMassSum = 0;
  std::int16_t SiteGridTop = 0, SiteGridBottom = 0, SiteGridLeft = 0, SiteGridRight = 0;
  std::int16_t ZidGridTop = 0, ZidGridBottom = 0, ZidGridLeft = 0, ZidGridRight = 0;
  std::int16_t CohesiveCount = 0, StrippedCount = 0, TracerSolidCount = 0, DepthGridFlagOut = 0;

  // ---- The project file's image: what the fields above were packed to or unpacked from last
  OneBased<double, kIntSlots> IntSlots{};
  OneBased<double, kRealSlots> RealSlots{};

  /// The tracer's or contaminant's name: the fluid's entry among the solids' names.
  std::string& TracerName() { return SolidNames[kSolidEntries]; }
  const std::string& TracerName() const { return SolidNames[kSolidEntries]; }
};

/// The one record of the program, zero-filled until it is reset.
ProjectRecord& Project();

}  // namespace barvon
