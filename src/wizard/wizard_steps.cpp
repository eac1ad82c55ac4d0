#include "wizard/wizard_steps.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <utility>

#include "core/desk/analysis_choices.h"
#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/number_text.h"
#include "core/velocity_types.h"
#include "platform/ask/message_box.h"
#include "wizard/grid_from_typical_data.h"
#include "wizard/wizard_texts.h"

namespace barvon {
namespace {

/// The leading number of a field, held to what 32 bits hold.
float Number32(const Wizard_Entry& entry, Typical_Field field) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  const double number = Lenient_Number(entry.texts("Text7", field));
  return static_cast<float>(std::clamp(number, -kLargest, kLargest));
}

Typical_Data Typical_Data_Of(const Wizard_Entry& entry, const ProjectRecord& record) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  return {Number32(entry, kPlumeDistance),
          static_cast<float>(std::clamp(Duration_Of(entry, record), -kLargest, kLargest)),
          Number32(entry, kTypicalVelocityX), Number32(entry, kTypicalVelocityZ),
          Number32(entry, kWaterDepth)};
}

/// Hears whether a screen's OK stores something while it is open.
class Acceptance {
 public:
  explicit Acceptance(const Screen_Row& screen) {
    former_ = std::exchange(Port().wizard.screen_accepted, [this, &screen](const Screen_Row& row) {
      if (&row == &screen) accepted_ = true;
    });
  }
  ~Acceptance() { Port().wizard.screen_accepted = former_; }
  Acceptance(const Acceptance&) = delete;
  Acceptance& operator=(const Acceptance&) = delete;

  bool Is_There() const { return accepted_; }

 private:
  std::function<void(const Screen_Row&)> former_;
  bool accepted_ = false;
};

/// Opens a screen with the choices written and `prepare` done for it. True when its OK has stored
/// something; otherwise all is as it was before.
bool Lead_To(
    const Screen_Row& screen, const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record,
    const std::function<void()>& prepare = [] {}) {
  const Wizard_Copy before(record);
  const Wizard_Placing placing = walk.placing;
  if (entry.simulation == kWithDiffusion) walk.copy.Bring_Back_Contaminant(record);
  Write_Choices(entry, record);
  prepare();
  const Acceptance acceptance(screen);
  walk.leads = true;
  Open_Screen_Or_Tell(screen, true);
  walk.leads = false;
  record.WizardActive = kTrue;
  if (!acceptance.Is_There()) {
    before.Bring_Back(record);
    walk.placing = placing;
    return false;
  }
  walk.copy.Keep_Accepted(screen, record);
  walk.left = std::make_unique<ProjectRecord>(record);
  return true;
}

void Lead_To_Site(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record,
                  const std::function<void()>& prepare) {
  if (Lead_To(Row_Of_Screen("frmDescription"), entry, walk, record, prepare)) {
    walk.accepted.depth = true;
  }
}

/// The computed grid goes to the site's screen.
bool Accept_Computed_Grid(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  const Typical_Data data = Typical_Data_Of(entry, record);
  // Whether there is a grid must be known before the screen is led to, and the record must not have
  // it before the copy for the screen's Cancel is taken.
  const auto trial = std::make_unique<ProjectRecord>(record);
  const std::string refusal = ComputeGridFromTypicalData(data, *trial);
  if (!refusal.empty()) {
    Show_Message({refusal});
    return false;
  }
  Lead_To_Site(entry, walk, record, [&] {
    ComputeGridFromTypicalData(data, record);
    record.WizardAccepted = kTrue;
    walk.placing = {{data.velocity_x, data.velocity_z}, true, true};
  });
  return true;
}

bool Leave_Typical_Data(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  if (!(Duration_Of(entry, record) > 0)) {
    Show_Message({"Please Provide a Maximum Simulation Time of Interest Greater Than Zero."});
    return false;
  }
  const Answer answer =
      Ask("The values in the Disposal Site Description form will be computed from data supplied "
          "through the Data Wizard.  Press Yes if you wish to accept these values.",
          Buttons::YesNoCancel);
  if (answer == Answer::Yes) return Accept_Computed_Grid(entry, walk, record);
  if (answer != Answer::No) return false;
  Lead_To_Site(entry, walk, record, [&record] {
    // The site's screen keeps the record's depth and densities then.
    if (record.WizardAccepted != kFalse) record.WizardActive = kFalse;
  });
  return true;
}

