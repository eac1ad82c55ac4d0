#pragma once

#include <string>
#include <string_view>

namespace barvon {

/// A file's name brought to one case: the letters that Windows-1252 holds, as the systems that
/// these files come from fold them. Other letters keep their case. As long as the name.
std::string Folded_Name(std::string_view name);

}  // namespace barvon
