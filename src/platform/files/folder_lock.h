#pragma once

#include <string>

namespace barvon {

/// Keeps other programs of this system out of a folder for as long as it lives. They only notice
/// when they ask for the lock too; it ends with this program, however that ends.
class Folder_Lock {
 public:
  explicit Folder_Lock(const std::string& folder);
  ~Folder_Lock();
  Folder_Lock(const Folder_Lock&) = delete;
  Folder_Lock& operator=(const Folder_Lock&) = delete;

  /// True when another holds the lock. A folder whose file system knows no locks is never taken.
  bool Is_Taken() const { return taken_; }

 private:
  int descriptor_ = -1;
  bool taken_ = false;
};

}  // namespace barvon
