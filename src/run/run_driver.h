#pragma once

#include <string>
#include <vector>

#include "core/project_record.h"
#include "run/create_process.h"

namespace barvon {

/// How far a run came, for the status area and the console program.
enum class Run_Stage {
  Refused,       // a run is under way
  No_File,       // no saved project, or the user cancelled the dialog
  Invalid_Type,  // FileKind is none that can run
  Errors,        // the user wants to mend the findings
  Cancelled,
  Save_Failed,
  Input_Failed,  // the model input could not be written; nothing was started
  No_Model,      // no solver for this disposal method
  Not_Started,   // the solver could not be started
  Stopped,       // the user stopped it; outputs are as they were before the run
  Ended,         // the solver ended by itself, see outcome.end
};

struct Run_Report {
  Run_Stage stage = Run_Stage::No_File;
  Process_Outcome outcome;
  std::vector<std::string> kept;         // paths of outputs copied beside the project
  std::vector<std::string> not_written;  // extensions of outputs this run did not write
  std::string text;                      // the line of the status area

  /// The solver ran to its end without complaint and wrote all four outputs.
  bool Succeeded() const;
};

/// The Run command: finds the saved project, offers the findings, saves if need be, writes the
/// model input and the marker, starts the solver, waits, keeps its outputs. Tells the user in
/// boxes where the flow has one and in the status area how it ended. Every exit is a return to
/// the idle workspace.
Run_Report Run_Model(ProjectRecord& record);

/// Makes the application directory the current one.
void Set_Application_Directory();

}  // namespace barvon
