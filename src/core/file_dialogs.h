#pragma once

#include <optional>
#include <string>

#include "core/project_record.h"

namespace barvon {

inline constexpr int kDilutionKind = 1;
inline constexpr int kProjectKind = 2;

/// Shows the open dialog: dilution files for kind 1, projects and outputs otherwise. On a chosen
/// file sets ProjectFileName, BaseFileName and the caption, opens the file once, and returns
/// true when it was opened. Cancel leaves everything and returns nothing. A failed open leaves
/// names and caption as they were, unless the user agreed to start afresh.
enum class Open_Outcome { Cancelled, Failed, Opened };
Open_Outcome File_Open_Dialog(double kind, ProjectRecord& record);

/// Shows the save dialog with `name` offered. A name whose fourth character from its end is not a
/// dot gets ".DUD" (kind 1) or ".DUI" added. Nothing on Cancel.
std::optional<std::string> File_SaveAs_Dialog(const std::string& name, int kind);

/// The extension rule of the save dialog by itself.
std::string With_Default_Extension(const std::string& name, int kind);

}  // namespace barvon
