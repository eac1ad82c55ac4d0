#include "support/process_state.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace barvon::testing {

namespace fs = std::filesystem;

long Memory_Of(const std::string& name, pid_t pid) {
  std::ifstream file("/proc/" + (pid < 0 ? std::string("self") : std::to_string(pid)) + "/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(name + ":")) return std::atol(line.c_str() + name.size() + 1);
  }
  return 0;
}

void Forget_Peak_Memory() { std::ofstream("/proc/self/clear_refs") << "5"; }

int Own_Children() {
  int children = 0;
  for (const auto& task : fs::directory_iterator("/proc/self/task")) {
    std::ifstream file(task.path() / "children");
    for (std::string number; file >> number;) ++children;
  }
  return children;
}

int Open_Descriptors() {
  const fs::directory_iterator all("/proc/self/fd");
  return static_cast<int>(std::distance(fs::begin(all), fs::end(all)));
}

int Processes_In(const std::string& folder) {
  int found = 0;
  std::error_code gone;
  for (const auto& entry : fs::directory_iterator("/proc", gone)) {
    const auto pid = static_cast<pid_t>(std::atol(entry.path().filename().c_str()));
    if (pid <= 0 || pid == getpid()) continue;
    // One that has ended and waits for its parent's notice works nowhere any more.
    const std::string current = fs::read_symlink(entry.path() / "cwd", gone).string();
    if (!gone && (current == folder || current.starts_with(folder + "/"))) ++found;
  }
  return found;
}

}  // namespace barvon::testing
