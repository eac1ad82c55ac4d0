#include "platform/process/process_control.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <utility>

#include "platform/process/bounded_output.h"
#include "platform/process/event_pump.h"
#include "platform/process/process_family.h"
#include "platform/process/spawn_program.h"

namespace barvon {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::size_t kPipeSize = 1u << 20;
constexpr milliseconds kSearchEvery{50};  // looking through all processes is not free
constexpr milliseconds kKillTakes{5000};  // a process that hangs in the system can't be waited for

/// An environment entry that only this program's next child has.
std::string New_Mark() {
  static unsigned number = 0;
  return std::string(kFamilyMark) + "=" + std::to_string(::getpid()) + "." +
         std::to_string(Process_Family::Start_Of(::getpid())) + "." + std::to_string(++number) +
         "." + std::to_string(Clock::now().time_since_epoch().count());
}

}  // namespace

struct External_Process::State {
  ~State() {
    if (output >= 0) ::close(output);
    if (handle >= 0) ::close(handle);
  }

  /// True when the program's own process has ended. It is not reaped yet, so that its number
  /// stays taken.
  bool Has_Ended() const {
    siginfo_t info{};
    return ::waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOHANG | WNOWAIT) != 0
               ? errno != EINTR
               : info.si_pid == pid;
  }

  /// Takes at most `limit` bytes that are in the pipe.
  void Take_Output(std::size_t limit) {
    std::array<char, 64 * 1024> part;
    while (output >= 0 && limit > 0) {
      const ssize_t got = ::read(output, part.data(), std::min(part.size(), limit));
      if (got > 0) {
        kept.Add({part.data(), static_cast<std::size_t>(got)});
        limit -= static_cast<std::size_t>(got);
      } else if (got == 0) {
        ::close(std::exchange(output, -1));
      } else if (errno != EINTR) {
        return;
      }
    }
  }

  /// True while anything lives that the stopped program started; sees to it that it ends.
  bool Family_Lives(Clock::time_point now) {
    const bool by_force = now >= force_at;
    if (!by_force && now < search_at) return true;
    search_at = now + kSearchEvery;
    return by_force ? family->Signal(SIGKILL) : family->Signal(SIGTERM, true);
  }

  void Finish() {
    int waiting = 0;
    // Something that the program left running may hold the pipe open for a moment: what is in the
    // pipe now is all that is waited for.
    if (output >= 0 && ::ioctl(output, FIONREAD, &waiting) == 0 && waiting > 0) {
      Take_Output(static_cast<std::size_t>(waiting));
    }
    if (output >= 0) ::close(std::exchange(output, -1));
    kept.Finish();
    int status = 0;
    if (::waitpid(pid, &status, WNOHANG) != pid) {
      end.exit_code = -1;
    } else if (WIFSIGNALED(status)) {
      end.signal = WTERMSIG(status);
    } else {
      end.exit_code = WEXITSTATUS(status);
    }
    running = false;
  }

  pid_t pid = -1;
  int handle = -1;  // of the process, readable once that has ended
  int output = -1;
  bool running = false;
  Process_End end;
  Bounded_Output kept;
  Clock::time_point started;
  std::optional<Clock::time_point> ended;
  std::optional<Process_Family> family;
  Clock::time_point force_at, search_at;
};

External_Process::External_Process() : state_(std::make_unique<State>()) {}

External_Process::~External_Process() { Stop_And_Wait(milliseconds(0)); }

int External_Process::Start(const Process_Start& start) {
  if (state_->running) return EBUSY;
  if (start.command.empty()) return EINVAL;
  state_ = std::make_unique<State>();
  State& state = *state_;

  std::array<int, 2> pipe{-1, -1};
  if (!start.output_file.empty()) {
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) return errno;
    state.output = pipe[0];
    ::fcntl(pipe[0], F_SETFL, O_NONBLOCK);
    // With little room the program would wait for the next Poll at every few lines.
    ::fcntl(pipe[0], F_SETPIPE_SZ, static_cast<int>(kPipeSize));
    state.kept.Begin(start.output_file, start.output_limit);
  }
  std::vector<std::string> environment = start.environment;
  const std::string mark = New_Mark();
  environment.push_back(mark);
  pid_t pid = -1;
  // Behind the start this program may have to wait for the processor while the other one runs.
  state.started = Clock::now();
  const int error = Spawn_Program(
      {start.command, std::move(environment), start.folder, pipe[1], Bond::Group}, pid);
  if (pipe[1] >= 0) ::close(pipe[1]);
  if (error != 0) return error;
  state.pid = pid;
  state.handle = Open_End_Descriptor(pid);
  state.family.emplace(pid, mark);
  state.running = true;
  return 0;
}

bool External_Process::Poll() {
  State& state = *state_;
  if (!state.running) return false;
  state.Take_Output(kPipeSize);
  const Clock::time_point now = Clock::now();
  const bool ended = state.ended || state.Has_Ended();
  if (ended && !state.ended) state.ended = now;
  const bool given_up = state.end.stopped && now >= state.force_at + kKillTakes;
  if (!given_up) {
    if (state.end.stopped && state.Family_Lives(now)) return true;
    if (!ended) return true;
  }
  if (!state.ended) state.ended = now;
  if (!state.end.stopped) state.family->Kill_What_Is_Left();
  state.Finish();
  return false;
}

void External_Process::Stop(milliseconds grace) {
  State& state = *state_;
  if (!state.running) return;
  const Clock::time_point now = Clock::now();
  if (state.end.stopped) {
    state.force_at = std::min(state.force_at, now + grace);
    return;
  }
  if (state.Has_Ended()) return;
  state.end.stopped = true;
  state.force_at = now + grace;
  state.search_at = now + kSearchEvery;
  state.family->Signal(SIGTERM);
}

void External_Process::Stop_And_Wait(milliseconds grace) {
  Stop(grace);
  while (Poll()) Sleep_Until_Readable(End_Descriptor(), milliseconds(5));
}

bool External_Process::Is_Running() const { return state_->running; }

int External_Process::End_Descriptor() const {
  return state_->running && !state_->ended ? state_->handle : -1;
}

const Process_End& External_Process::End() const { return state_->end; }

std::string External_Process::Last_Output() const { return state_->kept.Last_Lines(); }

milliseconds External_Process::Duration() const {
  if (state_->pid < 0) return milliseconds(0);
  const Clock::time_point end = state_->ended.value_or(Clock::now());
  return std::chrono::duration_cast<milliseconds>(end - state_->started);
}

}  // namespace barvon
