#pragma once

#include <optional>
#include <string>

namespace barvon {

/// What a typed text will be taken as by the field that holds it.
struct Number_Reading {
  std::optional<double> value;  // nothing when reading it fails
  bool differs = false;         // what is read is not the number that is there
};

/// The lenient parse. It differs when a character other than blanks around the number is left
/// unread ("62,5", "1O0", "1 200", "45 ft", ""), and when a number beyond a double's range reads
/// as 0. It does not for the many ways to write one number ("62.50", " 62 ", "+5", "5.", "1D3").
Number_Reading Read_Real(const std::string& text);

/// The same for a field that is rounded to a 16-bit integer, half to even: "62.4" differs, it is
/// taken as 62; "62.0" does not. Beyond 16 bits reading fails.
Number_Reading Read_Whole(const std::string& text);

/// The same for a field whose fraction is cut.
Number_Reading Read_Cut(const std::string& text);

/// "reads as 62" for a reading that differs, words for one that fails, "" for all others. For
/// whoever marks a field.
std::string Real_Note(const std::string& text);
std::string Whole_Note(const std::string& text);
std::string Cut_Note(const std::string& text);

}  // namespace barvon
