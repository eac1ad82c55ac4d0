#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

#include "platform/files/lock_holder.h"

namespace barvon {

/// A file that says who works with something, for as long as that lasts. It is made whole or not
/// at all, and of several programs that make it at the same time one succeeds. The maker keeps the
/// file locked as well: a lock that the system has let go of belongs to no running program of this
/// host, whatever its text says.
class Lock_File {
 public:
  enum class Outcome {
    Taken,         // it is this program's until Release
    Held,          // by somebody else, see Holder
    Not_Possible,  // the folder takes no new file, or something else has the name
  };

  /// What becomes of a lock of another host, or of nobody that can be told.
  enum class Foreign {
    Stays,
    Goes_When_Let_Go_Of,  // by the system: for folders that only one user's windows use
    Goes,                 // a person wants it
  };

  Lock_File() = default;
  ~Lock_File() { Release(); }
  Lock_File(Lock_File&& other) noexcept;
  Lock_File& operator=(Lock_File&& other) noexcept;
  Lock_File(const Lock_File&) = delete;
  Lock_File& operator=(const Lock_File&) = delete;

  /// Makes the file under that path, after Release. What an ended program of this host left is
  /// taken over. What a running program of this host has is never taken.
  Outcome Take(const std::string& path, Foreign foreign = Foreign::Stays);
  /// Removes the file if it is still this program's, also from a folder that was renamed since.
  void Release();

  bool Is_Held() const { return descriptor_ >= 0; }
  const std::string& Path() const { return path_; }
  /// Whether the file is held and has this name, whatever its folder was called when it was made.
  bool Is_Under(const std::string& path) const;
  /// Where the file is now; "" when it is gone, or not held.
  std::string Present_Path() const;
  /// Why the last Take was not possible, as an errno value.
  int Error() const { return error_; }
  /// Who had the lock at the last Take; nothing when its file does not say.
  const std::optional<Lock_Holder>& Holder() const { return holder_; }

 private:
  enum class Step { Taken, There_Is_One, Not_Possible, Held, Again };
  Step Make();
  Step Make_In_Steps();
  Step Look_At_Former(Foreign foreign);
  Step Impossible(int error);

  int descriptor_ = -1;
  int error_ = 0;
  std::string path_;
  std::optional<Lock_Holder> holder_;
};

}  // namespace barvon
