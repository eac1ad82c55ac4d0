#pragma once

#include <optional>
#include <string>
#include <utility>

#include "results/results.h"

namespace barvon {

/// A time in seconds and in the unit that one would say: "45 s", "600 s (10 min)", "9000 s (2.5
/// h)".
std::string Time_Words(double seconds);

/// "12.5 mg/l".
std::string Value_Words(double value, const std::string& unit);

/// "20 ft", in hundredths at most.
std::string Depth_Words(double feet);

/// "site", "mixing zone"; of two results that have not the same, "site or zone". `other` may be
/// null.
std::string Site_Name(const Results& own, const Results* other = nullptr);

/// "inside the site", "outside the mixing zone", "outside the ZID", "anywhere".
std::string Where_Words(Result_Where where, const Results& results);

/// The name of a project's file without folder and extension.
std::string Project_Name(const Results& results);

/// The names of two, told apart by their folders where they are alike, by "other" where these are
/// alike too.
std::pair<std::string, std::string> Project_Names(const Results& own, const Results& other);

/// The number in the other results of a species (from 1) of `own`, by its name and unit; of several
/// that are alike the first stands for the first, the second for the second. Nothing where there is
/// none.
std::optional<int> Same_Species(const Results& other, const Results& own, int species);

}  // namespace barvon
