#pragma once

#include <array>

#include "graphs/hand_over.h"

namespace barvon {

/// The name of each view, as the main program's menu has it.
inline constexpr std::array<const char*, kGraphViews> kGraphNames{
    "Overview", "Max Conc. vs Time", "Concentration Contours", "Deposition Thickness"};

}  // namespace barvon
