#pragma once

#include <string>

#include "results/results.h"

namespace barvon {

/// As many as the solver's verdicts have: more than a model can promise.
inline constexpr int kReadingFigures = 5;

/// A value of the outputs in so many figures: "12.346 mg/l"; "no value" for what is not finite.
std::string Reading_Words(double value, const std::string& unit);

/// "X 1200 ft, Z 800 ft".
std::string Place_Words(const Result_Point& place);

}  // namespace barvon
