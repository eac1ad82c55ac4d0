#include "solver/due_fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <system_error>

namespace companion {
namespace {

constexpr std::size_t kLongestLine = 4096;
constexpr int kMostDigits = 15;
constexpr std::size_t kWidestNumber = 24;  // sign, "0.000", 15 digits, ".0" of a print time

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

std::size_t Skip_Digits(std::string_view text, std::size_t at) {
  while (at < text.size() && Is_Digit(text[at])) ++at;
  return at;
}

bool Is_Integer(std::string_view text) {
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  return !text.empty() && Skip_Digits(text, 0) == text.size() &&
         (text.size() == 1 || text.front() != '0');
}

int Significant_Digits(std::string_view mantissa) {
  int digits = 0;
  for (const char c : mantissa) {
    if (Is_Digit(c) && (digits > 0 || c != '0')) ++digits;
  }
  return digits;
}

}  // namespace

bool Is_Number(std::string_view text) {
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  const std::size_t whole = Skip_Digits(text, 0);
  if (whole == 0 || (whole > 1 && text.front() == '0')) return false;
  std::size_t at = whole;
  if (at < text.size() && text[at] == '.') {
    at = Skip_Digits(text, at + 1);
    if (at == whole + 1 || text[at - 1] == '0') return false;
  }
  std::string_view mantissa = text.substr(0, at);
  if (at == whole) {  // zeros that end a whole number say its size, not its precision
    while (mantissa.size() > 1 && mantissa.back() == '0') mantissa.remove_suffix(1);
  }
  if (Significant_Digits(mantissa) > kMostDigits) return false;
  if (at == text.size()) return true;
  if (text[at] != 'E' || at + 2 > text.size() || (text[at + 1] != '-' && text[at + 1] != '+')) {
    return false;
  }
  const std::size_t exponent = at + 2;
  const std::size_t digits = Skip_Digits(text, exponent) - exponent;
  return exponent + digits == text.size() && (digits == 2 || digits == 3);
}

namespace {

/// The beginning of a number: what is left when a text is cut after its tenth character.
bool Is_Cut_Number(std::string_view text) {
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  const std::size_t whole = Skip_Digits(text, 0);
  if (whole == 0) return false;
  if (whole == text.size()) return true;
  if (text[whole] == '.' && Skip_Digits(text, whole + 1) == text.size()) return true;
  return Is_Number(text);
}

bool Fits(std::string_view text, Field_Kind kind) {
  switch (kind) {
    case Field_Kind::Integer:
      return Is_Integer(text);
    case Field_Kind::Number:
      return Is_Number(text);
    case Field_Kind::Cut_Number:
      return Is_Cut_Number(text);
    case Field_Kind::Print_Time:
      return text.size() > 2 && text.substr(text.size() - 2) == ".0" &&
             Is_Number(text.substr(0, text.size() - 2));
    case Field_Kind::Name:
      break;
  }
  return true;
}

std::string_view Without_Padding(std::string_view column, Field_Kind kind) {
  if (kind == Field_Kind::Name) {
    while (!column.empty() && column.back() == ' ') column.remove_suffix(1);
  } else {
    while (!column.empty() && column.front() == ' ') column.remove_prefix(1);
  }
  return column;
}

/// A column of this width holds the field: padded when it is of the field's own width, without a
/// blank to spare when it is wider.
bool Column_Fits(std::string_view column, const Due_Field& field) {
  if (column.size() > static_cast<std::size_t>(field.width)) {
    if (column.front() == ' ' || column.back() == ' ') return false;
    if (field.kind == Field_Kind::Cut_Number) return false;
    if (field.kind != Field_Kind::Name && column.size() > kWidestNumber) return false;
  }
  return Fits(Without_Padding(column, field.kind), field.kind);
}

/// Finds the ways to divide a line, from its end backwards: ways[f][at] says how many ways there
/// are (2 stands for more than one) to read fields f and following from column `at`.
class Divider {
 public:
  Divider(std::string_view line, const std::vector<Due_Field>& fields)
      : line_(line),
        fields_(fields),
        ways_(fields.size() + 1, std::vector<int>(line.size() + 1, 0)) {
    ways_[fields.size()][line.size()] = 1;
    for (std::size_t f = fields.size(); f-- > 0;) {
      for (std::size_t at = 0; at <= line.size(); ++at) ways_[f][at] = Count(f, at);
    }
  }

