#include "solver/marker.h"

#include <cstddef>
#include <vector>

#include "solver/due_fields.h"

namespace companion {

std::string Read_Marker(const std::string& file, const std::string& bytes) {
  const std::vector<std::string> lines = Lines_Of(bytes);
  // Seven fields between commas; the fifth is the scratch name, the last one is empty.
  static const std::vector<std::size_t> kWidths = {6, 1, 28, 37, 8, 27, 0};
  if (lines.empty()) throw Refusal(file, 1, "the marker line is missing");
  if (lines.size() > 1) throw Refusal(file, 2, "the marker is one line");
  std::vector<std::string> parts(1);
  for (const char c : lines.front()) {
    if (c == ',') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  if (parts.size() != kWidths.size()) throw Refusal(file, 1, "the marker has six commas");
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (parts[i].size() != kWidths[i]) {
      throw Refusal(file, 1,
                    "field " + std::to_string(i + 1) + " of the marker has " +
                        std::to_string(kWidths[i]) + " columns");
    }
  }
  if (parts[0] != "DUE   ") throw Refusal(file, 1, "the marker is not one of a model input");
  std::string name = parts[4].substr(0, parts[4].find_last_not_of(' ') + 1);
  if (name.empty() || name.find('/') != std::string::npos) {
    throw Refusal(file, 1, "the marker names no scratch file");
  }
  return name + ".Due";
}

}  // namespace companion
