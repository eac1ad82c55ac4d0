#include "core/model_sections.h"

namespace barvon {

std::string Hopper_Section(ProjectRecord&) { return {}; }
std::string Barge_Section(ProjectRecord&) { return {}; }

}  // namespace barvon