void Lead_To_Velocity(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  const double duration = record.SimulationDuration;
  // The unsteady form shows it in hours with few decimals: in the record it has them all.
  if (!Lead_To(Row_Of_Screen("frmVelocity"), entry, walk, record,
               [&] { record.SimulationDuration = Duration_Of(entry, record); })) {
    return;
  }
  walk.accepted.velocity = true;
  // No other form asks for a duration.
  if (record.VelocityProfileType == kUnsteadyVelocity) {
    walk.accepted.duration = true;
  } else {
    record.SimulationDuration = duration;
  }
}

void Lead_To_Material(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  const bool hopper = Disposal_Method_Of(entry) == kHopper;
  Lead_To(hopper ? Row_Of_Screen("frmMatHopper") : Row_Of_Screen("frmMatBarge"), entry, walk,
          record);
}

void Lead_To_Operation(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  Lead_To(Row_Of_Screen("frmOperation"), entry, walk, record, [&] {
    const bool never_placed = record.XBARGE == 0 && record.ZBARGE == 0;
    if (!walk.placing.vessel_due && !never_placed) return;
    PlaceVesselFromTypicalVelocity(walk.placing.typical, record);
    walk.placing.vessel_due = false;
  });
}

/// A corner beyond the edge of the grid is worth a remark: the site is still the user's to set.
void Remark_On_Corners(const ProjectRecord& record) {
  std::string corners;
  for (const auto& [edge, feet] : {std::pair{"Top", record.SiteTop},
                                   {"Left", record.SiteLeft},
                                   {"Bottom", record.SiteBottom},
                                   {"Right", record.SiteRight}}) {
    if (feet < 0) corners += std::string(edge) + " edge: " + Plain_Number(feet) + " ft\n";
  }
  if (corners.empty()) return;
  Port().board.show_note(
      {"The Data Wizard placed an edge of the disposal site outside of the grid.", corners});
}

void PlaceDisposalSite(const Wizard_Entry& entry, Wizard_Placing& placing, ProjectRecord& record) {
  if (record.AnalysisType == kOpenWater) return;
  const bool never_placed = record.SiteTop == 0 && record.SiteLeft == 0 && record.SiteBottom == 0 &&
                            record.SiteRight == 0;
  if (!placing.site_due && !never_placed) return;
  PlaceSiteEdges(placing.typical, Disposal_Method_Of(entry) == kHopper, record);
  placing.site_due = false;
  Remark_On_Corners(record);
}

void Lead_To_Evaluation(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  Lead_To(Row_Of_Screen("frmMdlkyn"), entry, walk, record,
          [&] { PlaceDisposalSite(entry, walk.placing, record); });
}

}  // namespace

bool Leave_Page(int page, const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  switch (page) {
    case kTypicalDataPage:
      return Leave_Typical_Data(entry, walk, record);
    case kVelocityPage:
      Lead_To_Velocity(entry, walk, record);
      return true;
    case kMaterialPage:
      Lead_To_Material(entry, walk, record);
      return true;
    case kOperationPage:
      Lead_To_Operation(entry, walk, record);
      return true;
    case kLastPage:
      Lead_To_Evaluation(entry, walk, record);
      return true;
    default:
      return true;
  }
}

void Open_Graphical_Page(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record) {
  Lead_To(Row_Of_Screen("Graphic_Data_Entry"), entry, walk, record);
}

void Call_Off_Walk(const Wizard_Walk& walk, ProjectRecord& record) {
  walk.copy.Bring_Back(record);
  Port().board.display_data();
}

void Take_Back_Walk(const Wizard_Walk& walk, ProjectRecord& copy) {
  if (walk.leads) {
    walk.copy.Bring_Back(copy);
  } else if (walk.left) {
    walk.copy.Bring_Back_What_Stands(*walk.left, copy);
  }
}

std::string Grid_Text(const Wizard_Entry& entry) {
  std::string text = kGridText;
  if (Analysis_Type_Of(entry) == kOceanSites) text += kGridTextOfOceanSites;
  if (Analysis_Type_Of(entry) == kNavigableWaters) text += kGridTextOfNavigableWaters;
  return text;
}

bool Is_Complete_At_Last_Page(const Wizard_Entry& entry) {
  if (entry.simulation == kWithoutDiffusion) return true;
  return Analysis_Type_Of(entry) == kOpenWater && Offered_Evaluation(entry) == 0;
}

std::string Last_Page_Text(bool complete) { return complete ? kCompleteText : kEvaluationText; }

}  // namespace barvon
