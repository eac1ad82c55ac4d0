#include "site/grid_csv.h"

#include <cstddef>
#include <optional>

#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/files/text_encoding.h"
#include "platform/table/delimited_text.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

using Cells = Text_Block::value_type;

constexpr std::size_t kShownOfACell = 40;  // characters of a faulty cell that a message shows

std::string_view Without_Byte_Order_Mark(std::string_view bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes;
}

/// The lines of cells, without empty lines at the end.
Text_Block Lines_Of(std::string_view bytes) {
  const char separator = bytes.find(';') == std::string_view::npos ? ',' : ';';
  Text_Block lines =
      Read_Delimited_Text(Without_Byte_Order_Mark(bytes), separator, Quote_Rule::Whole_Cell);
  while (!lines.empty() && lines.back().size() == 1 && Trimmed(lines.back().front()).empty()) {
    lines.pop_back();
  }
  return lines;
}

std::string Place(std::size_t row, std::size_t column) {
  return "Row " + std::to_string(row) + ", column " + std::to_string(column);
}

/// The cell for a message: any bytes, in one line.
std::string Shown(const std::string& cell) {
  std::string text;
  for (const char c : From_Settings_Bytes(cell)) {
    text += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
  }
  if (Character_Count(text) <= kShownOfACell) return "\"" + text + "\"";
  return "\"" + First_Characters(text, kShownOfACell) + "...\"";
}

/// The cell's number, or what is wrong with it.
std::string Read_Cell(const std::string& cell, double& value) {
  const std::string text = Trimmed(cell);
  if (text.empty()) return " is empty.";
  const Number_Start number = Read_Number_Start(text);
  if (number.end != text.size()) {
    const bool decimal_comma = text.find(',') != std::string::npos;
    return ": " + Shown(text) + " is not a number." +
           (decimal_comma ? "  The decimal sign is a point." : "");
  }
  if (!number.in_range) return ": " + Shown(text) + " is too large or too small a number.";
  value = number.value;
  return {};
}

/// The place where the file's size first departs from the table's, if it does in this row.
std::optional<std::string> Wrong_Width(const Cells& line, std::size_t row, std::size_t columns) {
  if (line.size() == columns) return std::nullopt;
  const bool lacking = line.size() < columns;
  return Place(row, (lacking ? line.size() : columns) + 1) +
         (lacking ? " is missing" : " is extra");
}

std::string Sizes(const Text_Block& lines, std::size_t rows, std::size_t columns) {
  std::string file = "The file has " + Counted(lines.size(), "row");
  if (!lines.empty()) file += ", the first of " + Counted(lines.front().size(), "column");
  return file + "; the table has " + Counted(rows, "row") + " of " + Counted(columns, "column") +
         ".";
}

}  // namespace

std::string Write_Grid_Csv(const Grid_Rows& rows) {
  std::string bytes;
  for (const std::vector<double>& row : rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      if (column > 0) bytes += ',';
      bytes += Exact_Number(row[column]);
    }
    bytes += "\r\n";
  }
  return bytes;
}

Grid_Csv Read_Grid_Csv(std::string_view bytes, int rows, int columns) {
  const auto height = static_cast<std::size_t>(rows);
  const auto width = static_cast<std::size_t>(columns);
  const Text_Block lines = Lines_Of(bytes);
  const auto other_size = [&](const std::string& place) {
    return Grid_Csv{{}, place + ".  " + Sizes(lines, height, width)};
  };

  Grid_Csv read;
  for (std::size_t row = 0; row < lines.size(); ++row) {
    if (row == height) return other_size(Place(row + 1, 1) + " is extra");
    if (const auto place = Wrong_Width(lines[row], row + 1, width)) return other_size(*place);
    std::vector<double> values(width);
    for (std::size_t column = 0; column < width; ++column) {
      const std::string fault = Read_Cell(lines[row][column], values[column]);
      if (!fault.empty()) return {{}, Place(row + 1, column + 1) + fault};
    }
    read.rows.push_back(std::move(values));
  }
  if (lines.size() < height) return other_size(Place(lines.size() + 1, 1) + " is missing");
  return read;
}

}  // namespace barvon
