#pragma once

#include "core/project_record.h"

namespace barvon {

struct Footprint {
  double length = 0;  // ft
  double width = 0;   // ft
};

/// Length and width of the hopper bins that open together, by NBINS. Any count but 1 to 8 is one
/// bin.
Footprint Vessel_Footprint(const ProjectRecord& record);

}  // namespace barvon
