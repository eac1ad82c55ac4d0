#pragma once

#include "results/cell_values.h"
#include "results/results.h"

namespace barvon {

/// The values are rows x columns, one at least, and the spacings above 0.
bool Is_Whole(const Cell_Values& cells);

/// What the cells cover: half a spacing around the outermost grid points.
Result_Area Reach_Of(const Cell_Values& cells);

/// The value at a place in feet: linear in X and in Z between the four centres around it
/// (bilinear), flat beyond the outermost ones. NaN outside of the cells. Where one of the four has
/// no finite value, the cell that holds the place decides alone.
double Value_At(const Cell_Values& cells, const Result_Point& place);

/// The sum of value times area over the cells with finite values: ft3 for a thickness in feet.
double Volume_Of(const Cell_Values& cells);

/// The area (ft2) of the cells whose value is above the limit; a cell counts whole or not at all.
double Cell_Area_Above(const Cell_Values& cells, double limit);

/// A cell by its row and column, from 1; 0 and 0 for none.
struct Cell_Place {
  int row = 0, column = 0;
};

/// The first cell, row by row, with the largest finite value.
Cell_Place Largest_Cell(const Cell_Values& cells);

/// The grid point in the middle of a cell.
Result_Point Centre_Of(const Cell_Values& cells, const Cell_Place& cell);

}  // namespace barvon
