#pragma once

#include <string>
#include <vector>

#include "run/create_process.h"
#include "run/output_files.h"

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
  std::vector<std::string> remarks;      // what is worth a look in the project
  std::string problem;                   // what the solver's input lacks and why
  std::vector<std::string> kept;         // paths of outputs copied beside the project
  std::vector<std::string> not_written;  // extensions (".duo") of outputs this run did not write
  std::vector<std::string> earlier;      // those of not_written that were copied all the same
  std::vector<std::string> not_kept;     // outputs whose copy failed, each with the reason
  std::string text;                      // the line of the status area

  /// The solver ran to its end without complaint and wrote all four outputs, and all are kept.
  bool Succeeded() const;
  /// Takes over what became of the outputs.
  void Add_Outputs(const std::vector<Kept_Output>& outputs);
};

/// The line of the status area for everything else that the report says.
std::string Status_Text(const Run_Report& report);

}  // namespace barvon
