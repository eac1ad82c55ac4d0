#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace barvon::testing {

struct Program_Result {
  int code = -1;   // exit code; -1 when a signal ended it
  int signal = 0;  // the signal that ended it
  std::string out;
  std::string err;
};

struct Program_Start {
  std::vector<std::string> command;      // full path of the program, then its arguments
  std::string folder;                    // its current directory; empty: the test's
  std::vector<std::string> environment;  // "NAME=value" on top of the test's
  std::string out_path;                  // takes standard output instead of the result
};

/// Runs a program to its end and takes what it says.
Program_Result Run_Program(const Program_Start& start);
/// The same; `while_running` is called over and over until the program ends.
Program_Result Run_Program(const Program_Start& start,
                           const std::function<void(pid_t)>& while_running);

/// The lines of a text, without their ends.
std::vector<std::string> Printed_Lines(const std::string& text);

}  // namespace barvon::testing
