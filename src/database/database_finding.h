#pragma once

#include <string>

namespace barvon {

/// Something about a line of a database file. A remark is no fault: the walk finds every record all
/// the same.
struct Database_Finding {
  std::string file;
  int line = 0;  // from 1; 0: the whole file
  std::string text;
  bool remark = false;
};

/// "dispdb.dat, line 12: text"; a remark says so.
std::string Finding_Text(const Database_Finding& finding);

}  // namespace barvon
