#include "core/desk/input_sum.h"

#include <memory>
#include <string>

#include "core/desk/analysis_keys.h"
#include "core/keys.h"
#include "core/model_input/additions.h"
#include "core/model_input/model_input.h"
#include "platform/files/check_sum.h"

namespace barvon {

std::optional<std::uint64_t> Input_Sum(const ProjectRecord& project) {
  const auto record = std::make_unique<ProjectRecord>(project);
  if (Is_Model_Project(*record)) Refresh_Record(*record);
  std::string input, additions;
  if (Make_Model_Input(*record, input) != Failure::None || input.empty() ||
      Write_Additions(*record, additions) != Failure::None) {
    return std::nullopt;
  }
  return Check_Sum(input + additions);
}

}  // namespace barvon
