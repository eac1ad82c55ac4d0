#include "core/model_input/model_text.h"

#include <algorithm>

#include "core/format_pattern.h"
#include "core/text_tools.h"

namespace barvon {
namespace {

std::string Without_Controls(std::string_view text) {
  std::string clean(text);
  std::replace_if(
      clean.begin(), clean.end(),
      [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
  return clean;
}

}  // namespace

void Model_Text::Right(std::string_view text, std::size_t width) {
  text_ += Right_Justified(Without_Controls(text), width);
}

void Model_Text::Left(std::string_view text, std::size_t width) {
  text_ += Left_Justified(Without_Controls(text), width);
}

void Model_Text::Blanks(std::size_t count) { text_.append(count, ' '); }

void Model_Text::Format_One(double value, std::string_view pattern) {
  text_ += Format_Number(value, pattern);
}

void Model_Text::End_Line() { text_ += "\r\n"; }

}  // namespace barvon
