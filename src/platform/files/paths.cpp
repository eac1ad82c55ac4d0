#include "platform/files/paths.h"

#include <filesystem>
#include <system_error>

namespace barvon {
namespace {

/// Where the dot of the extension is, npos when the file's name has none: a dot in a folder's
/// name is no extension.
std::size_t Extension_Dot(std::string_view path) {
  const auto dot = path.rfind('.');
  const auto slash = path.rfind('/');
  if (dot == std::string_view::npos) return dot;
  return slash != std::string_view::npos && dot < slash ? std::string_view::npos : dot;
}

}  // namespace

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

std::string Without_Dots(const std::string& path) {
  namespace fs = std::filesystem;
  if (!path.starts_with('/')) return path;
  fs::path plain;
  for (const fs::path& part : fs::path(path)) {
    if (part == ".") continue;
    if (part != "..") {
      plain /= part;
      continue;
    }
    std::error_code error;
    if (!fs::is_directory(plain, error)) return path;
    const bool is_link = fs::is_symlink(plain, error);
    plain = (is_link ? fs::canonical(plain, error) : plain).parent_path();
    if (error) return path;
  }
  return plain.string();
}

std::string Base_Name(std::string_view path) {
  return std::string(path.substr(0, Extension_Dot(path)));
}

std::string With_Extension(std::string_view path, std::string_view extension) {
  return Base_Name(path).append(".").append(extension);
}

}  // namespace barvon
