#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "results/result_problem.h"
#include "results/results.h"

namespace barvon {

/// Looks whether the bytes of a ".dup", descent and collapse, are whole and of the results' run.
/// Nothing is kept of them.
std::optional<Result_Problem> Check_Phases(const std::string& file, std::string_view bytes,
                                           Results& results);

}  // namespace barvon
