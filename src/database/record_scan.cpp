#include "database/record_scan.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "core/number_text.h"
#include "core/project_record.h"
#include "core/text_tools.h"
#include "database/column_lines.h"
#include "database/data_columns.h"
#include "database/data_files.h"
#include "database/index_files.h"
#include "platform/text/counted.h"
#include "platform/text/letter_case.h"

namespace barvon {
namespace {

using namespace data_columns;

std::string Code_Text(int place) { return Plain_Number(Code_Of_Place(place)); }

/// The line of a month's number, of which a block has one for each.
bool Is_Month_Line(const Data_Layout& layout, int line) {
  return &layout == &kVelocityLayout && line % 3 == 1;
}

bool Is_Month(double number) {
  return number >= 1 && number <= kMonths && number == std::floor(number);
}

bool Is_Whole(double number, int most) {
  return number >= 0 && number <= most && number == std::floor(number);
}

bool Is_Flag(const std::string& letter) {
  const std::string flag = Upper_Case(letter);
  return flag == "Y" || flag == "N";
}

}  // namespace

Record_Scan::Record_Scan(const Data_Layout& layout, std::vector<std::string> lines, int entries)
    : layout_(layout),
      lines_(std::move(lines)),
      entries_(entries),
      is_site_(&layout == &kSiteLayout) {
  Scan();
}

void Record_Scan::Find(std::size_t at, const std::string& text, bool remark) {
  findings.push_back({layout_.file, static_cast<int>(at) + 1, text, remark});
}

/// The place that the columns of a code read in a line; -1 for none of the list.
int Record_Scan::Place_At(std::size_t at) const {
  const int place = Place_Of_Code(Number_In(lines_[at], kCode));
  return place < entries_ ? place : -1;
}

/// A site's first line as it is printed without columns: a code and a count of points.
bool Record_Scan::Begins_Free(std::size_t at) const {
  if (!is_site_ || !Is_Printed(lines_[at], 2)) return false;
  const std::vector<double> numbers = Leading_Numbers(lines_[at], 2);
  return Place_Of_Code(numbers[0]) >= 0 && Is_Whole(numbers[1], kMaxDensityPoints);
}

void Record_Scan::Scan() {
  const auto last_text = std::find_if(lines_.rbegin(), lines_.rend(), [](const std::string& line) {
    return !Trimmed(line).empty();
  });
  const auto text_end = static_cast<std::size_t>(lines_.rend() - last_text);
  while (at_ < text_end) {
    const int place = Place_Of_Code(Number_In(lines_[at_], kCode));
    if (Begins_Free(at_)) {
      Take_Record(Place_Of_Code(Leading_Numbers(lines_[at_], 1).front()));
    } else if (place >= 0) {
      Take_Record(place);
    } else if (Trimmed(lines_[at_]).empty()) {
      Pass_Empty_Lines();
    } else {
      Find(at_, "a record should begin here, but columns 1 to 4 hold no code");
      Look_For_A_Record();
    }
  }
  strays_behind = strays_;
}

/// Those in front of a line with text are told together: a list of thousands helps nobody.
void Record_Scan::Pass_Empty_Lines() {
  const std::size_t first = at_;
  do {
    ++at_;
  } while (Trimmed(lines_[at_]).empty());
  const std::size_t count = at_ - first;
  Find(first, count == 1 ? "an empty line stands where a record begins"
                         : Counted(count, "empty line") + " stand where a record begins");
  blanks_ = true;
}

/// The next line with a code.
void Record_Scan::Look_For_A_Record() {
  strays_ = true;
  do {
    ++at_;
  } while (at_ < lines_.size() && Place_At(at_) < 0 && !Begins_Free(at_));
}

void Record_Scan::Take_Record(int place) {
  Scanned_Record record{.first = at_, .place = place};
  record.strays_before = std::exchange(strays_, false);
  record.blanks_before = std::exchange(blanks_, false);
  record.free = Begins_Free(at_);
  int behind = layout_.lines_behind(lines_, at_);
  if (record.free) {
    record.finding = findings.size();
    Find(at_, "the site is in a free layout, which the walk can't read");
    behind = Site_Lines_Behind(static_cast<int>(Leading_Numbers(lines_[at_], 2)[1]));
  }
  const auto [same, is_new] = first_lines.emplace(place, at_);
  if (!is_new) {
    Find(at_, "code " + Code_Text(place) + " stands a second time; the walk takes line " +
                  std::to_string(same->second + 1));
  }
  if (place >= entries_) {
    const bool is_next = place == entries_ && std::string_view(layout_.list) == kSiteList;
    Find(at_,
         "code " + Code_Text(place) + " has no entry in " + layout_.list +
             (is_next ? "; no site can be added as long as it has none" : ""),
         true);
  }
  if (behind < 0) {
    Find(at_, "the record's count is more than a project can hold");
    record.complete = record.whole = false;
    Look_For_A_Record();
  } else {
    Take_Line(record, layout_.columns(0, behind));
    Take_Lines(record, behind);
  }
  record.end = std::min(at_, lines_.size());
  record.whole = record.whole && record.complete;
  records.push_back(std::move(record));
}

/// The lines behind the first, up to where the record ends or breaks.
void Record_Scan::Take_Lines(Scanned_Record& record, int behind) {
  for (int line = 1; line <= behind; ++line) {
    if (at_ >= lines_.size()) {
      Find(at_ - 1, "the file ends inside the record of code " + Code_Text(record.place) +
                        ", which is not whole and stays as it is");
      record.complete = false;
      return;
    }
    const bool begins_another = Place_At(at_) >= 0 && layout_.is_first_line(lines_[at_]);
    const bool month_missing =
        Is_Month_Line(layout_, line) && !Is_Month(Number_In(lines_[at_], kMonth));
    // Lines with two numbers may look like a free first line: a depth of 100 and a density of 1.
    const bool begins_free = layout_.columns(line, behind).size() < 2 && Begins_Free(at_);
    if (begins_another || begins_free) {
      Find(at_, "another record begins inside the one of code " + Code_Text(record.place));
      record.complete = false;
      return;
    }
    if (month_missing) {
      Find(at_, "the number of a month should stand here, in columns 1 to 3");
      record.complete = false;
      if (Place_At(at_) < 0) Look_For_A_Record();
      return;
    }
    if (!Is_Month_Line(layout_, line) && Place_At(at_) >= 0) {
      Find(at_, "the line also reads as code " + Code_Text(Place_At(at_)), true);
    }
    Take_Line(record, layout_.columns(line, behind));
  }
  if (at_ == lines_.size()) {
    line_missing = static_cast<int>(findings.size());
    Find(at_ - 1, "a line is missing behind the last record, which the walk does not find");
  }
}

/// The next line of a record.
void Record_Scan::Take_Line(Scanned_Record& record, std::span<const Line_Columns> columns) {
  const std::string& line = lines_[at_];
  if (record.free) {
    Take_Free_Line(record, columns);
  } else if (const std::string fault = Fault(line, columns); !fault.empty()) {
    Find(at_, fault);
    record.whole = false;
  } else if (Number_Behind(line, columns)) {
    Find(at_, "a number stands behind the last columns, where none is read", true);
    record.whole = false;
  }
  ++at_;
}

void Record_Scan::Take_Free_Line(Scanned_Record& record, std::span<const Line_Columns> columns) {
  const std::string& line = lines_[at_];
  record.columned.push_back(line);
  if (!Is_Printed(line, columns.size())) {
    Find(at_, columns.empty() ? "the free layout has an empty line here"
                              : "the free layout has " + Counted(columns.size(), "number") +
                                    " in this line, and nothing else");
    record.whole = false;
    return;
  }
  const bool is_grid = !columns.empty() && columns.front().last == kGridZ.last;
  const std::vector<double> numbers = Leading_Numbers(line, columns.size());
  const bool stored = !is_grid || std::ranges::all_of(numbers, [](double points) {
    return Is_Whole(points, kMaxGridPoints);
  });
  if (stored && Column_Fault(line, columns).empty() && Is_In_Columns(line, columns)) return;
  const auto moved = Into_Columns(line, columns);
  if (!stored || !moved) {
    Find(at_,
         "the numbers are not in their columns, and do not fit into them: the site stays as it is");
    record.fits = false;
    return;
  }
  record.columned.back() = moved->line;
  Find(at_, moved->rounded ? "the numbers are not in their columns, and must be rounded to fit: " +
                                 Trimmed(moved->line)
                           : std::string("the numbers are not in their columns"));
}

/// What is wrong with a line of a record that is meant to be in columns; "" for nothing.
std::string Record_Scan::Fault(const std::string& line,
                               std::span<const Line_Columns> columns) const {
  if (columns.empty()) return "";
  // The number behind a mark is read only where the mark is 1.
  if (columns.front().last == kIsGiven.last && Number_In(line, kIsGiven) != 1) {
    columns = columns.first(1);
  }
  if (std::string fault = Column_Fault(line, columns); !fault.empty()) return fault;
  if (columns.front().first != kGravity.first) return "";
  if (!Trimmed(Text_In(line, {1, kName.first - 1})).empty()) {
    return "the name begins before columns 4 to 11";
  }
  if (Trimmed(Text_In(line, kName)).empty()) return "no name stands in columns 4 to 11";
  for (const Line_Columns& flag : {kCohesive, kStripped}) {
    if (const std::string letter = Text_In(line, flag); !Is_Flag(letter)) {
      return "column " + std::to_string(flag.first) + " should hold Y or N, but " +
             (Trimmed(letter).empty() ? "nothing" : "\"" + letter + "\"") + " stands there";
    }
  }
  return "";
}

}  // namespace barvon
