#pragma once

#include <string>
#include <string_view>

namespace barvon {

/// What a line ends in where nothing else is known: as in the program's own files.
inline constexpr char kUsualLineEnd[] = "\r\n";

/// The text with "\n" for each of its line ends, "\r\n", "\n" or "\r".
std::string With_Line_Feeds(std::string_view text);

/// The line end that most lines of the text have, kUsualLineEnd when it has none. Of equally many
/// the first in the text.
std::string Prevailing_Line_End(std::string_view text);

/// The edited text, whose lines end in "\n", with the line ends that `former` had: a line that is
/// in both keeps its own, a line that was typed over the one of the line in its place, any other
/// gets the prevailing one. A text with nothing edited comes out as it was.
std::string With_Former_Line_Ends(std::string_view former, std::string_view edited);

}  // namespace barvon
