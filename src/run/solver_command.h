#pragma once

#include <string>
#include <vector>

namespace barvon {

/// The solver that comes with the program, and what a run says it is.
inline constexpr char kCompanionProgram[] = "barvon-solver";
inline constexpr char kCompanionName[] = "companion solver " BARVON_COMPANION_VERSION;

enum class Solver_Choice {
  External_First,  // the companion where nobody has put another one
  External,
  Companion
};

/// How a command line is started on this system.
struct Solver_Command {
  std::vector<std::string> command;      // full path and arguments; empty: nothing here can run it
  std::vector<std::string> environment;  // "NAME=value" to be added
  std::string problem;                   // why not, for the status area
  std::string name{};                    // what to call it in the place of its path; mostly empty
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

/// The folder in which a command line's programs are looked for: the user's own where that has a
/// file of one of the names, also one that can't be run here, so that the delivered solver never
/// stands in for it unnoticed; else the delivered one.
std::string Solver_Folder(const std::string& command_line, const std::string& own_folder,
                          const std::string& delivered_folder);

/// The same command line where solvers were delivered in another folder than the application
/// directory, which is looked through only where Solver_Folder says so. A launcher is told the full
/// path of a delivered program; a delivered DOS program is refused, since the emulator's drive is
/// the application directory.
Solver_Command Find_Solver_Command(const std::string& command_line,
                                   const std::string& application_folder,
                                   const std::string& delivered_folder);

/// True when one of the folders has a file of the program's name, also one that can't be run here.
/// A launcher alone is no solver, wherever it stands.
bool Has_External_Solver(const std::string& command_line, const std::string& application_folder,
                         const std::string& delivered_folder);

/// What External_First comes to: External where there is one, or where the delivered folder has no
/// companion.
Solver_Choice Chosen_Solver(const std::string& command_line, const std::string& application_folder,
                            const std::string& delivered_folder);

/// The solver of a run: the command line's by the rules above, or the companion in the delivered
/// folder, which takes no arguments.
Solver_Command Find_Solver(const std::string& command_line, Solver_Choice choice,
                           const std::string& application_folder,
                           const std::string& delivered_folder);

}  // namespace barvon
