#include "platform/app_folder.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>
#include <utility>

namespace barvon {
namespace {

std::string& Folder() {
  static std::string folder = Program_Folder();
  return folder;
}

}  // namespace

std::string Program_Folder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : program.parent_path().string();
}

const std::string& Application_Folder() { return Folder(); }

void Set_Application_Folder(std::string folder) { Folder() = std::move(folder); }

bool Change_Current_Folder(const std::string& folder) { return chdir(folder.c_str()) == 0; }

std::string Join_Path(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && path.back() != '/') path += '/';
  return path.append(name);
}

std::string Folder_Of(std::string_view path) {
  const auto slash = path.rfind('/');
  if (slash == std::string_view::npos) return ".";
  return slash == 0 ? "/" : std::string(path.substr(0, slash));
}

std::string Name_Of(std::string_view path) {
  const auto slash = path.rfind('/');
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string Absolute_Path(const std::string& path) {
  std::error_code error;
  const auto absolute = std::filesystem::absolute(path, error);
  return error ? path : absolute.string();
}

}  // namespace barvon
