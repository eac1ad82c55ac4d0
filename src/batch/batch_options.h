#pragma once

#include <optional>
#include <string>
#include <vector>

#include "run/solver_command.h"

namespace barvon {

inline constexpr int kDone = 0;      // everything was done
inline constexpr int kFindings = 1;  // projects have errors
inline constexpr int kNotDone = 2;   // something could not be done

enum class Batch_Command { Check, Export, Run, Show, New, Check_Database, Report };

/// The command line of barvon-run.
struct Batch_Options {
  Batch_Command command = Batch_Command::Check;
  std::vector<std::string> files;  // as given
  std::string output;              // export, report: where to; empty: beside the project
  std::string solver_folder;       // run; empty: the user's or the program's
  Solver_Choice solver = Solver_Choice::External_First;  // run
  int jobs = 1;                                          // run: projects at a time
  bool despite_errors = false;                           // run
  bool pdf = false;                                      // report
  bool json = false;                                     // show
  bool force = false;                                    // new
  std::string folder;                                    // database check
  bool mend = false;                                     // database check
};

/// Reads the command line. Nothing when there is nothing left to do: help or version have been
/// shown, or the line was wrong and one line on standard error said so; `exit_code` says which.
std::optional<Batch_Options> Parse_Command_Line(int argc, char** argv, int& exit_code);

}  // namespace barvon
