#include "wizard/wizard_apply.h"

#include <cstddef>
#include <tuple>
#include <utility>

#include "core/desk/analysis_choices.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/velocity_types.h"
#include "platform/ask/message_box.h"

namespace barvon {
namespace {

template <class Record>
auto Choices_Of(Record& r) {
  return std::tie(r.AnalysisType, r.FileKind, r.DisposalMethod, r.PreviousDisposalMethod, r.KEY1,
                  r.KEY2, r.KEY3, r.KEY4);
}

template <class Record>
auto Contaminant_Of(Record& r) {
  return std::tie(r.TracerName(), r.TracerConcentration, r.BackgroundConcentration,
                  r.CriterionConcentration, r.SedimentConcentration, r.ZidTop, r.ZidLeft,
                  r.ZidBottom, r.ZidRight);
}

template <class Record>
auto Site_Of(Record& r) {
  return std::tie(r.WizardAccepted, r.NMAX0, r.MMAX0, r.DX0, r.DZ0, r.DistX, r.DistZ, r.DEPC0,
                  r.NROA0, r.DensityComputeFlag, r.DensityDepths, r.Densities, r.DensitySalinities,
                  r.DensityTemperatures);
}

template <class Record>
auto Vessel_Of(Record& r) {
  return std::tie(r.XBARGE, r.ZBARGE);
}

template <class Record>
auto Boundary_Of(Record& r) {
  return std::tie(r.SiteTop, r.SiteLeft, r.SiteBottom, r.SiteRight, r.ZidFlag);
}

/// All that the wizard may write on its way.
template <class Record>
auto All_Of(Record& r) {
  return std::tuple_cat(Choices_Of(r), Contaminant_Of(r), Site_Of(r), Vessel_Of(r), Boundary_Of(r),
                        std::tie(r.VelocityProfileType, r.SimulationDuration));
}

void Write_Velocity_Type(int form, ProjectRecord& record) {
  if (Form_Of_Type(record.VelocityProfileType) == form) return;  // with its logarithm
  record.VelocityProfileType = Type_Of_Form(static_cast<Velocity_Form>(form));
}

}  // namespace

Wizard_Copy::Wizard_Copy(const ProjectRecord& record)
    : former_(std::make_unique<ProjectRecord>(record)) {}

void Wizard_Copy::Bring_Back(ProjectRecord& record) const { All_Of(record) = All_Of(*former_); }

void Wizard_Copy::Bring_Back_What_Stands(const ProjectRecord& left, ProjectRecord& record) const {
  const auto was_left = All_Of(left), former = All_Of(std::as_const(*former_));
  const auto now = All_Of(record);
  const auto bring_back = [&]<std::size_t... i>(std::index_sequence<i...>) {
    const auto one = [](auto& value, const auto& before, const auto& at_start) {
      if (value == before) value = at_start;
    };
    (one(std::get<i>(now), std::get<i>(was_left), std::get<i>(former)), ...);
  };
  bring_back(std::make_index_sequence<std::tuple_size_v<decltype(now)>>());
}

void Wizard_Copy::Bring_Back_Contaminant(ProjectRecord& record) const {
  const ProjectRecord& former = *former_;
  Contaminant_Of(record) = Contaminant_Of(former);
}

void Wizard_Copy::Keep_Accepted(const Screen_Row& screen, const ProjectRecord& record) {
  ProjectRecord& former = *former_;
  const bool drawn = &screen == &Row_Of_Screen("Graphic_Data_Entry");
  if (&screen == &Row_Of_Screen("frmDescription")) {
    Site_Of(former) = Site_Of(record);
    // Variable depth displaces a two-point profile.
    former.VelocityProfileType = record.VelocityProfileType;
  }
  if (&screen == &Row_Of_Screen("frmVelocity")) {
    former.VelocityProfileType = record.VelocityProfileType;
    // No other form asks for a duration.
    if (record.VelocityProfileType == kUnsteadyVelocity) {
      former.SimulationDuration = record.SimulationDuration;
    }
  }
  if (&screen == &Row_Of_Screen("frmOperation")) Vessel_Of(former) = Vessel_Of(record);
  if (&screen == &Row_Of_Screen("frmMdlkyn")) {
    Boundary_Of(former) = Boundary_Of(record);
    Contaminant_Of(former) = Contaminant_Of(record);
  }
  if (drawn) {
    Site_Of(former) = Site_Of(record);
    Vessel_Of(former) = Vessel_Of(record);
    Boundary_Of(former) = Boundary_Of(record);
  }
}

void Write_Choices(const Wizard_Entry& entry, ProjectRecord& record) {
  record.AnalysisType = Analysis_Type_Of(entry);
  record.FileKind = kProjectKind;
  record.DisposalMethod = record.PreviousDisposalMethod = Disposal_Method_Of(entry);
  record.KEY1 = 1;
  record.KEY2 = entry.simulation == kWithoutDiffusion ? kDescentAndCollapse : kDiffusion;
  record.KEY3 = KEY3_Of(record.AnalysisType, Offered_Evaluation(entry)).value_or(record.KEY3);
  record.KEY4 = KEY4_Of(record.AnalysisType, record.DisposalMethod).value_or(record.KEY4);
}

void ApplyWizardToProject(const Wizard_Entry& entry, const Accepted_Data& accepted,
                          ProjectRecord& record) {
  Write_Choices(entry, record);
  if (!accepted.velocity) Write_Velocity_Type(entry.velocity, record);
  const double depth = Water_Depth_Of(entry);
  if (!accepted.depth && depth > 0 && record.ConstantDepthFlag != 0) record.DEPC0 = depth;
  if (!accepted.duration) record.SimulationDuration = Duration_Of(entry, record);
  if (!entry.texts.Is_Untouched({"Text1"})) {
    const Field_Row* title = Find_Row(Wizard_Fields(), {"Text1"}, record);
    Field_Texts texts;
    texts.Set(title->control, entry.texts("Text1"));
    Read_Fields(Wizard_Fields(), texts, record);
  }
  record.DataSaved = kFalse;
  record.WizardAccepted = kTrue;
  record.WizardActive = kFalse;
  Port().board.display_data();
}

bool Ask_To_Leave_The_Pipeline() {
  return Ask("The Data Wizard Knows Hopper Dredges and Barges Only: the Pipeline of This Project "
             "Would Become a Barge.  Do You Wish To Open It?",
             Buttons::YesNo, Icon::Question) == Answer::Yes;
}

void Remark_On_Time_Step(const ProjectRecord& record) {
  if (record.LongTermTimeStep > 0) return;
  Port().board.show_note(
      {"The time step is still to be entered in \"Time Step and Print Options\".", ""});
}

bool Ask_About_Two_Points(const ProjectRecord& record) {
  return record.VelocityProfileType == kTwoPointVelocity && record.ConstantDepthFlag == 0 &&
         Ask_To_Disable_Variable_Depth();
}

}  // namespace barvon
