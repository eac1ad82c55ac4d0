#include "core/model_input/model_sections.h"

#include "core/checked_entry.h"
#include "core/keys.h"
#include "core/model_input/model_text.h"
#include "core/model_input/vessel_footprint.h"
#include "core/text_tools.h"
#include "core/velocity_types.h"

namespace barvon {
namespace {

constexpr std::size_t kIntegerWidth = 5;
constexpr std::size_t kRealWidth = 10;
constexpr std::size_t kDepthWidth = 7;
constexpr std::size_t kVelocityWidth = 8;
constexpr std::size_t kNameWidth = 10;
constexpr int kGridValuesToALine = 10;
constexpr int kPrintTimesToALine = 8;

void Put_Site(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth, record.SiteGridTop, record.SiteGridBottom, record.SiteGridLeft,
                    record.SiteGridRight);
  lines.Number_Line(kRealWidth, record.SiteTop, record.SiteBottom, record.SiteLeft,
                    record.SiteRight);
  if (!Has_Zid(record)) return;
  lines.Number_Line(kIntegerWidth, record.ZidGridTop, record.ZidGridBottom, record.ZidGridLeft,
                    record.ZidGridRight);
  lines.Number_Line(kRealWidth, record.ZidTop, record.ZidBottom, record.ZidLeft, record.ZidRight);
}

void Put_Output(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth, record.PrintConvectiveDescent, record.PrintCollapse,
                    record.NumPrintTimes, record.TracerSolidCount);
  lines.Number_Line(kIntegerWidth, record.NumOutputDepths);
  for (int i = 1; i <= record.NumOutputDepths; ++i) {
    lines.Numbers(kRealWidth, Entry(record.OutputDepths, i));
  }
  lines.End_Line();
}

/// Row by row, each row on lines of its own.
void Put_Grid(Model_Text& lines, const ProjectRecord& record, const Grid& grid, std::size_t width) {
  for (int a = 1; a <= record.MMAX0; ++a) {
    for (int b = 1; b <= record.NMAX0; ++b) {
      lines.Numbers(width, Entry(Entry(grid, a), b));
      if (b % kGridValuesToALine == 0 && b < record.NMAX0) lines.End_Line();
    }
    lines.End_Line();
  }
}

void Put_Depths(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kRealWidth, record.DEPC0, record.DX0, record.DZ0);
  lines.Number_Line(kIntegerWidth, record.ConstantDepthFlag, record.DepthGridFlagOut);
  if (record.ConstantDepthFlag == 0) Put_Grid(lines, record, record.DepthGrid, kDepthWidth);
  lines.Number_Line(kRealWidth, record.XBARGE, record.ZBARGE, record.SLOPEX0, record.SLOPEZ0,
                    record.XHOLE, record.ZHOLE, record.DHOLE);
  lines.Number_Line(kRealWidth, record.RHDA0);
}

void Put_Densities(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth, record.NROA0);
  for (int i = 1; i <= record.NROA0; ++i) {
    lines.Numbers(kRealWidth, Entry(record.DensityDepths, i));
  }
  lines.End_Line();
  for (int i = 1; i <= record.NROA0; ++i) lines.Numbers(kRealWidth, Entry(record.Densities, i));
  lines.End_Line();
}

void Put_Velocities(Model_Text& lines, ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth, record.VelocityProfileType);
  if (record.VelocityProfileType == kVelocityField) {
    Put_Grid(lines, record, record.VelocityFieldX, kVelocityWidth);
    Put_Grid(lines, record, record.VelocityFieldZ, kVelocityWidth);
    return;
  }
  if (record.VelocityProfileType == kTwoPointVelocity) {
    lines.Number_Line(kRealWidth, record.VelXDepth1, record.VelXDepth2, record.VelX1, record.VelX2,
                      record.VelZDepth1, record.VelZDepth2, record.VelZ1, record.VelZ2);
    return;
  }
  if (record.VelocityProfileType == kUnsteadyVelocity) {
    // The solver knows no tidal profile: it gets the average, and so does every later run, since
    // the type stays 1. The line above has shown 5.
    record.AvgVelocityX = Widen(record.TidalAvgVelX);
    record.AvgVelocityZ = Widen(record.TidalAvgVelZ);
    record.AvgVelocityDepth = Widen(record.TidalDepth);
    record.VelocityProfileType = kSingleVelocity;
  }
  lines.Number_Line(kRealWidth, record.AvgVelocityX, record.AvgVelocityZ, record.AvgVelocityDepth);
}

