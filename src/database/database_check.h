#pragma once

#include <string>
#include <vector>

#include "database/database_finding.h"

namespace barvon {

/// A data file with what mending changes: sites in a free layout in the columns of the walk, and a
/// line behind the last record. All other bytes are as they were.
struct Database_Mend {
  std::string file;
  std::string bytes;

  bool operator==(const Database_Mend&) const = default;
};

/// What a check of the seven files found, in the order of files and lines.
struct Database_Report {
  std::vector<Database_Finding> findings;
  std::vector<Database_Mend> mends;  // empty: there is nothing that could be mended

  /// How many findings are faults.
  int Faults() const;
};

/// Where the files of a folder fall out of step: lines that the walk reads as something else than
/// they are, and the entries of the lists that it does not find. Nothing is changed.
Database_Report Check_Database(const std::string& folder);

/// The first of the data files of sites that holds a record, or a month, of the code of a place in
/// the list, named there or not; "" for none.
std::string Holds_Site_Already(const std::string& folder, int place);

/// What became of a mend: the files that were written with the names of their copies, and the one
/// that failed with an errno value.
struct Database_Mended {
  std::vector<std::string> files;
  std::vector<std::string> copies;
  int error = 0;
  std::string failed;
};

/// Where a copy of a file is kept that mending replaces: ".bak", or a name with a number behind it
/// that no former copy has.
std::string Kept_Copy_Of(const std::string& file);

/// Writes the mends of a report, each after a copy of the file as it was.
Database_Mended Mend_Database(const std::string& folder, const Database_Report& report);

}  // namespace barvon
