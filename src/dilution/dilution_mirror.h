#pragma once

#include "dilution/dilution_tables.h"

namespace barvon {

/// The user has changed cells of a tab, by whatever command. Names, criteria and background of the
/// rows go into the other table as they stand. Concentrations stay in their rows, but
/// - a row that was emptied empties that of the other tab, except for a concentration that stood
///   there alone before the row had a name, and was not read since;
/// - where more than one cell was entered and names have become others, as a paste does, those of
///   the other tab go with their names.
/// What has no row then is kept, and goes where its name stands in a row that holds no
/// concentration: to the row that it left, or to another one. An undo of the edit restores it so.
/// Names are the same with blanks around them, and where one is as much as a file keeps of the
/// other.
void Follow_Dilute_Edit(Dilution_Tab tab, const Cell_Range& range, Dilution_Grids& grids);

}  // namespace barvon
