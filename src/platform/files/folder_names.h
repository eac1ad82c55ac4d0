#pragma once

#include <string>
#include <vector>

namespace barvon {

/// The names of what is in a folder, in no order. They are only read: nothing is asked about what
/// bears them. None when the folder can't be read.
std::vector<std::string> Names_In_Folder(const std::string& folder);

}  // namespace barvon
