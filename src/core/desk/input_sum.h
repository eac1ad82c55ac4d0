#pragma once

#include <cstdint>
#include <optional>

#include "core/project_record.h"

namespace barvon {

/// The check sum of what a run of the record as it stands hands to the solver: of the bytes of the
/// model input, and then of those of the additions. The companion solver leaves it in its outputs,
/// so that they can be told from those of the project as it was before. Nothing where no model
/// input can be made.
std::optional<std::uint64_t> Input_Sum(const ProjectRecord& record);

}  // namespace barvon
