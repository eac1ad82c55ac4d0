#pragma once

#include <string>

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// The bytes of the .DUI file for the record, whose slots must be packed. Recomputes the tracer
/// concentration and the fluid concentration for KEY3 4 and 7, in the record and in the slots,
/// and sets FileTypeTag to "   DUMP". Shows the progress display under the caption "Saving " and
/// the path.
std::string Save_Project(const std::string& path, ProjectRecord& record);

}  // namespace barvon
