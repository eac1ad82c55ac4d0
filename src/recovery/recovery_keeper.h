#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "core/project_record.h"
#include "recovery/recovery_folder.h"

namespace barvon {

/// Keeps a copy of the project for as long as it has changes that no file has: what stands in the
/// record counts, which is what a screen has accepted, not what is being typed in one. There is one
/// keeper of a window.
class Recovery_Keeper {
 public:
  explicit Recovery_Keeper(const ProjectRecord& record);
  Recovery_Keeper(const Recovery_Keeper&) = delete;
  Recovery_Keeper& operator=(const Recovery_Keeper&) = delete;

  /// Brings the copy up to date: it is written when something has changed since the last time, and
  /// removed when nothing is unsaved. A failure is told in the status area, once; that is taken
  /// back when a copy is written again.
  void Look();

  /// The project is as its file, or as a new one; the list of dilutions is.
  void Settle();
  void Settle_Dilutions();
  /// The record is that of a copy. True when this window has a copy of it.
  bool Take_Over(const Recovery_Copy& copy);

  /// The program ends, as a person wants it: nothing is kept.
  void Leave();
  /// The program ends and nobody could be asked: what is unsaved is kept.
  void Leave_Unasked();

 private:
  std::unique_ptr<ProjectRecord> Accepted() const;
  bool Is_Unsaved(const ProjectRecord& accepted) const;
  bool Dilutions_Are_Unsaved() const;
  bool Keep(std::unique_ptr<ProjectRecord> accepted);

  const ProjectRecord& record_;
  Own_Copy own_;
  std::uint64_t project_;  // what was settled last, as sums
  std::uint64_t dilutions_;
  std::uint64_t kept_ = 0;  // what the copy holds
  std::string told_;        // that there can be no copy, "" when there is one
  bool ended_ = false;
};

}  // namespace barvon
