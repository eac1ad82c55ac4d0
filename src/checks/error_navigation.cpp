#include "checks/error_navigation.h"

namespace barvon {

std::optional<Error_Target> Error_Target_Of(const std::string& reference) {
  const auto mark = reference.find('!');
  if (mark == std::string::npos) return std::nullopt;
  const Screen_Row* row = Find_Screen(reference.substr(0, mark));
  if (row == nullptr || row->lead == Error_Lead::Nowhere) return std::nullopt;
  const bool focuses = row->lead == Error_Lead::To_Control;
  return Error_Target{row, focuses ? reference.substr(mark + 1) : std::string()};
}

}  // namespace barvon
