#pragma once

#include <string>
#include <vector>

#include "core/project_record.h"

namespace barvon {

/// A value that two projects do not share, as the report tells it. "" stands for a project that
/// does not have it.
struct Project_Difference {
  std::string where;  // the chapter
  std::string what;   // the label, with what it stands under
  std::string one;
  std::string other;
  bool operator==(const Project_Difference&) const = default;
};

/// Every value that a report of one project tells otherwise than that of the other, and the lists
/// of dilutions, in the order of the report. Of a table with many different cells only their number
/// is told, in `other`.
std::vector<Project_Difference> Differences_Of(const ProjectRecord& one,
                                               const ProjectRecord& other);

}  // namespace barvon
