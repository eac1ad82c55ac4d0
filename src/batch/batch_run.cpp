#include "batch/batch_run.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <map>
#include <sstream>
#include <system_error>
#include <vector>

#include "batch/batch_findings.h"
#include "batch/batch_output.h"
#include "batch/batch_project.h"
#include "batch/interrupts.h"
#include "batch/scratch_application.h"
#include "batch/side_by_side.h"
#include "batch/target_key.h"
#include "core/keys.h"
#include "core/text_tools.h"
#include "platform/ask/box_collector.h"
#include "platform/files/app_folder.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/process/event_pump.h"
#include "run/create_process.h"
#include "run/run_driver.h"
#include "run/solver_command.h"
#include "run/solver_table.h"

namespace barvon {
namespace {

constexpr std::size_t kLastLines = 5;

/// Sleeps until the program ends, the time is up or a signal comes; a signal that asks for the end
/// stops the run.
void Wait_Or_Stop(std::chrono::milliseconds longest, int wake) {
  static bool stopping = false;
  if (Interrupt_Seen() != 0 && !stopping) {
    stopping = true;
    Stop_Run();
  }
  Sleep_Until_Readable(wake, longest);
}

/// The text with the solver where it is kept: the scratch folder that it ran in is gone by the
/// time anybody reads of it.
std::string With_Lasting_Paths(std::string text, const std::string& scratch,
                               const std::string& solvers) {
  for (auto at = text.find(scratch); at != std::string::npos;
       at = text.find(scratch, at + solvers.size())) {
    text.replace(at, scratch.size(), solvers);
  }
  return text;
}

void Say_Last_Output(const std::string& file, const std::string& output) {
  std::vector<std::string> lines;
  std::istringstream stream(output);
  for (std::string line; std::getline(stream, line);) {
    if (!Trimmed(line).empty()) lines.push_back(line);
  }
  const std::size_t first = lines.size() - std::min(lines.size(), kLastLines);
  for (std::size_t i = first; i < lines.size(); ++i) {
    Say_Problem(file, "the solver said: " + lines[i]);
  }
}

int Say_Report(const std::string& file, const Run_Report& report, const std::string& text) {
  if (report.Succeeded()) {
    Say({file, "ran", text});
  } else {
    Say_Problem(file, text);
    Say_Last_Output(file, report.outcome.last_output);
  }
  for (const std::string& path : report.kept) Say({file, "kept", path});
  return report.Succeeded() ? kDone : kNotDone;
}

/// Runs the project with the scratch folder as application directory and as current one: the
/// driver clears the current directory of old "Tmpfile.*", and that must not be the caller's.
int Run_In(const std::string& scratch, const std::string& file, ProjectRecord& record,
           const Batch_Options& options, Known_Folders& folders) {
  std::error_code error;
  const std::string former_current = std::filesystem::current_path(error).string();
  if (!Change_Current_Folder(scratch)) {
    Say_Problem(file, "the scratch folder can't be entered: " + scratch);
    return kNotDone;
  }
  const std::string former_application = Application_Folder();
  Set_Application_Folder(scratch);
  Set_Passing_Folder(scratch);
  const Event_Pump former_pump = Set_Event_Pump(Wait_Or_Stop);
  Run_Report report;
  {
    Box_Collector boxes;
    boxes.Answer_No();
    report = Run_Model(record, folders, options.solver);
  }
  Set_Event_Pump(former_pump);
  Set_Passing_Folder({});
  Set_Application_Folder(former_application);
  if (!former_current.empty()) Change_Current_Folder(former_current);
  // What could not be written could not be written where the run was, not where its solver is kept.
  return Say_Report(file, report,
                    report.problem.empty()
                        ? With_Lasting_Paths(report.text, scratch, options.solver_folder)
                        : report.text);
}

int Run(const std::string& file, const Batch_Options& options, Known_Folders& folders) {
  const auto record = Open_Project(file, folders);
  if (!record) return kNotDone;
  const int found = Say_Findings(file, *record);
  Say_Remarks(file, *record);
  if (found != kDone && !options.despite_errors) return kFindings;
  std::string problem;
  const auto scratch = Scratch_Application::Make(options.solver_folder, problem);
  if (!scratch) {
    Say_Problem(file, problem);
    return kNotDone;
  }
  return Run_In(scratch->Path(), file, *record, options, folders);
}

/// The files that can run without writing each other's outputs. The rest is told on standard
/// error; `worst` becomes kNotDone when one of them is another project.
std::vector<std::string> Without_Clashes(const std::vector<std::string>& files,
                                         Known_Folders& folders, int& worst) {
  std::vector<std::string> kept;
  std::map<std::string, std::string> by_outputs;
  for (const std::string& file : files) {
    const std::string path = Project_Path(file, folders);
    const auto [other, first] = by_outputs.emplace(Target_Key(Base_Name(path)), file);
    if (first) {
      kept.push_back(file);
      continue;
    }
    const std::string former = Project_Path(other->second, folders);
    if (Target_Key(former) == Target_Key(path) && Name_Of(former) == Name_Of(path)) {
      Say_Warning(file, "given more than once; it is run once");
    } else {
      Say_Problem(file, "not run: its outputs would overwrite those of " + other->second);
      worst = kNotDone;
    }
  }
  return kept;
}

/// Which solver, and the folder with it: of a call's projects none runs with another one.
void Choose_Solver(Batch_Options& options) {
  if (!options.solver_folder.empty()) {
    options.solver = Solver_Choice::External;
    return;
  }
  const std::string command_line = Solver_For(kBarge).command_line;
  const std::string delivered = Program_Folder(), own = Folder_For_Own_Files(delivered);
  if (options.solver == Solver_Choice::External_First) {
    options.solver = Chosen_Solver(command_line, own, delivered);
    if (options.solver == Solver_Choice::External &&
        !Has_External_Solver(command_line, own, delivered)) {
      Say_Warning("", std::string("the companion solver, ") + kCompanionProgram +
                          ", is missing in " + delivered);
    }
  }
  options.solver_folder = options.solver == Solver_Choice::Companion
                              ? delivered
                              : Solver_Folder(command_line, own, delivered);
}

}  // namespace

int Run_Projects(const Batch_Options& given, Known_Folders& folders) {
  Batch_Options options = given;
  Choose_Solver(options);
  std::error_code error;
  if (!std::filesystem::is_directory(options.solver_folder, error)) {
    Say_Problem(options.solver_folder, "no such folder for --solver-dir");
    return kNotDone;
  }
  options.solver_folder = Absolute_Path(options.solver_folder);
  int worst = kDone;
  options.files = Without_Clashes(options.files, folders, worst);
  if (options.jobs > 1 && options.files.size() > 1) {
    return std::max(worst, Run_Side_By_Side(options));
  }
  for (const std::string& file : options.files) {
    if (Interrupt_Seen() != 0) return kNotDone;
    worst = std::max(worst, Run(file, options, folders));
  }
  return worst;
}

}  // namespace barvon
