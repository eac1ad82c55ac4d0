#pragma once

#include <functional>
#include <string>

namespace barvon {

/// Hands a text file to the editor that the desktop has for text. False when the desktop has none.
bool Open_Document(const std::string& path);

using Document_Opener = std::function<bool(const std::string& path)>;
/// Puts another opener in place and returns the one that was there. Without one, there is no
/// editor.
Document_Opener Set_Document_Opener(Document_Opener opener);

}  // namespace barvon
