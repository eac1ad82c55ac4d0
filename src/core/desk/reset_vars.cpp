#include "core/desk/reset_vars.h"

#include "core/desk/text_prompt.h"
#include "core/desk/workspace_port.h"
#include "core/project_defaults.h"

namespace barvon {

bool Reset_Vars(ProjectRecord& record) {
  if (Text_Changed_Prompt(record)) return false;
  Port().clear_text_checks();
  Port().close_dilution();
  Port().set_caption(kUntitledCaption);
  Set_Project_Defaults(record);
  record.WizardActive = record.WizardAccepted = kFalse;
  Port().refresh_for_new_project();
  return true;
}

}  // namespace barvon
