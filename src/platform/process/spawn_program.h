#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace barvon {

/// What ties a started program to this one.
enum class Bond {
  Group,  // a process group of its own; killed when this program dies, however that dies
  None,   // a session of its own: it outlives this program and the terminal that it runs in
};

/// One program to be started. No shell reads any of it.
struct Spawn_Order {
  std::vector<std::string> command;  // full path of the program, then its arguments
  // "NAME=value" on top of what this program has; of its search path only the folders from the root
  std::vector<std::string> environment;
  std::string folder;  // its current directory; empty: the present one
  int output = -1;     // becomes its standard output and error; -1: thrown away
  Bond bond = Bond::Group;
};

/// Starts a program with default signal handling, nothing to read on its standard input and none
/// of this program's open files. 0, or the errno value for which it could not be started.
///
/// The bond of a group holds to the thread that calls this: it must be one that lives for as long
/// as this program does.
int Spawn_Program(const Spawn_Order& order, pid_t& pid);

/// A descriptor that can be read once that child has ended; -1 when the system has none to give. It
/// is the caller's to close.
int Open_End_Descriptor(pid_t pid);

}  // namespace barvon
