#include "run/create_process.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "core/desk/workspace_port.h"
#include "platform/files/app_folder.h"
#include "platform/files/paths.h"
#include "platform/files/text_encoding.h"
#include "platform/process/event_pump.h"
#include "run/scratch_names.h"
#include "run/solver_command.h"

namespace barvon {
namespace {

constexpr std::chrono::milliseconds kPollEvery{25};

struct Run {
  External_Process process;
  std::string program;
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

}  // namespace

Process_Outcome Create_Process_Code(const std::string& command_line) {
  Process_Outcome outcome;
  outcome.program = command_line;
  if (Run_Is_Under_Way()) {
    outcome.problem = "another program is still at work";
    return outcome;
  }
  Process_Start start;
  start.folder = Absolute_Path(Application_Folder());
  Solver_Command found = Find_Solver_Command(command_line, start.folder);
  outcome.problem = found.problem;
  if (found.command.empty()) return outcome;

  Run run;
  start.command = std::move(found.command);
  start.environment = std::move(found.environment);
  start.output_file = Join_Path(start.folder, kPrintedFile);
  outcome.program = run.program = start.command[0];
  if (const int error = run.process.Start(start); error != 0) {
    outcome.problem = run.program + ": " + std::generic_category().message(error);
    return outcome;
  }
  outcome.started = true;
  Current_Run() = &run;
  Port().run.state(true, run.program);
  while (run.process.Poll()) Pump_Events(kPollEvery);
  Current_Run() = nullptr;

  outcome.end = run.process.End();
  outcome.duration = run.process.Duration();
  outcome.last_output = Shown_Lines(run.process.Last_Output());
  if (!outcome.last_output.empty()) outcome.output_file = start.output_file;
  outcome.program_ends = run.program_ends;
  if (!run.program_ends) Port().run.state(false, run.program);
  return outcome;
}

bool Run_Is_Under_Way() { return Current_Run() != nullptr; }

void Stop_Run() {
  if (Run_Is_Under_Way()) Current_Run()->process.Stop();
}

void Stop_Run_And_Wait() {
  Run* const run = Current_Run();
  if (run == nullptr || run->program_ends) return;
  run->program_ends = true;
  run->process.Stop_And_Wait();
  // Said here, while the caller, who ends this program, is still there to hear it.
  Port().run.state(false, run->program);
}

void Stop_Run_At_Exit() {
  Port();  // made before the handler, so that it is still there when the handler is called
  std::atexit([] {
    Reset_Port();
    Stop_Run_And_Wait();
  });
}

}  // namespace barvon
