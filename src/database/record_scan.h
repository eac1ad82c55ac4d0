#pragma once

#include <map>
#include <string>
#include <vector>

#include "database/database_finding.h"
#include "database/record_layout.h"

namespace barvon {

/// A record as the scan came upon it.
struct Scanned_Record {
  std::size_t first = 0, end = 0;  // its lines, from 0; `end` is the line behind them
  int place = 0;                   // in the list, from 0
  bool strays_before = false;      // lines that belong to no record stand before it
  bool blanks_before = false;      // empty lines do
  bool complete = true;            // all of its lines are there
  bool whole = true;               // and each holds what it should
  bool free = false;               // a site as it is printed, without columns
  bool fits = true;                // its numbers do so into their columns, which are:
  std::vector<std::string> columned = {};
  std::size_t finding = 0;  // what tells that it is free
};

/// Goes over the lines of a data file from record to record, as they are meant to be: a record in a
/// free layout is passed by its own count, and after a break the next record is looked for.
class Record_Scan {
 public:
  /// `entries`: how many codes the list has.
  Record_Scan(const Data_Layout& layout, std::vector<std::string> lines, int entries);

  std::vector<Database_Finding> findings;  // in the order of the lines
  std::vector<Scanned_Record> records;
  bool strays_behind = false;  // text that belongs to no record stands behind the last one
  /// What tells that no line stands behind the last record; -1: one does.
  int line_missing = -1;
  /// The first line of each code's record, from 0.
  std::map<int, std::size_t> first_lines;

  const Data_Layout& Layout() const { return layout_; }
  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  void Scan();
  void Pass_Empty_Lines();
  void Take_Record(int place);
  void Take_Lines(Scanned_Record& record, int behind);
  void Take_Line(Scanned_Record& record, std::span<const Line_Columns> columns);
  void Take_Free_Line(Scanned_Record& record, std::span<const Line_Columns> columns);
  std::string Fault(const std::string& line, std::span<const Line_Columns> columns) const;
  void Look_For_A_Record();
  bool Begins_Free(std::size_t at) const;
  int Place_At(std::size_t at) const;
  void Find(std::size_t at, const std::string& text, bool remark = false);

  const Data_Layout& layout_;
  const std::vector<std::string> lines_;
  const int entries_;
  const bool is_site_;
  std::size_t at_ = 0;
  bool strays_ = false, blanks_ = false;  // since the last record
};

}  // namespace barvon
