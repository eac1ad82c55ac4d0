#pragma once

#include <functional>
#include <string>

namespace barvon {

/// Shows a text file: in the editor that the desktop has for text, otherwise in a window of the
/// program's own. False when it can't be shown at all.
bool Open_Document(const std::string& path);

using Document_Opener = std::function<bool(const std::string& path)>;
/// Puts another opener in place and returns the one that was there. Without one, nothing can be
/// shown.
Document_Opener Set_Document_Opener(Document_Opener opener);

}  // namespace barvon
