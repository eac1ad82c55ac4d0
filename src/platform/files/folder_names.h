#pragma once

#include <string>
#include <vector>

namespace barvon {

/// What is in a folder, by its name.
struct Folder_Name {
  std::string name;
  bool may_be_link = false;  // a symbolic link, or the file system does not say what it is
};

/// The names of what is in a folder, in no order. They are only read: nothing is asked about what
/// bears them. None when the folder can't be read.
std::vector<std::string> Names_In_Folder(const std::string& folder);

/// Adds the same with what the folder itself knows of each. 0, or an errno value when not all of
/// them could be read.
int Read_Folder(const std::string& folder, std::vector<Folder_Name>& names);
/// Of a folder that has just been opened for reading; closes it.
int Read_Open_Folder(int descriptor, std::vector<Folder_Name>& names);

}  // namespace barvon
