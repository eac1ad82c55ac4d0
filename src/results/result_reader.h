#pragma once

#include <string>
#include <variant>

#include "results/map_reader.h"
#include "results/result_problem.h"
#include "results/results.h"
#include "results/series_reader.h"

namespace barvon {

using Results_Or_Problem = std::variant<Results, Result_Problem>;

/// Reads ".dut", ".duc" and ".dup" beside a project, or beside the one of them that is given:
/// names are matched without regard to case. ".dup" may be missing. All must be whole and of one
/// run, and none may be written meanwhile. Where one is of another solver the problem is foreign
/// and names it, also where that solver has left a listing (".duo") alone.
Results_Or_Problem Read_Results(const std::string& path);

}  // namespace barvon
