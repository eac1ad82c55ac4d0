#pragma once

#include "dilution/dilution_tables.h"

namespace barvon {

// Whole rows, in both tables at once: what is known of a parameter stays together. The record
// follows when a tab is read, so that an empty row never gets into its list. The tables' history of
// edits ends.

/// Empty rows in front of the first row of the range, as many as it has. False, and the user is
/// told, when filled rows would be pushed out of the table.
bool Insert_Dilute_Rows(const Cell_Range& range, Dilution_Grids& grids);

/// Of more than one row that isn't empty the user is asked first. False when the answer isn't Yes.
bool Delete_Dilute_Rows(const Cell_Range& range, Dilution_Grids& grids);

/// The rows of the range change places with the row above, or below. False at the table's edge.
bool Move_Dilute_Rows(const Cell_Range& range, bool up, Dilution_Grids& grids);

}  // namespace barvon
