#include "core/analysis_keys.h"

namespace barvon {

std::int16_t Analysis_Type_Of_KEY4(std::int16_t) { return 0; }
void Refresh_Record(ProjectRecord&) {}
void Reset_WQParams(ProjectRecord&) {}

}  // namespace barvon
