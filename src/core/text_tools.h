#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace barvon {

/// Widths count characters: texts here are UTF-8 and one character becomes one column.
std::size_t Character_Count(std::string_view text);
/// The first `count` characters, or the whole text when it is shorter.
std::string First_Characters(std::string_view text, std::size_t count);

/// The text in a field of `width` columns; a text that does not fit is not cut.
std::string Right_Justified(std::string_view text, std::size_t width);
std::string Left_Justified(std::string_view text, std::size_t width);

/// The first `width` characters of the text when it is longer, otherwise the text.
std::string FitField(std::string_view text, std::size_t width);

/// Without the blanks at both ends.
std::string Trimmed(std::string_view text);
std::string Trimmed_Right(std::string_view text);

/// The text without any occurrence of the character; an empty character leaves the text as it is.
std::string Remove_Character(std::string_view text, std::string_view character);

}  // namespace barvon
