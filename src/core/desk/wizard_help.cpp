#include "core/desk/wizard_help.h"

#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"

namespace barvon {

void Read_Wizard_Help(ProjectRecord& record) {
  const std::string setting = Read_Setting(kHelpStatusSection, kHelpOnKey, kNotUsed);
  if (setting == "On") record.WizardHelpOn = kTrue;
  if (setting == "Off") record.WizardHelpOn = kFalse;
  Port().board.show_wizard_help(record.WizardHelpOn != kFalse);
}

void Choose_Wizard_Help(bool on, ProjectRecord& record) {
  record.WizardHelpOn = on ? kTrue : kFalse;
  // The blanks are part of the value.
  Write_Setting(kHelpStatusSection, kHelpOnKey, on ? "On  " : "Off  ");
  Port().board.show_wizard_help(on);
}

}  // namespace barvon
