#pragma once

#include <sys/types.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/files/folder_names.h"

namespace barvon {

/// What is in folders, for who asks over and over: a batch of many files in one folder would read
/// all its names for each. A folder that was read often is watched from then on, and what it holds
/// is kept as the system tells of each name that comes or goes, whoever makes it. So an answer is
/// always as true as reading the folder now. A folder of which the system does not tell all
/// (`Is_On_Local_Files`), or that can't be watched, is read each time.
class Known_Folders {
 public:
  /// A watch is only worth its end, for which the system may take 20 ms.
  static constexpr int kReadingsBeforeWatch = 64;

  Known_Folders() = default;
  ~Known_Folders();
  Known_Folders(const Known_Folders&) = delete;
  Known_Folders& operator=(const Known_Folders&) = delete;

  /// The names in the folder that differ from this one in the case of letters only, if at all, in
  /// no order. None when the folder can't be read.
  std::vector<std::string> Alike(const std::string& folder, std::string_view name);
  /// The names in the folder that are symbolic links, or may be, in no order. Nothing when not all
  /// names can be read.
  std::optional<std::vector<std::string>> Links(const std::string& folder);

 private:
  using Identity = std::pair<dev_t, ino_t>;
  struct Folder {
    int watch = -1;
    std::unordered_map<std::string, std::set<std::string>> names;  // by the folded name
    std::set<std::string> links;
    std::set<std::string> unseen;  // came since; nobody has looked whether they are links

    void Add(const std::string& name);
    void Remove(const std::string& name);
  };
  Folder* Known(const std::string& path);
  Folder* Watched(const std::string& path);
  Folder* Watch(const std::string& path);
  void Take_Changes();
  void Take_Change(int watch, unsigned mask, const std::string& name);
  void Forget();

  int changes_ = -1;                     // where the system tells of them
  std::map<Identity, Folder> watched_;   // whatever path leads to them
  std::map<std::string, int> readings_;  // of those that are not, by path
};

}  // namespace barvon
