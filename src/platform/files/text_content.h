#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace barvon {

/// How a text file holds its characters.
enum class Text_Encoding {
  ASCII,
  Windows_1252,
  UTF8,
  UTF8_With_Mark,  // behind the three bytes of a byte order mark
};

/// "UTF-8", "Windows-1252", as a person reads it.
const char* Encoding_Name(Text_Encoding encoding);

/// What the file's bytes are held to be: whatever is no UTF-8 is Windows-1252, of which every byte
/// is a character.
Text_Encoding Encoding_Of(std::string_view bytes);

/// A text file as it was read: its characters in UTF-8, its line ends as they were.
struct Text_Content {
  Text_Encoding encoding = Text_Encoding::ASCII;
  std::string text;
};

Text_Content Content_Of(std::string_view bytes);

/// Whether a window that edits lines gives the text back unchanged. Some rare characters are line
/// ends or marks of the toolkit's own, and lines of more than kLongestEditedLine bytes are slow.
bool Can_Be_Edited(std::string_view text);
inline constexpr int kLongestEditedLine = 10000;

/// The bytes of a file for the text, what Content_Of undoes. ASCII that has got other letters
/// becomes Windows-1252 where that holds them and can't be mistaken, UTF-8 otherwise. Nothing when
/// the encoding lacks a character.
std::optional<std::string> Bytes_Of(const Text_Content& content);

}  // namespace barvon