void Put_Coefficients(Model_Text& lines, const ProjectRecord& record) {
  if (record.KEY1 == 0) return;
  lines.Number_Line(kRealWidth, record.ALPHA0, record.BETA, record.CM, record.CD);
  lines.Number_Line(kRealWidth, record.GAMA, record.CDRAG, record.CFRIC, record.CD3, record.CD4,
                    record.ALPHAC, record.FRICTN);
  lines.Number_Line(kRealWidth, record.ALAMDA, record.AKY0, record.CSTRIP);
}

/// One line per solid; `fraction(s)` is its volume fraction in the opening or layer.
template <class Fraction>
void Put_Solids(Model_Text& lines, const ProjectRecord& record, Fraction fraction) {
  for (int s = 1; s <= record.NumSolids; ++s) {
    lines.Left(Entry(record.SolidNames, s), kNameWidth);
    lines.Numbers(kRealWidth, Entry(record.SolidSG, s), fraction(s),
                  Entry(record.SolidFallVelocity, s), Entry(record.SolidVoidRatio, s),
                  Entry(record.SolidCriticalShear, s));
    lines.Number_Line(kIntegerWidth, Entry(record.SolidCohesive, s),
                      Entry(record.SolidTracerFlag, s), Entry(record.SolidStripped, s));
  }
}

void Put_Fluid_Computed(Model_Text& lines, const ProjectRecord& record) {
  const std::string text = Number_To_Cut(record.FluidComputedConcentration, kRealWidth);
  lines.Right(FitField(text, kRealWidth), kRealWidth);
}

void Put_Fluid_Head(Model_Text& lines, const ProjectRecord& record) {
  lines.Left(record.TracerName(), kNameWidth);
  lines.Numbers(kRealWidth, record.SiteDensity);
}

void Put_Hopper_Fluid(Model_Text& lines, const ProjectRecord& record) {
  const double tracer = record.TracerConcentration;
  const double background = record.BackgroundConcentration;
  const double sediment = record.SedimentConcentration;
  const double criterion = record.CriterionConcentration;
  Put_Fluid_Head(lines, record);
  switch (record.KEY3) {
    case kNoTracer:
    case kTracer:
      lines.Numbers(kRealWidth, tracer, background);
      break;
    case kOceanWaterQuality:
      lines.Numbers(kRealWidth, tracer, background, criterion);
      break;
    case kOceanToxicity:
      lines.Numbers(kRealWidth, 0, 0, record.ToxicityDilution);
      break;
    case kOceanFurtherTesting:
      Put_Fluid_Computed(lines, record);
      lines.Numbers(kRealWidth, background, sediment, record.ZidToxicityDilution);
      break;
    case kNavigableWaterQuality:
      lines.Numbers(kRealWidth, tracer, background, criterion, record.ZidToxicityDilution);
      break;
    case kNavigableToxicity:
      lines.Numbers(kRealWidth, 0, 0, record.ToxicityDilution, record.ZidToxicityDilution);
      break;
    case kNavigableFurtherTesting:
      Put_Fluid_Computed(lines, record);
      lines.Numbers(kRealWidth, background, sediment, criterion, record.ZCRIT);
      break;
    default:
      break;
  }
  lines.End_Line();
}

/// Unlike the hopper's, this line shows the tracer and background concentrations for toxicity too.
void Put_Barge_Fluid(Model_Text& lines, const ProjectRecord& record) {
  const double sediment = record.SedimentConcentration;
  const double criterion = record.CriterionConcentration;
  Put_Fluid_Head(lines, record);
  if (Contaminant_Is_In_The_Sediment(record)) {
    Put_Fluid_Computed(lines, record);
  } else {
    lines.Numbers(kRealWidth, record.TracerConcentration);
  }
  lines.Numbers(kRealWidth, record.BackgroundConcentration);
  switch (record.KEY3) {
    case kOceanWaterQuality:
      lines.Numbers(kRealWidth, criterion);
      break;
    case kOceanToxicity:
      lines.Numbers(kRealWidth, record.ToxicityDilution);
      break;
    case kOceanFurtherTesting:
      lines.Numbers(kRealWidth, sediment, record.ZidToxicityDilution);
      break;
    case kNavigableWaterQuality:
      lines.Numbers(kRealWidth, criterion, record.ZidToxicityDilution);
      break;
    case kNavigableToxicity:
      lines.Numbers(kRealWidth, record.ToxicityDilution, record.ZidToxicityDilution);
      break;
    case kNavigableFurtherTesting:
      lines.Numbers(kRealWidth, sediment, criterion, record.ZCRIT);
      break;
    default:
      break;
  }
  lines.End_Line();
}

