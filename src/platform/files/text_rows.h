#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace barvon {

/// A large text as its file has it, and where its rows are. A row is a line, or a part of one that
/// is longer than kLongestRow bytes. Places are offsets into the bytes. Beside the bytes it needs
/// one note for every kNoteEvery rows.
class Text_Rows {
 public:
  static constexpr std::size_t kLongestRow = 1024;
  static constexpr std::size_t kNoteEvery = 64;

  struct Row {
    std::size_t start = 0, end = 0;  // without its line end
    std::size_t next = 0;            // where the next one starts
    bool ends_line = true;
  };

  /// Makes room for a text of that size.
  explicit Text_Rows(std::size_t size = 0) { bytes_.reserve(size); }

  void Add(std::string_view bytes);
  /// Nothing more comes: what is behind the last line end is the last row, maybe an empty one.
  void Finish();

  std::size_t Rows() const { return rows_; }
  std::size_t Size() const { return bytes_.size(); }
  /// The longest row in bytes.
  std::size_t Longest() const { return longest_; }

  /// 0 to Rows() - 1.
  Row Row_Of(std::size_t index) const;
  /// The index of the row that a place is in; of a line end, of the row before it.
  std::size_t Row_At(std::size_t place) const;
  std::string_view Bytes(std::size_t from, std::size_t to) const;
  std::string_view Bytes(const Row& row) const { return Bytes(row.start, row.end); }
  /// The number of the line that the place is in, and its column in characters, both from 1.
  struct Line_And_Column {
    std::size_t line = 1, column = 1;
  };
  Line_And_Column Where(std::size_t place) const;

  /// The character before or behind a place, over line ends as over one character.
  std::size_t Before(std::size_t place) const;
  std::size_t Behind(std::size_t place) const;

  /// The next place of a text, given in UTF-8, that starts at `from` or behind, or the last one
  /// that starts before. ASCII letters match in either case.
  std::optional<std::size_t> Find(std::string_view text, std::size_t from, bool backward) const;

 private:
  struct Note {
    std::size_t start = 0, line = 0, line_start = 0;
  };

  Row Row_From(std::size_t start) const;
  bool Is_Certain(const Row& row) const;
  void Take(const Row& row);

  std::string bytes_;
  std::vector<Note> notes_;
  std::size_t rows_ = 0, lines_ = 0, line_start_ = 0, longest_ = 0;
  std::size_t taken_ = 0;  // bytes that are in rows
};

/// The bytes of a row, or of any part of a text, as UTF-8.
std::string Row_Text(std::string_view bytes);

}  // namespace barvon
