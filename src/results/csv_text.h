#pragma once

#include <string>
#include <vector>

namespace barvon {

/// A number as it stands in a table for other programs: the fewest digits that read back to it, "."
/// as the point; empty for what is not finite.
std::string Csv_Number(double value);

/// The same with at most so many digits, for what was computed of numbers that have no more.
std::string Csv_Number(double value, int digits);

/// A line of cells with "," between and CR LF at its end. A cell with a ",", a quotation mark or a
/// line break is put in quotation marks.
std::string Csv_Line(const std::vector<std::string>& cells);

}  // namespace barvon
