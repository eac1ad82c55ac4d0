#pragma once

#include <map>
#include <string>
#include <vector>

#include "database/database_finding.h"
#include "database/record_layout.h"

namespace barvon {

/// Goes over the lines of a data file from record to record, as they are meant to be: a record in a
/// free layout is passed by its own count, and after a break the next record is looked for.
class Record_Scan {
 public:
  /// `entries`: how many codes the list has.
  Record_Scan(const Data_Layout& layout, std::vector<std::string> lines, int entries);

  std::vector<Database_Finding> findings;  // in the order of the lines
  /// The lines as they should be. A record is mended as a whole: where one of its lines can't be,
  /// all of them stay, and so does what keeps the walk from finding it with wrong numbers.
  std::vector<std::string> mended;
  /// The first line of each code's record, from 0.
  std::map<int, std::size_t> first_lines;

 private:
  void Scan();
  void Take_Record(int place);
  void Take_Lines(int place, int behind);
  void Take_Line(std::size_t at, std::span<const Line_Columns> columns);
  void Take_Site_Line(std::size_t at, std::span<const Line_Columns> columns);
  std::string Other_Fault(const std::string& line, std::span<const Line_Columns> columns) const;
  void Keep_Up_To(std::size_t at);
  void Look_For_A_Record();
  bool Begins_Free(std::size_t at) const;
  bool Only_Blank_From(std::size_t at) const;
  int Place_At(std::size_t at) const;
  void Find(std::size_t at, const std::string& text, bool remark = false);

  const Data_Layout& layout_;
  const std::vector<std::string> lines_;
  const int entries_;
  const bool is_site_;
  std::size_t at_ = 0;
  std::size_t kept_ = 0;             // the first line that is not in `mended` yet
  std::vector<std::string> record_;  // the lines of a record as they should be
  bool whole_ = false;               // they can all be so
};

}  // namespace barvon
