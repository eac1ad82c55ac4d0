#pragma once

#include <string>

namespace barvon {

/// Hands the file to the desktop when it has a program for such a text, and shows it in a
/// Text_Window otherwise. False when it can't be read.
bool Open_Qt_Document(const std::string& path);

}  // namespace barvon
