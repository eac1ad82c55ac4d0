#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/files/lock_file.h"

namespace barvon {

// The project that is open in this window is held by a lock file beside it, so that whoever opens
// it in another window, of this host or another, is told. Its names and links are one project; of
// hard links in several folders the windows of one user know. Where the folder takes no file there
// is no lock, and nobody is told. What stands on the disk is noted at every load and save.

/// What the file of a project was when it was loaded or saved.
struct File_State {
  std::int64_t changed = 0;  // nanoseconds since 1970
  std::int64_t size = 0;     // bytes
  bool operator==(const File_State&) const = default;
};
/// Nothing where there is no file.
std::optional<File_State> State_Of_File(const std::string& path);

/// The locks of one project.
struct Project_Locks {
  Lock_File beside;
  Lock_File shared;  // in the folder per user, of a file that has hard links
};

/// A project that is about to be opened or saved under a path. Unless it is kept, what it has
/// locked is let go of.
class Project_Claim {
 public:
  /// Locks the project; one that somebody holds is opened all the same when a person wants that.
  /// False when not.
  bool To_Open(const std::string& path);
  /// Locks the project; a person is asked before one that somebody holds, or that has changed on
  /// the disk since it was loaded, is written over. False when it is not to be.
  bool To_Save(const std::string& path);
  /// The project has been loaded or saved: it is this window's, and the former one is not. A
  /// state that is given is what is taken for its file's.
  void Keep();
  void Keep(std::optional<File_State> state);

 private:
  bool Lock(const std::string& question);

  std::string path_;
  std::optional<File_State> state_;
  std::optional<Project_Locks> locks_;  // nothing: the window has them already
};

/// Locks what the open project lacks and nobody else has: a project that was opened although
/// another window had it, once that has let go of it, and hard links that were made since. Asks
/// nobody.
void Hold_What_Is_Free();

/// Says in the status area that the project is not saved, and why; and takes that back, if it still
/// stands there: before the next save, and when the project is loaded or saved.
void Note_Unsaved(const std::string& text);
void Take_Back_Unsaved_Note();

/// The window works on no project that has a file.
void Release_Project();

/// The path of the project that the window works on, "" when it has no file; and what its file was.
const std::string& Held_Project();
std::optional<File_State> Held_State();

/// The folder that the open project is in now, which may have been renamed; "" when its lock does
/// not tell.
std::string Folder_Of_Held_Project();

/// The name of the lock file of a project, beside what its links lead to.
std::string Lock_Path_Of(const std::string& project);

}  // namespace barvon
