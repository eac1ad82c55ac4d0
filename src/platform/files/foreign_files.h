#pragma once

#include <string>

namespace barvon {

/// True when the file may have been put under its name by somebody whom nobody has let in: its
/// folder can be written by everybody, and it belongs neither to this user nor to root nor to the
/// folder's owner. A link is looked at itself, and then what it leads to. False for what is not
/// there.
bool Is_Put_By_A_Stranger(const std::string& path);

}  // namespace barvon