void Put_Openings(Model_Text& lines, const ProjectRecord& record) {
  for (int i = 1; i <= record.NOPENS; ++i) {
    lines.Number_Line(kRealWidth, Entry(record.LayerVelX, i), Entry(record.LayerVelZ, i),
                      record.TotalVolume / record.NOPENS, record.MoistureContent);
    Put_Solids(lines, record, [&](int s) { return Entry(record.SolidVolFraction, s); });
    Put_Hopper_Fluid(lines, record);
  }
}

void Put_Layers(Model_Text& lines, const ProjectRecord& record) {
  const bool separated = record.SeparationFlag == 1;
  for (int j = 1; j <= record.LAYERS; ++j) {
    lines.Number_Line(kRealWidth, Entry(record.LayerVelX, j), Entry(record.LayerVelZ, j),
                      Entry(record.LayerVolume, j),
                      separated ? Entry(record.LayerMoisture, j) : record.MoistureContent);
    Put_Solids(lines, record, [&](int s) {
      return separated ? Entry(Entry(record.LayerSolidFraction, s), j)
                       : Entry(record.SolidVolFraction, s);
    });
    Put_Barge_Fluid(lines, record);
  }
}

void Put_Print_Times(Model_Text& lines, const ProjectRecord& record) {
  if (record.NumPrintTimes == 0) return;
  for (int i = 1; i <= record.NumPrintTimes; ++i) {
    lines.Formatted("@@@@@@@@.0", Entry(record.PrintTimes, i));
    if (i % kPrintTimesToALine == 0 && i < record.NumPrintTimes) lines.End_Line();
  }
  lines.End_Line();
}

/// The lines between the two sections' own beginnings and vessels.
void Put_Site_To_Velocities(Model_Text& lines, ProjectRecord& record) {
  Put_Site(lines, record);
  Put_Output(lines, record);
  Put_Depths(lines, record);
  Put_Densities(lines, record);
  Put_Velocities(lines, record);
}

void Put_Tag(Model_Text& lines, const ProjectRecord& record) {
  lines.Right(record.FileTypeTag, 7);
  lines.Number_Line(8, record.DisposalMethod);
}

void Put_Keys(Model_Text& lines, const ProjectRecord& record, int separation) {
  lines.Number_Line(kIntegerWidth, record.KEY1, record.KEY2, record.KEY3, record.JBFCFlag,
                    separation, record.ZidFlag, record.PritchardFlag);
}

}  // namespace

std::string Hopper_Section(ProjectRecord& record) {
  Model_Text lines;
  Put_Tag(lines, record);
  lines.Right(record.ProjectTitle, kTitleLength);
  lines.End_Line();
  lines.Number_Line(kIntegerWidth, record.NMAX0, record.MMAX0, record.NumSolids, record.NOPENS,
                    record.NBINS, record.CohesiveCount, record.StrippedCount);
  Put_Keys(lines, record, 0);
  Put_Site_To_Velocities(lines, record);
  lines.Number_Line(kRealWidth, record.SimulationDuration, record.LongTermTimeStep, record.TDIS);
  const Footprint foot = Vessel_Footprint(record);
  lines.Number_Line(kRealWidth, foot.length, foot.width, record.DREL1, record.DREL2,
                    record.SiteDensity, record.DBINS, record.BINL, record.BINW);
  Put_Coefficients(lines, record);
  Put_Openings(lines, record);
  Put_Print_Times(lines, record);
  return lines.text();
}

std::string Barge_Section(ProjectRecord& record) {
  Model_Text lines;
  Put_Tag(lines, record);
  lines.Left(Trimmed(record.ProjectTitle), kTitleLength);
  lines.End_Line();
  lines.Number_Line(kIntegerWidth, record.NMAX0, record.MMAX0, record.NumSolids, record.LAYERS, 0,
                    record.CohesiveCount, record.StrippedCount);
  Put_Keys(lines, record, record.SeparationFlag);
  Put_Site_To_Velocities(lines, record);
  lines.Number_Line(kRealWidth, record.SimulationDuration, record.LongTermTimeStep,
                    record.BargeEmptyTime);
  lines.Number_Line(kRealWidth, record.BargeLength, record.BargeWidth, record.DREL1, record.DREL2,
                    record.SiteDensity);
  Put_Coefficients(lines, record);
  Put_Layers(lines, record);
  Put_Print_Times(lines, record);
  return lines.text();
}

}  // namespace barvon
