#pragma once

#include "batch/batch_options.h"

namespace barvon {

/// A line on standard output for each fault and remark of the database files in the folder. With
/// --mend the files that can be mended are written first, a line for each. Returns kFindings when
/// faults remain.
int Check_Database_Files(const Batch_Options& options);

}  // namespace barvon
