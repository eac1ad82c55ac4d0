#include <algorithm>
#include <set>
#include <string>

#include "core/book_numbers.h"
#include "core/keys.h"
#include "material/barge_data.h"
#include "material/hopper_data.h"
#include "material/layer_composition.h"
#include "material/load_stack.h"
#include "material/load_water.h"
#include "material/solids_layout.h"
#include "material/solids_table.h"
#include "params/operation_data.h"
#include "pictures/shapes/bars.h"
#include "report/report_sections.h"

namespace barvon {
namespace {

constexpr Control_Name kHopperSolids{"Text2", 1}, kBargeSolids{"Text1", 1};

int Solids(const ProjectRecord& record) { return std::clamp<int>(record.NumSolids, 0, kMaxSolids); }
int Layers(const ProjectRecord& record) { return std::clamp<int>(record.LAYERS, 0, kMaxLayers); }

bool Is_Separated(const ProjectRecord& record) {
  return record.DisposalMethod == kBarge && record.SeparationFlag == 1;
}

/// The screen leaves the fractions of the whole load out when each layer has its own; of a single
/// layer a contaminant of the sediment is taken from them all the same.
Solids_Layout Layout_Of(const ProjectRecord& record) {
  if (record.DisposalMethod != kBarge) return kHopperLoad;
  const bool computes = Contaminant_Is_In_The_Sediment(record) && record.LAYERS <= 1;
  return Is_Separated(record) && !computes ? kSeparatedLoad : kWholeLoad;
}

void Put_Solids(Report_Maker& report) {
  Spreadsheet_Table table(kBookNumbers);
  const Shown_Columns<ProjectRecord> columns = Solids_Columns(Layout_Of(report.record));
  columns.Lay_Out(1, kMaxSolids, table);
  table.MaxRow(Solids(report.record));
  columns.Fill(report.record, table.MaxRow(), table);
  std::set<int> without;
  if (!Has_Vessel(report.record)) {
    for (const Solids_Field field : {Solids_Field::Shear, Solids_Field::Stripped}) {
      without.insert(Column_Of(field, kHopperLoad));
    }
  }
  report.Shown_Of(Solids(report.record), report.record.NumSolids);
  report.Table("", table, without);
}

/// The tables of a barge's screen, as far as its picture and its composition go by them.
struct Load {
  explicit Load(const ProjectRecord& record)
      : state{Is_Separated(record) ? kSeparatedLoad : kWholeLoad} {
    const Shown_Columns<ProjectRecord> columns = Solids_Columns(state.layout);
    Define_Solids_Table(state.layout, solids);
    columns.Fill(record, Solids(record), solids, kRowBase);
    Layer_Columns().Lay_Out(1, kMaxLayers, volumes);
    volumes.MaxRow(Layers(record));
    Layer_Columns().Fill(record, Layers(record), volumes);
    Number_Rows("Layer ", Layers(record), volumes);
    Open_Composition(record, state, moisture);
    state.SelectedCount = Solids(record);
  }

  Solids_State state;
  Layer_Moisture moisture;
  Spreadsheet_Table solids{kBookNumbers}, volumes{kBookNumbers};
};

void Put_Layers(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  const Load load(record);
  report.Shown_Of(Layers(record), record.LAYERS);
  report.Table("", load.volumes);
  if (Is_Separated(record)) {
    Spreadsheet_Table composition(kBookNumbers);
    Define_Book_1(Layers(record), true, load.state, load.moisture, load.solids, composition);
    report.Table("Volumetric Concentration and Moisture Content", composition);
  }
  const Bar_Chart chart = Load_Stack(Layers(record), load.volumes, load.state, load.solids);
  constexpr double kBarRoom = 44;
  Canvas canvas = kReportCanvas;
  canvas.height = std::min(canvas.height, 110 + kBarRoom * Layers(record));
  report.Picture(Bar_Shapes(Draw_Bars(chart), canvas));
}

void Put_Moisture(Report_Maker& report) {
  // With separation every layer has its own.
  const bool barge = report.record.DisposalMethod == kBarge;
  if (barge && Is_Separated(report.record)) return;
  if (barge) report.Field(Barge_Fields(), {"Text2"});
  if (!barge) report.Field(Hopper_Fields(), {"Text1"});
}

/// What its discharge is made of; the load of a vessel has water and a volume besides.
void Report_Discharge(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  report.Number_Of_Row(Hopper_Fields(), kHopperSolids, record.NumSolids);
  report.Number("Bulk Density of the Material", record.BulkDensity, "0.0000", "g/cc");
  report.Number("Further Value of the Material", record.MaterialVolumeOption, "", "");
  Put_Solids(report);
}

}  // namespace

void Report_Material(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  const bool barge = record.DisposalMethod == kBarge;
  report.Heading(1, "Material Description");
  if (!Has_Vessel(record)) return Report_Discharge(report);
  if (barge) {
    report.Field(Barge_Fields(), {"Text1", 0});
    report.Number_Of_Row(Barge_Fields(), kBargeSolids, record.NumSolids);
    report.Yes_Or_No(kSeparationCaption, Is_Separated(record));
  } else {
    report.Field(Hopper_Fields(), {"Text2", 0});
    report.Number_Of_Row(Hopper_Fields(), kHopperSolids, record.NumSolids);
  }
  report.Yes_Or_No(barge ? kBargeJbfcCaption : kHopperJbfcCaption, record.JBFCFlag == 1);
  Put_Moisture(report);
  report.Field(Water_Fields(), {"Text3", kLoadDensity});
  // A file does not hold what the density was computed from.
  if (record.SiteSalinity != 0 || record.SiteTemperature != 0) report.Fields(Water_Fields());
  Put_Solids(report);
  if (barge) Put_Layers(report);
}

void Report_Operation(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  report.Heading(1, "Disposal Operation");
  report.Fields(Operation_Fields());
  if (!Has_Openings(record) || record.NOPENS < 1) return;
  Spreadsheet_Table velocities(kBookNumbers);
  Fill_Velocities(record, velocities);
  velocities.MaxRow(std::min<int>(record.NOPENS, kMaxLayers));
  report.Shown_Of(velocities.MaxRow(), record.NOPENS);
  report.Table(kVelocityFrame, velocities);
}

}  // namespace barvon
