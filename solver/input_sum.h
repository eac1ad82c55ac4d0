#pragma once

#include <cstdint>
#include <string_view>

namespace companion {

/// FNV-1a, 64 bits, of the bytes of the model input and then of those of the additions: tells
/// whether outputs are of an input. Source: Fowler, Noll and Vo, draft-eastlake-fnv.
inline std::uint64_t Input_Sum(std::string_view model_input, std::string_view additions) {
  std::uint64_t sum = 14695981039346656037U;
  for (const std::string_view bytes : {model_input, additions}) {
    for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  }
  return sum;
}

}  // namespace companion
