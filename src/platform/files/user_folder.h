#pragma once

#include <optional>
#include <string>

namespace barvon {

/// The folder of the user's own files of this program, made when it is missing, open to the user
/// alone: "barvon" in $XDG_DATA_HOME, where that is a path from the root, else in ".local/share" of
/// the home folder. Nothing when neither is known, it can't be made or a stranger has put it there.
/// It has no separator at its end.
std::optional<std::string> User_Folder();

}  // namespace barvon
