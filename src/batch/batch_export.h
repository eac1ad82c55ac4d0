#pragma once

#include "batch/batch_options.h"
#include "platform/files/known_folders.h"

namespace barvon {

/// Writes the model input of each project: beside it, into a folder, or for a single project under
/// the name that --output gives. Two projects never write the same file, and none is written over
/// a project. Returns the worst exit code.
int Export_Projects(const Batch_Options& options, Known_Folders& folders);

}  // namespace barvon
