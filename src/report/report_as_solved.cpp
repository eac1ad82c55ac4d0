#include <cmath>
#include <string>
#include <vector>

#include "core/keys.h"
#include "core/model_input/vessel_footprint.h"
#include "params/evaluation_fields.h"
#include "report/report_numbers.h"
#include "report/report_sections.h"

namespace barvon {
namespace {

/// A side of an area: where a person put it, and the grid point that the solver gets for it.
struct Side {
  const char* words;
  double entered;  // ft from the grid's edge
  std::int16_t point;
  double spacing;  // ft
};

std::string Remark_On(const Side& side, bool solver_chooses) {
  if (solver_chooses) return "left to the solver";
  const double place = (side.point - 1) * side.spacing;
  constexpr double kRounding = 1e-9;
  const bool nearest = std::fabs(place - side.entered) <= side.spacing * (0.5 + kRounding);
  return nearest ? "" : "moved: not so near the edge, nor the other corner";
}

void Put_Area(Report_Maker& report, const std::string& caption, const std::vector<Side>& sides) {
  Report_Table table{Table_Kind::plain,
                     caption,
                     {{"Corner"},
                      {"Entered\n(ft)", true},
                      {"Grid\nPoint", true},
                      {"Which Is at\n(ft)", true},
                      {""}},
                     {}};
  const bool solver_chooses = sides.front().entered < 0;
  for (const Side& side : sides) {
    const std::string place =
        side.point > 0 ? Whole_Number_Text((side.point - 1) * side.spacing, "0.##") : "-";
    table.rows.push_back({{side.words, Whole_Number_Text(side.entered, "0.##"),
                           std::to_string(side.point), place, Remark_On(side, solver_chooses)}});
  }
  report.Table(std::move(table));
}

void Put_Areas(Report_Maker& report) {
  const ProjectRecord& model = *report.prepared;
  if (Has_Vessel(model) || Is_Regulatory(model)) {
    Put_Area(
        report,
        Speaks_Of_Disposal_Site(model) ? "Disposal Site on the Grid" : "Mixing Zone on the Grid",
        {{"Upper left, from the top", model.SiteTop, model.SiteGridTop, model.DX0},
         {"Upper left, from the left", model.SiteLeft, model.SiteGridLeft, model.DZ0},
         {"Lower right, from the top", model.SiteBottom, model.SiteGridBottom, model.DX0},
         {"Lower right, from the left", model.SiteRight, model.SiteGridRight, model.DZ0}});
  }
  if (Has_Vessel(model) && Has_Zid(model)) {
    Put_Area(report, "Zone of Initial Dilution on the Grid",
             {{"Upper left, from the top", model.ZidTop, model.ZidGridTop, model.DX0},
              {"Upper left, from the left", model.ZidLeft, model.ZidGridLeft, model.DZ0},
              {"Lower right, from the top", model.ZidBottom, model.ZidGridBottom, model.DX0},
              {"Lower right, from the left", model.ZidRight, model.ZidGridRight, model.DZ0}});
  }
}

void Put_Density_At_The_Bottom(Report_Maker& report) {
  const ProjectRecord &record = report.record, &model = *report.prepared;
  const auto last = static_cast<std::size_t>(model.NROA0);
  if (model.NROA0 < 1 || model.DensityDepths[last] == record.DensityDepths[last]) return;
  report.Group(model.NROA0 != record.NROA0
                   ? "Point added to the density profile, which has to reach the bottom"
                   : "Last point of the density profile, which has to reach the bottom");
  report.Number("Depth", model.DensityDepths[last], "", "ft");
  report.Number("Density", model.Densities[last], "", "g/cc");
}

}  // namespace

void Report_As_Solved(Report_Maker& report) {
  if (report.failure != Failure::None) return;
  const ProjectRecord &record = report.record, &model = *report.prepared;
  report.Heading(1, "As the Solver Gets It");
  report.Paragraph("The model input has these too. They follow from the values of the project.");
  if (record.DZ0 != model.DZ0) {
    report.Number("Spacing in Z-Direction, that of the X-Direction as none is given", model.DZ0, "",
                  "ft");
  }
  if (Contaminant_Is_In_The_Sediment(record)) {
    report.Number("Concentration in the fluid fraction, computed from the sediment",
                  Has_Vessel(record) ? model.FluidComputedConcentration : model.TracerConcentration,
                  "", "mg/l");
  }
  if (record.NumSolids > 0) {
    report.Yes_Or_No("Solids are marked as carriers of the contaminant", Is_Regulatory(record));
  }
  if (record.DisposalMethod == kHopper) {
    const Footprint foot = Vessel_Footprint(record);
    report.Number("Length of the bins that open together", foot.length, "", "ft");
    report.Number("Width of the bins that open together", foot.width, "", "ft");
    if (record.NOPENS > 0) {
      report.Number("Volume of each opening", record.TotalVolume / record.NOPENS, "", "cu yd");
    }
  }
  Put_Density_At_The_Bottom(report);
  Put_Areas(report);
}

}  // namespace barvon
