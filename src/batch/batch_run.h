#pragma once

#include "batch/batch_options.h"
#include "platform/files/known_folders.h"

namespace barvon {

/// Runs each project in a scratch application directory of its own and keeps the solver's outputs
/// beside the project, one after the other or `jobs` at a time. Findings are listed as by check;
/// such a project is only run on request. Nobody is asked. Returns the worst exit code.
int Run_Projects(const Batch_Options& options, Known_Folders& folders);

}  // namespace barvon
