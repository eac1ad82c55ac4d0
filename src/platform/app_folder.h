#pragma once

#include <string>
#include <string_view>

namespace barvon {

/// The folder of the running program, as the operating system tells it.
std::string Program_Folder();

/// The application directory: where BARVON.INI stands and where solvers run. It is the program's
/// folder until Set_Application_Folder names another.
const std::string& Application_Folder();
void Set_Application_Folder(std::string folder);

/// Makes the folder the current one. False when it can't be entered.
bool Change_Current_Folder(const std::string& folder);

/// Folder and name with exactly one separator between them.
std::string Join_Path(std::string_view folder, std::string_view name);

/// The folder part of a path without its last separator; "." when the path has none.
std::string Folder_Of(std::string_view path);
/// The part of a path behind its last separator.
std::string Name_Of(std::string_view path);
/// The path from the root, with links and dots left as they are.
std::string Absolute_Path(const std::string& path);

}  // namespace barvon
