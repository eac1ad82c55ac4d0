#pragma once

#include "batch/batch_options.h"

namespace barvon {

/// Runs the projects by starting this program once for each, `jobs` at a time: the current and the
/// application directory belong to a whole process. What each says is passed on whole, in the
/// order of the files. When this program is told to end, they are told and waited for. Returns the
/// worst of their exit codes.
int Run_Side_By_Side(const Batch_Options& options);

}  // namespace barvon
