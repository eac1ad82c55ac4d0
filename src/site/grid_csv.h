#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace barvon {

/// A table's numbers, rows by columns as shown, both from 0; every row has the same length.
using Grid_Rows = std::vector<std::vector<double>>;

/// What a file of comma separated values was read as.
struct Grid_Csv {
  Grid_Rows rows;     // empty when there is a fault
  std::string fault;  // names row and column, from 1; "" when there is none
};

/// The numbers as comma separated values, one line a row, lines end in CR LF. Each number is
/// written so that it reads back exactly.
std::string Write_Grid_Csv(const Grid_Rows& rows);

/// Reads a table of that size. Cells are separated by commas, or by semicolons when the file has
/// any; the decimal sign is a point either way. Blanks and quotes around a number, any of the
/// usual line ends, a byte order mark and empty lines at the end are taken. A cell that is no
/// number throughout, an empty one, and a file of another size are faults, the first one is told.
Grid_Csv Read_Grid_Csv(std::string_view bytes, int rows, int columns);

}  // namespace barvon