  int Ways() const { return ways_[0][0]; }

  std::vector<std::string> Only_Way() const {
    std::vector<std::string> texts;
    std::size_t at = 0;
    for (std::size_t f = 0; f < fields_.size(); ++f) {
      std::size_t width = Least(f);
      while (!Leads_On(f, at, width)) ++width;
      texts.emplace_back(Without_Padding(line_.substr(at, width), fields_[f].kind));
      at += width;
    }
    return texts;
  }

 private:
  std::size_t Least(std::size_t f) const { return static_cast<std::size_t>(fields_[f].width); }

  bool Leads_On(std::size_t f, std::size_t at, std::size_t width) const {
    return ways_[f + 1][at + width] > 0 && Column_Fits(line_.substr(at, width), fields_[f]);
  }

  int Count(std::size_t f, std::size_t at) const {
    int ways = 0;
    std::size_t widest = line_.size() - at;
    if (fields_[f].kind != Field_Kind::Name)
      widest = std::min(widest, std::max(kWidestNumber, Least(f)));
    for (std::size_t width = Least(f); width <= widest && ways < 2; ++width) {
      if (Leads_On(f, at, width)) ways += ways_[f + 1][at + width];
    }
    return std::min(ways, 2);
  }

  std::string_view line_;
  const std::vector<Due_Field>& fields_;
  std::vector<std::vector<int>> ways_;
};

std::string Columns(std::size_t from, std::size_t width) {
  return "columns " + std::to_string(from + 1) + " to " + std::to_string(from + width);
}

/// The first field that its own columns don't hold; empty when all of them do.
std::string First_Fault(std::string_view line, const std::vector<Due_Field>& fields) {
  std::size_t at = 0;
  for (const Due_Field& field : fields) {
    const auto width = static_cast<std::size_t>(field.width);
    const std::string_view column = line.substr(at, width);
    if (!Column_Fits(column, field)) {
      return Columns(at, width) + ": \"" + std::string(column) + "\" is no " +
             (field.kind == Field_Kind::Integer ? "whole number" : "number") + " for " + field.name;
    }
    at += width;
  }
  return {};
}

}  // namespace

Refusal::Refusal(const std::string& file, int line, const std::string& reason)
    : std::runtime_error(file + ", line " + std::to_string(line) + ": " + reason),
      file_(file),
      line_(line),
      reason_(reason) {}

std::vector<std::string> Lines_Of(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t at = 0;
  while (at < bytes.size()) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    std::string line = bytes.substr(at, end - at);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    at = end + 1;
  }
  return lines;
}

std::vector<std::string> Split_Line(const std::string& line, const std::vector<Due_Field>& fields) {
  std::size_t expected = 0;
  for (const Due_Field& field : fields) expected += static_cast<std::size_t>(field.width);
  const std::string counts = std::to_string(line.size()) + " columns where " +
                             std::to_string(expected) + " are expected, for " +
                             fields.front().name +
                             (fields.size() > 1 ? " to " + fields.back().name : "");
  if (line.size() < expected || line.size() > kLongestLine) throw counts;
  const Divider divider(line, fields);
  if (divider.Ways() == 1) return divider.Only_Way();
  if (divider.Ways() > 1) {
    throw "a text is wider than its column, and the line can be read in more than one way (" +
        counts + ")";
  }
  const std::string fault = First_Fault(line, fields);
  throw fault.empty() ? counts : fault;
}

double Value_Of(const std::string& text, Field_Kind kind) {
  if (kind == Field_Kind::Name) return 0;
  const std::size_t size = text.size() - (kind == Field_Kind::Print_Time ? 2 : 0);
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + size, value);
  if (read.ec == std::errc::result_out_of_range) {
    if (text.find("E-") == std::string::npos) throw text + " is larger than any number";
    return 0;
  }
  return value;
}

}  // namespace companion
