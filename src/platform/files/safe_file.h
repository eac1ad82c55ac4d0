#pragma once

#include <sys/types.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace barvon {

/// Folders in which files have been replaced and that are not on the disk yet, so that several
/// files of one folder wait for it once.
class Unsynced_Folders {
 public:
  void Add(const std::string& folder);
  /// Waits for each, once. The folders that could not be synced, with their errno values; all are
  /// forgotten.
  std::map<std::string, int> Sync();

 private:
  std::set<std::string> folders_;
};

/// Writes a file so that its name holds the old content or the new, never a part: the bytes go to
/// a new file of its own name beside the target (beside what a symbolic link leads to), every
/// write, flush, sync and close is checked, and the new file is renamed over the old.
///
/// Errors are errno values; 0 is success. Nothing is shown to the user.
class Safe_File {
 public:
  /// Nothing is opened before Open.
  Safe_File() = default;
  /// A file that was not committed is removed; the target stays as it was.
  ~Safe_File();
  Safe_File(const Safe_File&) = delete;
  Safe_File& operator=(const Safe_File&) = delete;

  /// Opens the new file beside `path`. Fails where `path` could not be written in place either, and
  /// with EACCES on a link that a stranger has put there (Is_Put_By_A_Stranger).
  int Open(const std::string& path);
  /// Adds bytes. The first error is kept and given back by every later call.
  int Write(std::string_view bytes);
  /// Brings all bytes onto the disk, so that Commit has only names to change. No bytes follow.
  int Settle();
  /// Puts the new file in the target's place, with the target's permissions. That this lasts is
  /// waited for here, or left to the caller when `later` is given, under Folder.
  int Commit(Unsynced_Folders* later = nullptr);
  /// The file that Commit replaces: what a link under the name led to when it was opened. A link
  /// that comes under this path afterwards is replaced, not followed.
  const std::string& Target() const { return target_; }
  /// The folder of the target, or of what a link under its name leads to.
  std::string Folder() const;

 private:
  int Make_Working_File(mode_t mode);
  bool Is_Own_Still();
  bool Lasts() const;
  int Fail(int error);
  void Discard();

  int descriptor_ = -1;
  int error_ = 0;
  bool settled_ = false;
  std::string target_;
  std::string working_;
  std::string note_;
  std::string pending_;
};

/// Replaces the whole content of a file. 0 or an errno value.
int Write_Whole_File(const std::string& path, std::string_view bytes);

/// Reads a whole file of at most 256 MiB, a thousand times the size of a project. 0 or an errno
/// value.
int Read_Whole_File(const std::string& path, std::string& bytes);

/// Makes a new file that no link can lead elsewhere: what is under the name is removed first,
/// and the file is created exclusively. It is for programs that run now and is not waited for on
/// the disk. `mode` is what the process's mask leaves of its permissions. 0 or an errno value;
/// nothing stays after a failure.
int Write_Exclusive_File(const std::string& path, std::string_view bytes, mode_t mode = 0666);

/// Where a save notes the name of its working file while it lasts, so that the next start can
/// remove what a kill left behind. Empty: no notes are taken.
void Set_Save_Notes_Folder(std::string folder);

/// The folder of this program's that is soon removed with everything in it: files that are saved
/// right in it are not waited for on the disk. Empty: there is none.
void Set_Passing_Folder(std::string folder);

/// Removes working files whose writer no longer lives: those noted in the notes folder and those
/// that are in the given folders. Returns the removed paths.
std::vector<std::string> Remove_Leftover_Saves(const std::vector<std::string>& folders);

}  // namespace barvon
