#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/files/known_folders.h"

namespace barvon {

/// Whether a file that is no project would be written over one: its name, or that of what its
/// symbolic links lead to, ends in .DUI in whatever case, or it is the same file as one of
/// `projects` under another name.
bool Leads_To_A_Project(const std::string& target, const std::vector<std::string>& projects);

/// The same for the many files that a batch writes: what a file costs does not grow with the
/// projects of a folder.
class Project_Guard {
 public:
  /// So many of a folder are asked for each file, as long as there are no more.
  static constexpr std::size_t kFewProjects = 16;

  /// `folders` lives as long as this.
  Project_Guard(std::vector<std::string> projects, Known_Folders& folders);
  /// `file` is the path as it is written, with the letters' case that it has on disk.
  bool Leads_To_A_Project(const std::string& file) const;

 private:
  bool A_Link_Leads_To(const struct stat& file) const;

  std::vector<std::string> projects_;
  std::vector<std::string> oddly_named_;                    // those of them that don't end in .DUI
  std::map<std::string, std::set<std::string>> by_folder_;  // the names of the others
  Known_Folders& folders_;
};

}  // namespace barvon
