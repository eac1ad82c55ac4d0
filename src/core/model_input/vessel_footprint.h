#pragma once

#include "core/project_record.h"

namespace barvon {

struct Footprint {
  double length = 0;  // ft
  double width = 0;   // ft
};

/// A bin of a hopper dredge and the gap to its neighbours, in feet.
struct Bin_Size {
  double length = 0, width = 0, gap = 0;
};

/// Length and width of so many bins that open together. Any count but 1 to 8 is one bin.
Footprint Vessel_Footprint(int bins, const Bin_Size& bin);
/// The same by NBINS.
Footprint Vessel_Footprint(const ProjectRecord& record);

}  // namespace barvon
