#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/known_folders.h"

namespace barvon {

/// Names on disk are matched without regard to the case of their letters, since users' files come
/// from systems that ignore it.

/// The existing path that the given one stands for: itself when it exists, otherwise one whose
/// file name, and then whose folders, differ only in case; of several the first in byte order. A
/// folder that exists as given is never left for another one. Nothing when there is none.
std::optional<std::string> Find_Path(const std::string& path);
/// The same for who asks often: a folder is not read for each.
std::optional<std::string> Find_Path(const std::string& path, Known_Folders& folders);

/// Find_Path for writing: the existing file's path, otherwise the path as given.
std::string Path_To_Write(const std::string& path);
std::string Path_To_Write(const std::string& path, Known_Folders& folders);

/// Paths of what is in the folder and matches the pattern by its name ("Tmpfile.*"; '*' stands for
/// any run of characters) without regard to case: files, links, pipes and the like, folders not.
/// Sorted by name.
std::vector<std::string> Matching_Files(const std::string& folder, std::string_view pattern);

/// File_Exist: true when a search for the name in the current directory finds something.
bool File_Exist(const std::string& name);

}  // namespace barvon
