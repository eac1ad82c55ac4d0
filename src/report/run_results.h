#pragma once

#include <memory>
#include <string>

#include "core/project_record.h"
#include "results/results.h"

namespace barvon {

/// The companion solver's outputs that lie beside a project's file, as far as a report shows them.
struct Run_Results {
  std::shared_ptr<const Results> results{};  // null: none that are of the project as it stands
  std::string refusal{};                     // why those that are there are not shown, for a person
};

/// Reads the outputs beside the record's file. Those of another solver are none.
Run_Results Results_Beside(const ProjectRecord& record);

}  // namespace barvon
