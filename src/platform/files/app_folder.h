#pragma once

#include <string>

namespace barvon {

/// The folder of the running program, as the operating system tells it.
std::string Program_Folder();

/// The application directory: where BARVON.INI is and where solvers run. It is the program's
/// folder until Set_Application_Folder names another.
const std::string& Application_Folder();
void Set_Application_Folder(std::string folder);

/// Makes the folder the current one. False when it can't be entered.
bool Change_Current_Folder(const std::string& folder);

}  // namespace barvon
