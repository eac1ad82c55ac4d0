#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace barvon {

/// A text file, line by line. Texts are UTF-8 in memory.
class Line_Walk {
 public:
  /// A file that can't be read has no lines.
  explicit Line_Walk(const std::string& path);

  bool Opened() const { return opened_; }

  /// Moves on to the next line. False at the end, and on the last line of the file too: it does not
  /// count as read, so one more has to follow the last record.
  bool Next();
  /// Moves on over so many lines, none of which may be the last.
  bool Skip(int lines);
  /// The same as Next, but the last line counts.
  bool Next_Or_Last();

  const std::string& Line() const { return line_; }
  /// The number of the line, from 1.
  int Number() const { return number_; }

 private:
  bool opened_ = false;
  std::string text_;
  std::size_t at_ = 0;
  std::string line_;
  int number_ = 0;
};

/// Characters of a line, counted from 1, both ends included.
struct Line_Columns {
  std::size_t first = 1, last = 1;
};

/// What stands in the columns; "" where the line is shorter.
std::string Text_In(const std::string& line, Line_Columns columns);
/// The leading number of what stands in the columns, 0 without one.
double Number_In(const std::string& line, Line_Columns columns);

}  // namespace barvon
