#include "platform/process/stray_processes.h"

#include <signal.h>
#include <unistd.h>

#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/files/safe_file.h"
#include "platform/process/process_family.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;

bool Carries_Any_Mark(const fs::path& process) {
  std::string environment;
  if (Read_Whole_File((process / "environ").string(), environment) != 0) return false;
  const std::string entry = std::string(kFamilyMark) + "=";
  return environment.starts_with(entry) || environment.find('\0' + entry) != std::string::npos;
}

bool Works_In(const fs::path& process, const std::string& folder) {
  std::error_code error;
  const std::string current = fs::read_symlink(process / "cwd", error).string();
  return !error && (current == folder || current.starts_with(folder + "/"));
}

}  // namespace

void Kill_Strays_In(const std::string& folder) {
  std::error_code error;
  const std::string real = fs::canonical(folder, error).string();
  if (error) return;
  fs::directory_iterator entry("/proc", error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string number = entry->path().filename().string();
    if (number.size() > 9 || number.find_first_not_of("0123456789") != std::string::npos) continue;
    const auto pid = static_cast<pid_t>(std::stol(number));
    if (pid != ::getpid() && Works_In(entry->path(), real) && Carries_Any_Mark(entry->path())) {
      ::kill(pid, SIGKILL);
    }
  }
}

}  // namespace barvon
