#include "results/drawings/colour_scale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "pictures/shapes/axis_scale.h"
#include "pictures/shapes/inks.h"
#include "results/results.h"

namespace barvon {
namespace {

constexpr double kHair = 1e-9;  // of a value: a level as near as that to the largest holds nothing

// From a hue that is near white to one near black.
constexpr std::array<Colour, 4> kMore{
    {{253, 224, 190}, {241, 163, 64}, {190, 96, 10}, {104, 47, 4}}};
constexpr std::array<Colour, 4> kLess{
    {{214, 230, 246}, {128, 178, 224}, {44, 110, 182}, {9, 50, 108}}};

template <std::size_t kStops>
Colour Between_Stops(const std::array<Colour, kStops>& stops, double part) {
  const double at = std::clamp(part, 0.0, 1.0) * (kStops - 1);
  const std::size_t first = std::min(static_cast<std::size_t>(at), kStops - 2);
  const double rest = at - static_cast<double>(first);
  const auto mixed = [rest](std::uint8_t from, std::uint8_t to) {
    return static_cast<std::uint8_t>(std::lround(from + rest * (to - from)));
  };
  const Colour &low = stops[first], &high = stops[first + 1];
  return {mixed(low.red, high.red), mixed(low.green, high.green), mixed(low.blue, high.blue)};
}

double Part_Of(std::size_t band, std::size_t bands) {
  return bands < 2 ? 0.5 : static_cast<double>(band) / static_cast<double>(bands - 1);
}

/// The number `place` of 1, 2, 5, 10, 20, 50, ...; 1 is number 0.
double Round_Number(int place) {
  constexpr std::array<double, 3> kFactors{1, 2, 5};
  const int power = place >= 0 ? place / 3 : -((2 - place) / 3);
  const double factor = kFactors[static_cast<std::size_t>(place - 3 * power)];
  // A whole power divides without a rounding of its own, so that levels are the nearest numbers.
  return power >= 0 ? factor * std::pow(10, power) : factor / std::pow(10, -power);
}

/// The nearest number with twelve digits: a sum of two decimals is one again.
double Twelve_Digits(double value) {
  std::array<char, 32> text{};
  const auto written = std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::scientific, 11);
  double nearest = value;
  std::from_chars(text.data(), written.ptr, nearest);
  return nearest;
}

/// The power of ten of the last digit that cells of this size are written with.
int Last_Digit(double base, double largest) {
  const double size = std::max({std::abs(base), std::abs(largest), kSmallestOnLog});
  return static_cast<int>(std::floor(std::log10(size))) + 1 - kMapDigits;
}

bool Has_Span(double base, double largest) {
  return Can_Be_Drawn(base) && Can_Be_Drawn(largest) && largest > base &&
         largest - base >= std::pow(10, Last_Digit(base, largest)) * (1 - kHair);
}

/// Levels that are `from` and a round number above it, between the two others.
std::vector<double> Steps_Down(double from, double base, double largest) {
  std::vector<double> levels;
  const double highest = largest - from;
  int place = 3 * (static_cast<int>(std::floor(std::log10(std::max(highest, kSmallestOnLog)))) + 1);
  while (levels.size() < kMostLevels) {
    const double above = Round_Number(place--);
    if (!(above > kSmallestOnLog) || !Has_Span(base, from + above)) break;
    if (above < highest * (1 - kHair)) levels.push_back(Twelve_Digits(from + above));
  }
  std::ranges::reverse(levels);
  return levels;
}

}  // namespace

std::vector<double> Log_Levels(double largest, double base) {
  constexpr std::size_t kFewestRound = 5;
  if (!Has_Span(base, largest)) return {};
  const std::vector<double> round = Steps_Down(0, base, largest);
  return base > 0 && round.size() < kFewestRound ? Steps_Down(base, base, largest) : round;
}

std::vector<double> Even_Levels(double base, double largest) {
  std::vector<double> levels;
  if (!Has_Span(base, largest)) return levels;
  const double span = largest - base;
  // The least round step that leaves no more levels than there may be, and is one of cells.
  int place = 3 * std::max(static_cast<int>(std::floor(std::log10(span / kMostLevels))) - 1,
                           Last_Digit(base, largest));
  const auto first = [&] { return std::floor(base / Round_Number(place) + kHair) + 1; };
  const auto last = [&] { return std::ceil(largest / Round_Number(place) - kHair) - 1; };
  while (last() - first() >= kMostLevels) ++place;
  for (double at = first(); at <= last(); ++at) {
    levels.push_back(place >= 0 ? at * Round_Number(place) : at / Round_Number(-place));
  }
  return levels;
}

Colour Band_Colour(std::size_t band, std::size_t bands) {
  return Between_Stops(kLightToDark, Part_Of(band, bands));
}

Colour More_Colour(std::size_t band, std::size_t bands) {
  return Between_Stops(kMore, Part_Of(band, bands));
}

Colour Less_Colour(std::size_t band, std::size_t bands) {
  return Between_Stops(kLess, Part_Of(band, bands));
}

std::optional<Colour> Colour_Of(const Colour_Scale& scale, double value) {
  const double size = scale.two_sides ? std::abs(value) : value;
  const auto above = std::ranges::upper_bound(scale.levels, size);
  if (std::isnan(value) || above == scale.levels.begin()) return std::nullopt;
  const auto band = static_cast<std::size_t>(above - scale.levels.begin()) - 1;
  const std::size_t bands = scale.levels.size();
  if (!scale.two_sides) return Band_Colour(band, bands);
  return value > 0 ? More_Colour(band, bands) : Less_Colour(band, bands);
}

bool Is_Dark(const Colour& colour) {
  // Luma after ITU-R BT.601.
  return 0.299 * colour.red + 0.587 * colour.green + 0.114 * colour.blue < 128;
}

}  // namespace barvon
