#pragma once

#include <string>

#include "results/results.h"

namespace barvon {

/// "600 s (10 min)", "7200 s (2 h)", "45 s".
std::string Time_Words(double seconds);

/// "0.25 mg/l", "3.5 ft", "12 %".
std::string Value_Words(double value, const std::string& unit);

/// "X 1200 ft, Z 800 ft".
std::string Place_Words(const Result_Point& place);

}  // namespace barvon
