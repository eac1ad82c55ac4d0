#include <initializer_list>
#include <string>
#include <vector>

#include "checks/check_data.h"
#include "checks/remarks.h"
#include "core/desk/analysis_choices.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "material/load_water.h"
#include "params/evaluation_data.h"
#include "platform/text/counted.h"
#include "report/report_sections.h"
#include "site/site_fields.h"
#include "site/velocity_fields.h"

namespace barvon {
namespace {

std::string Unknown(double key) {
  return "Unknown (" + std::to_string(static_cast<int>(key)) + ")";
}

std::string Analysis_Words(const ProjectRecord& record) {
  if (record.AnalysisType == kNoAnalysis) return "None";
  if (!Is_Analysis_Type(record.AnalysisType)) return Unknown(record.AnalysisType);
  return kAnalysisCaptions[static_cast<std::size_t>(record.AnalysisType - 1)];
}

std::string Method_Words(const ProjectRecord& record) {
  switch (record.DisposalMethod) {
    case kHopper:
      return kMethodCaptions[0];
    case kBarge:
      return kMethodCaptions[1];
    case kContinuous:
      return "Continuous Discharge from a Pipeline";
    default:
      return Unknown(record.DisposalMethod);
  }
}

/// By the key that the model input has: a pipeline's vessel without a speed is at rest.
std::string Simulation_Words(const ProjectRecord& prepared) {
  switch (prepared.KEY2) {
    case kDiffusion:
      return kSimulationCaptions[kWithDiffusion];
    case kDescentAndCollapse:
      return kSimulationCaptions[kWithoutDiffusion];
    case kStillVessel:
      return std::string(kSimulationCaptions[kWithDiffusion]) + ", Vessel at Rest";
    default:
      return Unknown(prepared.KEY2);
  }
}

std::string Evaluation_Words(const ProjectRecord& record) {
  if (record.KEY3 == kNoTracer && record.AnalysisType != kOpenWater) return "None";
  const int option = Evaluation_Option(record.KEY3);
  if (option < 0) return Unknown(record.KEY3);
  const Evaluation_Captions& captions = Evaluation_Captions_Of(Analysis_Type_Of_KEY3(record.KEY3));
  const char* caption = captions[static_cast<std::size_t>(option)];
  return caption == nullptr ? Unknown(record.KEY3) : caption;
}

}  // namespace

void Report_Study(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  report.Heading(1, "Study");
  report.Words(kAnalysisFrame, Analysis_Words(record));
  report.Words(kMethodFrame, Method_Words(record));
  report.Words(kSimulationFrame, Simulation_Words(*report.prepared));
  report.Words(kEvaluationFrame, Evaluation_Words(record));
}

void Report_Findings(Report_Maker& report) {
  report.Heading(1, "Check of the Data");
  const Error_List errors = Check_Data(report.record);
  const std::vector<std::string> remarks = Remarks_On(report.record);
  if (report.failure != Failure::None) {
    report.Paragraph(std::string("The model input can't be written: ") +
                     Failure_Name(report.failure) + ".");
  }
  if (errors.entries.empty()) report.Paragraph("The check of the data finds no errors.");
  if (!errors.entries.empty()) {
    Report_Table table{Table_Kind::plain,
                       "The check of the data finds " + Counted(errors.entries.size(), "error"),
                       {{"", true}, {"Finding"}},
                       {}};
    for (const Error_Entry& entry : errors.entries) {
      table.rows.push_back({{std::to_string(table.rows.size() + 1), entry.message}});
    }
    report.Table(std::move(table));
  }
  if (remarks.empty()) return;
  Report_Table table{
      Table_Kind::plain, "Remarks, which are no errors", {{"", true}, {"Remark"}}, {}};
  for (const std::string& remark : remarks) {
    table.rows.push_back({{std::to_string(table.rows.size() + 1), remark}});
  }
  report.Table(std::move(table));
}

void Report_Unused_Values(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  const Field_Table evaluation = Evaluation_Fields(true);
  const std::size_t before = report.document.parts.size();
  report.Heading(1, "Further Values in the Model Input");
  report.Paragraph("The model input carries these too. No choice of this project uses them.");
  const std::size_t head = report.document.parts.size() - before;
  report.Field_Of(evaluation, record.TracerName());
  for (const double* value :
       {&record.TracerConcentration, &record.BackgroundConcentration,
        &record.CriterionConcentration, &record.SedimentConcentration, &record.ToxicityDilution}) {
    report.Field_Of(evaluation, *value);
  }
  if (Has_Vessel(record)) {
    report.Field_Of(evaluation, record.ZidToxicityDilution);
    report.Field_Of(evaluation, record.ZCRIT);
    if (!Offers_Zid(record)) report.Yes_Or_No(kZidCaption, record.ZidFlag == 1);
    const Evaluation_Shape shape = Shape_Of_Evaluation(record, true);
    if (!Is_Regulatory(record)) {
      report.Group(shape.upper_left);
      report.Field_Of(evaluation, record.SiteTop);
      report.Field_Of(evaluation, record.SiteLeft);
      report.Group(shape.lower_right, true);
      report.Field_Of(evaluation, record.SiteBottom);
      report.Field_Of(evaluation, record.SiteRight);
    }
    if (Form_Of_Type(record.VelocityProfileType) == kNoForm) report.Fields(kAverageFields);
  }
  if (report.document.parts.size() == before + head) report.document.parts.resize(before);
}

void Report_Kept_Values(Report_Maker& report) {
  const ProjectRecord& record = report.record;
  const Field_Table evaluation = Evaluation_Fields(true);
  const std::size_t before = report.document.parts.size();
  report.Heading(1, "Kept in the Project File, Not Used");
  report.Paragraph("The project has these values. Its model input does not hold them.");
  const std::size_t head = report.document.parts.size() - before;
  const auto keep = [&](Field_Table table, std::initializer_list<const double*> values) {
    for (const double* value : values) {
      if (*value != 0) report.Kept(table, *value);
    }
  };
  // The concentration that is computed from the sediment was never entered.
  if (!Contaminant_Is_In_The_Sediment(record)) keep(evaluation, {&record.TracerConcentration});
  keep(evaluation, {&record.BackgroundConcentration, &record.CriterionConcentration,
                    &record.SedimentConcentration, &record.ToxicityDilution,
                    &record.ZidToxicityDilution, &record.ZCRIT});
  if (record.DisposalMethod == kContinuous) {
    keep(Site_Fields(), {&record.RHDA0});
    keep(Water_Fields(), {&record.SiteDensity});
    if (Form_Of_Type(record.VelocityProfileType) == kSingleForm) {
      keep(kAverageFields, {&record.AvgVelocityDepth, &record.AvgVelocityX, &record.AvgVelocityZ});
    }
  }
  if (Offers_Zid(record) && !(Has_Zid(record) && Has_Vessel(record)) &&
      (record.ZidTop != 0 || record.ZidLeft != 0 || record.ZidBottom != 0 ||
       record.ZidRight != 0)) {
    report.Group(kZidUpperLeft);
    for (const double* corner : {&record.ZidTop, &record.ZidLeft}) report.Kept(evaluation, *corner);
    report.Group(kZidLowerRight, true);
    for (const double* corner : {&record.ZidBottom, &record.ZidRight}) {
      report.Kept(evaluation, *corner);
    }
  }
  if (report.document.parts.size() == before + head) report.document.parts.resize(before);
}

}  // namespace barvon
