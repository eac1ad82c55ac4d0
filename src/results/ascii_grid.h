#pragma once

#include <optional>
#include <string>
#include <vector>

#include "results/cell_values.h"
#include "results/map_place.h"

namespace barvon {

/// A map on square cells that lie to the north, as an ASCII grid has them.
struct North_Grid {
  int rows = 0, columns = 0;
  double left = 0, bottom = 0, cell = 0;  // outer edges and side, in the system's unit
  /// Every square has the value of the one cell that it is a part of. Otherwise it has that of the
  /// cell which its centre is in, so that edges lie up to half a diagonal of a square from theirs.
  bool exact = true;
  std::vector<std::optional<double>> values;  // row by row from the north; nothing: off the grid
};

/// The map where it lies. A grid that is turned by quarters is exact: with its own cells where they
/// are square, otherwise with each cut into equal squares, where the sides are as small whole
/// numbers (up to 16) to each other. Any other grid gets squares of half its smaller spacing, in
/// which every cell comes up. Nothing for a grid without cells or without an extent.
std::optional<North_Grid> To_North(const Cell_Values& cells, const Map_Place& place);

/// The file: an ESRI ASCII grid with its origin in the lower left corner, CR LF. Values have all
/// their digits and a decimal point, without which readers take them for whole numbers; squares off
/// the grid, and values that are not finite, are NODATA_value.
std::string Ascii_Grid_Text(const North_Grid& grid);

/// What an ASCII grid cannot say, for the file NAME.asc.aux.xml, which is read with it: what the
/// values are, their unit, the name of the coordinate system as it was typed, and how squares were
/// made of cells. Readers show it, but do not place the grid by that name.
std::string Ascii_Grid_Notes(const North_Grid& grid, const Map_Place& place,
                             const std::string& what, const std::string& unit);

}  // namespace barvon
