#pragma once

#include "batch/batch_options.h"

namespace barvon {

/// Does what the options ask for and gives back the exit code. A file that can't be done does not
/// keep the others from being done; the code is the worst of all.
int Do_Batch_Command(const Batch_Options& options);

}  // namespace barvon
