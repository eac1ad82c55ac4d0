#include "platform/table/tab_text.h"

#include <algorithm>

namespace barvon {
namespace {

constexpr std::string_view kBetween = "\t\r\n";

std::string Quoted(const std::string& cell) {
  std::string quoted = "\"";
  for (const char character : cell) {
    if (character == '"') quoted += '"';
    quoted += character;
  }
  return quoted + '"';
}

}  // namespace

std::size_t Width_Of(const Text_Block& cells) {
  std::size_t widest = 0;
  for (const auto& row : cells) widest = std::max(widest, row.size());
  return widest;
}

Text_Block Read_Tab_Text(std::string_view text) {
  return Read_Delimited_Text(text, '\t', Quote_Rule::One_Line);
}

std::string Write_Tab_Text(const Text_Block& cells) {
  const bool one_cell = cells.size() == 1 && cells[0].size() == 1;
  std::string text;
  for (const auto& row : cells) {
    for (std::size_t col = 0; col < row.size(); ++col) {
      const std::string& cell = row[col];
      if (col > 0) text += '\t';
      const bool quote = cell.find_first_of(kBetween) != cell.npos || cell.starts_with('"');
      text += quote ? Quoted(cell) : cell;
    }
    if (!one_cell) text += '\n';
  }
  return text;
}

}  // namespace barvon
