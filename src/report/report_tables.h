#pragma once

#include <vector>

#include "report/report_blocks.h"
#include "report/report_document.h"

namespace barvon {

/// A table in blocks, each as wide as the table: its headings, which may be of no height, and its
/// rows.
struct Laid_Table {
  Page_Block head;
  std::vector<Page_Block> rows;
};

/// Lays a table out in that width. Words are wrapped, and so are headings where they must be; a
/// table that is too wide all the same has smaller letters, and so has a single long number.
Laid_Table Lay_Out_Table(const Report_Table& table, double room, const Text_Setting& setting);

}  // namespace barvon
