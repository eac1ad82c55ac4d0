#pragma once

namespace barvon {

/// Widths of a table's columns and headings are in 1/256 of the width of a digit, so that a table
/// keeps its look in every font. The heights of its headings are in twips.
inline constexpr int kWidthsInDigit = 256;

/// The width that was told in twips (1/1440 inch): a digit counts as 105 of them, 7 pixels of a
/// display with 96 to the inch.
constexpr int Width_Of_Twips(int twips) {
  constexpr int kTwipsInDigit = 105;
  return twips * kWidthsInDigit / kTwipsInDigit;
}

}  // namespace barvon
