#pragma once

#include "dilution/dilution_tables.h"
#include "pictures/shapes/bars.h"
#include "platform/table/cell_look.h"

namespace barvon {

/// The results of the record's list are those of what both tables show.
void Keep_Computed(Dilution_Grids& grids, const ProjectRecord& record);

/// Whether a row of the list shows something else than its result was computed from.
bool Has_Changed(Dilution_Tab tab, int row, const Dilution_Grids& grids);

/// Rows changed since they were computed and rows below the end of the list are grey, the cell of
/// the name that is missing warns; each says why.
Cell_Look Look_Of_Dilution(Dilution_Tab tab, int row, int col, const Dilution_Grids& grids);

/// The required dilutions of a tab on a logarithmic axis, without the rows that have changed.
Bar_Chart Dilution_Bars(Dilution_Tab tab, const Dilution_Grids& grids);

/// How many rows the picture leaves out, in words; "" for none.
std::string Changed_Rows_Note(Dilution_Tab tab, const Dilution_Grids& grids);

}  // namespace barvon
