#include "site/grid_csv.h"

#include <cstddef>
#include <optional>

#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/files/text_encoding.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

using Cells = std::vector<std::string>;

constexpr std::size_t kShownOfACell = 40;  // characters of a faulty cell that a message shows

/// Cuts bytes into lines of cells. A quoted cell may hold separators and line ends.
class Csv_Cutter {
 public:
  explicit Csv_Cutter(std::string_view bytes)
      : bytes_(bytes), separator_(bytes.find(';') == std::string_view::npos ? ',' : ';') {}

  std::vector<Cells> Cut() {
    while (at_ < bytes_.size()) Take(bytes_[at_++]);
    if (in_quotes_) cell_.insert(0, 1, '"');  // never closed: no number
    if (!cell_.empty() || !line_.empty()) End_Line();
    while (!lines_.empty() && lines_.back().size() == 1 && Trimmed(lines_.back().front()).empty()) {
      lines_.pop_back();
    }
    return std::move(lines_);
  }

 private:
  bool Next_Is(char character) const { return at_ < bytes_.size() && bytes_[at_] == character; }

  void Take(char character) {
    if (in_quotes_) {
      Take_Quoted(character);
    } else if (character == '"' && !was_quoted_ && Trimmed(cell_).empty()) {
      in_quotes_ = was_quoted_ = true;
      cell_.clear();
    } else if (character == separator_) {
      End_Cell();
    } else if (character == '\r' || character == '\n') {
      if (character == '\r' && Next_Is('\n')) ++at_;
      End_Line();
    } else {
      // What follows the closing quote must not grow together with the number in front of it.
      if (was_quoted_ && character != ' ') cell_ += '"';
      cell_ += character;
    }
  }

  void Take_Quoted(char character) {
    if (character != '"') {
      cell_ += character;
    } else if (Next_Is('"')) {
      cell_ += bytes_[at_++];
    } else {
      in_quotes_ = false;
    }
  }

  void End_Cell() {
    line_.push_back(std::move(cell_));
    cell_.clear();
    was_quoted_ = false;
  }

  void End_Line() {
    End_Cell();
    lines_.push_back(std::move(line_));
    line_.clear();
  }

  std::string_view bytes_;
  char separator_;
  std::size_t at_ = 0;
  bool in_quotes_ = false;
  bool was_quoted_ = false;  // the cell so far
  std::string cell_;
  Cells line_;
  std::vector<Cells> lines_;
};

std::string_view Without_Byte_Order_Mark(std::string_view bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes;
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

std::string Sizes(const std::vector<Cells>& lines, std::size_t rows, std::size_t columns) {
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
  const std::vector<Cells> lines = Csv_Cutter(Without_Byte_Order_Mark(bytes)).Cut();
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
