#include "database/record_scan.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/number_text.h"
#include "core/project_record.h"
#include "core/text_tools.h"
#include "database/column_lines.h"
#include "database/data_columns.h"
#include "database/data_files.h"
#include "database/index_files.h"

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
  if (!is_site_ || Is_In_Columns(lines_[at], layout_.columns(0, 0))) return false;
  const std::vector<double> numbers = Leading_Numbers(lines_[at], 2);
  return numbers.size() == 2 && Place_Of_Code(numbers[0]) >= 0 && numbers[1] >= 0 &&
         numbers[1] <= kMaxDensityPoints && numbers[1] == std::floor(numbers[1]);
}

bool Record_Scan::Only_Blank_From(std::size_t at) const {
  return std::all_of(lines_.begin() + static_cast<std::ptrdiff_t>(at), lines_.end(),
                     [](const std::string& line) { return Trimmed(line).empty(); });
}

void Record_Scan::Scan() {
  while (at_ < lines_.size() && !Only_Blank_From(at_)) {
    const int place = Place_Of_Code(Number_In(lines_[at_], kCode));
    if (Begins_Free(at_)) {
      Take_Record(Place_Of_Code(Leading_Numbers(lines_[at_], 1).front()));
    } else if (place >= 0) {
      Take_Record(place);
    } else if (Trimmed(lines_[at_]).empty()) {
      Find(at_, "an empty line stands where a record begins");
      ++at_;
    } else {
      Find(at_, "a record should begin here, but columns 1 to 4 hold no code");
      Look_For_A_Record();
    }
  }
  Keep_Up_To(lines_.size());
}

/// Lines that stay as they are.
void Record_Scan::Keep_Up_To(std::size_t at) {
  while (kept_ < at) mended.push_back(lines_[kept_++]);
}

/// The next line with a code; what is before it stays as it is.
void Record_Scan::Look_For_A_Record() {
  do {
    ++at_;
  } while (at_ < lines_.size() && Place_At(at_) < 0 && !Begins_Free(at_));
  Keep_Up_To(at_);
}

void Record_Scan::Take_Record(int place) {
  const std::size_t first = at_;
  const bool free = Begins_Free(first);
  int behind = layout_.lines_behind(lines_, first);
  if (free) {
    Find(first, "the site is in a free layout, which the walk can't read");
    behind = Site_Lines_Behind(static_cast<int>(Leading_Numbers(lines_[first], 2)[1]));
  }
  const auto [same, is_new] = first_lines.emplace(place, first);
  if (!is_new) {
    Find(first, "code " + Code_Text(place) + " stands a second time; the walk takes line " +
                    std::to_string(same->second + 1));
  }
  if (place >= entries_) {
    Find(first, "code " + Code_Text(place) + " has no entry in " + layout_.list, true);
  }
  if (behind < 0) {
    Find(first, "the record's count is more than a project can hold");
    Look_For_A_Record();
    return;
  }
  record_.clear();
  whole_ = true;
  Take_Line(first, layout_.columns(0, behind));
  ++at_;
  Take_Lines(place, behind);
  if (whole_) {
    mended.insert(mended.end(), record_.begin(), record_.end());
    kept_ = at_;
  } else {
    Keep_Up_To(at_);
  }
}

/// The lines behind the first, up to where the record ends or breaks.
void Record_Scan::Take_Lines(int place, int behind) {
  for (int line = 1; line <= behind; ++line, ++at_) {
    if (at_ >= lines_.size()) {
      Find(at_ - 1, "the file ends inside the record of code " + Code_Text(place));
      whole_ = false;
      return;
    }
    const bool begins_another = Place_At(at_) >= 0 && layout_.is_first_line(lines_[at_]);
    const bool month_missing =
        Is_Month_Line(layout_, line) && !Is_Month(Number_In(lines_[at_], kMonth));
    // Lines with two numbers may look like a free first line: a depth of 100 and a density of 1.
    const bool begins_free = layout_.columns(line, behind).size() < 2 && Begins_Free(at_);
    if (begins_another || begins_free) {
      Find(at_, "another record begins inside the one of code " + Code_Text(place));
      whole_ = false;
      return;
    }
    if (month_missing) {
      Find(at_, "the number of a month should stand here, in columns 1 to 3");
      whole_ = false;
      if (Place_At(at_) < 0) Look_For_A_Record();
      return;
    }
    if (!Is_Month_Line(layout_, line) && Place_At(at_) >= 0) {
      Find(at_, "the line also reads as code " + Code_Text(Place_At(at_)), true);
    }
    Take_Line(at_, layout_.columns(line, behind));
  }
  if (at_ == lines_.size()) {
    Find(at_ - 1, "a line is missing behind the last record, which the walk does not find");
    record_.emplace_back();
  }
}

void Record_Scan::Take_Line(std::size_t at, std::span<const Line_Columns> columns) {
  record_.push_back(lines_[at]);
  if (is_site_) {
    Take_Site_Line(at, columns);
  } else if (const std::string fault = Other_Fault(lines_[at], columns); !fault.empty()) {
    Find(at, fault);
    whole_ = false;
  }
}

void Record_Scan::Take_Site_Line(std::size_t at, std::span<const Line_Columns> columns) {
  const std::string& line = lines_[at];
  if (Is_In_Columns(line, columns)) return;
  const auto moved = Into_Columns(line, columns);
  if (!moved) {
    Find(at,
         "the numbers are not in their columns, and do not fit into them: the site stays as it is");
    whole_ = false;
    return;
  }
  record_.back() = moved->line;
  Find(at, moved->rounded ? "the numbers are not in their columns, and must be rounded to fit: " +
                                Trimmed(moved->line)
                          : std::string("the numbers are not in their columns"));
}

/// What is wrong with a line of another record than a site's; "" for nothing.
std::string Record_Scan::Other_Fault(const std::string& line,
                                     std::span<const Line_Columns> columns) const {
  if (columns.empty()) return "";
  // The number behind a mark is read only where the mark is 1.
  if (columns.front().last == kIsGiven.last && Number_In(line, kIsGiven) != 1) {
    columns = columns.first(1);
  }
  if (std::string fault = Column_Fault(line, columns); !fault.empty()) return fault;
  if (columns.front().first != kGravity.first || Trimmed(line).empty()) return "";
  if (!Trimmed(Text_In(line, {1, kName.first - 1})).empty()) {
    return "the name begins before columns 4 to 11";
  }
  return Trimmed(Text_In(line, kName)).empty() ? "no name stands in columns 4 to 11" : "";
}

}  // namespace barvon
