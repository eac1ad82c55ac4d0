#include "core/desk/reset_vars.h"

#include "core/desk/project_hold.h"
#include "core/desk/text_prompt.h"
#include "core/desk/workspace_port.h"
#include "core/project_defaults.h"

namespace barvon {

bool Reset_Vars(ProjectRecord& record) {
  if (Text_Changed_Prompt()) return false;
  Port().text.clear_checks();
  Port().dilution.close();
  Port().board.set_caption(kUntitledCaption);
  // What was said of the project before no longer holds.
  Port().board.show_note({});
  Set_Project_Defaults(record);
  // Outputs are named from it: a run of the new project must not find the old one's file.
  record.BaseFileName.clear();
  record.WizardActive = record.WizardAccepted = kFalse;
  Release_Project();
  Port().board.refresh_for_new_project();
  Port().recovery.settled();
  Port().recovery.dilutions_settled();
  return true;
}

}  // namespace barvon
