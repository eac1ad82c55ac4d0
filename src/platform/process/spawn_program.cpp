#include "platform/process/spawn_program.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

#include "platform/process/search_path.h"

namespace barvon {
namespace {

std::string_view Name_Of_Entry(std::string_view entry) { return entry.substr(0, entry.find('=')); }

/// The search path goes along without its relative entries: in the folder that the program starts
/// in they would lead to what lies there.
std::vector<std::string> Environment_With(std::vector<std::string> added) {
  constexpr std::string_view kSearchPath = "PATH";
  std::vector<std::string> all = std::move(added);
  if (const auto path = Lasting_Search_Path())
    all.push_back(std::string(kSearchPath) + "=" + *path);
  const auto own = all.size();
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    const bool replaced = std::any_of(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(own),
                                      [entry](const std::string& other) {
                                        return Name_Of_Entry(other) == Name_Of_Entry(*entry);
                                      });
    if (!replaced && Name_Of_Entry(*entry) != kSearchPath) all.emplace_back(*entry);
  }
  return all;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// What the child needs between its birth and the program.
struct Birth {
  const Spawn_Order& order;
  char* const* command;
  char* const* environment;
  int null_device;
  int report;  // takes the errno value of what failed, and closes by itself when nothing did
  pid_t parent;
};

bool Bind(const Birth& birth) {
  if (birth.order.bond == Bond::None) return ::setsid() >= 0;
  if (::setpgid(0, 0) != 0 || ::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0) return false;
  // A parent that died before it was asked for sends nothing any more.
  if (::getppid() != birth.parent) ::_exit(1);
  return true;
}

void Reset_Signals() {
  struct sigaction usual {};
  usual.sa_handler = SIG_DFL;
  for (int signal = 1; signal < NSIG; ++signal) ::sigaction(signal, &usual, nullptr);
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// The streams in their places and every other file closed but the report, which moves up first
/// so that no stream takes its number.
bool Set_Streams(const Birth& birth, int& report) {
  constexpr int kReport = STDERR_FILENO + 1;
  const int moved = ::fcntl(birth.report, F_DUPFD_CLOEXEC, kReport);
  if (moved < 0) return false;
  report = moved;
  const int output = ::fcntl(birth.order.output < 0 ? birth.null_device : birth.order.output,
                             F_DUPFD_CLOEXEC, kReport);
  const int input = ::fcntl(birth.null_device, F_DUPFD_CLOEXEC, kReport);
  if (::dup2(input, STDIN_FILENO) < 0 || ::dup2(output, STDOUT_FILENO) < 0 ||
      ::dup2(output, STDERR_FILENO) < 0) {
    return false;
  }
  if (report != kReport && ::dup3(report, kReport, O_CLOEXEC) < 0) return false;
  report = kReport;
  ::closefrom(kReport + 1);
  return true;
}

/// Other threads of this program may have held any lock at the birth: nothing here may allocate.
[[noreturn]] void Become(const Birth& birth) {
  int report = birth.report;
  if (Bind(birth) && Set_Streams(birth, report) &&
      (birth.order.folder.empty() || ::chdir(birth.order.folder.c_str()) == 0)) {
    Reset_Signals();
    ::execve(birth.command[0], birth.command, birth.environment);
  }
  const int error = errno;
  [[maybe_unused]] const ssize_t written = ::write(report, &error, sizeof error);
  ::_exit(1);
}

/// Waits until the child has become the program. 0, or the errno value that it reports.
int Reported_Error(int report, pid_t pid) {
  int error = 0;
  ssize_t got = 0;
  do {
    got = ::read(report, &error, sizeof error);
  } while (got < 0 && errno == EINTR);
  if (got != static_cast<ssize_t>(sizeof error)) return 0;
  while (::waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
  }
  return error;
}

}  // namespace

int Spawn_Program(const Spawn_Order& order, pid_t& pid) {
  if (order.command.empty()) return EINVAL;
  std::vector<std::string> command = order.command;
  std::vector<std::string> environment = Environment_With(order.environment);
  const std::vector<char*> arguments = Pointers(command);
  const std::vector<char*> entries = Pointers(environment);
  const int null_device = ::open("/dev/null", O_RDWR | O_CLOEXEC);
  if (null_device < 0) return errno;
  std::array<int, 2> pipe{-1, -1};
  int error = ::pipe2(pipe.data(), O_CLOEXEC) == 0 ? 0 : errno;
  if (error == 0) {
    const Birth birth{order, arguments.data(), entries.data(), null_device, pipe[1], ::getpid()};
    // This program's handlers must not be called in the child: what they write to is shared.
    sigset_t all, former;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &former);
    const pid_t child = ::fork();
    if (child == 0) Become(birth);
    error = child < 0 ? errno : 0;
    ::pthread_sigmask(SIG_SETMASK, &former, nullptr);
    ::close(pipe[1]);
    if (error == 0) error = Reported_Error(pipe[0], child);
    ::close(pipe[0]);
    if (error == 0) pid = child;
  }
  ::close(null_device);
  return error;
}

int Open_End_Descriptor(pid_t pid) { return static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)); }

}  // namespace barvon
