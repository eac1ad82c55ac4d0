#include "support/run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "support/plain_support.h"

namespace barvon::testing {
namespace {

[[noreturn]] void Become(const Program_Start& start, const std::string& out,
                         const std::string& err) {
  const auto take = [](const std::string& path, int descriptor) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (file < 0 || dup2(file, descriptor) < 0) _exit(127);
  };
  take(out, STDOUT_FILENO);
  take(err, STDERR_FILENO);
  if (!start.folder.empty() && chdir(start.folder.c_str()) != 0) _exit(127);
  for (const std::string& setting : start.environment) {
    const auto equals = setting.find('=');
    setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
  }
  std::vector<char*> arguments;
  for (const std::string& argument : start.command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  execv(arguments[0], arguments.data());
  _exit(127);
}

}  // namespace

Program_Result Run_Program(const Program_Start& start,
                           const std::function<void(pid_t)>& while_running) {
  const Scratch_Folder said;
  const std::string out = start.out_path.empty() ? said / "out" : start.out_path;
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error("no new process");
  if (process == 0) Become(start, out, said / "err");
  int status = 0;
  while (waitpid(process, &status, while_running ? WNOHANG : 0) == 0) {
    while_running(process);
    usleep(5000);
  }
  Program_Result result;
  if (WIFEXITED(status)) result.code = WEXITSTATUS(status);
  if (WIFSIGNALED(status)) result.signal = WTERMSIG(status);
  if (start.out_path.empty()) result.out = Read_Text(out);
  result.err = Read_Text(said / "err");
  return result;
}

Program_Result Run_Program(const Program_Start& start) { return Run_Program(start, {}); }

std::vector<std::string> Printed_Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

}  // namespace barvon::testing
