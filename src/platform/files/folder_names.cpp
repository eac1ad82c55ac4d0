#include "platform/files/folder_names.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace barvon {

std::vector<std::string> Names_In_Folder(const std::string& folder) {
  std::vector<Folder_Name> entries;
  Read_Folder(folder, entries);
  std::vector<std::string> names;
  for (Folder_Name& entry : entries) names.push_back(std::move(entry.name));
  return names;
}

int Read_Folder(const std::string& folder, std::vector<Folder_Name>& names) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  return descriptor < 0 ? errno : Read_Open_Folder(descriptor, names);
}

int Read_Open_Folder(int descriptor, std::vector<Folder_Name>& names) {
  DIR* const open = ::fdopendir(descriptor);
  if (open == nullptr) {
    const int error = errno;
    ::close(descriptor);
    return error;
  }
  errno = 0;  // by which alone the end and a failure differ
  while (const dirent* entry = ::readdir(open)) {
    std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    names.push_back({std::move(name), entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN});
    errno = 0;
  }
  const int error = errno;
  ::closedir(open);
  return error;
}

}  // namespace barvon
