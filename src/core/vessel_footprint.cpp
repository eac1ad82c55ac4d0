#include "core/vessel_footprint.h"

namespace barvon {

Footprint Vessel_Footprint(const ProjectRecord&) { return {}; }

}  // namespace barvon
