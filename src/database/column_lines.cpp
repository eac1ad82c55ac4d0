#include "database/column_lines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "core/number_text.h"
#include "core/text_tools.h"

namespace barvon {
namespace {

constexpr int kMostDigits = 15;
constexpr double kMostRounding = 0.05;  // of the number

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }
bool Is_Of_A_Number(char c) { return Is_Digit(c) || c == '.'; }

bool Is_One_Number_Or_Nothing(const std::string& text) {
  const std::string number = Trimmed(text);
  return number.empty() || Read_Number_Start(number).end == number.size();
}

/// The number in as few characters as its digits allow.
std::string Short_Text(double value) {
  std::string text = Plain_Number(value);
  if (text.starts_with("0.")) text.erase(0, 1);
  if (text.starts_with("-0.")) text.erase(1, 1);
  return text;
}

/// The number with an exponent, in as few characters as that takes: "5E-4".
std::string Exponent_Text(double value, int digits) {
  std::array<char, 32> printed{};
  std::snprintf(printed.data(), printed.size(), "%.*E", digits - 1, value);
  const std::string_view text = printed.data();
  const std::size_t exponent = text.find('E');
  if (exponent == text.npos) return std::string(text);
  std::string mantissa(text.substr(0, exponent));
  if (mantissa.find('.') != mantissa.npos) {
    mantissa.erase(mantissa.find_last_not_of('0') + 1);
    if (mantissa.ends_with('.')) mantissa.pop_back();
  }
  return mantissa + "E" + Plain_Number(Lenient_Number(text.substr(exponent + 1)));
}

/// The closest of the texts that fit; nothing when it is not close enough.
std::optional<std::string> Fitting_Text(double value, std::size_t width) {
  std::optional<std::string> closest;
  double off = kMostRounding * std::abs(value);
  const auto take = [&](const std::string& text) {
    const double difference = std::abs(Lenient_Number(text) - value);
    if (text.size() > width || difference > off || (closest && difference == off)) return;
    closest = text;
    off = difference;
  };
  for (int digits = kMostDigits; digits > 0; --digits) {
    std::array<char, 32> shortened{};
    std::snprintf(shortened.data(), shortened.size(), "%.*g", digits, value);
    take(Short_Text(Lenient_Number(shortened.data())));
    take(Exponent_Text(value, digits));
  }
  return closest;
}

/// The numbers that a line begins with, and what is behind them.
struct Split_Line {
  std::vector<double> numbers;
  std::string_view rest;
};

Split_Line Split(const std::string& line, std::size_t most) {
  Split_Line split{{}, line};
  while (split.numbers.size() < most) {
    const std::size_t from = split.rest.find_first_not_of(" \t");
    if (from == split.rest.npos) break;
    const std::string_view rest = split.rest.substr(from);
    const std::string_view word = rest.substr(0, rest.find_first_of(" \t"));
    const Number_Start number = Read_Number_Start(word);
    if (number.end != word.size()) break;
    split.numbers.push_back(number.value);
    split.rest = rest.substr(word.size());
  }
  return split;
}

std::string Columns_Text(const Line_Columns& field) {
  return field.first == field.last
             ? "column " + std::to_string(field.first)
             : "columns " + std::to_string(field.first) + " to " + std::to_string(field.last);
}

/// A number that begins before its columns, where no other columns end.
bool Begins_Before(const std::string& line, const Line_Columns& field,
                   std::span<const Line_Columns> columns) {
  if (field.first == 1) return false;
  const std::size_t before = field.first - 1;
  if (std::ranges::any_of(columns, [&](const auto& other) { return other.last == before; })) {
    return false;
  }
  const std::string start = Text_In(line, {before, field.first});
  return start.size() == 2 && (Is_Of_A_Number(start[0]) || start[0] == '-' || start[0] == '+') &&
         Is_Of_A_Number(start[1]);
}

/// Whether these characters, from the last of some columns on, are one number.
bool Goes_On(const std::string& end) {
  if (end.size() < 2 || !Is_Of_A_Number(end[0])) return false;
  if (Is_Of_A_Number(end[1]) || end[1] == ',') return true;
  constexpr std::string_view kExponents = "EeDd";
  return kExponents.find(end[1]) != kExponents.npos && end.size() > 2 &&
         (Is_Digit(end[2]) || end[2] == '+' || end[2] == '-');
}

/// A number that is cut in two by columns that touch: its point stands in the first, and what is
/// left of it does not fill the second as a number of its own would.
bool Is_Cut(const std::string& line, const Line_Columns& field, const Line_Columns& next) {
  if (next.first != field.last + 1) return false;
  const std::string start = Text_In(line, field), rest = Text_In(line, next);
  if (start.empty() || rest.empty() || !Is_Of_A_Number(start.back()) || !Is_Digit(rest[0])) {
    return false;
  }
  return start.find('.') != start.npos && rest.find('.') == rest.npos &&
         Trimmed(rest).size() < next.last - next.first + 1;
}

/// Whether words, and no further number, stand behind a number in its columns.
bool Only_Words_Follow(const std::string& text, std::size_t number_end) {
  return number_end > 0 && text[number_end] == ' ' &&
         Leading_Numbers(text.substr(number_end), 1).empty();
}

std::string Should_Hold(const Line_Columns& field, const std::string& text) {
  return Columns_Text(field) + " should hold a number, but " +
         (text.empty() ? "nothing" : "\"" + text + "\"") + " stands there";
}

}  // namespace

