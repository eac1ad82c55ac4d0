#pragma once

#include <string>

#include "results/results.h"

namespace barvon {

/// A value read from a map in four figures, more than a model can promise: "12.35 mg/l"; "no value"
/// for what is not finite.
std::string Reading_Words(double value, const std::string& unit);

/// "X 1200 ft, Z 800 ft".
std::string Place_Words(const Result_Point& place);

}  // namespace barvon
