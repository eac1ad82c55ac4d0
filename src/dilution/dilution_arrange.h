#pragma once

#include "dilution/dilution_tables.h"

namespace barvon {

/// The rows of the record's list go where the tables' commands have moved theirs.
void Arrange_By_Row(Dilution_Grids& grids, ProjectRecord& record);

/// Where a paste or an emptied row has given rows of the tab other names, the concentrations of the
/// other tab go to the rows that their names have now, and those without a row are put aside.
/// `count`: how many rows the tab's list has.
void Arrange_By_Name(Dilution_Tab tab, int count, Dilution_Grids& grids, ProjectRecord& record);

}  // namespace barvon
