#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "results/result_problem.h"
#include "results/results.h"

namespace barvon {

/// What each line of an output begins with, behind the two lines at the head.
inline constexpr std::size_t kTagColumns = 5;
/// Wider grids than any solver's are damage, and would take memory without end.
inline constexpr int kMostResultPoints = 500;

/// The lines of an output, one after the other, in place. CR LF or LF ends a line, the last one
/// may do without.
class Result_Lines {
 public:
  Result_Lines(std::string file, std::string_view bytes);

  /// Whether all lines were passed.
  bool At_End() const { return at_end_; }
  void Next();
  std::string_view Line() const { return line_; }
  /// The tag with its blanks: "MAP  ".
  std::string_view Tag() const { return line_.substr(0, kTagColumns); }
  int Number() const { return number_; }

  /// From here on the lines must have this check sum.
  void Expect(std::uint64_t sum);
  /// That they don't, once all were passed.
  std::optional<Result_Problem> Changed() const;

  /// Of this line, or behind the last.
  Result_Problem Problem(std::string reason) const;
  /// Of this line's tag.
  Result_Problem Unknown_Tag() const;

 private:
  std::string file_;
  std::string_view rest_, line_;
  int number_ = 0;
  bool at_end_ = false;
  std::string_view body_;  // what `sum_` is of
  std::optional<std::uint64_t> sum_;
  int sum_line_ = 0;
};

/// The columns of a line from left to right. What is wrong first stays in Reason(); the numbers
/// from there on are 0.
class Result_Columns {
 public:
  explicit Result_Columns(std::string_view line, std::size_t at = kTagColumns)
      : line_(line), at_(at) {}

  double Sci();
  int Int();
  double Map_Number();
  /// The number of a species, or of anything that is counted: from `least` to `most`.
  int Count(int least, int most);
  /// So many columns as they are, in UTF-8 without the blanks at their end.
  std::string Text(std::size_t columns);
  /// The rest of the line in UTF-8.
  std::string Rest();
  void Skip_Blanks(std::size_t columns);
  /// Nothing may follow.
  void End();

  void Fail(std::string reason);
  const std::string& Reason() const { return reason_; }

 private:
  std::string_view Take(std::size_t columns);
  double Number(std::size_t columns);

  std::string_view line_;
  std::size_t at_;
  std::string reason_;
};

/// Reads label, title and the model input's sum, and goes to the first line behind them. Of the
/// first output of a run they are taken over, the others must have the same.
std::optional<Result_Problem> Take_Result_Head(Result_Lines& lines, std::string_view what,
                                               Results& results);
/// Whether the bytes begin as an output of the companion solver does.
bool Is_Companion_Output(std::string_view bytes);

}  // namespace barvon
