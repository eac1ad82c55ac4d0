#pragma once

#include <QWidget>
#include <array>

#include "graphs/graph_page.h"
#include "graphs/hand_over.h"

namespace barvon {

/// The name of each view, as the main program's menu has it.
inline constexpr std::array<const char*, kGraphViews> kGraphNames{
    "Overview", "Max Conc. vs Time", "Concentration Contours", "Deposition Thickness"};

/// One page of each view, by its number.
std::array<Graph_Page*, kGraphViews> Make_Graph_Pages(QWidget* parent);

}  // namespace barvon
