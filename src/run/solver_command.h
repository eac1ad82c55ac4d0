#pragma once

#include <string>
#include <vector>

namespace barvon {

/// How a command line is started on this system.
struct Solver_Command {
  std::vector<std::string> command;      // full path and arguments; empty: nothing here can run it
  std::vector<std::string> environment;  // "NAME=value" to be added
  std::string problem;                   // why not, for the status area
};

/// "DOS4GW MERAK32.EXE" in a given application directory: the launcher is looked for there, then
/// on the search path, without regard to case. If there is none, the program that it names is
/// looked for in the application directory ("MERAK32.EXE", then "merak32") and started directly
/// when it can be executed here; a DOS program is started through dosbox when that is installed,
/// with the application directory as its drive and without a visible window. A command of one
/// word is its own program.
///
/// The command is to be started with the application directory as its current one.
Solver_Command Find_Solver_Command(const std::string& command_line,
                                   const std::string& application_folder);

}  // namespace barvon
