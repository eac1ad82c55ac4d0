#pragma once

#include "core/project_record.h"

namespace barvon {

// Whether the data wizard shows the help of its steps. The Options menu and the wizard's own box
// are two faces of it; HelpOn of the settings keeps it.

/// WizardHelpOn as the settings have it; as it is where they say neither.
void Read_Wizard_Help(ProjectRecord& record);

/// A choice of the user's: WizardHelpOn, the settings, and the Options menu follow.
void Choose_Wizard_Help(bool on, ProjectRecord& record);

}  // namespace barvon
