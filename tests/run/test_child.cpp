// Stands in for solvers of every temper. It goes through steps, which are the lines of a file
// "test_child.steps" in its current directory when there is one, otherwise its arguments:
//
//   print:TEXT          a line on standard output
//   error:TEXT          a line on standard error
//   write:NAME=TEXT     a file that is there whole or not at all
//   copy:NAME=NEW       a copy of a file, empty when there is none
//   note:NAME           a file with what the program was given: arguments, folder, group, input,
//                       open files, ignored signals
//   value:NAME          prints an environment variable
//   pid:NAME            a file with its process number
//   sleep:MS            waits
//   await:NAME          waits for a file
//   ignore-term         no longer ends on a polite request, nor do the children it starts
//   heed-term           ends on it again
//   child:NAME          starts a process that lives on and writes its number to a file
//   session:NAME        the same, in a session of its own
//   orphan:NAME         the same, with no parent left, in a session of its own
//   flood:BYTES         prints so many bytes in lines; 0: without end
//   big:NAME=BYTES      a file of so many bytes
//   signal:N            dies by a signal
//   exit:N              ends with a code

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

const char kSteps[] = "test_child.steps";

std::string Text_Of(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Write(const std::string& name, const std::string& text) {
  const std::string part = name + ".part";
  std::ofstream(part, std::ios::binary) << text;
  std::rename(part.c_str(), name.c_str());
}

void Sleep(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

std::string Open_Files() {
  std::set<int> numbers;
  DIR* folder = opendir("/proc/self/fd");
  while (const dirent* entry = folder == nullptr ? nullptr : readdir(folder)) {
    const int number = std::atoi(entry->d_name);
    if (entry->d_name[0] != '.' && number != dirfd(folder)) numbers.insert(number);
  }
  if (folder != nullptr) closedir(folder);
  std::string text;
  for (const int number : numbers) text += std::to_string(number) + " ";
  return text;
}

std::string Ignored_Or_Blocked_Signals() {
  std::string text;
  sigset_t blocked;
  sigprocmask(SIG_SETMASK, nullptr, &blocked);
  for (int number = 1; number < 32; ++number) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    if (action.sa_handler != SIG_DFL || sigismember(&blocked, number) == 1) {
      text += std::to_string(number) + " ";
    }
  }
  return text;
}

void Note(const std::string& name, const std::vector<std::string>& arguments) {
  std::ostringstream text;
  for (const std::string& argument : arguments) text << "argument " << argument << "\n";
  char folder[4096];
  char byte = 0;
  text << "folder " << getcwd(folder, sizeof folder) << "\n";
  text << "own group " << (getpgrp() == getpid() ? "yes" : "no") << "\n";
  text << "input " << (read(STDIN_FILENO, &byte, 1) == 0 ? "empty" : "open") << "\n";
  text << "open files " << Open_Files() << "\n";
  text << "signals " << Ignored_Or_Blocked_Signals() << "\n";
  Write(name, text.str());
}

[[noreturn]] void Live_On(const std::string& name) {
  Write(name, std::to_string(getpid()));
  for (;;) Sleep(1000);
}

void Start_Child(const std::string& name, bool session, bool orphan) {
  const pid_t child = fork();
  if (child != 0) {
    if (orphan) waitpid(child, nullptr, 0);
    return;
  }
  if (session) setsid();
  if (orphan && fork() != 0) _exit(0);
  Live_On(name);
}

void Flood(long long bytes) {
  const std::string line = "the solver says the same over and over again, without an end to it\n";
  for (long long printed = 0; bytes == 0 || printed < bytes;) {
    std::string part = line;
    if (bytes != 0 && bytes - printed < static_cast<long long>(part.size())) {
      part.resize(static_cast<std::size_t>(bytes - printed));
    }
    std::cout << part;
    printed += static_cast<long long>(part.size());
  }
  std::cout.flush();
}

void Make_Big(const std::string& name, long long bytes) {
  const std::string part(1u << 20, 'x');
  std::ofstream file(name, std::ios::binary);
  for (long long left = bytes; left > 0; left -= static_cast<long long>(part.size())) {
    file.write(part.data(),
               static_cast<std::streamsize>(std::min(left, static_cast<long long>(part.size()))));
  }
}

void Take_Step(const std::string& step, const std::vector<std::string>& arguments) {
  const auto colon = step.find(':');
  const std::string verb = step.substr(0, colon);
  const std::string value = colon == std::string::npos ? std::string() : step.substr(colon + 1);
  const auto equals = value.find('=');
  const std::string name = value.substr(0, equals);
  const std::string text = equals == std::string::npos ? std::string() : value.substr(equals + 1);

  if (verb == "print") std::cout << value << std::endl;
  if (verb == "error") std::cerr << value << std::endl;
  if (verb == "write") Write(name, text);
  if (verb == "copy") Write(text, Text_Of(name));
  if (verb == "note") Note(value, arguments);
  if (verb == "value")
    std::cout << (getenv(value.c_str()) ? getenv(value.c_str()) : "") << std::endl;
  if (verb == "pid") Write(value, std::to_string(getpid()));
  if (verb == "sleep") Sleep(std::atoi(value.c_str()));
  while (verb == "await" && access(value.c_str(), F_OK) != 0) Sleep(5);
  if (verb == "ignore-term") signal(SIGTERM, SIG_IGN);
  if (verb == "heed-term") signal(SIGTERM, SIG_DFL);
  if (verb == "child") Start_Child(value, false, false);
  if (verb == "session") Start_Child(value, true, false);
  if (verb == "orphan") Start_Child(value, true, true);
  if (verb == "flood") Flood(std::atoll(value.c_str()));
  if (verb == "big") Make_Big(name, std::atoll(text.c_str()));
  if (verb == "signal") raise(std::atoi(value.c_str()));
  if (verb == "exit") std::exit(std::atoi(value.c_str()));
}

}  // namespace

int main(int count, char** values) {
  const std::vector<std::string> arguments(values + 1, values + count);
  std::vector<std::string> steps = arguments;
  if (access(kSteps, F_OK) == 0) {
    steps.clear();
    std::istringstream lines(Text_Of(kSteps));
    for (std::string line; std::getline(lines, line);) steps.push_back(line);
  }
  for (const std::string& step : steps) Take_Step(step, arguments);
  return 0;
}
