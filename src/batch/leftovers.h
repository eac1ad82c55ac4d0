#pragma once

#include "batch/batch_options.h"

namespace barvon {

/// Removes what calls that were killed have left: their scratch folders with what still runs
/// there, and working files of saves in the folders of the files that are given. What belongs to
/// a program that lives stays.
void Clear_Leftovers(const Batch_Options& options);

}  // namespace barvon
