#pragma once

#include "batch/batch_options.h"
#include "platform/files/known_folders.h"

namespace barvon {

/// Writes the report of each project as a page of the web, or as PDF by the window program that is
/// installed beside this one. Where it goes, and what it is not written over, is as for an export.
/// Returns the worst exit code.
int Report_Projects(const Batch_Options& options, Known_Folders& folders);

}  // namespace barvon
