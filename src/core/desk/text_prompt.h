#pragma once

#include "core/project_record.h"

namespace barvon {

/// When the text viewer's content has changed, asks whether to save it. True when the user
/// cancelled, so that the caller stops.
bool Text_Changed_Prompt(ProjectRecord& record);

}  // namespace barvon
