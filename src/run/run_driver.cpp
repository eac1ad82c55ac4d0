#include "run/run_driver.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <system_error>

#include "checks/check_data.h"
#include "checks/remarks.h"
#include "core/desk/analysis_keys.h"
#include "core/desk/file_dialogs.h"
#include "core/desk/save_file.h"
#include "core/desk/screen_register.h"
#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "core/failure.h"
#include "core/keys.h"
#include "core/model_input/additions.h"
#include "core/model_input/model_input.h"
#include "core/text_tools.h"
#include "platform/ask/message_box.h"
#include "platform/files/app_folder.h"
#include "platform/files/folder_lock.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/process/stray_processes.h"
#include "run/scratch_names.h"
#include "run/solver_table.h"

namespace barvon {
namespace {

constexpr std::size_t kScratchNameWidth = 8;
constexpr char kErrorTitle[] = "BARVON Error";

bool Project_Exists(const ProjectRecord& record, const char* extension, Known_Folders& folders) {
  return !record.BaseFileName.empty() &&
         Find_Path(record.BaseFileName + extension, folders).has_value();
}

/// Save As with the present name offered, then the save. Nothing when the project is on disk;
/// otherwise it keeps the name it had.
std::optional<Run_Stage> Save_As(ProjectRecord& record, Run_Stage on_cancel) {
  const auto name = File_SaveAs_Dialog(record.ProjectFileName, kProjectKind);
  if (!name) return on_cancel;
  if (!Save_File(*name, kProjectKind, record)) return Run_Stage::Save_Failed;
  return std::nullopt;
}

/// Sees to it that the project has a file. Nothing when the run may go on.
std::optional<Run_Stage> Check_File(ProjectRecord& record, Known_Folders& folders) {
  constexpr char kNoFile[] = "Please Specify a File Before Running Model";
  if (record.FileKind == kDilutionKind) {
    if (Project_Exists(record, ".DUD", folders)) return std::nullopt;
    Show_Critical(kNoFile, kErrorTitle);
    return Run_Stage::No_File;
  }
  if (Is_Model_Project(record)) {
    if (Project_Exists(record, ".DUI", folders)) return std::nullopt;
    Show_Critical(kNoFile, kErrorTitle);
    return Save_As(record, Run_Stage::No_File);
  }
  Show_Critical("Invalid File Type", kErrorTitle);
  return Run_Stage::Invalid_Type;
}

std::optional<Run_Stage> Offer_Findings(const ProjectRecord& record, Run_Report& report) {
  const Flag found = Check_Project(record);
  report.remarks = Current_Remarks();
  if (found == kFalse) return std::nullopt;
  switch (Ask(kErrorsDetected, Buttons::YesNoCancel)) {
    case Answer::No:
      return std::nullopt;
    case Answer::Yes:
      Open_Screen(Row_Of_Screen("frmErrorList"), Opens_Blocking(record));
      return Run_Stage::Errors;
    default:
      return Run_Stage::Cancelled;
  }
}

/// Everything before the point from which failures no longer stop the flow.
std::optional<Run_Stage> Prepare(ProjectRecord& record, Known_Folders& folders,
                                 Run_Report& report) {
  // What is run is what the boards show; a choice made on them may still wait for its refresh.
  if (Is_Model_Project(record)) Show_Project(record);
  if (auto stage = Check_File(record, folders)) return stage;
  if (auto stage = Offer_Findings(record, report)) return stage;
  if (record.DataSaved == kFalse && record.AlwaysSaveBeforeRun != kFalse) {
    return Save_As(record, Run_Stage::Cancelled);
  }
  return std::nullopt;
}

/// False when one of them is still there.
bool Remove_Files(const std::string& folder, const char* pattern) {
  bool all = true;
  for (const std::string& path : Matching_Files(folder, pattern)) {
    all = ::unlink(path.c_str()) == 0 && all;
  }
  return all;
}

/// The run's scratch files of a folder. A project that bears a scratch name is none, nor is a link
/// that it is opened by.
std::vector<std::string> Scratch_Files(const std::string& folder, const std::string& project) {
  namespace fs = std::filesystem;
  const auto place = [](const std::string& path) {
    std::error_code error;
    return fs::canonical(Folder_Of(path), error) / Name_Of(path);
  };
  std::error_code error;
  const std::string named = Path_To_Write(project);
  const fs::path file = fs::canonical(named, error);
  std::vector<std::string> paths = Matching_Files(folder, kScratchFiles);
  std::erase_if(paths, [&](const std::string& path) {
    const fs::path scratch = place(path);
    return scratch == file || scratch == place(named);
  });
  return paths;
}

void Remove_Scratch_Files(const std::string& project) {
  for (const std::string& path : Scratch_Files(".", project)) ::unlink(path.c_str());
}

/// True for what leads a solver that writes under this name elsewhere: another name of a file, a
/// link, a pipe.
bool Leads_Elsewhere(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && (!S_ISREG(status.st_mode) || status.st_nlink > 1);
}

/// Takes away from the solver's folder what its outputs would go through, which may be another one
/// than the current directory. An output of an earlier run stays. What can't be taken away is told.
void Remove_Traps(const std::string& folder, const std::string& project, std::string& problem) {
  for (const std::string& path : Scratch_Files(folder, project)) {
    if (!Leads_Elsewhere(path) || ::unlink(path.c_str()) == 0 || !problem.empty()) continue;
    problem = path + " leads elsewhere and could not be removed";
  }
}

/// Makes one file that the solver reads. What bears its name, in any case, goes first: the solver
/// may ask for it in another one, and a link under it must not lead the bytes elsewhere.
void Make_File(const std::string& folder, const char* name, std::string_view bytes,
               std::string& problem) {
  Remove_Files(folder, name);
  const int error = Write_Exclusive_File(Join_Path(folder, name), bytes);
  if (error != 0 && problem.empty()) {
    problem = std::string(name) + " could not be written into " + folder + " (" +
              Failure_Name(Failure_Of_Errno(error)) + ")";
  }
}

std::string Marker_Line() {
  return "DUE   , ,                            ,"
         "                                     ," +
         Left_Justified(kNameInMarker, kScratchNameWidth) + ",                           ,\r\n";
}

/// Makes the file of the additions where there are any. Where there are none, those of another
/// project must not be taken for this one's.
void Make_Additions(const std::string& folder, std::string_view bytes, std::string& problem) {
  if (!bytes.empty()) return Make_File(folder, kAdditionsFile, bytes, problem);
  if (Remove_Files(folder, kAdditionsFile) || !problem.empty()) return;
  problem = Join_Path(folder, kAdditionsFile) + " of an earlier run could not be removed";
}

/// Writes model input, additions and marker. Returns what failed first, as text.
std::string Write_Solver_Files(ProjectRecord& record, const std::string& folder) {
  std::string problem;
  std::string input, additions;
  Failure failure = Make_Model_Input(record, input);
  if (failure == Failure::None) failure = Write_Additions(record, additions);
  if (failure != Failure::None) {
    Remove_Files(folder, kModelInputFile);
    problem = std::string("the model input could not be written (") + Failure_Name(failure) + ")";
  } else {
    Make_File(folder, kModelInputFile, input, problem);
  }
  Make_Additions(folder, additions, problem);
  Make_File(folder, kMarkerFile, Marker_Line(), problem);
  return problem;
}

void Run_Solver(ProjectRecord& record, Solver_Choice choice, Known_Folders& folders,
                Run_Report& report) {
  const std::string folder = Absolute_Path(Application_Folder());
  // Solvers meet in this folder under the same names, whichever program started them.
  const Folder_Lock lock(folder);
  if (lock.Is_Taken()) {
    report.stage = Run_Stage::Refused;
    return;
  }
  // What a killed program's solver has left running would write its files over this run's.
  const std::string mark = Join_Path(folder, kRunMark);
  // A link to nowhere under the mark's name is a mark that somebody has changed.
  struct stat status {};
  if (::lstat(mark.c_str(), &status) == 0) Kill_Strays_In(folder);
  const std::string project = record.ProjectFileName;
  const std::string base_name = record.BaseFileName;
  Remove_Scratch_Files(project);
  report.problem = Write_Solver_Files(record, folder);
  Remove_Traps(folder, project, report.problem);
  Set_Application_Directory();
  const Solver solver = Solver_For(record.DisposalMethod);
  if (!solver.started) {
    report.stage = Run_Stage::No_Model;
    Show_Message({"No Model is currently available for this discharge case."});
    return;
  }
  record.OutputsCopied = kFalse;
  if (!report.problem.empty()) {
    report.stage = Run_Stage::Input_Failed;
    Show_Message({"Could not Excecute Preprocessor!"});
    return;
  }
  const Output_Files outputs(folder);
  ::unlink(mark.c_str());
  Write_Exclusive_File(mark, "");
  report.outcome = Create_Process_Code(solver.command_line, choice);
  ::unlink(mark.c_str());
  if (report.outcome.end.stopped || report.outcome.program_ends) {
    report.stage = Run_Stage::Stopped;
    return;
  }
  report.stage = report.outcome.started ? Run_Stage::Ended : Run_Stage::Not_Started;
  // Outputs that are there without a run are another one's, and older ones stay as they are.
  if (report.outcome.started) {
    // They may be huge, and each is waited for on the disk.
    std::vector<Kept_Output> kept;
    report.outcome.program_ends = !Do_Aside([&] { kept = outputs.Keep(base_name, folders); });
    report.Add_Outputs(kept);
    if (report.outcome.program_ends) return;
  }
  // The graphics are of the open project, which may be another one by now.
  if (record.ProjectFileName == project) Write_Graph_File(project);
}

/// How the run ended, behind the number of remarks: the line may be cut at its end. The lines of
/// the remarks come before what a solver that failed said last.
Status_Note Note_Of(const Run_Report& report) {
  const bool failed = report.stage == Run_Stage::Ended && !report.Succeeded();
  const std::string last_output = failed ? report.outcome.last_output : std::string();
  if (report.remarks.empty()) return {report.text, last_output};
  const std::string between = last_output.empty() ? "" : "\n";
  return {Remark_Count(report.remarks) + ". " + report.text,
          Remark_Lines(report.remarks) + between + last_output};
}

}  // namespace

Run_Report Run_Model(ProjectRecord& record, Solver_Choice choice) {
  Known_Folders folders;
  return Run_Model(record, folders, choice);
}

Run_Report Run_Model(ProjectRecord& record, Known_Folders& folders, Solver_Choice choice) {
  Run_Report report;
  if (Run_Is_Under_Way()) {
    report.stage = Run_Stage::Refused;
  } else if (const auto stage = Prepare(record, folders, report)) {
    report.stage = *stage;
  } else {
    Run_Solver(record, choice, folders, report);
  }
  report.text = Status_Text(report);
  if (report.outcome.program_ends) return report;
  Port().board.show_note(Note_Of(report));
  return report;
}

void Set_Application_Directory() { Change_Current_Folder(Application_Folder()); }

}  // namespace barvon
