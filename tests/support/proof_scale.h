#pragma once

#include <cstdlib>

namespace barvon::testing {

/// How often an attack is repeated: what the environment says under the name, as the scripts of the
/// long proofs do, otherwise the usual number.
inline long Proof_Scale(const char* name, long usual) {
  const char* const told = std::getenv(name);
  return told == nullptr ? usual : std::atol(told);
}

}  // namespace barvon::testing
