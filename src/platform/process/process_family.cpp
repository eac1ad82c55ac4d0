#include "platform/process/process_family.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <sstream>
#include <system_error>

#include "platform/files/safe_file.h"

namespace barvon {
namespace {

/// A process may go between any two looks at it; then there is nothing to read.
std::string Text_Of_Process(const std::string& number, const char* file) {
  std::string text;
  return Read_Whole_File("/proc/" + number + "/" + file, text) == 0 ? text : std::string();
}

/// Of one whose end nobody has taken note of yet.
bool Has_Ended(char state) { return state == 'Z' || state == 'X'; }

/// The number that the system gave to a process last; 0 when it does not tell.
pid_t Last_Number() {
  std::string load;
  if (Read_Whole_File("/proc/loadavg", load) != 0) return 0;
  const auto last = load.rfind(' ');
  return last == std::string::npos
             ? 0
             : static_cast<pid_t>(std::strtol(load.c_str() + last, nullptr, 10));
}

}  // namespace

Process_Family::Process_Family(pid_t program, std::string mark)
    : program_(program), mark_(std::move(mark)) {}

bool Process_Family::Read_Process(const std::string& number, Process& process) {
  const std::string text = Text_Of_Process(number, "stat");
  // The second field is the program's name in brackets and may hold anything, brackets too.
  const auto name_end = text.rfind(')');
  if (name_end == std::string::npos) return false;
  process.pid = static_cast<pid_t>(std::stol(number));
  std::istringstream fields(text.substr(name_end + 1));
  fields >> process.state >> process.parent >> process.group;
  std::string passed_over;
  for (int field = 6; field < 22; ++field) fields >> passed_over;
  return static_cast<bool>(fields >> process.start);
}

unsigned long long Process_Family::Start_Of(pid_t pid) {
  Process process;
  const bool runs = Read_Process(std::to_string(pid), process) && !Has_Ended(process.state);
  return runs ? process.start : 0;
}

std::vector<Process_Family::Process> Process_Family::Younger_Processes() const {
  // To look at all of them holds up the interface. Numbers are given in rising order, over and
  // over: one below the program's is older than it unless they have begun anew since.
  const pid_t first = Last_Number() < program_ ? 0 : program_;
  std::vector<Process> all;
  std::error_code error;
  std::filesystem::directory_iterator entry("/proc", error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const std::string number = entry->path().filename().string();
    if (number.size() > 9 || number.find_first_not_of("0123456789") != std::string::npos) continue;
    if (std::stol(number) < first) continue;
    Process process;
    if (Read_Process(number, process)) all.push_back(process);
  }
  return all;
}

bool Process_Family::Carries_Mark(pid_t pid) const {
  const std::string environment = Text_Of_Process(std::to_string(pid), "environ");
  const auto at = environment.find(mark_);
  return at != std::string::npos && (at == 0 || environment[at - 1] == '\0') &&
         environment.c_str()[at + mark_.size()] == '\0';
}

std::vector<Process_Family::Process> Process_Family::Members(
    const std::vector<Process>& all) const {
  unsigned long long first_start = 0;
  std::set<pid_t> numbers;
  for (const Process& process : all) {
    if (process.pid == program_) first_start = process.start;
    numbers.insert(process.pid);
  }
  // Who has a parent here is a member by it or not at all. To ask a process for its environment
  // can take long while that is just being made.
  const auto is_orphan = [&](const Process& process) { return !numbers.contains(process.parent); };
  std::vector<Process> members, others;
  for (const Process& process : all) {
    const bool seen =
        std::find(seen_.begin(), seen_.end(), std::pair(process.pid, process.start)) != seen_.end();
    const bool member = process.pid != ::getpid() && process.start >= first_start &&
                        (seen || process.pid == program_ || process.group == program_ ||
                         (is_orphan(process) && Carries_Mark(process.pid)));
    (member ? members : others).push_back(process);
  }
  for (std::size_t i = 0; i < members.size(); ++i) {
    const pid_t parent = members[i].pid;
    const auto children = std::stable_partition(
        others.begin(), others.end(),
        [parent](const Process& process) { return process.parent != parent; });
    members.insert(members.end(), children, others.end());
    others.erase(children, others.end());
  }
  return members;
}

bool Process_Family::Signal(int signal, bool only_new) {
  return Send(Members(Younger_Processes()), signal, only_new);
}

void Process_Family::Kill_What_Is_Left() {
  constexpr int kTries = 10;  // a process that was just being made is found by the next look
  for (int i = 0; i < kTries && Send(Members(Younger_Processes()), SIGKILL, false); ++i) {
  }
}

bool Process_Family::Send(const std::vector<Process>& members, int signal, bool only_new) {
  if (!only_new) ::kill(-program_, signal);
  bool any_lives = false;
  for (const Process& process : members) {
    if (Has_Ended(process.state)) continue;
    any_lives = true;
    const std::pair identity(process.pid, process.start);
    const bool is_new = std::find(seen_.begin(), seen_.end(), identity) == seen_.end();
    if (is_new) seen_.push_back(identity);
    const bool had_it = !only_new && process.group == program_;
    if ((is_new || !only_new) && !had_it) ::kill(process.pid, signal);
  }
  return any_lives;
}

}  // namespace barvon
