#pragma once

#include <string>
#include <string_view>

namespace barvon {

/// Text in memory is UTF-8; project files hold one byte a column in Windows-1252. The five bytes
/// that this encoding leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the
/// same number, so that every byte survives the way through memory.

bool Is_ASCII(std::string_view bytes);
bool Is_UTF8(std::string_view bytes);
/// True when the bytes are UTF-8 and hold a character beyond ASCII.
bool Reads_As_UTF8(std::string_view bytes);

/// UTF-8 to Windows-1252. A character that the encoding does not hold, and a byte that is no
/// UTF-8, becomes '?'.
std::string To_File_Bytes(std::string_view text);
/// Windows-1252 to UTF-8. Never fails.
std::string From_File_Bytes(std::string_view bytes);
/// True when every character of the UTF-8 text has a byte of its own in Windows-1252.
bool Fits_File_Encoding(std::string_view text);
/// Whether the UTF-8 text holds a control character: a tab, what would end a line, or what stands
/// for a byte without a letter.
bool Has_Control_Letters(std::string_view text);

/// Settings hold paths of any alphabet: Windows-1252 where it holds the text and can't be
/// mistaken for UTF-8, UTF-8 otherwise. The two undo each other for every text.
std::string To_Settings_Bytes(std::string_view text);
std::string From_Settings_Bytes(std::string_view bytes);

}  // namespace barvon
