#include "results/result_problem.h"

#include "platform/files/paths.h"

namespace barvon {

std::string Result_Problem::Words() const {
  const std::string place = line > 0 ? ", line " + std::to_string(line) : "";
  return Name_Of(file) + place + ": " + reason;
}

}  // namespace barvon
