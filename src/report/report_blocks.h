#pragma once

#include <functional>
#include <string>
#include <vector>

#include "pictures/shapes/shapes.h"

namespace barvon {

// What the pages of a report are put together from. Lengths are in points (1/72 inch).

/// The width of a text in letters of a size.
using Text_Measure = std::function<double(const std::string& text, double size, bool bold)>;

/// The measure for letters that are not known: wide ones.
double Wide_Letters(const std::string& text, double size, bool bold);

inline constexpr double kReportTextSize = 9.5;
inline constexpr double kReportLine = 1.32;  // height of a line, of its size

/// How texts are set.
struct Text_Setting {
  const Text_Measure& measure;

  double Width(const std::string& text, double size, bool bold) const {
    return measure(text, size, bold);
  }
  /// In lines of at most that width, broken at blanks and line breaks; a longer word is broken
  /// between its letters.
  std::vector<std::string> Wrap(const std::string& text, double size, double width,
                                bool bold) const;
  /// The start of a text in that width, with three points where it is cut.
  std::string Cut(const std::string& text, double size, double width) const;
  double Longest_Word(const std::string& text, double size, bool bold) const;
};

/// The length of the first letters of a text in that width, in bytes of whole letters; one letter
/// at least.
std::size_t Letters_In(const Text_Setting& setting, const std::string& text, double size,
                       double width, bool bold);

/// Something that is never parted, with its upper left corner at 0, 0.
struct Page_Block {
  double height = 0;
  std::vector<Shape> shapes;
};

void Add_Text(Page_Block& block, Place baseline, const std::string& text, double size,
              Colour colour, Anchor anchor = Anchor::start, bool bold = false);
void Add_Rule(Page_Block& block, Place from, double length, const Stroke& stroke);
/// From a line's bottom up to its baseline.
double Below_Baseline(double size);

Page_Block Block_Of_Lines(const std::vector<std::string>& lines, double size, Colour colour,
                          bool bold);

/// The lines of a text that has line breaks; one at least.
std::vector<std::string> Lines_Of(const std::string& text);

}  // namespace barvon
