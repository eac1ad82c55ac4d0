#pragma once

#include <span>
#include <string>

#include "database/line_walk.h"

namespace barvon {

/// A data file as its checker sees it.
struct Data_Layout {
  const char* file;
  const char* list;  // whose codes its records have
  /// Lines of the record behind its first line, which is `lines[at]`; -1 when its count is none.
  int (*lines_behind)(std::span<const std::string> lines, std::size_t at);
  /// The columns of a line of a record with so many lines behind the first. The first line is 0.
  std::span<const Line_Columns> (*columns)(int line, int lines_behind);
  /// Whether the first line of a record can't be taken for another line.
  bool (*is_first_line)(const std::string& line);
};

/// Of dispdb.dat, veldb.dat, matdb.dat and vesdb.dat.
extern const Data_Layout kSiteLayout;
extern const Data_Layout kVelocityLayout;
extern const Data_Layout kMaterialLayout;
extern const Data_Layout kVesselLayout;

}  // namespace barvon
