#include "pictures/shapes/lettering.h"

#include <cstdint>
#include <sstream>
#include <string_view>
#include <utility>

#include "pictures/shapes/inks.h"

namespace barvon {
namespace {

constexpr double kLineHeight = 1.35;           // of the size
constexpr double kNoteMargin = 8, kBelow = 4;  // pixels

double Part_Of_Size(char letter) {
  const auto is_one_of = [letter](std::string_view some) {
    return some.find(letter) != std::string_view::npos;
  };
  if (is_one_of(" ijlftI.,:;'!|()[]/-")) return 0.4;
  if (is_one_of("mwMW%@+=<>")) return 0.98;
  return letter >= 'A' && letter <= 'Z' ? 0.74 : 0.64;
}

}  // namespace

double Text_Width(const std::string& text, double size) {
  double width = 0;
  for (const char letter : text) {
    const bool goes_on = (static_cast<std::uint8_t>(letter) & 0xC0) == 0x80;
    if (!goes_on) width += Part_Of_Size(letter);
  }
  return width * size;
}

std::vector<std::string> Wrapped(const std::string& text, double size, double width) {
  std::vector<std::string> lines;
  std::istringstream paragraphs(text);
  for (std::string paragraph; std::getline(paragraphs, paragraph);) {
    std::istringstream words(paragraph);
    std::string line;
    for (std::string word; words >> word;) {
      if (!line.empty() && Text_Width(line, size) + Text_Width(" " + word, size) > width) {
        lines.push_back(std::exchange(line, {}));
      }
      if (!line.empty()) line += ' ';
      line += word;
    }
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}

double Half_Figure(double size) { return 0.36 * size; }

void Add_Note(Shape_List& picture, const std::string& note, double size) {
  const auto lines = Wrapped(note, size, picture.width - 2 * kNoteMargin);
  if (lines.empty()) return;
  for (const std::string& line : lines) {
    picture.height += kLineHeight * size;
    const double baseline = picture.height - 0.3 * size;
    picture.shapes.push_back(Text_Shape{{kNoteMargin, baseline}, line, size, kQuietInk});
  }
  picture.height += kBelow;
}

}  // namespace barvon
