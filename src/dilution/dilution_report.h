#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

inline constexpr char kDilutionReport[] = "DILUTE.OUT";

/// The report's text, lines ended by CR LF: a form feed with the title, an empty line, headings,
/// and a line for each parameter with its values, results and remarks at fixed columns. What
/// overruns its column pushes the rest on, with at least one blank between.
std::string Dilution_Report(const ProjectRecord& record);

/// Writes the report as DILUTE.OUT into the current folder, Windows-1252, whole or not at all, and
/// says in the status area where it went. What is not computed is computed first. One that is there
/// is replaced after a question. Nothing is written, and the user has been told, when there are no
/// parameters, they can't be computed or the file can't be written.
void Write_Dilute_Report(ProjectRecord& record);

/// Makes the report known as a command of the Tools menu.
void Register_Dilute_Report();

}  // namespace barvon
