#pragma once

#include <string>
#include <vector>

namespace barvon::testing {

/// The lines of a text without their ends, line 1 at index 1.
inline std::vector<std::string> Lines_Of(const std::string& text) {
  std::vector<std::string> lines(1);
  std::size_t at = 0;
  while (at < text.size()) {
    const auto end = text.find('\n', at);
    std::string line = text.substr(at, end == std::string::npos ? end : end - at);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
    if (end == std::string::npos) break;
    at = end + 1;
  }
  return lines;
}

/// Lines counted from 1 as one text.
inline std::string Joined(const std::vector<std::string>& lines, const std::string& end = "\r\n") {
  std::string text;
  for (std::size_t i = 1; i < lines.size(); ++i) text += lines[i] + end;
  return text;
}

}  // namespace barvon::testing
