#include "core/model_input/model_sections.h"

#include <cstddef>
#include <string_view>

#include "core/checked_entry.h"
#include "core/keys.h"
#include "core/model_input/vessel_footprint.h"
#include "core/text_tools.h"
#include "core/velocity_types.h"

namespace barvon {
namespace {

static_assert(kVelocityTypes.size() == 5, "each type of velocity has its lines below");

constexpr std::size_t kIntegerWidth = 5;
constexpr std::size_t kRealWidth = 10;
constexpr std::size_t kDepthWidth = 7;
constexpr std::size_t kVelocityWidth = 8;
constexpr std::size_t kNameWidth = 10;
constexpr int kGridValuesToALine = 10;
constexpr int kPrintTimesToALine = 8;

void Put_Site(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth, "SiteGridTop SiteGridBottom SiteGridLeft SiteGridRight",
                    record.SiteGridTop, record.SiteGridBottom, record.SiteGridLeft,
                    record.SiteGridRight);
  lines.Number_Line(kRealWidth, "SiteTop SiteBottom SiteLeft SiteRight", record.SiteTop,
                    record.SiteBottom, record.SiteLeft, record.SiteRight);
  if (!Has_Zid(record)) return;
  lines.Number_Line(kIntegerWidth, "ZidGridTop ZidGridBottom ZidGridLeft ZidGridRight",
                    record.ZidGridTop, record.ZidGridBottom, record.ZidGridLeft,
                    record.ZidGridRight);
  lines.Number_Line(kRealWidth, "ZidTop ZidBottom ZidLeft ZidRight", record.ZidTop,
                    record.ZidBottom, record.ZidLeft, record.ZidRight);
}

void Put_Output(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth,
                    "PrintConvectiveDescent PrintCollapse NumPrintTimes TracerSolidCount",
                    record.PrintConvectiveDescent, record.PrintCollapse, record.NumPrintTimes,
                    record.TracerSolidCount);
  lines.Number_Line(kIntegerWidth, "NumOutputDepths", record.NumOutputDepths);
  for (int i = 1; i <= record.NumOutputDepths; ++i) {
    lines.Named(kRealWidth, "OutputDepths", Entry(record.OutputDepths, i), i);
  }
  lines.End_Line();
}

/// Row by row, each row on lines of its own.
void Put_Grid(Model_Text& lines, const ProjectRecord& record, std::string_view field,
              const Grid& grid, std::size_t width) {
  for (int a = 1; a <= record.MMAX0; ++a) {
    for (int b = 1; b <= record.NMAX0; ++b) {
      lines.Named(width, field, Entry(Entry(grid, a), b), a, b);
      if (b % kGridValuesToALine == 0 && b < record.NMAX0) lines.End_Line();
    }
    lines.End_Line();
  }
}

void Put_Depths(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kRealWidth, "DEPC0 DX0 DZ0", record.DEPC0, record.DX0, record.DZ0);
  lines.Number_Line(kIntegerWidth, "ConstantDepthFlag DepthGridFlagOut", record.ConstantDepthFlag,
                    record.DepthGridFlagOut);
  if (record.ConstantDepthFlag == 0) {
    Put_Grid(lines, record, "DepthGrid", record.DepthGrid, kDepthWidth);
  }
  lines.Number_Line(kRealWidth, "XBARGE ZBARGE SLOPEX0 SLOPEZ0 XHOLE ZHOLE DHOLE", record.XBARGE,
                    record.ZBARGE, record.SLOPEX0, record.SLOPEZ0, record.XHOLE, record.ZHOLE,
                    record.DHOLE);
  lines.Number_Line(kRealWidth, "RHDA0", record.RHDA0);
}

void Put_Densities(Model_Text& lines, const ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth, "NROA0", record.NROA0);
  for (int i = 1; i <= record.NROA0; ++i) {
    lines.Named(kRealWidth, "DensityDepths", Entry(record.DensityDepths, i), i);
  }
  lines.End_Line();
  for (int i = 1; i <= record.NROA0; ++i)
    lines.Named(kRealWidth, "Densities", Entry(record.Densities, i), i);
  lines.End_Line();
}

