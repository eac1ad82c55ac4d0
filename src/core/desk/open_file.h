#pragma once

#include <string>

#include "core/project_record.h"

namespace barvon {

/// Opens a file by its extension: a .DUI project, a .DUD dilution file; nothing is loaded from
/// anything else. After a .DUI the bulk density rule runs. True when something was loaded.
/// Otherwise the user has been told; the record is as it was before, or reset when the user
/// agreed to start afresh, after a .DUD only its dilution data, but for the two grid markers, which
/// are 0.
bool Open_File(const std::string& path, ProjectRecord& record);

/// Says that the file could not be opened.
void Tell_Not_Opened(const std::string& path);

/// Open_File, once a person has agreed where another window has the project, which is this window's
/// from then on. On success ProjectFileName, BaseFileName and the caption follow. They stay as
/// they were when nothing was loaded, so that a later save never takes an output that was picked
/// in the dialog for the project's file.
bool Open_Project(const std::string& path, ProjectRecord& record);

/// Shows the open dialog, has the input screens closed and opens what was chosen, once. False on
/// Cancel, when a person wants to keep what was typed in a screen, and when nothing was loaded.
bool File_Open_Dialog(double kind, ProjectRecord& record);

}  // namespace barvon
