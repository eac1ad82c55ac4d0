#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace barvon::fuzz {

/// A file that was changed in one to six ways: bytes, lines, cut, doubled, swapped columns and
/// lines, huge numbers, long lines, zeros, encodings, line ends, a piece of another file. The same
/// seed gives the same file.
std::string Mutated(std::span<const std::string> samples, std::uint64_t seed);

}  // namespace barvon::fuzz
