#include "platform/table/cell_range.h"

#include "platform/text/letter_case.h"

#include <algorithm>

namespace barvon {
namespace {

constexpr std::size_t kMostLetters = 3;
constexpr std::size_t kMostDigits = 6;

struct Cell_Place {
  int row = 0, col = 0;
};

std::optional<Cell_Place> Parse_Cell(std::string_view text) {
  Cell_Place place;
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    const char letter = Upper_Case(text[at]);
    if (letter < 'A' || letter > 'Z') break;
    place.col = 26 * place.col + (letter - 'A' + 1);
    if (at >= kMostLetters) return std::nullopt;
  }
  const std::string_view digits = text.substr(at);
  if (at == 0 || digits.empty() || digits.size() > kMostDigits) return std::nullopt;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return std::nullopt;
    place.row = 10 * place.row + (digit - '0');
  }
  if (place.row == 0) return std::nullopt;
  return place;
}

}  // namespace

Cell_Range Joined(const Cell_Range& a, const Cell_Range& b) {
  return {std::min(a.row1, b.row1), std::min(a.col1, b.col1), std::max(a.row2, b.row2),
          std::max(a.col2, b.col2)};
}

std::optional<Cell_Range> Shared(const Cell_Range& a, const Cell_Range& b) {
  const Cell_Range shared{std::max(a.row1, b.row1), std::max(a.col1, b.col1),
                          std::min(a.row2, b.row2), std::min(a.col2, b.col2)};
  if (shared.rows() < 1 || shared.cols() < 1) return std::nullopt;
  return shared;
}

std::optional<Cell_Range> Parse_Range(std::string_view text) {
  const auto colon = text.find(':');
  const std::optional<Cell_Place> first = Parse_Cell(text.substr(0, colon));
  const std::optional<Cell_Place> last =
      colon == std::string_view::npos ? first : Parse_Cell(text.substr(colon + 1));
  if (!first || !last) return std::nullopt;
  return Joined({first->row, first->col, first->row, first->col},
                {last->row, last->col, last->row, last->col});
}

std::string Range_Text(const Cell_Range& range) {
  std::string first = Column_Letters(range.col1) + std::to_string(range.row1);
  if (range.rows() == 1 && range.cols() == 1) return first;
  return first + ":" + Column_Letters(range.col2) + std::to_string(range.row2);
}

std::string Column_Letters(int col) {
  std::string letters;
  for (; col > 0; col = (col - 1) / 26) letters.insert(letters.begin(), char('A' + (col - 1) % 26));
  return letters;
}

}  // namespace barvon
