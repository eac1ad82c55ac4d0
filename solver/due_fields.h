#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The model input is read by a layout of its own, on purpose without the code that writes it: two
/// readings of one format find each other's slips.
namespace companion {

enum class Field_Kind {
  Integer,
  Number,      // the default text form: at most 15 significant digits, "5E-05" when small
  Cut_Number,  // a number whose text may have been cut at the column's end
  Print_Time,  // a number with ".0" put behind its text
  Name,        // left-justified, any characters
};

struct Due_Field {
  std::string name;
  std::string unit;  // empty: it counts or chooses something
  int width = 10;
  Field_Kind kind = Field_Kind::Number;
};

/// Why the input is refused, with the line where that showed.
struct Refusal : std::runtime_error {
  Refusal(const std::string& file, int line, const std::string& reason);
  std::string file_;
  int line_;
  std::string reason_;
};

/// The input is sound, but nothing of it can be simulated.
struct No_Physics : Refusal {
  using Refusal::Refusal;
};

/// True for the default text form and nothing else: no "+", no leading or trailing zeros, no more
/// than 15 digits. That strictness is what tells two numbers apart that run into each other.
bool Is_Number(std::string_view text);

/// The lines of a text, without their ends, CR LF or LF.
std::vector<std::string> Lines_Of(const std::string& bytes);

/// The texts of the line's fields, without the blanks that pad them. A text that is wider than its
/// column has pushed the rest of the line to the right; such a line is read when there is exactly
/// one way to divide it. Throws std::string, the reason, when there is none or more than one.
std::vector<std::string> Split_Line(const std::string& line, const std::vector<Due_Field>& fields);

/// The value of a text that Split_Line gave back for a field of this kind; 0 for a name. Throws
/// std::string, the reason, when no number of the machine is that large.
double Value_Of(const std::string& text, Field_Kind kind);

}  // namespace companion
