#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// What the choices of both boards do. Each click sets its option, whether a person made it or
/// code, and also when the option is set already: the group is repainted, the record written, and
/// what depends on the choice becomes available or not.

void SSOption1_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption2_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption3_Click(Main_Controls& controls, ProjectRecord& record, int index);
void SSOption4_Click(Main_Controls& controls, ProjectRecord& record, int index);

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
