#pragma once

#include <array>

#include "pictures/shapes/shapes.h"

namespace barvon {

// The colours that pictures share. Those of the two directions are told apart by lightness as well
// as by colour.
inline constexpr Colour kXInk{11, 94, 168}, kZInk{214, 112, 10};

inline constexpr Colour kInk{45, 52, 61};        // letters
inline constexpr Colour kQuietInk{90, 98, 109};  // notes
inline constexpr Colour kAxisInk{122, 130, 140};
inline constexpr Colour kGridInk{228, 231, 235};
inline constexpr Colour kZeroInk{150, 157, 166};
inline constexpr Colour kWhite{255, 255, 255};

inline constexpr Colour kWaterInk{70, 140, 205};   // the surface
inline constexpr Colour kGroundInk{139, 110, 70};  // the bottom
inline constexpr Colour kGroundFill{239, 231, 219};
inline constexpr Colour kGroundLetters{116, 92, 58};

inline constexpr Colour kWarnInk{176, 42, 32}, kWarnFill{250, 228, 224};

/// From little to much: even steps of it look evenly apart, also to colour-blind eyes and in print
/// without colour. The stops of the public-domain scale "viridis", the light end first.
inline constexpr std::array<Colour, 11> kLightToDark{{{253, 231, 37},
                                                      {189, 223, 38},
                                                      {122, 209, 81},
                                                      {68, 191, 112},
                                                      {34, 168, 132},
                                                      {33, 145, 140},
                                                      {42, 120, 142},
                                                      {53, 95, 141},
                                                      {65, 68, 135},
                                                      {72, 36, 117},
                                                      {68, 1, 84}}};

}  // namespace barvon
