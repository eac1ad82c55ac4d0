#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "platform/process/process_control.h"
#include "run/solver_command.h"

namespace barvon {

/// What became of one external program.
struct Process_Outcome {
  bool started = false;
  std::string program;  // full path of what was started, or what was looked for
  std::string name;     // what the user is told ran: the path, or the companion's name
  std::string problem;  // why it was not started
  Process_End end;
  std::chrono::milliseconds duration{0};
  std::string last_output;    // its last lines
  std::string output_file;    // where its output is kept; empty when it printed nothing
  bool program_ends = false;  // Stop_Run_And_Wait was called: this program is on its way out
};

/// Starts a solver's command line, or the companion in its place, by the rules of Find_Solver, in
/// the application directory, and waits for its end with the interface alive and the processor next
/// to idle. Only one solver runs at a time; while one does, another call starts nothing and says
/// so. The workspace hears of start and end through run_state.
Process_Outcome Create_Process_Code(const std::string& command_line,
                                    Solver_Choice choice = Solver_Choice::External);

/// Starts a program that shows results by the same rules, beside a run and beside other viewers.
/// It is the user's: no call here ends it, and it lives on when this program ends. `when_over` is
/// told the outcome once, at once when it could not be started, otherwise when it has ended.
void Create_Viewer_Process(const std::string& command_line,
                           const std::function<void(const Process_Outcome&)>& when_over);

/// Does what belongs to a run and waits for the disk, with the interface alive. False when this
/// program ends meanwhile: the work is done then, and the workspace must not be touched any more.
bool Do_Aside(const std::function<void()>& work);

/// True from the start of a solver until its wait is over, and during Do_Aside.
bool Run_Is_Under_Way();
/// Ends the solver that runs and everything that it started, first politely, then by force.
/// Does nothing when none runs.
void Stop_Run();
/// The same before this program ends: does not return before they are gone, nor before what is done
/// aside is done. Whoever waits for the run is then expected to return without touching the
/// workspace any more.
void Stop_Run_And_Wait();
/// From here on the run also ends with this program when that leaves by std::exit, as the toolkit
/// does when the display goes away. The workspace is not touched then.
void Stop_Run_At_Exit();

}  // namespace barvon
