#include "platform/files/path_lookup.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/files/folder_names.h"
#include "platform/files/name_case.h"
#include "platform/files/paths.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;

bool Matches(std::string_view name, std::string_view pattern) {
  std::size_t at = 0, wanted = 0;
  std::size_t star = std::string_view::npos, resume = 0;
  while (at < name.size()) {
    if (wanted < pattern.size() && pattern[wanted] == '*') {
      star = wanted++;
      resume = at;
    } else if (wanted < pattern.size() && pattern[wanted] == name[at]) {
      ++wanted;
      ++at;
    } else if (star != std::string_view::npos) {
      wanted = star + 1;
      at = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', wanted) == std::string_view::npos;
}

bool Path_Exists(const std::string& path) {
  std::error_code error;
  return !path.empty() && fs::exists(path, error);
}

}  // namespace

std::optional<std::string> Find_Path(const std::string& path) {
  Known_Folders folders;
  return Find_Path(path, folders);
}

std::optional<std::string> Find_Path(const std::string& path, Known_Folders& folders) {
  if (Path_Exists(path)) return path;
  const std::string name = Name_Of(path);
  if (name.empty()) return std::nullopt;
  const std::string above = Folder_Of(path);
  if (above == path) return std::nullopt;  // "." itself can't be looked at
  const std::optional<std::string> folder = Find_Path(above, folders);
  if (!folder) return std::nullopt;

  std::optional<std::string> found;
  for (const std::string& candidate : folders.Alike(*folder, name)) {
    if (!Path_Exists(Join_Path(*folder, candidate))) continue;
    if (!found || candidate < *found) found = candidate;
  }
  if (!found) return std::nullopt;
  const bool bare = path.find('/') == std::string::npos;
  return bare ? *found : Join_Path(*folder, *found);
}

std::string Path_To_Write(const std::string& path) { return Find_Path(path).value_or(path); }

std::string Path_To_Write(const std::string& path, Known_Folders& folders) {
  return Find_Path(path, folders).value_or(path);
}

std::vector<std::string> Matching_Files(const std::string& folder, std::string_view pattern) {
  const std::string wanted = Folded_Name(pattern);
  std::vector<std::string> paths;
  for (const std::string& name : Names_In_Folder(folder)) {
    if (!Matches(Folded_Name(name), wanted)) continue;
    const std::string path = Join_Path(folder, name);
    std::error_code unreadable;
    const fs::file_type type = fs::symlink_status(path, unreadable).type();
    if (type != fs::file_type::directory && type != fs::file_type::not_found) paths.push_back(path);
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

bool File_Exist(const std::string& name) { return Find_Path(name).has_value(); }

}  // namespace barvon
