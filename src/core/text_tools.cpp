#include "core/text_tools.h"

#include <algorithm>

namespace barvon {
namespace {

bool Continues_Character(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// Where the dot of the extension stands, npos when the file's name has none: a dot in a folder's
/// name is no extension.
std::size_t Extension_Dot(std::string_view path) {
  const auto dot = path.rfind('.');
  const auto slash = path.rfind('/');
  if (dot == std::string_view::npos) return dot;
  return slash != std::string_view::npos && dot < slash ? std::string_view::npos : dot;
}

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

std::string Upper_Case(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

bool Equal_Ignoring_Case(std::string_view a, std::string_view b) {
  return a.size() == b.size() && Upper_Case(a) == Upper_Case(b);
}

std::string Remove_Character(std::string_view text, std::string_view character) {
  std::string result(text);
  if (character.empty()) return result;
  for (auto at = result.find(character); at != std::string::npos; at = result.find(character, at)) {
    result.erase(at, character.size());
  }
  return result;
}

std::string Base_Name(std::string_view path) {
  return std::string(path.substr(0, Extension_Dot(path)));
}

std::string With_Extension(std::string_view path, std::string_view extension) {
  return Base_Name(path).append(".").append(extension);
}

}  // namespace barvon
