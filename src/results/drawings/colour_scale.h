#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "pictures/shapes/shapes.h"

namespace barvon {

/// The levels that a map is coloured by. A value is in the band of the largest level that it is not
/// below, and has no colour below the least. On a scale of two sides the levels, all above 0, count
/// away from 0 in both directions, for differences.
struct Colour_Scale {
  std::vector<double> levels;  // ascending
  bool two_sides = false;
};

inline constexpr std::size_t kMostLevels = 8;

/// 1, 2 and 5 times powers of ten above `base` and below `largest`, the greatest kMostLevels of
/// them, ascending. Where fewer than five lie between, their excess over `base` is as round as that
/// instead, so that faint clouds show over a strong background. None is nearer to `base` than cells
/// of their size are written.
std::vector<double> Log_Levels(double largest, double base);

/// The whole multiples of a round step between the two, ends left out: kMostLevels at most. The
/// step is no finer than cells of their size are written.
std::vector<double> Even_Levels(double base, double largest);

/// The colour of a band of so many, from 0. Darker is more, evenly, also to colour-blind eyes and
/// in print without colour. The other two are for the sides of a difference, more and less: both
/// grow darker away from 0, in colours that colour-blind eyes tell apart.
Colour Band_Colour(std::size_t band, std::size_t bands);
Colour More_Colour(std::size_t band, std::size_t bands);
Colour Less_Colour(std::size_t band, std::size_t bands);

/// The colour that a value has on the scale.
std::optional<Colour> Colour_Of(const Colour_Scale& scale, double value);

/// Letters and lines on that colour are white, not dark.
bool Is_Dark(const Colour& colour);

}  // namespace barvon
