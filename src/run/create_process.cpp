#include "run/create_process.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "core/desk/workspace_port.h"
#include "platform/files/app_folder.h"
#include "platform/files/paths.h"
#include "platform/files/text_encoding.h"
#include "platform/process/aside_work.h"
#include "platform/process/event_pump.h"
#include "platform/process/viewer_program.h"
#include "run/scratch_names.h"

namespace barvon {
namespace {

/// The end is told of at once; what the program prints can wait in its pipe for a while.
constexpr std::chrono::milliseconds kTakeOutputEvery{25};

struct Work {
  Aside_Work aside;
  bool program_ends = false;
};

Work*& Current_Work() {
  static Work* current = nullptr;
  return current;
}

struct Run {
  External_Process process;
  std::string name;
  bool program_ends = false;
};

Run*& Current_Run() {
  static Run* current = nullptr;
  return current;
}

/// What a program printed as text that can be shown.
std::string Shown_Lines(const std::string& output) {
  std::string text = From_Settings_Bytes(output);
  std::erase_if(
      text, [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t'; });
  return text;
}

/// The command to start, and the program's name in the outcome; why there is none, too.
Solver_Command Found_Command(const std::string& command_line, Solver_Choice choice,
                             const std::string& folder, Process_Outcome& outcome) {
  Solver_Command found =
      Find_Solver(command_line, choice, folder, Absolute_Path(Delivered_Folder()));
  outcome.program = found.command.empty() ? command_line : found.command[0];
  outcome.name = found.name.empty() ? outcome.program : found.name;
  outcome.problem = found.problem;
  return found;
}

void Note_Start(int error, Process_Outcome& outcome) {
  outcome.started = error == 0;
  if (error == 0) return;
  outcome.problem = outcome.program + ": " + std::generic_category().message(error);
}

}  // namespace

Process_Outcome Create_Process_Code(const std::string& command_line, Solver_Choice choice) {
  Process_Outcome outcome;
  if (Run_Is_Under_Way()) {
    outcome.program = outcome.name = command_line;
    outcome.problem = "another program is still at work";
    return outcome;
  }
  Process_Start start;
  start.folder = Absolute_Path(Application_Folder());
  Solver_Command found = Found_Command(command_line, choice, start.folder, outcome);
  if (found.command.empty()) return outcome;

  Run run;
  start.command = std::move(found.command);
  start.environment = std::move(found.environment);
  start.output_file = Join_Path(start.folder, kPrintedFile);
  run.name = outcome.name;
  Note_Start(run.process.Start(start), outcome);
  if (!outcome.started) return outcome;
  Current_Run() = &run;
  Port().run.state(true, run.name);
  while (run.process.Poll()) {
    Pump_Events(kTakeOutputEvery, run.process.End_Descriptor());
  }
  Current_Run() = nullptr;

  outcome.end = run.process.End();
  outcome.duration = run.process.Duration();
  outcome.last_output = Shown_Lines(run.process.Last_Output());
  if (!outcome.last_output.empty()) outcome.output_file = start.output_file;
  outcome.program_ends = run.program_ends;
  if (!run.program_ends) Port().run.state(false, run.name);
  return outcome;
}

void Create_Viewer_Process(const std::string& command_line,
                           const std::function<void(const Process_Outcome&)>& when_over) {
  Process_Outcome outcome;
  const std::string folder = Absolute_Path(Application_Folder());
  // What the command wants in its environment hides its window; a viewer is to be seen.
  const std::vector<std::string> command =
      Found_Command(command_line, Solver_Choice::External, folder, outcome).command;
  if (!command.empty()) {
    outcome.started = true;
    const int error = Start_Viewer(
        command, folder,
        [outcome, when_over](const Process_End& end, const std::string& last_output) mutable {
          outcome.end = end;
          outcome.last_output = Shown_Lines(last_output);
          when_over(outcome);
        });
    Note_Start(error, outcome);
  }
  if (!outcome.started) when_over(outcome);
}

bool Do_Aside(const std::function<void()>& work) {
  Work current{Aside_Work(work)};
  Current_Work() = &current;
  while (!current.aside.Is_Done()) {
    Pump_Events(kTakeOutputEvery, current.aside.End_Descriptor());
  }
  Current_Work() = nullptr;
  return !current.program_ends;
}

bool Run_Is_Under_Way() { return Current_Run() != nullptr || Current_Work() != nullptr; }

void Stop_Run() {
  if (Current_Run() != nullptr) Current_Run()->process.Stop();
}

void Stop_Run_And_Wait() {
  if (Work* const work = Current_Work(); work != nullptr) {
    work->program_ends = true;
    work->aside.Wait();
  }
  Run* const run = Current_Run();
  if (run == nullptr || run->program_ends) return;
  run->program_ends = true;
  run->process.Stop_And_Wait();
  // Said here, while the caller, who ends this program, is still there to hear it.
  Port().run.state(false, run->name);
}

void Stop_Run_At_Exit() {
  Port();  // made before the handler, so that it is still there when the handler is called
  std::atexit([] {
    Reset_Port();
    Stop_Run_And_Wait();
  });
}

}  // namespace barvon
