#pragma once

#include <sys/types.h>

#include <string>

namespace barvon {

/// Who has put a name into a folder, and who could have.
struct Folder_Entry {
  uid_t owner = 0;
  uid_t folder_owner = 0;
  mode_t folder_mode = 0;
};

/// True when everybody can write the folder and the entry is neither this user's nor root's nor the
/// folder owner's.
bool Is_A_Strangers(const Folder_Entry& entry, uid_t user);

/// True when the file may have been put under its name by somebody whom nobody has let in: its
/// folder can be written by everybody, and it belongs neither to this user nor to root nor to the
/// folder's owner. A link is looked at itself, and then what it leads to. False for what is not
/// there.
bool Is_Put_By_A_Stranger(const std::string& path);

}  // namespace barvon
