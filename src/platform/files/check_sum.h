#pragma once

#include <cstdint>
#include <string_view>

namespace barvon {

/// FNV-1a, 64 bits: tells a file that was cut or damaged by chance. Any one changed byte changes
/// it. Source: Fowler, Noll and Vo, draft-eastlake-fnv.
inline std::uint64_t Check_Sum(std::string_view bytes) {
  std::uint64_t sum = 14695981039346656037U;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  return sum;
}

}  // namespace barvon
