// What the companion solver takes for one input: processor time and greatest memory of the whole
// program, and how much it writes. The best of several rounds counts: what is at work beside it
// only adds to the time.
//
//   solver_bench SOLVER ROUNDS FOLDER SECONDS MEBIBYTES
//
// The folder holds the marker and the model input. Ends with 1 when a goal is missed or the solver
// fails.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

struct Taken {
  double seconds = 0;  // of the processor
  double mebibytes = 0;
};

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

/// Runs the solver in the folder; ends the program when it fails.
Taken Run(const std::string& solver, const std::string& folder) {
  const pid_t child = fork();
  if (child == 0) {
    if (chdir(folder.c_str()) != 0 || std::freopen("said.txt", "w", stdout) == nullptr) _exit(126);
    execl(solver.c_str(), solver.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
    std::fprintf(stderr, "%s in %s ended with %d\n", solver.c_str(), folder.c_str(), status);
    std::exit(1);
  }
  return {Seconds(usage.ru_utime) + Seconds(usage.ru_stime),
          static_cast<double>(usage.ru_maxrss) / 1024};
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 6) {
    std::fprintf(stderr, "usage: %s SOLVER ROUNDS FOLDER SECONDS MEBIBYTES\n", arguments[0]);
    return 1;
  }
  const std::string solver = std::filesystem::absolute(arguments[1]).string();
  const std::filesystem::path folder = arguments[3];
  const double goal = std::atof(arguments[4]), room = std::atof(arguments[5]);
  Taken best{1e9, 0};
  for (int round = 0; round < std::max(1, std::atoi(arguments[2])); ++round) {
    const Taken taken = Run(solver, folder.string());
    best.seconds = std::min(best.seconds, taken.seconds);
    best.mebibytes = std::max(best.mebibytes, taken.mebibytes);
  }
  std::uintmax_t written = 0;
  for (const char* name : {"tmpfile.duo", "tmpfile.dup", "tmpfile.dut", "tmpfile.duc"})
    written += std::filesystem::file_size(folder / name);
  const bool met = best.seconds <= goal && best.mebibytes <= room;
  std::printf("%-26s %5.2f s (goal %g), %5.1f MiB (goal %g), %6.2f MB of outputs  %s\n",
              folder.filename().string().c_str(), best.seconds, goal, best.mebibytes, room,
              static_cast<double>(written) / 1e6, met ? "met" : "MISSED");
  return met ? 0 : 1;
}
