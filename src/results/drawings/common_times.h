#pragma once

#include <optional>
#include <string>
#include <vector>

#include "results/results.h"

namespace barvon {

// The times that two runs have maps of.

/// Two depths, times or spacings of outputs, which come with seven digits, are the same.
bool Is_Same_Written(double a, double b);

/// "The times in both are 100 s (1.7 min) and 200 s (3.3 min)."; many by their ends and, where one
/// is wanted, the nearest to it.
std::string Times_Of_Both(const std::vector<double>& times, std::optional<double> wanted = {});

/// Which output times two runs share, and that differences are of these alone. Empty where each has
/// all times of the other.
std::string Common_Times_Words(const Results& own, const Results& other);

}  // namespace barvon
