#include "core/model_continuous.h"

namespace barvon {

std::string Continuous_Section(ProjectRecord&) { return {}; }

}  // namespace barvon
