#pragma once

#include <string>
#include <vector>

namespace companion {

struct Output_File {
  std::string name;
  std::string bytes;
};

/// Writes every file anew under another name and renames them when all are whole. Of a failure
/// nothing is left: what was begun is removed. Gives back the name that could not be written, or
/// nothing. A SIGTERM that comes meanwhile ends the program as it does anywhere else, before the
/// first file has its name or after the last one has.
std::string Write_Outputs(const std::vector<Output_File>& files);

}  // namespace companion
