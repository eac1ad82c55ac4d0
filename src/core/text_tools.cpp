#include "core/text_tools.h"

#include <algorithm>

namespace barvon {
namespace {

bool Continues_Character(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

std::size_t Character_Count(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return !Continues_Character(c); }));
}

std::string First_Characters(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    if (!Continues_Character(text[at]) && count-- == 0) break;
  }
  return std::string(text.substr(0, at));
}

std::string Right_Justified(std::string_view text, std::size_t width) {
  const std::size_t length = Character_Count(text);
  return std::string(width > length ? width - length : 0, ' ').append(text);
}

std::string Left_Justified(std::string_view text, std::size_t width) {
  const std::size_t length = Character_Count(text);
  return std::string(text).append(width > length ? width - length : 0, ' ');
}

std::string FitField(std::string_view text, std::size_t width) {
  return First_Characters(text, width);
}

std::string Trimmed_Right(std::string_view text) {
  const auto last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : Trimmed_Right(text.substr(first));
}

std::string Remove_Character(std::string_view text, std::string_view character) {
  std::string result(text);
  if (character.empty()) return result;
  for (auto at = result.find(character); at != std::string::npos; at = result.find(character, at)) {
    result.erase(at, character.size());
  }
  return result;
}

}  // namespace barvon
