#include "core/model_input.h"

namespace barvon {

Failure Write_Model_Input(ProjectRecord&, std::string&) { return Failure::None; }
Failure Save_Model_Extract(const std::string&, ProjectRecord&, std::string*) {
  return Failure::None;
}

}  // namespace barvon
