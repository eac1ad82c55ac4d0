#pragma once

#include "core/project_record.h"
#include "workspace/main_controls.h"

namespace barvon {

/// Binds every control of the main window to its operation.
void Connect_Main_Events(Main_Controls& controls, ProjectRecord& record);

}  // namespace barvon
