#pragma once

#include <memory>
#include <string>

#include "core/project_record.h"
#include "wizard/vessel_placement.h"
#include "wizard/wizard_apply.h"
#include "wizard/wizard_entry.h"

namespace barvon {

/// The pages in their order, by the index of Frame1.
enum Wizard_Page {
  kAnalysisPage = 0,
  kOptionsPage,
  kGridPage,
  kTypicalDataPage,
  kVelocityPage,
  kMaterialPage,
  kOperationPage,
  kLastPage
};

/// What is owed to the last Yes to the computed grid.
struct Wizard_Placing {
  Typical_Velocity typical;  // of the grid that was computed last; 0 until then
  bool vessel_due = false, site_due = false;
};

/// One walk through the wizard, from its opening to its close.
struct Wizard_Walk {
  explicit Wizard_Walk(const ProjectRecord& record) : copy(record) {}

  Wizard_Copy copy;  // for Cancel
  Wizard_Placing placing;
  Accepted_Data accepted;
  bool leads = false;                   // to a screen that is open and blocks
  std::unique_ptr<ProjectRecord> left;  // the record behind the last one; nothing before it
};

/// Next leaves the page: what is asked and done, and the screen that opens behind it. It opens
/// blocking, with the choices written to the record before; what is prepared for it goes again when
/// it is closed without OK. False: the wizard stays on the page, and the user knows why.
bool Leave_Page(int page, const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record);

/// The page on which the site is drawn by hand, opened on the way.
void Open_Graphical_Page(const Wizard_Entry& entry, Wizard_Walk& walk, ProjectRecord& record);

/// "Cancel": all is as it was when the wizard opened, but for what screens have accepted since.
void Call_Off_Walk(const Wizard_Walk& walk, ProjectRecord& record);

/// Takes out of a copy of the record what the walk has put there for its screens, and they have not
/// accepted.
void Take_Back_Walk(const Wizard_Walk& walk, ProjectRecord& copy);

/// Text4(3), the grid as the type of analysis sees it.
std::string Grid_Text(const Wizard_Entry& entry);

/// Whether nothing is left to be entered once the last page is reached.
bool Is_Complete_At_Last_Page(const Wizard_Entry& entry);
/// Text4(6): what is still to come, or that nothing is.
std::string Last_Page_Text(bool complete);

}  // namespace barvon
