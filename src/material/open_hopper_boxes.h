#pragma once

#include <optional>

#include "core/project_record.h"

namespace barvon {

/// Salinity (ppt) and temperature (deg C) as they stand in the boxes of the hopper screen. Both
/// material screens compute the density from them.
struct Hopper_Boxes {
  double salinity = 0;     // Text3(1)
  double temperature = 0;  // Text3(2)
};

/// The hopper screen tells its boxes while it is open, and nothing when it closes.
void Set_Open_Hopper_Boxes(std::optional<Hopper_Boxes> boxes);

/// What the open hopper screen holds; without one, the record's numbers.
Hopper_Boxes Open_Hopper_Boxes(const ProjectRecord& record);

}  // namespace barvon
