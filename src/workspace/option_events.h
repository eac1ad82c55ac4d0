#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// What the choices of both boards do. Each click sets its option, also when the option is set
/// already: the group is repainted, the record written, and what depends on the choice becomes
/// available or not. A person's click on an option that is set does not come here while the record
/// holds it.

void SSOption1_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption2_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption3_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption4_Click(Main_Controls& controls, ProjectRecord& record, int index);

/// False in the dilution mode, which a click on the type that is set leaves.
bool Type_Is_Held(const Main_Controls& controls, const ProjectRecord& record);
/// False while KEY3 rests on an earlier choice: choosing the evaluation again brings it up to date.
bool Evaluation_Is_Held(const Main_Controls& controls, const ProjectRecord& record);

/// Asks the user when the option is the two-point profile and the depth is variable.
void Option3D1_Click(Main_Controls& controls, ProjectRecord& record, int index);
void Check3D1_Click(Main_Controls& controls, ProjectRecord& record, bool set);
void SSCheck4_Click(Main_Controls& controls, ProjectRecord& record, bool set);

/// Opens the screen of the Edit menu's entry of that index, if it has one, and refreshes in any
/// case.
void mnuEditItem_Click(Main_Controls& controls, ProjectRecord& record, int index);

/// The buttons of the program options and the picture buttons.
void SSPanel5_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSRibbon1_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSRibbon2_Click(Main_Controls& controls, ProjectRecord& record);

}  // namespace barvon
