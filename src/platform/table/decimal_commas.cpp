#include "platform/table/decimal_commas.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace barvon {
namespace {

/// Takes the digits at the start of the text from it. False when there are none.
bool Take_Digits(std::string_view& text) {
  const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
  text.remove_prefix(count);
  return count > 0;
}

/// Takes one of these characters from the start of the text.
bool Take_One_Of(std::string_view& text, std::string_view characters) {
  if (text.empty() || characters.find(text.front()) == characters.npos) return false;
  text.remove_prefix(1);
  return true;
}

bool Is_Decimal_Comma_Number(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
  Take_One_Of(text, "+-");
  if (!Take_Digits(text) || !Take_One_Of(text, ",") || !Take_Digits(text)) return false;
  if (text.empty()) return true;
  if (!Take_One_Of(text, "EeDd")) return false;
  Take_One_Of(text, "+-");
  return Take_Digits(text) && text.empty();
}

}  // namespace

std::vector<std::string> Decimal_Comma_Cells(const Text_Block& cells) {
  std::vector<std::string> found;
  for (const auto& row : cells) {
    for (const std::string& cell : row) {
      if (cell.find(',') == cell.npos) continue;
      if (!Is_Decimal_Comma_Number(cell)) return {};
      found.push_back(cell);
    }
  }
  return found;
}

Text_Block With_Points(Text_Block cells) {
  for (auto& row : cells) {
    for (std::string& cell : row) std::replace(cell.begin(), cell.end(), ',', '.');
  }
  return cells;
}

}  // namespace barvon
