#include "platform/files/known_folders.h"

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>

#include "platform/files/local_files.h"
#include "platform/files/name_case.h"
#include "platform/files/paths.h"

namespace barvon {
namespace {

constexpr unsigned kComes = IN_CREATE | IN_MOVED_TO;
constexpr unsigned kGoes = IN_DELETE | IN_MOVED_FROM;
constexpr std::size_t kChangesAtOnce = 1u << 14;

bool Is_Link(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

}  // namespace

void Known_Folders::Folder::Add(const std::string& name) {
  names[Folded_Name(name)].insert(name);
  links.erase(name);
  unseen.insert(name);
}

void Known_Folders::Folder::Remove(const std::string& name) {
  links.erase(name);
  unseen.erase(name);
  const auto alike = names.find(Folded_Name(name));
  if (alike == names.end()) return;
  alike->second.erase(name);
  if (alike->second.empty()) names.erase(alike);
}

Known_Folders::~Known_Folders() { Forget(); }

std::vector<std::string> Known_Folders::Alike(const std::string& folder, std::string_view name) {
  const std::string folded = Folded_Name(name);
  if (const Folder* known = Known(folder)) {
    const auto alike = known->names.find(folded);
    if (alike == known->names.end()) return {};
    return {alike->second.begin(), alike->second.end()};
  }
  std::vector<Folder_Name> entries;
  Read_Folder(folder, entries);
  std::vector<std::string> found;
  for (Folder_Name& entry : entries) {
    if (entry.name.size() != folded.size() || Folded_Name(entry.name) != folded) continue;
    found.push_back(std::move(entry.name));
  }
  return found;
}

std::optional<std::vector<std::string>> Known_Folders::Links(const std::string& folder) {
  if (Folder* const known = Known(folder)) {
    for (const std::string& name : std::exchange(known->unseen, {})) {
      if (Is_Link(Join_Path(folder, name))) known->links.insert(name);
    }
    return std::vector<std::string>(known->links.begin(), known->links.end());
  }
  std::vector<Folder_Name> entries;
  if (Read_Folder(folder, entries) != 0) return std::nullopt;
  std::vector<std::string> found;
  for (Folder_Name& entry : entries) {
    if (entry.may_be_link) found.push_back(std::move(entry.name));
  }
  return found;
}

/// What is known of the folder, true by now; nothing when it has to be read.
Known_Folders::Folder* Known_Folders::Known(const std::string& path) {
  if (Folder* const watched = Watched(path)) return watched;
  int& readings = readings_[path];
  if (++readings <= kReadingsBeforeWatch) return nullptr;
  Folder* const watched = Watch(path);
  if (watched == nullptr) readings = 0;  // tried again after as many
  return watched;
}

Known_Folders::Folder* Known_Folders::Watched(const std::string& path) {
  if (watched_.empty()) return nullptr;
  // The path may lead to another folder by now. It is asked before the changes are taken, among
  // which is the end of a folder whose number another one got.
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return nullptr;
  Take_Changes();
  const auto found = watched_.find({status.st_dev, status.st_ino});
  return found == watched_.end() ? nullptr : &found->second;
}

/// Reads the folder once it is watched: what comes in between is told of, then.
Known_Folders::Folder* Known_Folders::Watch(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  struct stat status {};
  int watch = -1;
  if (::fstat(descriptor, &status) == 0 && Is_On_Local_Files(descriptor)) {
    if (changes_ < 0) changes_ = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    // The very folder that is open, whatever is under the path by now.
    const std::string open = "/proc/self/fd/" + std::to_string(descriptor);
    watch = ::inotify_add_watch(changes_, open.c_str(), kComes | kGoes | IN_ONLYDIR);
  }
  if (watch < 0) {
    ::close(descriptor);
    return nullptr;
  }
  std::vector<Folder_Name> entries;
  if (Read_Open_Folder(descriptor, entries) != 0) {
    ::inotify_rm_watch(changes_, watch);
    return nullptr;
  }
  Folder& folder = watched_[{status.st_dev, status.st_ino}];
  folder = {watch, {}, {}, {}};
  for (const Folder_Name& entry : entries) {
    folder.names[Folded_Name(entry.name)].insert(entry.name);
    if (entry.may_be_link) folder.links.insert(entry.name);
  }
  return &folder;
}

void Known_Folders::Take_Changes() {
  std::array<char, kChangesAtOnce> bytes{};
  while (!watched_.empty()) {
    const ssize_t got = ::read(changes_, bytes.data(), bytes.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0 && errno == EAGAIN) return;  // that was all
    if (got <= 0) return Forget();
    for (std::size_t at = 0; at < static_cast<std::size_t>(got) && !watched_.empty();) {
      inotify_event event{};
      std::memcpy(&event, bytes.data() + at, sizeof event);
      Take_Change(event.wd, event.mask, event.len > 0 ? bytes.data() + at + sizeof event : "");
      at += sizeof event + event.len;
    }
  }
}

void Known_Folders::Take_Change(int watch, unsigned mask, const std::string& name) {
  if ((mask & IN_Q_OVERFLOW) != 0) return Forget();  // some were not told
  const auto found = std::ranges::find_if(
      watched_, [&](const auto& folder) { return folder.second.watch == watch; });
  if (found == watched_.end()) return;
  if ((mask & kComes) != 0) {
    found->second.Add(name);
  } else if ((mask & kGoes) != 0) {
    found->second.Remove(name);
  } else if ((mask & IN_IGNORED) != 0) {
    watched_.erase(found);  // the folder is gone
  }
}

void Known_Folders::Forget() {
  watched_.clear();
  if (changes_ >= 0) ::close(std::exchange(changes_, -1));
}

}  // namespace barvon
