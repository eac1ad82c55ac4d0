#include "core/desk/analysis_keys.h"

#include "core/density_limits.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"

namespace barvon {

void Refresh_Record(ProjectRecord& record) {
  if (record.LegacyKeyRebuild) {
    record.KEY4 =
        KEY4_Of(Analysis_Type_Of_KEY3(record.KEY3), record.DisposalMethod).value_or(record.KEY4);
  }
  if (const std::int16_t type = Analysis_Type_Of_KEY4(record.KEY4); type != kNoAnalysis) {
    record.AnalysisType = type;
    record.FileKind = kProjectKind;
  }
  if (Has_Vessel(record)) {
    record.KEY1 = 1;
    record.PreviousDisposalMethod = record.DisposalMethod;
  }
  record.SiteDensity = Held_Site_Density(record.SiteDensity);
  Refresh_KEY2(record);
}

void Refresh_KEY2(ProjectRecord& record) {
  if (record.KEY2 == kStillVessel) record.KEY2 = kDescentAndCollapse;
  if (record.KEY2 < 0) record.KEY2 = kDiffusion;
  // Showing the choice is making it: a project without diffusion has no contaminant.
  if (record.KEY2 == kDescentAndCollapse) Reset_WQParams(record);
}

void Show_Project(ProjectRecord& record) {
  Refresh_Record(record);
  Port().board.display_data();
}

void Reset_WQParams(ProjectRecord& record) {
  record.TracerName().clear();
  record.TracerConcentration = record.BackgroundConcentration = 0;
  record.CriterionConcentration = record.SedimentConcentration = 0;
  record.ZidTop = record.ZidLeft = record.ZidBottom = record.ZidRight = 0;
}

}  // namespace barvon
