#pragma once

#include <string>

#include "graphs/graph_page.h"

namespace barvon {

/// Saves every picture of the page's sequence over time as PNG: "NAME 01.png", "NAME 02.png" and
/// so on. Names that exist are asked about once. All of them are on the disk before the first is
/// put in its place: a failure, or Cancel while they are drawn, leaves none and changes none. The
/// page shows what it showed before. Gives back a line for the status bar, after Cancel on the way
/// too; empty when nothing was begun or a box has told what failed.
std::string Save_Sequence(Graph_Page& page, const Results_Held& results);

}  // namespace barvon
