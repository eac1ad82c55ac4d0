#include "platform/table/tab_text.h"

#include <algorithm>
#include <optional>

namespace barvon {
namespace {

constexpr std::string_view kBetween = "\t\r\n";

/// The cell whose opening quote stands at `at`, which then stands behind the closing one. Nothing
/// when there is no closing quote with the end of a cell behind it.
std::optional<std::string> Read_Quoted(std::string_view text, std::size_t& at) {
  std::string cell;
  for (std::size_t next = at + 1; next < text.size(); ++next) {
    if (text[next] == '"') {
      ++next;
      if (next == text.size() || kBetween.find(text[next]) != kBetween.npos) {
        at = next;
        return cell;
      }
      if (text[next] != '"') return std::nullopt;
    }
    if (text[next] == '\r' && next + 1 < text.size() && text[next + 1] == '\n') ++next;
    cell += kBetween.find(text[next]) == kBetween.npos ? text[next] : ' ';
  }
  return std::nullopt;
}

std::string Read_Cell(std::string_view text, std::size_t& at) {
  if (at < text.size() && text[at] == '"') {
    if (auto quoted = Read_Quoted(text, at)) return *quoted;
  }
  const std::size_t end = std::min(text.find_first_of(kBetween, at), text.size());
  const std::string_view cell = text.substr(at, end - at);
  at = end;
  return std::string(cell);
}

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
  Text_Block cells(1);
  std::size_t at = 0;
  while (true) {
    cells.back().push_back(Read_Cell(text, at));
    if (at >= text.size()) break;
    const char ended = text[at++];
    if (ended == '\t') continue;
    if (ended == '\r' && at < text.size() && text[at] == '\n') ++at;
    if (at >= text.size()) break;
    cells.emplace_back();
  }
  return cells;
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
