#pragma once

#include <string>

#include "graphs/graph_page.h"

namespace barvon {

// What the window's commands do with the picture that a page shows. Each asks for what it needs,
// tells every failure with the file's name, and gives back a line for the window's status bar;
// empty when nothing was done. They hold the results while a dialog is open. A file is written as a
// whole, or stays as it was.

/// Saves the picture as PNG, SVG or PDF, as the name's ending or the dialog's filter says.
std::string Save_Picture_As(Graph_Page& page, const Results_Held& results);

/// Saves the numbers of the picture as comma separated values.
std::string Save_Numbers_As(const Graph_Page& page, const Results_Held& results);

/// Puts the picture on the clipboard, as pixels and as SVG, and its numbers as cells of a
/// spreadsheet.
std::string Copy_Picture(Graph_Page& page);

/// Puts the numbers alone there, for who would paste the picture otherwise.
std::string Copy_Numbers(const Graph_Page& page);

/// Prints the picture on a page of its own. The dialog offers the paper across.
std::string Print_Picture(Graph_Page& page, const Results_Held& results);

}  // namespace barvon
