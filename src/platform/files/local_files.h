#pragma once

#include <string>

namespace barvon {

/// True when the file, or folder, is on a file system of which this is known: only this computer
/// changes it, so that the system tells of every change, and it counts the names of a file. False
/// for a network's, for those that a program makes up, and for what can't be asked about.
bool Is_On_Local_Files(const std::string& path);
bool Is_On_Local_Files(int descriptor);

}  // namespace barvon
