#pragma once

#include <string>
#include <string_view>

namespace barvon {

/// A to Z and a to z only, whatever the desktop's language.
constexpr char Upper_Case(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }
std::string Upper_Case(std::string_view text);
bool Equal_Ignoring_Case(std::string_view a, std::string_view b);

}  // namespace barvon
