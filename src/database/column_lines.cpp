#include "database/column_lines.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "core/number_text.h"
#include "core/text_tools.h"

namespace barvon {
namespace {

constexpr int kMostDigits = 15;

bool Is_Of_A_Number(char c) { return (c >= '0' && c <= '9') || c == '.'; }

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

/// With as many digits as fit; nothing when even one does not.
std::optional<std::string> Fitting_Text(double value, std::size_t width) {
  for (int digits = kMostDigits; digits > 0; --digits) {
    std::array<char, 32> shortened{};
    std::snprintf(shortened.data(), shortened.size(), "%.*g", digits, value);
    const std::string text = Short_Text(Lenient_Number(shortened.data()));
    if (text.size() <= width) return text;
  }
  return std::nullopt;
}

}  // namespace

std::vector<double> Leading_Numbers(const std::string& line, std::size_t most) {
  std::vector<double> numbers;
  std::string_view rest = line;
  while (numbers.size() < most) {
    const std::size_t from = rest.find_first_not_of(" \t");
    if (from == rest.npos) break;
    rest.remove_prefix(from);
    const std::string_view word = rest.substr(0, rest.find_first_of(" \t"));
    const Number_Start number = Read_Number_Start(word);
    if (number.end != word.size()) break;
    numbers.push_back(number.value);
    rest.remove_prefix(word.size());
  }
  return numbers;
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
    const std::string end = Text_In(line, {field.last, behind});
    return !other_begins && end.size() == 2 && Is_Of_A_Number(end[0]) && Is_Of_A_Number(end[1]);
  });
}

std::optional<Columned_Line> Into_Columns(const std::string& line,
                                          std::span<const Line_Columns> columns) {
  const std::vector<double> numbers = Leading_Numbers(line, columns.size());
  if (numbers.size() < columns.size()) return std::nullopt;
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

}  // namespace barvon
