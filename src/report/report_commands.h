#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// Asks for a name and writes the report of the project under it, as PDF or, for a name that ends
/// so, as a page of the web. The record and the boards are brought in step first, as for a run;
/// what is typed on an open screen and not accepted is not in it. How it ended is told.
void Save_Project_Report(ProjectRecord& record);

/// The same, printed on the printer that a person chooses.
void Print_Project_Report(ProjectRecord& record);

/// Writes the report of a project file as PDF, without a window. An exit code: 0, or 2 when the
/// project can't be read or the report not be written; standard error says why.
int Write_Report_Pdf(const std::string& project, const std::string& target);

/// Makes the report known as a command of the Tools menu, and to Print.
void Register_Project_Report();

}  // namespace barvon
