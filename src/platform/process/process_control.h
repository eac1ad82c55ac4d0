#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace barvon {

/// How to start one external program. No shell reads any of it.
struct Process_Start {
  std::vector<std::string> command;      // full path of the program, then its arguments
  std::vector<std::string> environment;  // "NAME=value" on top of what this program has
  std::string folder;                    // its current directory; empty: the present one
  std::string output_file;               // takes its standard output and error; empty: thrown away
  std::size_t output_limit = 1u << 20;   // bytes that output_file may grow to
};

/// How a program ended.
struct Process_End {
  int exit_code = 0;     // meaningless when signal is not 0; -1 when the system kept it
  int signal = 0;        // the signal that ended it, 0 when it exited by itself
  bool stopped = false;  // ended because Stop was called
};

/// One external program in a process group of its own, with nothing to read on its standard input
/// and none of this program's open files. It is killed when this program dies, however that dies;
/// what it started by itself is not, then. Its output is taken from a pipe while Poll is called,
/// and goes to a file that never grows past its limit: when there is more, the middle is left out
/// and the file says so. The file is made anew with the first output.
///
/// The program has ended when its own process has. What it leaves running is killed then and not
/// waited for; of a program that was stopped the end is the end of everything that it started.
class External_Process {
 public:
  External_Process();
  /// A program that still runs is killed with everything it started.
  ~External_Process();
  External_Process(const External_Process&) = delete;
  External_Process& operator=(const External_Process&) = delete;

  /// 0, or the errno value for which the program could not be started.
  int Start(const Process_Start& start);
  /// True while the program runs. Takes its output and never blocks.
  bool Poll();
  /// Asks the program and everything that it started to end, at the next Polls; what still runs
  /// after the grace is killed.
  void Stop(std::chrono::milliseconds grace = std::chrono::milliseconds(3000));
  /// Stop, and waits for the end: at most the grace and what a kill takes.
  void Stop_And_Wait(std::chrono::milliseconds grace = std::chrono::milliseconds(1000));

  bool Is_Running() const;
  /// A descriptor that can be read as soon as the program's own process has ended, so that its end
  /// is waited for without looking again and again. -1 when that is no news any more, or the system
  /// has none to give. It is open for as long as this object, or up to the next Start.
  int End_Descriptor() const;
  const Process_End& End() const;
  /// The last lines of the program's output as it wrote them, at most 4 KiB; empty when the output
  /// is thrown away.
  std::string Last_Output() const;
  /// How long the program ran, or has been running.
  std::chrono::milliseconds Duration() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace barvon
