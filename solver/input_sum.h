#pragma once

#include <cstdint>
#include <string_view>

namespace companion {

/// FNV-1a, 64 bits, of the bytes, or of these behind those that `before` is the sum of. Source:
/// Fowler, Noll and Vo, draft-eastlake-fnv.
inline std::uint64_t Check_Sum(std::string_view bytes,
                               std::uint64_t before = 14695981039346656037U) {
  std::uint64_t sum = before;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  return sum;
}

/// Of the bytes of the model input and then of those of the additions: tells whether outputs are
/// of an input.
inline std::uint64_t Input_Sum(std::string_view model_input, std::string_view additions) {
  return Check_Sum(additions, Check_Sum(model_input));
}

}  // namespace companion
