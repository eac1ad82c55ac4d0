#pragma once

#include "core/project_record.h"

namespace barvon {

/// When the text viewer's content has changed, asks whether to save it, and saves it as a text on
/// Yes. True when the user cancelled or it was not saved, so that the caller stops.
bool Text_Changed_Prompt(const ProjectRecord& record);

}  // namespace barvon
