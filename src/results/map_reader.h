#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "results/result_problem.h"
#include "results/results.h"

namespace barvon {

/// Reads the bytes of a ".duc": the grid, what lies on it, and the maps. Species are held to those
/// that the results have, where they have any. The results are incomplete where there is a problem.
std::optional<Result_Problem> Read_Maps(const std::string& file, std::string_view bytes,
                                        Results& results);

}  // namespace barvon
