#pragma once

#include "core/project_record.h"
#include "platform/files/known_folders.h"
#include "run/run_report.h"

namespace barvon {

/// The Run command: brings the record and the boards up to date, finds the saved project, offers
/// the findings, saves if need be, writes the model input and the marker, starts the solver, waits,
/// keeps its outputs. Tells the user in boxes where the flow has one and in the status area how it
/// ended. Every exit is a return to the idle workspace.
///
/// The outputs go to the project that was run, also when the user has opened another one or saved
/// under another name meanwhile. When this program ends during the run, the outputs, the settings
/// and the workspace stay as they are.
Run_Report Run_Model(ProjectRecord& record, Solver_Choice choice = Solver_Choice::External_First);
/// The same as one of many runs. `folders` is asked for the case of the names beside the project;
/// nobody else uses it meanwhile.
Run_Report Run_Model(ProjectRecord& record, Known_Folders& folders,
                     Solver_Choice choice = Solver_Choice::External_First);

/// Makes the application directory the current one.
void Set_Application_Directory();

}  // namespace barvon
