#include "platform/files/folder_names.h"

#include <dirent.h>

#include <utility>

namespace barvon {

std::vector<std::string> Names_In_Folder(const std::string& folder) {
  std::vector<std::string> names;
  DIR* const open = ::opendir(folder.c_str());
  if (open == nullptr) return names;
  while (const dirent* entry = ::readdir(open)) {
    std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(std::move(name));
  }
  ::closedir(open);
  return names;
}

}  // namespace barvon