std::vector<double> Leading_Numbers(const std::string& line, std::size_t most) {
  return Split(line, most).numbers;
}

bool Is_In_Columns(const std::string& line, std::span<const Line_Columns> columns) {
  const std::vector<double> told = Leading_Numbers(line, columns.size());
  if (told.size() < columns.size()) {
    return !Runs_Out_Of_Columns(line, columns) &&
           std::ranges::all_of(columns, [&](const Line_Columns& field) {
             return Is_One_Number_Or_Nothing(Text_In(line, field));
           });
  }
  return std::ranges::equal(told, columns, [&](double number, const Line_Columns& field) {
    return number == Number_In(line, field);
  });
}

bool Runs_Out_Of_Columns(const std::string& line, std::span<const Line_Columns> columns) {
  return std::ranges::any_of(columns, [&](const Line_Columns& field) {
    const std::size_t behind = field.last + 1;
    const bool other_begins = std::ranges::any_of(
        columns, [behind](const Line_Columns& other) { return other.first == behind; });
    return !other_begins && Goes_On(Text_In(line, {field.last, behind + 1}));
  });
}

std::string Printed(std::span<const double> numbers) {
  std::string line;
  for (const double number : numbers) {
    const std::string text = Plain_Number(number);
    line += (text.starts_with('-') ? "" : " ") + text + " ";
  }
  return line;
}

bool Is_Printed(const std::string& line, std::size_t count) {
  const std::vector<double> numbers = Leading_Numbers(line, count);
  return numbers.size() == count && Trimmed_Right(line) == Trimmed_Right(Printed(numbers));
}

std::optional<Columned_Line> Into_Columns(const std::string& line,
                                          std::span<const Line_Columns> columns) {
  const auto [numbers, rest] = Split(line, columns.size());
  if (numbers.size() < columns.size() || !Trimmed(std::string(rest)).empty()) return std::nullopt;
  Columned_Line result;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const std::size_t width = columns[i].last - columns[i].first + 1;
    const auto text = Fitting_Text(numbers[i], width);
    if (!text) return std::nullopt;
    result.rounded = result.rounded || Lenient_Number(*text) != numbers[i];
    result.line += std::string(columns[i].first - 1 - result.line.size(), ' ');
    result.line += Right_Justified(*text, width);
  }
  return result;
}

std::string Column_Fault(const std::string& line, std::span<const Line_Columns> columns) {
  if (columns.empty()) return "";
  if (Trimmed(line).empty()) {
    return columns.size() == 1 ? "a number should stand here, but the line is empty"
                               : "numbers should stand here, but the line is empty";
  }
  if (Runs_Out_Of_Columns(line, columns)) return "a number runs out of its columns";
  for (const Line_Columns& field : columns) {
    const bool is_last = &field == &columns.back();
    if (Begins_Before(line, field, columns)) {
      return "a number begins before " + Columns_Text(field);
    }
    if (!is_last && Is_Cut(line, field, *(&field + 1))) {
      return "a number runs on from " + Columns_Text(field) + " into the next ones";
    }
    const std::string text = Trimmed(Text_In(line, field));
    if (text.empty()) return Should_Hold(field, text);
    const std::size_t end = Read_Number_Start(text).end;
    if (end != text.size() && !(is_last && Only_Words_Follow(text, end))) {
      return Should_Hold(field, text);
    }
  }
  return "";
}

bool Number_Behind(const std::string& line, std::span<const Line_Columns> columns) {
  if (columns.empty()) return false;
  const std::size_t behind = columns.back().last + 1;
  return !Leading_Numbers(Text_In(line, {behind, behind + line.size()}), 1).empty();
}

}  // namespace barvon
