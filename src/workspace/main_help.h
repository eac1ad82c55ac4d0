#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// Gives the controls of both boards their topics. The title and the commands have none.
void Set_Help_Topics(Main_Controls& controls);

/// The topic of the control that has the focus; 0 when it has none.
int Active_Topic(const Main_Controls& controls, const ProjectRecord& record);

}  // namespace barvon
