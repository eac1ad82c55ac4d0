#include "batch/side_by_side.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>

#include "batch/batch_output.h"
#include "batch/interrupts.h"

namespace barvon {
namespace {

constexpr char kThisProgram[] = "/proc/self/exe";

struct Job {
  std::string file;
  pid_t process = 0;
  int output = -1;  // files in memory that take what the job says
  int errors = -1;
  bool running = false;
  int code = kNotDone;
  std::string problem;
};

std::vector<std::string> Command_For(const Job& job, const Batch_Options& options) {
  std::vector<std::string> command = {"barvon-run", "run"};
  if (options.solver == Solver_Choice::Companion) {
    command.insert(command.end(), {"--solver", "companion"});
  } else {
    command.insert(command.end(), {"--solver-dir", options.solver_folder});
  }
  if (options.despite_errors) command.emplace_back("--despite-errors");
  command.emplace_back("--");
  command.push_back(job.file);
  return command;
}

/// What the child does between its birth and the program; nothing here may allocate.
[[noreturn]] void Become(const Job& job, char** arguments, const sigset_t& signals, pid_t parent) {
  // A parent that is killed outright takes its children with it, each of which cleans up.
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent) _exit(kNotDone);
  if (dup2(job.output, STDOUT_FILENO) < 0 || dup2(job.errors, STDERR_FILENO) < 0) _exit(kNotDone);
  sigprocmask(SIG_SETMASK, &signals, nullptr);
  execv(kThisProgram, arguments);
  _exit(kNotDone);
}

void Start(Job& job, const Batch_Options& options, const sigset_t& signals) {
  job.output = memfd_create("output", MFD_CLOEXEC);
  job.errors = memfd_create("errors", MFD_CLOEXEC);
  std::vector<std::string> command = Command_For(job, options);
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  const pid_t parent = getpid();
  std::fflush(stdout);
  job.process = job.output < 0 || job.errors < 0 ? -1 : fork();
  if (job.process == 0) Become(job, arguments.data(), signals, parent);
  job.running = job.process > 0;
  if (!job.running) job.problem = std::string("could not be started: ") + std::strerror(errno);
}

/// Takes the ends of jobs that are over.
void Reap(std::vector<Job>& jobs) {
  for (Job& job : jobs) {
    int status = 0;
    if (!job.running || waitpid(job.process, &status, WNOHANG) != job.process) continue;
    job.running = false;
    if (WIFEXITED(status)) {
      job.code = std::clamp(WEXITSTATUS(status), kDone, kNotDone);
    } else if (Interrupt_Seen() == 0) {
      job.problem = "its run was ended by signal " + std::to_string(WTERMSIG(status));
    }
  }
}

std::string Contents(int descriptor) {
  std::string text;
  std::array<char, 4096> part{};
  off_t at = 0;
  for (ssize_t got = 0; (got = pread(descriptor, part.data(), part.size(), at)) > 0; at += got) {
    text.append(part.data(), static_cast<std::size_t>(got));
  }
  return text;
}

void Pass_On(Job& job) {
  if (job.output >= 0) Say_Text(Contents(job.output));
  std::fflush(stdout);
  if (job.errors >= 0) {
    const std::string errors = Contents(job.errors);
    std::fwrite(errors.data(), 1, errors.size(), stderr);
  }
  if (!job.problem.empty()) Say_Problem(job.file, job.problem);
  if (job.output >= 0) close(job.output);
  if (job.errors >= 0) close(job.errors);
}

void Tell_To_End(const std::vector<Job>& jobs) {
  for (const Job& job : jobs) {
    if (job.running) kill(job.process, SIGTERM);
  }
}

/// The signals that wake the wait. They are held back outside it, so that none is missed between
/// looking and waiting.
sigset_t Hold_Signals() {
  struct sigaction wake {};
  wake.sa_handler = [](int) {};
  sigemptyset(&wake.sa_mask);
  sigaction(SIGCHLD, &wake, nullptr);
  sigset_t held;
  sigemptyset(&held);
  for (const int signal : {SIGCHLD, SIGINT, SIGTERM, SIGHUP}) sigaddset(&held, signal);
  sigset_t former;
  sigprocmask(SIG_BLOCK, &held, &former);
  return former;
}

}  // namespace

int Run_Side_By_Side(const Batch_Options& options) {
  const sigset_t signals = Hold_Signals();
  std::vector<Job> jobs;
  for (const std::string& file : options.files) {
    jobs.emplace_back();
    jobs.back().file = file;
  }
  int worst = kDone;
  std::size_t started = 0;
  std::size_t passed_on = 0;
  bool told = false;
  while (true) {
    Reap(jobs);
    for (; passed_on < started && !jobs[passed_on].running; ++passed_on) {
      Pass_On(jobs[passed_on]);
      worst = std::max(worst, jobs[passed_on].code);
    }
    const auto running =
        std::count_if(jobs.begin(), jobs.end(), [](const Job& j) { return j.running; });
    const bool to_end = Interrupt_Seen() != 0;
    if (to_end && !told) {
      told = true;
      Tell_To_End(jobs);
    }
    if (!to_end && started < jobs.size() && running < options.jobs) {
      Start(jobs[started++], options, signals);
      continue;
    }
    if (running == 0) break;
    sigsuspend(&signals);
  }
  sigprocmask(SIG_SETMASK, &signals, nullptr);
  return passed_on < jobs.size() ? kNotDone : worst;
}

}  // namespace barvon
