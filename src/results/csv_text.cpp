#include "results/csv_text.h"

#include <cmath>

#include "results/plain_numbers.h"

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
  return Shortest_Number(value + 0.0);  // a minus zero becomes a zero
}

std::string Csv_Number(double value, int digits) { return Csv_Number(In_Digits(value, digits)); }

std::string Csv_Line(const std::vector<std::string>& cells) {
  std::string line;
  for (const std::string& cell : cells) line += (&cell == &cells.front() ? "" : ",") + Quoted(cell);
  return line + "\r\n";
}

}  // namespace barvon
