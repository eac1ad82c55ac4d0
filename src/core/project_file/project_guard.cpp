#include "core/project_file/project_guard.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/files/local_files.h"
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

/// Whether the file, or what its symbolic links lead to, bears a project's name.
bool Ends_In_A_Project_Name(const std::string& file) {
  fs::path end = file;
  for (int links = 0; links < kMostLinks; ++links) {
    if (Is_Project_File_Name(end.string())) return true;
    const fs::path next = Behind_Link(end);
    if (next == end) break;
    end = next;
  }
  return false;
}

/// Whether the path leads to the file that was looked at.
bool Leads_To(const std::string& path, const struct stat& file) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && status.st_dev == file.st_dev &&
         status.st_ino == file.st_ino;
}

bool One_Leads_To(const std::vector<std::string>& projects, const struct stat& file) {
  return std::ranges::any_of(projects,
                             [&](const std::string& path) { return Leads_To(path, file); });
}

}  // namespace

bool Leads_To_A_Project(const std::string& target, const std::vector<std::string>& projects) {
  const std::string file = Path_To_Write(Absolute_Path(target));
  if (Is_Project_File_Name(target) || Ends_In_A_Project_Name(file)) return true;
  struct stat status {};
  return ::stat(file.c_str(), &status) == 0 && One_Leads_To(projects, status);
}

Project_Guard::Project_Guard(std::vector<std::string> projects, Known_Folders& folders)
    : projects_(std::move(projects)), folders_(folders) {
  for (const std::string& project : projects_) {
    if (Is_Project_File_Name(project)) {
      by_folder_[Folder_Of(project)].insert(Name_Of(project));
    } else {
      oddly_named_.push_back(project);
    }
  }
}

bool Project_Guard::Leads_To_A_Project(const std::string& file) const {
  if (Ends_In_A_Project_Name(file)) return true;
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) return false;
  const bool has_one_name =
      S_ISREG(status.st_mode) && status.st_nlink == 1 && Is_On_Local_Files(file);
  return has_one_name ? A_Link_Leads_To(status) : One_Leads_To(projects_, status);
}

/// For a file whose one name is no project's: a project that leads to it is a link.
bool Project_Guard::A_Link_Leads_To(const struct stat& file) const {
  if (One_Leads_To(oddly_named_, file)) return true;
  return std::ranges::any_of(by_folder_, [&](const auto& projects) {
    const std::string& folder = projects.first;
    const std::set<std::string>& names = projects.second;
    const auto leads = [&](const std::string& name) {
      return Leads_To(Join_Path(folder, name), file);
    };
    const auto links = names.size() > kFewProjects ? folders_.Links(folder) : std::nullopt;
    if (!links) return std::ranges::any_of(names, leads);
    return std::ranges::any_of(
        *links, [&](const std::string& link) { return names.contains(link) && leads(link); });
  });
}

}  // namespace barvon
