#include "solver/listing.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "solver/listing_parts.h"
#include "solver/number_text.h"
#include "solver/tables.h"

namespace companion {
namespace {

constexpr std::size_t kWidth = 98;
constexpr std::size_t kCaptionWidth = 54;

}  // namespace

std::string Section_Heading(std::string_view title) {
  return kLineEnd + std::string(title) + kLineEnd + std::string(title.size(), '-') + kLineEnd;
}

std::string Caption_Line(const std::string& caption, const std::string& value) {
  return "  " + Left(caption, kCaptionWidth) + " " + value + kLineEnd;
}

std::string Paragraph(const std::string& sentence) {
  std::string text, line = "  -";
  std::size_t at = 0;
  while (at < sentence.size()) {
    const std::size_t end = std::min(sentence.find(' ', at), sentence.size());
    const std::string word = sentence.substr(at, end - at);
    at = end + 1;
    if (line.size() + 1 + word.size() > kWidth) {
      text += line + kLineEnd;
      line = "   ";
    }
    line += " " + word;
  }
  return text + line + kLineEnd;
}

std::string Listing(const Model_Input& input, const Additions& additions, const Outcome& outcome) {
  return Head(input, "Results") + Input_Section(input, additions, outcome) +
         Without_Part_Section(input) + Assumed_Section() + Phases_Section(input, outcome) +
         Balance_Section(input, outcome) + Maxima_Section(input, outcome) +
         Verdict_Section(input, additions, outcome) + Deposit_Section(input, outcome) +
         Notes_Section(outcome) + Left_Out_Section();
}

std::vector<std::string> Phase_Groups(const Model_Input& input, const Outcome& outcome) {
  std::vector<std::string> lines;
  struct Group {
    Phase_Kind kind;
    const char* name;
  };
  for (const Group& group : {Group{Phase_Kind::Descent, "Descent"},
                             Group{Phase_Kind::Level_Collapse, "Collapse at a level"},
                             Group{Phase_Kind::Bed_Collapse, "Collapse on the bed"}}) {
    std::size_t count = 0;
    double from = std::numeric_limits<double>::max(), to = 0;
    for (const Phase& phase : outcome.near_field.phases) {
      if (phase.kind != group.kind || phase.rows.empty()) continue;
      ++count;
      from = std::min(from, phase.rows.front().t);
      to = std::max(to, phase.rows.back().t);
    }
    if (count == 0) continue;
    lines.push_back(std::string(group.name) + ": " + std::to_string(count) +
                    (count == 1 ? " cloud, " : " clouds, ") + Plain(from, 6) + " to " +
                    Plain(to, 6) + " s");
  }
  if (input.key2 == 0) {
    lines.push_back("Passive transport: to " + Plain(input.duration, 7) + " s");
  }
  return lines;
}

}  // namespace companion
