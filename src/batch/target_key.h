#pragma once

#include <string>

namespace barvon {

/// The same text for every path that leads to the same name in the same folder, through whatever
/// links and dots, and whatever the case of the name's letters: two paths with one key would be
/// written over each other.
std::string Target_Key(const std::string& path);

}  // namespace barvon
