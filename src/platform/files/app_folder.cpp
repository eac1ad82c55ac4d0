#include "platform/files/app_folder.h"

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

}  // namespace barvon
