#include "core/project_file/project_guard.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;  // that the system follows

bool Is_Project_File_Name(const std::string& path) {
  constexpr std::size_t kEnding = 4;
  return path.size() >= kEnding && Equal_Ignoring_Case(path.substr(path.size() - kEnding), ".DUI");
}

/// The path behind a symbolic link, whether or not there is a file; the path itself when it is
/// none.
fs::path Behind_Link(const fs::path& path) {
  std::error_code error;
  const fs::path next = fs::read_symlink(path, error);
  return error ? path : path.parent_path() / next;
}

}  // namespace

bool Leads_To_A_Project(const std::string& target, const std::vector<std::string>& projects) {
  const std::string file = Path_To_Write(Absolute_Path(target));
  if (Is_Project_File_Name(target)) return true;
  fs::path end = file;
  for (int links = 0; links < kMostLinks; ++links) {
    if (Is_Project_File_Name(end.string())) return true;
    const fs::path next = Behind_Link(end);
    if (next == end) break;
    end = next;
  }
  return std::ranges::any_of(projects, [&](const std::string& project) {
    std::error_code error;
    return fs::equivalent(file, project, error) && !error;
  });
}

}  // namespace barvon
