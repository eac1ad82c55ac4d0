#pragma once

#include <string>

#include "graphs/graph_page.h"

namespace barvon {

// What the window's commands do for a geographic information system. Each gives back a line for the
// status bar; empty when nothing was done.

/// Saves the map that the page shows as an ASCII grid, or its contours and the site's outlines as
/// GeoJSON. Where the grid lies is asked once and kept beside the outputs that the map is of.
std::string Save_Map_For_Gis(const Graph_Page& page, const Results_Held& own);

/// Asks where the grid lies, with what is kept filled in, and keeps it.
std::string Change_Place(const Results_Held& results);

}  // namespace barvon
