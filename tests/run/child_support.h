#pragma once

#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <thread>

#include "support/plain_support.h"

namespace barvon::testing {

/// Waits for something that comes by itself, however slow the machine is; gives up after minutes,
/// so that a fault does not hang the tests.
inline bool Comes_True(const std::function<bool()>& condition) {
  for (int tries = 0; tries < 24000; ++tries) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return false;
}

/// The number that a child wrote to a file.
inline pid_t Pid_In(const std::string& path) {
  return static_cast<pid_t>(std::atol(Read_Text(path).c_str()));
}

/// True while a process of that number runs. One that has ended and waits for its parent's notice
/// does not run.
inline bool Is_Alive(pid_t pid) {
  if (::kill(pid, 0) != 0) return false;
  const std::string stat = Read_Text("/proc/" + std::to_string(pid) + "/stat");
  const auto name_end = stat.rfind(')');
  return name_end != std::string::npos && stat.at(name_end + 2) != 'Z' &&
         stat.at(name_end + 2) != 'X';
}

}  // namespace barvon::testing
