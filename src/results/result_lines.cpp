#include "results/result_lines.h"

#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

#include "platform/files/check_sum.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

constexpr std::size_t kSciColumns = 14, kIntColumns = 5, kMapColumns = 11, kSumColumns = 16;
constexpr double kBeyondColumns = 1e100;  // an exponent has two digits
constexpr std::string_view kLabelStart = "COMPANION SOLVER ";
constexpr std::string_view kSumTag = "INPU ", kBodyTag = "BODY ";
constexpr char kNoSum[] = "no 16 digits of a sum in columns 7 to 22";
constexpr std::size_t kShownLetters = 40;  // of a foreign label

std::string In_Columns(std::size_t first, std::size_t count) {
  return "columns " + std::to_string(first + 1) + " to " + std::to_string(first + count);
}

std::string_view Without_Blanks_Before(std::string_view text) {
  std::size_t blanks = 0;
  while (blanks < text.size() && text[blanks] == ' ') ++blanks;
  return text.substr(blanks);
}

std::optional<std::uint64_t> Sum_Of(std::string_view line) {
  if (line.size() != kTagColumns + 1 + kSumColumns || line[kTagColumns] != ' ') return std::nullopt;
  std::uint64_t sum = 0;
  const char* const end = line.data() + line.size();
  const auto read = std::from_chars(end - kSumColumns, end, sum, 16);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return sum;
}

}  // namespace

Result_Lines::Result_Lines(std::string file, std::string_view bytes)
    : file_(std::move(file)), rest_(bytes) {
  Next();
}

void Result_Lines::Next() {
  ++number_;
  at_end_ = rest_.empty();
  const std::size_t end = rest_.find('\n');
  line_ = rest_.substr(0, end);
  rest_.remove_prefix(end == rest_.npos ? rest_.size() : end + 1);
  if (line_.ends_with('\r')) line_.remove_suffix(1);
}

void Result_Lines::Expect(std::uint64_t sum) {
  body_ = rest_;
  sum_ = sum;
  sum_line_ = number_;
}

std::optional<Result_Problem> Result_Lines::Changed() const {
  if (!sum_ || Check_Sum(body_) == *sum_) return std::nullopt;
  return Result_Problem{file_, sum_line_,
                        "the lines behind this one are not those that the solver wrote"};
}

Result_Problem Result_Lines::Problem(std::string reason) const {
  return {file_, number_, std::move(reason)};
}

Result_Problem Result_Lines::Unknown_Tag() const {
  return Problem("\"" + From_File_Bytes(Tag()) + "\" begins no line of this output");
}

void Result_Columns::Fail(std::string reason) {
  if (reason_.empty()) reason_ = std::move(reason);
}

std::string_view Result_Columns::Take(std::size_t columns) {
  if (line_.size() < at_ + columns) {
    Fail("the line ends in column " + std::to_string(line_.size()) + ", and " +
         In_Columns(at_, columns) + " are not whole");
    return {};
  }
  const std::string_view text = line_.substr(at_, columns);
  at_ += columns;
  return text;
}

double Result_Columns::Number(std::size_t columns) {
  const std::size_t first = at_;
  const std::string_view text = Without_Blanks_Before(Take(columns));
  double value = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, value);
  if (text.empty() || read.ec != std::errc() || read.ptr != end ||
      !(std::abs(value) < kBeyondColumns)) {
    Fail("no number in " + In_Columns(first, columns));
    return 0;
  }
  return value;
}

double Result_Columns::Sci() { return Number(kSciColumns); }
double Result_Columns::Map_Number() { return Number(kMapColumns); }

int Result_Columns::Int() {
  const std::size_t first = at_;
  const std::string_view text = Without_Blanks_Before(Take(kIntColumns));
  int value = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, value);
  if (text.empty() || read.ec != std::errc() || read.ptr != end) {
    Fail("no whole number in " + In_Columns(first, kIntColumns));
    return 0;
  }
  return value;
}

int Result_Columns::Count(int least, int most) {
  const std::size_t first = at_;
  const int value = Int();
  if (value >= least && value <= most) return value;
  Fail("not one of " + std::to_string(least) + " to " + std::to_string(most) + " in " +
       In_Columns(first, kIntColumns));
  return least;
}

std::string Result_Columns::Text(std::size_t columns) {
  std::string_view text = Take(columns);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return From_File_Bytes(text);
}

std::string Result_Columns::Rest() {
  return Reason().empty() ? From_File_Bytes(Take(line_.size() - at_)) : std::string();
}

void Result_Columns::Skip_Blanks(std::size_t columns) {
  const std::size_t first = at_;
  if (!Without_Blanks_Before(Take(columns)).empty()) {
    Fail("no blanks in " + In_Columns(first, columns));
  }
}

void Result_Columns::End() {
  if (at_ < line_.size()) {
    Fail("the line goes on behind column " + std::to_string(at_) + ", where it should end");
  }
}

bool Is_Companion_Output(std::string_view bytes) { return bytes.starts_with(kLabelStart); }

std::optional<Result_Problem> Take_Result_Head(Result_Lines& lines, std::string_view what,
                                               Results& results) {
  const std::string_view label = lines.Line();
  if (!Is_Companion_Output(label)) {
    Result_Problem problem =
        lines.Problem(label.empty() ? "no label of the companion solver"
                                    : "written by another solver: \"" +
                                          From_File_Bytes(label.substr(0, kShownLetters)) + "\"");
    problem.foreign = !label.empty();
    return problem;
  }
  const bool first = results.label.empty();
  if (first) {
    results.label = From_File_Bytes(label);
    results.solver = results.label.substr(0, results.label.find(" - "));
  } else if (results.label != From_File_Bytes(label)) {
    return lines.Problem("outputs of different runs: another version of the solver");
  }
  lines.Next();
  const std::string opening = std::string(what) + " of \"";
  std::string_view title = lines.Line();
  if (title.size() <= opening.size() || !title.starts_with(opening) || !title.ends_with('"')) {
    return lines.Problem("not \"" + std::string(what) + "\" of a project");
  }
  title.remove_prefix(opening.size());
  title.remove_suffix(1);
  if (first) results.title = From_File_Bytes(title);
  if (results.title != From_File_Bytes(title)) {
    return lines.Problem("outputs of different runs: another title");
  }
  lines.Next();
  std::optional<std::uint64_t> sum;
  if (lines.Tag() == kSumTag) {
    sum = Sum_Of(lines.Line());
    if (!sum) return lines.Problem(kNoSum);
  }
  if (first) results.input_sum = sum;
  if (results.input_sum != sum) {
    return lines.Problem("outputs of different runs: another model input");
  }
  if (sum) lines.Next();
  if (lines.Tag() == kBodyTag) {
    const std::optional<std::uint64_t> body = Sum_Of(lines.Line());
    if (!body) return lines.Problem(kNoSum);
    lines.Expect(*body);
    lines.Next();
  }
  return std::nullopt;
}

}  // namespace barvon
