#include "core/model_input/model_text.h"

#include <algorithm>

#include "core/format_pattern.h"
#include "core/text_tools.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

/// As bytes of the file, whatever would break a line or its columns as a blank.
std::string Line_Bytes(std::string_view text) {
  std::string clean(text);
  std::replace_if(
      clean.begin(), clean.end(),
      [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
  return To_File_Bytes(clean);
}

std::string With_Subscripts(std::string_view field, int i, int j) {
  std::string name(field);
  if (i != 0) name += "(" + std::to_string(i);
  if (j != 0) name += "," + std::to_string(j);
  return i != 0 ? name + ")" : name;
}

}  // namespace

void Model_Text::Right(std::string_view text, std::size_t width) {
  const std::size_t length = Character_Count(text);
  Blanks(width > length ? width - length : 0);
  text_ += Line_Bytes(text);
}

void Model_Text::Left(std::string_view text, std::size_t width) {
  const std::size_t length = Character_Count(text);
  text_ += Line_Bytes(text);
  Blanks(width > length ? width - length : 0);
}

void Model_Text::Named_Left(std::size_t width, std::string_view field, std::string_view text,
                            int i) {
  if (Character_Count(text) > width) Note_Wide(text, width, field, i, 0);
  Left(text, width);
}

void Model_Text::Blanks(std::size_t count) { text_.append(count, ' '); }

void Model_Text::Named_Formatted(std::string_view pattern, std::string_view field, double value,
                                 int i) {
  const std::string text = Format_Number(value, pattern);
  if (text.size() > pattern.size()) Note_Wide(text, pattern.size(), field, i, 0);
  text_ += text;
}

void Model_Text::Format_One(double value, std::string_view pattern) {
  text_ += Format_Number(value, pattern);
}

void Model_Text::End_Line() {
  text_ += "\r\n";
  ++line_;
}

std::string_view Model_Text::Take_Name(std::string_view& fields) {
  const std::size_t end = std::min(fields.find(' '), fields.size());
  const std::string_view name = fields.substr(0, end);
  fields.remove_prefix(std::min(end + 1, fields.size()));
  return name;
}

void Model_Text::Note_Wide(std::string_view text, std::size_t width, std::string_view field, int i,
                           int j) {
  wide_values_.push_back(
      {line_, std::string(field), With_Subscripts(field, i, j), std::string(text), width});
}

}  // namespace barvon
