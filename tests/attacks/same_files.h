#pragma once

#include <optional>
#include <string>

namespace barvon::testing {

/// The bytes of a file; nothing where there is none.
std::optional<std::string> Bytes_Of(const std::string& path);

/// The name without the process and the time that the names of a window's own files begin with.
std::string Common_Name(const std::string& name);
/// The path of the file in `root` that has that name, or that one in common.
std::string Find_File(const std::string& root, const std::string& name);

/// Whether what a save left under a name is what it should be: the same bytes. What bears the hour
/// or the process must be whole and say the same: reports, recovery copies, locks.
bool Is_Same(const std::string& name, const std::optional<std::string>& seen,
             const std::optional<std::string>& wanted);

}  // namespace barvon::testing
