#include "core/model_input/model_continuous.h"

#include "core/checked_entry.h"
#include "core/keys.h"
#include "core/text_tools.h"
#include "core/velocity_types.h"

// Reading notes for this section, which no solver of ours has read yet:
// - Its patterns do not pad, so a 0 in an integer pattern leaves nothing, and the values of a line
//   run together. Only the order of the fields is promised.
// - A group of fields is one line; output depths and the density profile are one value to a
//   line. So do the grids of depths and velocities: run together they could not be taken apart.
// - The fluid is followed by an empty line, and what comes after that starts a new one.

namespace barvon {
namespace {

static_assert(kVelocityTypes.size() == 5, "each type of velocity has its lines below");

constexpr std::size_t kNameWidth = 8;
constexpr char kInteger[] = "#####";
constexpr char kLength[] = "#######.##";  // lengths, times, speeds
constexpr char kSpacing[] = "#####.####";
constexpr char kCoefficient[] = "####.#####";
constexpr char kGridDepth[] = "#####.#";
constexpr char kGridVelocity[] = "####.###";

void Put_Name(Model_Text& lines, const std::string& name) {
  lines.Left(FitField(name, kNameWidth), kNameWidth);
  lines.Blanks(2);
}

void Put_Grid(Model_Text& lines, const ProjectRecord& record, const Grid& grid,
              const char* pattern) {
  for (int a = 1; a <= record.MMAX0; ++a) {
    for (int b = 1; b <= record.NMAX0; ++b) {
      lines.Formatted_Line(pattern, Entry(Entry(grid, a), b));
    }
  }
}

void Put_Head(Model_Text& lines, const ProjectRecord& record) {
  lines.Right(record.FileTypeTag, 7);
  lines.Number_Line(8, "DisposalMethod", record.DisposalMethod);
  lines.Left(Trimmed(record.ProjectTitle), kTitleLength);
  lines.End_Line();
  lines.Formatted_Line(kInteger, record.NMAX0, record.MMAX0, record.NumSolids);
  lines.Formatted_Line(kInteger, record.KEY1, record.KEY2, record.KEY3);
  if (Is_Regulatory(record)) {
    lines.Formatted_Line(kInteger, record.SiteGridTop, record.SiteGridBottom, record.SiteGridLeft,
                         record.SiteGridRight);
  }
}

void Put_Output(Model_Text& lines, const ProjectRecord& record) {
  lines.Formatted_Line(kInteger, record.PrintConvectiveDescent, record.PrintCollapse,
                       record.NumPrintTimes);
  lines.Formatted_Line(kInteger, record.NumOutputDepths);
  for (int i = 1; i <= record.NumOutputDepths; ++i) {
    lines.Formatted_Line(kLength, Entry(record.OutputDepths, i));
  }
}

void Put_Depths(Model_Text& lines, const ProjectRecord& record) {
  lines.Formatted(kInteger, record.ConstantDepthFlag);
  lines.Blanks(5);
  lines.Formatted_Line(kSpacing, record.DEPC0, record.DX0, record.DZ0);
  if (record.ConstantDepthFlag == 0) Put_Grid(lines, record, record.DepthGrid, kGridDepth);
}

void Put_Discharge(Model_Text& lines, const ProjectRecord& record) {
  lines.Formatted_Line(kLength, record.ContinuousTimeStart, record.SimulationDuration,
                       record.LongTermTimeStep, record.DischargeDuration);
  lines.Formatted_Line(kCoefficient, record.DischargeRate, record.PipeRadius, record.DischargeDepth,
                       record.DischargeAngle, record.BulkDensity, record.MaterialVolumeOption);
  lines.Formatted_Line(kLength, record.XBARGE, record.ZBARGE, record.VesselCourse,
                       record.VesselSpeed);
}

void Put_Material(Model_Text& lines, const ProjectRecord& record) {
  for (int s = 1; s <= record.NumSolids; ++s) {
    Put_Name(lines, Entry(record.SolidNames, s));
    lines.Formatted(kCoefficient, Entry(record.SolidSG, s), Entry(record.SolidVolFraction, s),
                    Entry(record.SolidFallVelocity, s), Entry(record.SolidVoidRatio, s));
    lines.Formatted_Line(kInteger, Entry(record.SolidCohesive, s),
                         Entry(record.SolidTracerFlag, s));
  }
  Put_Name(lines, record.TracerName());
  lines.Formatted_Line(kCoefficient, record.TracerConcentration, record.BackgroundConcentration);
  lines.End_Line();
  lines.Formatted_Line(kCoefficient, record.ToxicityDilution, record.SedimentConcentration,
                       record.CriterionConcentration);
}

void Put_Coefficients(Model_Text& lines, const ProjectRecord& record) {
  lines.Formatted_Line(kCoefficient, record.ALPHA1, record.ALPHA2, record.BETA, record.CD,
                       record.CM, record.GAMA, record.CDRAG, record.CFRIC, record.CD3, record.CD4,
                       record.ALPHA3, record.ALPHA4, record.FRICTN, record.ALAMDA, record.AKY0);
}

void Put_Densities(Model_Text& lines, const ProjectRecord& record) {
  lines.Formatted(kInteger, record.NROA0);
  lines.Formatted_Line(kSpacing, record.DEPC0);
  for (int i = 1; i <= record.NROA0; ++i) {
    lines.Formatted_Line(kLength, Entry(record.DensityDepths, i));
  }
  for (int i = 1; i <= record.NROA0; ++i) {
    lines.Formatted_Line(kCoefficient, Entry(record.Densities, i));
  }
}

void Put_Velocities(Model_Text& lines, const ProjectRecord& record) {
  lines.Formatted(kInteger, record.VelocityProfileType);
  if (record.VelocityProfileType == kTwoPointVelocity) {
    lines.Formatted(kLength, record.VelXDepth1, record.VelXDepth2);
    lines.Formatted(kGridVelocity, record.VelX1, record.VelX2);
    lines.Formatted(kLength, record.VelZDepth1, record.VelZDepth2);
    lines.Formatted(kGridVelocity, record.VelZ1, record.VelZ2);
  }
  lines.End_Line();
  if (record.VelocityProfileType == kVelocityField) {
    Put_Grid(lines, record, record.VelocityFieldX, kGridVelocity);
    Put_Grid(lines, record, record.VelocityFieldZ, kGridVelocity);
  }
}

void Put_Print_Times(Model_Text& lines, const ProjectRecord& record) {
  lines.Formatted(kInteger, record.NumPrintTimes);
  for (int i = 1; i <= record.NumPrintTimes; ++i) {
    lines.Formatted(kLength, Entry(record.PrintTimes, i));
  }
  lines.End_Line();
}

/// The two steps are taken one after the other: a still vessel's KEY2 of 0 is 1 after one writing
/// and 2 after the next.
void Adjust_Keys(ProjectRecord& record) {
  if (record.KEY2 == kStillVessel) record.KEY2 = kDescentAndCollapse;
  if (record.KEY2 != kDescentAndCollapse && record.VesselSpeed == 0) record.KEY2 = kStillVessel;
  record.ContinuousTimeStart = 0;
}

}  // namespace

void Continuous_Section(ProjectRecord& record, Model_Text& lines) {
  Adjust_Keys(record);
  Put_Head(lines, record);
  Put_Output(lines, record);
  Put_Depths(lines, record);
  Put_Discharge(lines, record);
  Put_Material(lines, record);
  Put_Coefficients(lines, record);
  Put_Densities(lines, record);
  Put_Velocities(lines, record);
  Put_Print_Times(lines, record);
}

}  // namespace barvon
