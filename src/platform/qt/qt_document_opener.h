#pragma once

#include <functional>
#include <string>

namespace barvon {

/// Hands the file to the desktop when it has a program for such a text, and shows it in the
/// program's own text window otherwise. False when it can't be read.
bool Open_Qt_Document(const std::string& path);

/// Shows a text in a window of the program's own; false when it can't be read. Without one nothing
/// is shown there. Returns the one that was in place.
using Own_Text_Window = std::function<bool(const std::string& path)>;
Own_Text_Window Set_Own_Text_Window(Own_Text_Window window);

}  // namespace barvon
