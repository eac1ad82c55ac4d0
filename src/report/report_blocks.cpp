#include "report/report_blocks.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "pictures/shapes/lettering.h"

namespace barvon {
namespace {

constexpr double kBold = 1.06;   // bold letters are so much wider
constexpr double kBelow = 0.35;  // of the size

}  // namespace

std::size_t Letters_In(const Text_Setting& setting, const std::string& text, double size,
                       double width, bool bold) {
  const auto goes_on = [&](std::size_t at) {
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
  };
  std::size_t length = 0;
  for (std::size_t next = 0; next < text.size();) {
    ++next;
    while (goes_on(next)) ++next;
    if (length > 0 && setting.Width(text.substr(0, next), size, bold) > width) break;
    length = next;
  }
  return length;
}

double Wide_Letters(const std::string& text, double size, bool bold) {
  return Text_Width(text, size) * (bold ? kBold : 1);
}

std::vector<std::string> Text_Setting::Wrap(const std::string& text, double size, double width,
                                            bool bold) const {
  std::vector<std::string> lines;
  for (const std::string& paragraph : Lines_Of(text)) {
    std::istringstream words(paragraph);
    std::string line;
    for (std::string word; words >> word;) {
      while (Width(word, size, bold) > width) {
        const std::size_t part = Letters_In(*this, word, size, width, bold);
        if (part >= word.size()) break;
        if (!line.empty()) lines.push_back(std::exchange(line, {}));
        lines.push_back(word.substr(0, part));
        word.erase(0, part);
      }
      std::string longer = line;
      if (!line.empty()) longer += ' ';
      longer += word;
      if (!line.empty() && Width(longer, size, bold) > width) {
        lines.push_back(std::exchange(line, word));
      } else {
        line = std::move(longer);
      }
    }
    lines.push_back(line);
  }
  return lines;
}

std::string Text_Setting::Cut(const std::string& text, double size, double width) const {
  constexpr char kPoints[] = "...";
  if (Width(text, size, false) <= width) return text;
  const double room = width - Width(kPoints, size, false);
  return text.substr(0, Letters_In(*this, text, size, room, false)) + kPoints;
}

double Text_Setting::Longest_Word(const std::string& text, double size, bool bold) const {
  double longest = 0;
  std::istringstream words(text);
  for (std::string word; words >> word;) longest = std::max(longest, Width(word, size, bold));
  return longest;
}

void Add_Text(Page_Block& block, Place baseline, const std::string& text, double size,
              Colour colour, Anchor anchor, bool bold) {
  block.shapes.push_back(Text_Shape{baseline, text, size, colour, anchor, false, bold});
}

void Add_Rule(Page_Block& block, Place from, double length, const Stroke& stroke) {
  block.shapes.push_back(Line_Shape{{from, {from.x + length, from.y}}, stroke});
}

double Below_Baseline(double size) { return kBelow * size; }

Page_Block Block_Of_Lines(const std::vector<std::string>& lines, double size, Colour colour,
                          bool bold) {
  Page_Block block;
  for (const std::string& line : lines) {
    block.height += kReportLine * size;
    Add_Text(block, {0, block.height - Below_Baseline(size)}, line, size, colour, Anchor::start,
             bold);
  }
  return block;
}

std::vector<std::string> Lines_Of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream all(text);
  for (std::string line; std::getline(all, line);) lines.push_back(line);
  if (lines.empty()) lines.emplace_back();
  return lines;
}

}  // namespace barvon
