#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/lock_file.h"
#include "recovery/recovery_copy.h"

namespace barvon {

// The recovery copies of a user are files in "recovery" of the folder per user, which only the user
// can read. Beside each is a lock of the window whose it is: a copy whose lock can be taken is one
// that an ended window left.

/// The copy of this window, under a name of its own.
class Own_Copy {
 public:
  /// Replaces the copy whole. It is for the day that this program ends, not that the power fails:
  /// nothing waits for the disk. 0 or an errno value, with the former copy as it was.
  int Write(const std::string& bytes);
  bool Stands() const;
  void Remove();
  /// The copy stays, for the next start.
  void Leave();

 private:
  int Take_Name();

  Lock_File lock_;
  std::string path_;
  bool stands_ = false;
};

/// A copy that an ended window left, and that no other window looks at meanwhile.
struct Left_Copy {
  std::string path;
  Lock_File lock;
  std::time_t written = 0;
  std::optional<Recovery_Copy> copy;  // nothing: it is damaged
};

/// All of them, the latest first. What else a killed window left in the folder is removed.
std::vector<Left_Copy> Take_Left_Copies();
/// Removes the file, and lets go of it. False, with errno set, when it stays.
bool Remove_Left_Copy(Left_Copy& left);

}  // namespace barvon
