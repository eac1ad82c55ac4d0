#pragma once

#include <string>
#include <vector>

#include "results/results.h"

namespace barvon {

/// What the overview says of one run.
struct Overview_Words {
  std::string title;     // of the project; its file's name where it has none
  std::string made;      // "COMPANION SOLVER 1.0, 2026-11-22 12:03": by the clock of this place
  std::string warning;   // what the solver says of itself
  std::string verdicts;  // line by line; why there is none
  std::string deposit;   // "Deposit at 1800 s (30 min): thickest ..."
};

/// `name` is the project's, told where two runs are shown; else empty.
Overview_Words Words_Of(const Results& results, const std::string& name);

/// The largest of each species by area, with time and depth: texts of a table.
struct Overview_Table {
  std::vector<std::string> headings;
  std::vector<std::vector<std::string>> rows;
};

/// `other` may be null; its rows are below those of the same species. An area that no run has takes
/// no column.
Overview_Table Largest_Table(const Results& own, const Results* other);

}  // namespace barvon
