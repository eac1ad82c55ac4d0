#include "checks/error_entries.h"

#include <limits>
#include <utility>

namespace barvon {

void Error_List::Add(std::string message, std::string reference, int topic) {
  entries.push_back({std::move(message), std::move(reference)});
  ErrorsFound = kTrue;
  if (ErrorCount < std::numeric_limits<std::int16_t>::max()) ++ErrorCount;
  if (topic != 0 && entries.size() < ErrorHelpTopics.size()) {
    ErrorHelpTopics[entries.size()] = topic;
  }
}

}  // namespace barvon
