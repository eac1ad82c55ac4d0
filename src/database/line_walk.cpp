#include "database/line_walk.h"

#include <optional>

#include "core/number_text.h"
#include "core/text_tools.h"
#include "platform/files/path_lookup.h"
#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"

namespace barvon {

Line_Walk::Line_Walk(const std::string& path) {
  const std::optional<std::string> found = Find_Path(path);
  std::string bytes;
  if (!found || Read_Whole_File(*found, bytes) != 0) return;
  opened_ = true;
  text_ = From_File_Bytes(bytes);
}

bool Line_Walk::Next_Or_Last() {
  if (at_ >= text_.size()) return false;
  const std::size_t end = text_.find_first_of("\r\n", at_);
  line_.assign(text_, at_, end - at_);
  ++number_;
  if (end == std::string::npos) {
    at_ = text_.size();
  } else {
    const bool pair = text_[end] == '\r' && end + 1 < text_.size() && text_[end + 1] == '\n';
    at_ = end + (pair ? 2 : 1);
  }
  return true;
}

bool Line_Walk::Next() { return Next_Or_Last() && at_ < text_.size(); }

bool Line_Walk::Skip(int lines) {
  for (int i = 0; i < lines; ++i) {
    if (!Next()) return false;
  }
  return true;
}

std::string Text_In(const std::string& line, Line_Columns columns) {
  if (line.size() < columns.first) return {};  // a file may have empty lines by the thousand
  const std::string up_to = First_Characters(line, columns.last);
  const std::string before = First_Characters(line, columns.first - 1);
  return up_to.substr(before.size());
}

double Number_In(const std::string& line, Line_Columns columns) {
  return Lenient_Number(Text_In(line, columns));
}

}  // namespace barvon
