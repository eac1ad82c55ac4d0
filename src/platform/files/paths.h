#pragma once

#include <string>
#include <string_view>

namespace barvon {

/// Folder and name with exactly one separator between them.
std::string Join_Path(std::string_view folder, std::string_view name);

/// The folder part of a path without its last separator; "." when the path has none.
std::string Folder_Of(std::string_view path);
/// The part of a path behind its last separator.
std::string Name_Of(std::string_view path);
/// The path from the root, with links and dots left as they are.
std::string Absolute_Path(const std::string& path);
/// The same file's path without ".", ".." and empty parts. A link stays, but for one that ".."
/// leads back from: that leads above what the link leads to. As given where ".." comes behind what
/// is no folder, or the path does not begin at the root.
std::string Without_Dots(const std::string& path);

/// The path up to the last dot of its file name, without the dot; the path itself when its name
/// has no dot.
std::string Base_Name(std::string_view path);
/// The path with its extension replaced, or added when its name has no dot: ("a/b.DUI", "DUE").
std::string With_Extension(std::string_view path, std::string_view extension);

}  // namespace barvon
