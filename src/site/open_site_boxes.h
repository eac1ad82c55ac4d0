#pragma once

#include <optional>
#include <string>

#include "core/project_record.h"

namespace barvon {

/// The grid counts as typed on the site screen. The depth grid goes by them, so that a size just
/// typed applies before OK.
struct Site_Boxes {
  std::string z_points;  // Text1(0)
  std::string x_points;  // Text1(1)
};

/// The site screen tells its boxes while it is open, and nothing when it closes.
void Set_Open_Site_Boxes(std::optional<Site_Boxes> boxes);

/// What the open site screen holds; without one, the record's counts.
Site_Boxes Open_Site_Boxes(const ProjectRecord& record);

}  // namespace barvon
