#pragma once

#include <string>
#include <vector>

#include "core/project_record.h"

namespace barvon::testing {

/// The names of the fields that differ between the records, bit for bit, but for those in
/// `except`.
std::vector<std::string> Differing_Fields(const ProjectRecord& a, const ProjectRecord& b,
                                          const std::vector<std::string>& except = {});

}  // namespace barvon::testing
