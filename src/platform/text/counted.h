#pragma once

#include <cstddef>
#include <string>

namespace barvon {

/// "1 point", "2 points".
std::string Counted(std::size_t count, const std::string& noun);

}  // namespace barvon
