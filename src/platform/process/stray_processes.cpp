#include "platform/process/stray_processes.h"

#include <signal.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/files/safe_file.h"
#include "platform/process/process_family.h"

namespace barvon {
namespace {

namespace fs = std::filesystem;

/// A process that has started a family. Its number alone may be another's by now.
struct Starter {
  pid_t pid = 0;
  unsigned long long start = 0;
};

/// Who has started this one's family, which the mark begins with; the number is 0 without a mark.
Starter Starter_Of(const fs::path& process) {
  std::string environment;
  if (Read_Whole_File((process / "environ").string(), environment) != 0) return {};
  const std::string entry = std::string(kFamilyMark) + "=";
  const auto inside = environment.find('\0' + entry);
  if (!environment.starts_with(entry) && inside == std::string::npos) return {};
  const auto at = environment.starts_with(entry) ? 0 : inside + 1;
  char* end = nullptr;
  const auto pid =
      static_cast<pid_t>(std::strtol(environment.c_str() + at + entry.size(), &end, 10));
  return {pid, *end == '.' ? std::strtoull(end + 1, nullptr, 10) : 0};
}

bool Is_Stray(const fs::path& process) {
  const Starter starter = Starter_Of(process);
  if (starter.pid <= 0) return false;
  return starter.pid == ::getpid() || Process_Family::Start_Of(starter.pid) != starter.start;
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
    if (pid != ::getpid() && Works_In(entry->path(), real) && Is_Stray(entry->path())) {
      ::kill(pid, SIGKILL);
    }
  }
}

}  // namespace barvon
