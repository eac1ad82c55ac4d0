#pragma once

#include "core/desk/accepted_screen.h"

namespace barvon {

// What the status line of the coefficients says: of a project that nobody has changed them in, and
// of what the screen accepted.
inline constexpr char kDefaultCoefficientsUsed[] = "Default Coefficients Used";
inline constexpr char kDefaultCoefficients[] = "Default Coefficients";
inline constexpr char kUserCoefficients[] = "User-Defined Coefficients";

inline Status_Words Coefficient_Words(bool defaults, const char* words_of_defaults) {
  return defaults ? Status_Words{words_of_defaults, Status_Colour::Black}
                  : Status_Words{kUserCoefficients, Status_Colour::Blue};
}

}  // namespace barvon
