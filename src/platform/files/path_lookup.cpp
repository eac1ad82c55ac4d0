#include "platform/files/path_lookup.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/files/folder_names.h"
#include "platform/files/paths.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;

/// A name brought to one case: the letters that Windows-1252 holds, as the systems that these
/// files come from fold them. Other letters keep their case.
std::string Folded(std::string_view name) {
  std::string folded = Upper_Case(name);
  for (std::size_t at = 1; at < folded.size(); ++at) {
    const auto byte = static_cast<unsigned char>(folded[at]);
    const auto lead = static_cast<unsigned char>(folded[at - 1]);
    if (lead == 0xC3 && byte == 0xBF) {  // y with two dots, whose capital is elsewhere
      folded[at - 1] = '\xC5';
      folded[at] = '\xB8';
    } else if (lead == 0xC3 && byte >= 0xA0 && byte != 0xB7) {  // B7 is the division sign
      folded[at] = static_cast<char>(byte - 0x20);
    } else if (lead == 0xC5 && (byte == 0xA1 || byte == 0x93 || byte == 0xBE)) {  // s, oe, z
      folded[at] = static_cast<char>(byte - 1);
    }
  }
  return folded;
}

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
  if (Path_Exists(path)) return path;
  const std::string name = Folded(Name_Of(path));
  if (name.empty()) return std::nullopt;
  const std::string given = Folder_Of(path);
  const std::optional<std::string> folder = Find_Path(given);
  if (!folder) return std::nullopt;

  std::optional<std::string> found;
  for (const std::string& candidate : Names_In_Folder(*folder)) {
    if (Folded(candidate) != name || !Path_Exists(Join_Path(*folder, candidate))) continue;
    if (!found || candidate < *found) found = candidate;
  }
  if (!found) return std::nullopt;
  const bool bare = path.find('/') == std::string::npos;
  return bare ? *found : Join_Path(*folder, *found);
}

std::string Path_To_Write(const std::string& path) { return Find_Path(path).value_or(path); }

std::vector<std::string> Matching_Files(const std::string& folder, std::string_view pattern) {
  const std::string wanted = Folded(pattern);
  std::vector<std::string> paths;
  for (const std::string& name : Names_In_Folder(folder)) {
    if (!Matches(Folded(name), wanted)) continue;
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
