#include "results/csv_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace barvon {
namespace {

std::string Quoted(const std::string& cell) {
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  std::string quoted = "\"";
  for (const char letter : cell) {
    if (letter == '"') quoted += '"';
    quoted += letter;
  }
  return quoted + '"';
}

}  // namespace

std::string Csv_Number(double value) {
  if (!std::isfinite(value)) return "";
  std::array<char, 40> buffer;
  // Adding 0 makes a minus zero a zero.
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value + 0.0);
  return {buffer.data(), end.ptr};
}

std::string Csv_Line(const std::vector<std::string>& cells) {
  std::string line;
  for (const std::string& cell : cells) line += (&cell == &cells.front() ? "" : ",") + Quoted(cell);
  return line + "\r\n";
}

}  // namespace barvon
