#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "database/record_scan.h"

namespace barvon {

/// Lines that others take the place of.
struct Line_Edit {
  std::size_t first = 0, end = 0;  // from 0; `end` is the line behind them
  std::vector<std::string> lines;

  bool operator==(const Line_Edit&) const = default;
};

/// What mending changes in a file, from its top: sites in the free layout that are whole are put
/// into the columns of the walk, and the empty lines go that stand before them; a last record that
/// is whole gets a line behind it. Only so far as the file is in step, and only where the walk then
/// finds all the records that it found, as they were, and no further one that is not whole. Where a
/// record is left for that, its finding says why.
std::vector<Line_Edit> Record_Mends(Record_Scan& scan);

/// The lines with the edits made.
std::vector<std::string> Edited_Lines(const std::vector<std::string>& lines,
                                      const std::vector<Line_Edit>& edits);

}  // namespace barvon
