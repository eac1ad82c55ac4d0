#include "platform/files/local_files.h"

#include <linux/magic.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>

namespace barvon {
namespace {

/// In a container the root is an overlay of folders of this computer.
constexpr std::array<long, 7> kLocal{EXT4_SUPER_MAGIC,     XFS_SUPER_MAGIC, BTRFS_SUPER_MAGIC,
                                     F2FS_SUPER_MAGIC,     TMPFS_MAGIC,     RAMFS_MAGIC,
                                     OVERLAYFS_SUPER_MAGIC};

bool Is_Local(const struct statfs& status) {
  return std::ranges::find(kLocal, static_cast<long>(status.f_type)) != kLocal.end();
}

}  // namespace

bool Is_On_Local_Files(const std::string& path) {
  struct statfs status {};
  return ::statfs(path.c_str(), &status) == 0 && Is_Local(status);
}

bool Is_On_Local_Files(int descriptor) {
  struct statfs status {};
  return ::fstatfs(descriptor, &status) == 0 && Is_Local(status);
}

}  // namespace barvon
