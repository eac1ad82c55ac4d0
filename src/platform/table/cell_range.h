#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace barvon {

/// A rectangle of cells, both ends inside it; rows and columns count from 1.
struct Cell_Range {
  int row1 = 1, col1 = 1, row2 = 1, col2 = 1;

  int rows() const { return row2 - row1 + 1; }
  int cols() const { return col2 - col1 + 1; }
  bool Holds(int row, int col) const {
    return row >= row1 && row <= row2 && col >= col1 && col <= col2;
  }
  bool operator==(const Cell_Range&) const = default;
};

/// The smallest range that holds both.
Cell_Range Joined(const Cell_Range& a, const Cell_Range& b);

/// What both share; nothing when they don't meet.
std::optional<Cell_Range> Shared(const Cell_Range& a, const Cell_Range& b);

/// A range text: "A1:B3", "B3:A1" and "a1:b3" are the same, "C2" is one cell. Nothing for anything
/// else, and for numbers of more than six digits or columns beyond "ZZZ".
std::optional<Cell_Range> Parse_Range(std::string_view text);

/// The range text, "A1:B3"; "C2" for one cell.
std::string Range_Text(const Cell_Range& range);

/// The letters of a column: "A" for 1, "AA" for 27. "" below 1.
std::string Column_Letters(int col);

}  // namespace barvon
