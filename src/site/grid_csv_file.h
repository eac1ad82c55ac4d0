#pragma once

#include <optional>
#include <string>

#include "site/grid_csv.h"

namespace barvon {

/// Asks for a file under that title and reads a table of that size from it. Nothing on Cancel, and
/// when the file can't be read or has a fault: the user has been told then.
std::optional<Grid_Rows> Import_Grid_Csv(const std::string& title, int rows, int columns);

/// Asks for a name under that title, ".csv" is added to one without an extension, and writes the
/// table there. False on Cancel, and when the file can't be written: the user has been told then.
bool Export_Grid_Csv(const std::string& title, const std::string& offered_name,
                     const Grid_Rows& rows);

}  // namespace barvon
