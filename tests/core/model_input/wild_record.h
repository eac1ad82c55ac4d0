#pragma once

#include <memory>

#include "core/project_record.h"

namespace barvon::testing {

/// For properties: every slot field at random, of all methods, keys and kinds of velocity; spacings
/// mostly sane, so that not every writing stops early.
std::unique_ptr<ProjectRecord> Wild_Record();

}  // namespace barvon::testing
