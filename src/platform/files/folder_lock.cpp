#include "platform/files/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace barvon {

Folder_Lock::Folder_Lock(const std::string& folder)
    : descriptor_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (descriptor_ < 0) return;
  taken_ = ::flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

Folder_Lock::~Folder_Lock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace barvon
