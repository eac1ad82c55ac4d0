#pragma once

#include <functional>
#include <string>

namespace barvon {

/// Asks for a name and writes a picture under it, as a whole or not at all. `kind` is "PNG" or
/// "SVG": it heads the dialog, and a name without its extension gets it. `content` is drawn once a
/// name is there; an empty content counts as a failure. A failure is told to the user. True when
/// the file is written.
bool Save_Picture(const std::string& name, const std::string& kind,
                  const std::function<std::string()>& content);

}  // namespace barvon
