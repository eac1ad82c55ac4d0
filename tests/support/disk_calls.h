#pragma once

namespace barvon::testing {

/// What this program has asked of the file system while it lives; what the programs that it starts
/// ask is not in it.
class Disk_Calls {
 public:
  Disk_Calls();
  /// Waits for the disk: fsync and fdatasync.
  int Waits() const;
  /// Questions about a path: stat, lstat, fstatat and access.
  int Questions() const;
  /// Folders opened to read what names they hold.
  int Readings() const;

 private:
  int waits_before_, questions_before_, readings_before_;
};

}  // namespace barvon::testing
