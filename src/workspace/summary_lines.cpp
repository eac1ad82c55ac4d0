#include "workspace/summary_lines.h"

#include "core/format_pattern.h"
#include "core/keys.h"

namespace barvon {
namespace {

void Compose_Site(const ProjectRecord& record, Summary_Lines& lines) {
  auto& label = lines.SiteLabel;
  label[0] =
      Format_Number(record.MMAX0, "##") + " x " + Format_Number(record.NMAX0, "##") + " Grid Size";
  label[1] = record.DX0 == 0 && record.DZ0 == 0
                 ? "Grid Spacing Not Specified"
                 : Format_Number(record.DX0, "####") + " x " + Format_Number(record.DZ0, "####") +
                       " Cell Spacing";
  label[2] = record.ConstantDepthFlag != 0
                 ? "Water Depth is Constant at " + Format_Number(record.DEPC0, "##0.00") + " Ft"
                 : "Variable Water Depth Grid Specified";
  label[3] = record.RHDA0 == 0 ? "Roughness Height Not Specified"
                               : "Roughness Height is " + Format_Number(record.RHDA0, ".0000");
  label[4] = "X-Dir Slope is " + Format_Number(record.SLOPEX0, "#.0000");
  // The Z slope's line says X as well: users know it so.
  label[5] = "X-Dir Slope is " + Format_Number(record.SLOPEZ0, "#.0000");
  label[6] = Format_Number(record.NROA0, "##") + " Points Used To Describe Density";
}

void Compose_Output(const ProjectRecord& record, Summary_Lines& lines) {
  lines.Label5[0] = "Simulation Duration: " + Format_Number(record.SimulationDuration, "#####.0");
  lines.Label5[1] = "Long Term Time Step: " + Format_Number(record.LongTermTimeStep, "#####.0");
  lines.SSCheck2 = {record.PrintConvectiveDescent == 1, record.PrintCollapse == 1,
                    record.NumPrintTimes >= 1};
}

void Compose_Material(const ProjectRecord& record, Summary_Lines& lines) {
  lines.shows_moisture = record.JBFCFlag == 1;
  if (!Has_Vessel(record)) return;
  const bool hopper = record.DisposalMethod == kHopper;
  const std::string water = "Dredging Site Water Density: ";
  lines.Matlabel3 =
      hopper ? "Volume of Dredged Material: " + Format_Number(record.TotalVolume, "###.0") +
                   " Cu. Yds."
             : "Number of Layers " + Format_Number(record.LAYERS, "###");
  lines.Matlabel4 = "Number of Distinct Solids Fraction: " + Format_Number(record.NumSolids, "###");
  lines.Matlabel6 = hopper ? water + Format_Number(record.SiteDensity, "0.0000") + " g/cc"
                           : water + Format_Number(record.SiteDensity, "#.00") + " grams/cc";
  if (hopper || record.LAYERS == 1) {
    lines.Matlabel5 = Moisture_Line(record);
  }
}

void Compose_Operation(const ProjectRecord& record, Summary_Lines& lines) {
  lines.SSCheck3 = record.XHOLE > 0 || record.ZHOLE > 0;
  lines.Label6[0] =
      record.DisposalMethod == kBarge ? "Vessel Type: Barge or Scow" : "Vessel Type: Hopper Dredge";
  lines.Label6[1] = "Location From Top: " + Format_Number(record.XBARGE, "####.0") + " Ft";
  lines.Label6[2] = "Location From Left: " + Format_Number(record.ZBARGE, "####.0") + " Ft";
}

}  // namespace

std::string Moisture_Line(const ProjectRecord& record) {
  return "Moisture Content: " + Format_Number(record.MoistureContent, "###.0");
}

Summary_Lines Compose_Summary(const ProjectRecord& record) {
  Summary_Lines lines;
  Compose_Site(record, lines);
  Compose_Output(record, lines);
  Compose_Material(record, lines);
  Compose_Operation(record, lines);
  return lines;
}

}  // namespace barvon
