#include "platform/files/regular_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace barvon {

int Open_Regular_File(const std::string& path, int& descriptor, struct stat& status) {
  // A pipe that nobody writes to would be waited for.
  descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return errno;
  int error = ::fstat(descriptor, &status) == 0 ? 0 : errno;
  if (error == 0 && S_ISDIR(status.st_mode)) error = EISDIR;
  if (error == 0 && !S_ISREG(status.st_mode)) error = ENOTSUP;
  if (error != 0) ::close(descriptor);
  return error;
}

}  // namespace barvon
