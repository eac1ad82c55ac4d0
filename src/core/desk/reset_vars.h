#pragma once

#include "core/project_record.h"

namespace barvon {

/// Starts a new project: asks about unsaved text of the viewer first and stops when the user
/// cancels there, then brings the record to its defaults, with an empty BaseFileName, and the
/// workspace to a new project whose status area tells nothing. False when the user cancelled.
bool Reset_Vars(ProjectRecord& record);

}  // namespace barvon
