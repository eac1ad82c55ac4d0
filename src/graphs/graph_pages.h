#pragma once

#include <QWidget>
#include <array>

#include "graphs/graph_names.h"
#include "graphs/graph_page.h"

namespace barvon {

/// One page of each view, by its number.
std::array<Graph_Page*, kGraphViews> Make_Graph_Pages(QWidget* parent);

}  // namespace barvon
