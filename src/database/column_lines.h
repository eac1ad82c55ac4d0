#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "database/line_walk.h"

namespace barvon {

/// The numbers that a line begins with, by the blanks between them, at most so many.
std::vector<double> Leading_Numbers(const std::string& line, std::size_t most);

/// Whether the columns read what a person reads who goes by the blanks. Where there are fewer
/// numbers than columns, because some are blank or two stand close together, each of the columns
/// must hold one whole number or nothing.
bool Is_In_Columns(const std::string& line, std::span<const Line_Columns> columns);

/// A number that goes on behind its columns, where no other columns begin.
bool Runs_Out_Of_Columns(const std::string& line, std::span<const Line_Columns> columns);

/// What is wrong with a line whose columns must each hold a number, in words; "" for nothing. Words
/// may follow the last number.
std::string Column_Fault(const std::string& line, std::span<const Line_Columns> columns);

/// Whether the first thing behind the last of the columns is one number more.
bool Number_Behind(const std::string& line, std::span<const Line_Columns> columns);

/// Numbers without columns: each with a blank or a minus sign in front and a blank behind.
std::string Printed(std::span<const double> numbers);
/// Whether a line is so many numbers in that form, and nothing else; with none, an empty line.
bool Is_Printed(const std::string& line, std::size_t count);

/// A line with its numbers moved into the columns, and whether a number lost digits there.
struct Columned_Line {
  std::string line;
  bool rounded = false;
};

/// Nothing when the line has not just as many numbers, or one that fits only rounded by more than a
/// twentieth of itself.
std::optional<Columned_Line> Into_Columns(const std::string& line,
                                          std::span<const Line_Columns> columns);

}  // namespace barvon
