#pragma once

#include <string>
#include <vector>

namespace barvon::testing {

inline constexpr long kFewNames = 12;  // what a short test of the window takes

/// So many names of files that a careless program would trip over, without an extension: blanks,
/// quotes, line breaks, dashes and dots in front, what shells, glob patterns and mark-up act upon,
/// letters of many alphabets, bytes that are no UTF-8, up to the length that leaves room for four
/// more bytes. No two are the same without regard to case. The same seed gives the same names.
/// The first kFewNames are of every kind.
std::vector<std::string> Hostile_Names(unsigned seed, long count);

}  // namespace barvon::testing
