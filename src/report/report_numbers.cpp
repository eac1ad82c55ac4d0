#include "report/report_numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/format_pattern.h"
#include "core/number_text.h"

namespace barvon {
namespace {

constexpr std::size_t kMostDecimals = 6;
constexpr std::size_t kLongest = 16;  // characters in a pattern: a point and 15 digits

bool Says(const std::string& text, double value) {
  return Lenient_Number(text) == Lenient_Number(Plain_Number(value));
}

std::string Shown(double value, const std::string& pattern) {
  std::string text = Format_Number(value, pattern);
  if (text.ends_with('.')) text.pop_back();
  if (text.starts_with('.')) text.insert(0, 1, '0');
  if (text.starts_with("-.")) text.insert(1, 1, '0');
  return text;
}

/// Of the default text form; more than there is room for when it has an exponent.
std::size_t Decimals_Of(double value) {
  const std::string text = Plain_Number(value);
  if (!std::isfinite(value) || text.find('E') != std::string::npos) return kMostDecimals + 1;
  const std::size_t point = text.find('.');
  return point == std::string::npos ? 0 : text.size() - point - 1;
}

}  // namespace

std::string Whole_Number_Text(double value, const std::string& pattern) {
  if (pattern.empty() || !std::isfinite(value)) return Plain_Number(value);
  const std::string text = Shown(value, pattern);
  return text.size() <= kLongest && Says(text, value) ? text : Plain_Number(value);
}

std::vector<std::string> Column_Texts(const std::vector<double>& values) {
  std::size_t decimals = 0;
  for (const double value : values) {
    const std::size_t own = Decimals_Of(value);
    if (own <= kMostDecimals) decimals = std::max(decimals, own);
  }
  const std::string pattern = decimals == 0 ? std::string("0") : "0." + std::string(decimals, '0');
  std::vector<std::string> texts;
  texts.reserve(values.size());
  for (const double value : values) texts.push_back(Whole_Number_Text(value, pattern));
  return texts;
}

}  // namespace barvon
