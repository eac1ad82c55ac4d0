#pragma once

#include <sys/types.h>

#include <string>
#include <utility>
#include <vector>

namespace barvon {

/// The name of the environment's entry that marks a family: what follows it begins with the number
/// of the process that has started it, a point, and that process's start
/// (Process_Family::Start_Of).
inline constexpr char kFamilyMark[] = "BARVON_CHILD";

/// A program and everything that it started: the processes of its group, those that descend from
/// it, also in sessions and groups of their own, and those that carry its mark in their
/// environment, so that one whose parents are gone is still found. A process that was seen once
/// stays a member for as long as it lives.
///
/// The program's own process must not be reaped while the family is in use: until then its number
/// and its group's can't pass to strangers.
class Process_Family {
 public:
  /// `mark` is an entry of the program's environment, "NAME=value", that no other program has.
  Process_Family(pid_t program, std::string mark);

  /// Looks for members and sends the signal to each, or only to those not seen before. True when
  /// any was found alive.
  bool Signal(int signal, bool only_new = false);
  /// When a process was started, in the system's ticks: with the number it names one process for
  /// good. 0 when there is none of that number, or none that still runs.
  static unsigned long long Start_Of(pid_t pid);
  /// Kills what the program has left running, once it has ended by itself: none of it may write to
  /// files that are read from then on.
  void Kill_What_Is_Left();

 private:
  struct Process {
    pid_t pid = 0, parent = 0, group = 0;
    char state = '?';
    unsigned long long start = 0;  // with the number it names one process for good
  };
  static bool Read_Process(const std::string& number, Process& process);
  std::vector<Process> Younger_Processes() const;
  bool Send(const std::vector<Process>& members, int signal, bool only_new);
  bool Carries_Mark(pid_t pid) const;
  std::vector<Process> Members(const std::vector<Process>& all) const;

  pid_t program_;
  std::string mark_;
  std::vector<std::pair<pid_t, unsigned long long>> seen_;
};

}  // namespace barvon
