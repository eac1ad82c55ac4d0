#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "results/result_problem.h"
#include "results/results.h"

namespace barvon {

/// Reads the bytes of a ".dut": species, limits, verdicts, and the series over time. The results
/// are incomplete where there is a problem.
std::optional<Result_Problem> Read_Series(const std::string& file, std::string_view bytes,
                                          Results& results);

}  // namespace barvon
