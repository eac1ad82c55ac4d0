#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "attacks/attacked_saves.h"
#include "attacks/file_calls.h"

namespace barvon::testing {

/// How one attacked save came out. `files` has a letter for each file: n new, o old, - missing
/// as one about the first may be, x none of these.
struct Attack_Result {
  std::string files;
  bool told = false;
  bool unsynced = false;  // met a failed fsync or close of a file of its own or its folder
  bool may_be_silent = false;
  bool ended_badly = false;  // by a signal of its own, or never
  bool killed = false;       // as planned
  bool refails = false;      // the same save again, without faults, gives no new files or words
  int calls = 0;             // counted, up to the end of the save
  int failed = 0;            // calls that met their fault
  std::vector<std::string> call_names;
  std::set<std::string> left;        // behind the save
  std::set<std::string> left_after;  // behind the next start
  std::string told_text;
  double seconds = 0;  // that the save took

  bool All_New() const { return files.find_first_not_of('n') == std::string::npos; }
  bool Damaged() const { return files.find('x') != std::string::npos; }
  bool Silent() const { return !All_New() && !told && !killed && !may_be_silent; }
  /// All is there, and may be gone when the power fails, without a word.
  bool Untold_Sync() const { return unsynced && !told && !killed && !may_be_silent; }
};

/// One save that is done over and over, each time by a process of its own, in a folder that is made
/// anew.
class Attack {
 public:
  /// `fresh`: none of the written files is there before. `root` is a path without links.
  Attack(std::string root, Attacked_Save save, bool fresh);

  /// What the save does when nothing fails. False, with the reason in `told_text`, when it does not
  /// write all its files.
  bool Learn();
  const Attack_Result& Learned() const { return learned_; }
  const Attacked_Save& save() const { return save_; }
  bool fresh() const { return fresh_; }
  /// Bytes of the files that it writes.
  long New_Bytes() const;

  /// Does the save with these faults.
  Attack_Result Run(const Call_Plan& plan);
  /// Does it and kills the process so many seconds after the save began.
  Attack_Result Kill_After(double seconds);
  /// Does it where the file system has room for so many bytes more. `root` is a tmpfs that this
  /// process may mount.
  Attack_Result Run_In_Room(long bytes);

 private:
  enum class Learning { Nothing, Old, New };
  using Contents = std::map<std::string, std::optional<std::string>>;  // by file

  Attack_Result Run(const Call_Plan& plan, double kill_after, long room);
  void In_Child(const Call_Plan& plan, long room);
  void Lay(Attack_Bench& bench) const;
  Contents Read_Files() const;
  std::string States() const;
  std::set<std::string> Names() const;
  std::set<std::string> Litter() const;
  bool Was_Told(const std::vector<std::string>& told, std::string& text) const;

  std::string root_;
  Attacked_Save save_;
  bool fresh_;
  Learning learning_ = Learning::Nothing;
  Contents old_, new_;
  std::set<std::string> expected_;
  std::set<std::string> usual_words_;
  Attack_Result learned_;
};

}  // namespace barvon::testing