void Put_Velocities(Model_Text& lines, ProjectRecord& record) {
  lines.Number_Line(kIntegerWidth, "VelocityProfileType", record.VelocityProfileType);
  if (record.VelocityProfileType == kVelocityField) {
    Put_Grid(lines, record, "VelocityFieldX", record.VelocityFieldX, kVelocityWidth);
    Put_Grid(lines, record, "VelocityFieldZ", record.VelocityFieldZ, kVelocityWidth);
    return;
  }
  if (record.VelocityProfileType == kTwoPointVelocity) {
    lines.Number_Line(kRealWidth,
                      "VelXDepth1 VelXDepth2 VelX1 VelX2 VelZDepth1 VelZDepth2 VelZ1 VelZ2",
                      record.VelXDepth1, record.VelXDepth2, record.VelX1, record.VelX2,
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
  lines.Number_Line(kRealWidth, "AvgVelocityX AvgVelocityZ AvgVelocityDepth", record.AvgVelocityX,
                    record.AvgVelocityZ, record.AvgVelocityDepth);
}

void Put_Coefficients(Model_Text& lines, const ProjectRecord& record) {
  if (record.KEY1 == 0) return;
  lines.Number_Line(kRealWidth, "ALPHA0 BETA CM CD", record.ALPHA0, record.BETA, record.CM,
                    record.CD);
  lines.Number_Line(kRealWidth, "GAMA CDRAG CFRIC CD3 CD4 ALPHAC FRICTN", record.GAMA, record.CDRAG,
                    record.CFRIC, record.CD3, record.CD4, record.ALPHAC, record.FRICTN);
  lines.Number_Line(kRealWidth, "ALAMDA AKY0 CSTRIP", record.ALAMDA, record.AKY0, record.CSTRIP);
}

/// One line per solid, with its fraction of a separated layer or, for layer 0, of the whole load.
void Put_Solids(Model_Text& lines, const ProjectRecord& record, int layer) {
  for (int s = 1; s <= record.NumSolids; ++s) {
    lines.Named_Left(kNameWidth, "SolidNames", Entry(record.SolidNames, s), s);
    lines.Named(kRealWidth, "SolidSG", Entry(record.SolidSG, s), s);
    if (layer == 0) {
      lines.Named(kRealWidth, "SolidVolFraction", Entry(record.SolidVolFraction, s), s);
    } else {
      lines.Named(kRealWidth, "LayerSolidFraction",
                  Entry(Entry(record.LayerSolidFraction, s), layer), s, layer);
    }
    lines.Named(kRealWidth, "SolidFallVelocity", Entry(record.SolidFallVelocity, s), s);
    lines.Named(kRealWidth, "SolidVoidRatio", Entry(record.SolidVoidRatio, s), s);
    lines.Named(kRealWidth, "SolidCriticalShear", Entry(record.SolidCriticalShear, s), s);
    lines.Named(kIntegerWidth, "SolidCohesive", Entry(record.SolidCohesive, s), s);
    lines.Named(kIntegerWidth, "SolidTracerFlag", Entry(record.SolidTracerFlag, s), s);
    lines.Named(kIntegerWidth, "SolidStripped", Entry(record.SolidStripped, s), s);
    lines.End_Line();
  }
}

void Put_Fluid_Computed(Model_Text& lines, const ProjectRecord& record) {
  const std::string text = Number_To_Cut(record.FluidComputedConcentration, kRealWidth);
  lines.Right(FitField(text, kRealWidth), kRealWidth);
}

void Put_Fluid_Head(Model_Text& lines, const ProjectRecord& record) {
  lines.Named_Left(kNameWidth, "TracerName", record.TracerName(), 0);
  lines.Numbers(kRealWidth, "SiteDensity", record.SiteDensity);
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
      lines.Numbers(kRealWidth, "TracerConcentration BackgroundConcentration", tracer, background);
      break;
    case kOceanWaterQuality:
      lines.Numbers(kRealWidth,
                    "TracerConcentration BackgroundConcentration CriterionConcentration", tracer,
                    background, criterion);
      break;
    case kOceanToxicity:
      lines.Numbers(kRealWidth, "zero zero ToxicityDilution", 0, 0, record.ToxicityDilution);
      break;
    case kOceanFurtherTesting:
      Put_Fluid_Computed(lines, record);
      lines.Numbers(kRealWidth, "BackgroundConcentration SedimentConcentration ZidToxicityDilution",
                    background, sediment, record.ZidToxicityDilution);
      break;
    case kNavigableWaterQuality:
      lines.Numbers(
          kRealWidth,
          "TracerConcentration BackgroundConcentration CriterionConcentration ZidToxicityDilution",
          tracer, background, criterion, record.ZidToxicityDilution);
      break;
    case kNavigableToxicity:
      lines.Numbers(kRealWidth, "zero zero ToxicityDilution ZidToxicityDilution", 0, 0,
                    record.ToxicityDilution, record.ZidToxicityDilution);
      break;
    case kNavigableFurtherTesting:
      Put_Fluid_Computed(lines, record);
      lines.Numbers(kRealWidth,
                    "BackgroundConcentration SedimentConcentration CriterionConcentration ZCRIT",
                    background, sediment, criterion, record.ZCRIT);
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
    lines.Numbers(kRealWidth, "TracerConcentration", record.TracerConcentration);
  }
  lines.Numbers(kRealWidth, "BackgroundConcentration", record.BackgroundConcentration);
  switch (record.KEY3) {
    case kOceanWaterQuality:
      lines.Numbers(kRealWidth, "CriterionConcentration", criterion);
      break;
    case kOceanToxicity:
      lines.Numbers(kRealWidth, "ToxicityDilution", record.ToxicityDilution);
      break;
    case kOceanFurtherTesting:
      lines.Numbers(kRealWidth, "SedimentConcentration ZidToxicityDilution", sediment,
                    record.ZidToxicityDilution);
      break;
    case kNavigableWaterQuality:
      lines.Numbers(kRealWidth, "CriterionConcentration ZidToxicityDilution", criterion,
                    record.ZidToxicityDilution);
      break;
    case kNavigableToxicity:
      lines.Numbers(kRealWidth, "ToxicityDilution ZidToxicityDilution", record.ToxicityDilution,
                    record.ZidToxicityDilution);
      break;
    case kNavigableFurtherTesting:
      lines.Numbers(kRealWidth, "SedimentConcentration CriterionConcentration ZCRIT", sediment,
                    criterion, record.ZCRIT);
      break;
    default:
      break;
  }
  lines.End_Line();
}

void Put_Openings(Model_Text& lines, const ProjectRecord& record) {
  for (int i = 1; i <= record.NOPENS; ++i) {
    lines.Named(kRealWidth, "LayerVelX", Entry(record.LayerVelX, i), i);
    lines.Named(kRealWidth, "LayerVelZ", Entry(record.LayerVelZ, i), i);
    lines.Named(kRealWidth, "TotalVolume / NOPENS", record.TotalVolume / record.NOPENS);
    lines.Number_Line(kRealWidth, "MoistureContent", record.MoistureContent);
    Put_Solids(lines, record, 0);
    Put_Hopper_Fluid(lines, record);
  }
}

void Put_Layers(Model_Text& lines, const ProjectRecord& record) {
  const bool separated = record.SeparationFlag == 1;
  for (int j = 1; j <= record.LAYERS; ++j) {
    lines.Named(kRealWidth, "LayerVelX", Entry(record.LayerVelX, j), j);
    lines.Named(kRealWidth, "LayerVelZ", Entry(record.LayerVelZ, j), j);
    lines.Named(kRealWidth, "LayerVolume", Entry(record.LayerVolume, j), j);
    if (separated) {
      lines.Named(kRealWidth, "LayerMoisture", Entry(record.LayerMoisture, j), j);
    } else {
      lines.Named(kRealWidth, "MoistureContent", record.MoistureContent);
    }
    lines.End_Line();
    Put_Solids(lines, record, separated ? j : 0);
    Put_Barge_Fluid(lines, record);
  }
}

void Put_Print_Times(Model_Text& lines, const ProjectRecord& record) {
  if (record.NumPrintTimes == 0) return;
  for (int i = 1; i <= record.NumPrintTimes; ++i) {
    lines.Named_Formatted("@@@@@@@@.0", "PrintTimes", Entry(record.PrintTimes, i), i);
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
  lines.Number_Line(8, "DisposalMethod", record.DisposalMethod);
}

void Put_Keys(Model_Text& lines, const ProjectRecord& record, int separation) {
  lines.Number_Line(kIntegerWidth, "KEY1 KEY2 KEY3 JBFCFlag SeparationFlag ZidFlag PritchardFlag",
                    record.KEY1, record.KEY2, record.KEY3, record.JBFCFlag, separation,
                    record.ZidFlag, record.PritchardFlag);
}

}  // namespace

void Hopper_Section(ProjectRecord& record, Model_Text& lines) {
  Put_Tag(lines, record);
  lines.Right(record.ProjectTitle, kTitleLength);
  lines.End_Line();
  lines.Number_Line(kIntegerWidth, "NMAX0 MMAX0 NumSolids NOPENS NBINS CohesiveCount StrippedCount",
                    record.NMAX0, record.MMAX0, record.NumSolids, record.NOPENS, record.NBINS,
                    record.CohesiveCount, record.StrippedCount);
  Put_Keys(lines, record, 0);
  Put_Site_To_Velocities(lines, record);
  lines.Number_Line(kRealWidth, "SimulationDuration LongTermTimeStep TDIS",
                    record.SimulationDuration, record.LongTermTimeStep, record.TDIS);
  const Footprint foot = Vessel_Footprint(record);
  lines.Named(kRealWidth, "Length of the footprint", foot.length);
  lines.Named(kRealWidth, "Width of the footprint", foot.width);
  lines.Number_Line(kRealWidth, "DREL1 DREL2 SiteDensity DBINS BINL BINW", record.DREL1,
                    record.DREL2, record.SiteDensity, record.DBINS, record.BINL, record.BINW);
  Put_Coefficients(lines, record);
  Put_Openings(lines, record);
  Put_Print_Times(lines, record);
}

void Barge_Section(ProjectRecord& record, Model_Text& lines) {
  Put_Tag(lines, record);
  lines.Left(Trimmed(record.ProjectTitle), kTitleLength);
  lines.End_Line();
  lines.Number_Line(kIntegerWidth, "NMAX0 MMAX0 NumSolids LAYERS zero CohesiveCount StrippedCount",
                    record.NMAX0, record.MMAX0, record.NumSolids, record.LAYERS, 0,
                    record.CohesiveCount, record.StrippedCount);
  Put_Keys(lines, record, record.SeparationFlag);
  Put_Site_To_Velocities(lines, record);
  lines.Number_Line(kRealWidth, "SimulationDuration LongTermTimeStep BargeEmptyTime",
                    record.SimulationDuration, record.LongTermTimeStep, record.BargeEmptyTime);
  lines.Number_Line(kRealWidth, "BargeLength BargeWidth DREL1 DREL2 SiteDensity",
                    record.BargeLength, record.BargeWidth, record.DREL1, record.DREL2,
                    record.SiteDensity);
  Put_Coefficients(lines, record);
  Put_Layers(lines, record);
  Put_Print_Times(lines, record);
}

}  // namespace barvon
