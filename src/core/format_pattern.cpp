#include "core/format_pattern.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "core/number_text.h"

namespace barvon {
namespace {

/// Adds one to a whole number written in digits.
void Add_One(std::string& digits) {
  for (auto at = digits.rbegin(); at != digits.rend(); ++at) {
    if (*at != '9') {
      ++*at;
      return;
    }
    *at = '0';
  }
  digits.insert(digits.begin(), '1');
}

void Group_Thousands(std::string& whole) {
  for (std::size_t at = whole.size(); at > 3;) whole.insert(at -= 3, 1, ',');
}

/// value x 10^places as a whole number, half away from zero on the 15-digit value; no sign.
std::string Scaled_Whole(const Decimal_Digits& decimal, int places) {
  const int length = decimal.exponent + places;  // digits in front of the cut
  if (length < 0) return "0";
  std::string kept =
      decimal.digits.substr(0, std::min(decimal.digits.size(), static_cast<std::size_t>(length)));
  const bool round_up =
      static_cast<std::size_t>(length) < decimal.digits.size() && decimal.digits[length] >= '5';
  kept.append(static_cast<std::size_t>(length) - kept.size(), '0');
  if (kept.empty()) kept = "0";
  if (round_up) Add_One(kept);
  return kept;
}

std::vector<std::string_view> Characters(std::string_view text) {
  std::vector<std::string_view> characters;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t next = at + 1;
    while (next < text.size() && (static_cast<unsigned char>(text[next]) & 0xC0) == 0x80) ++next;
    characters.push_back(text.substr(at, next - at));
    at = next;
  }
  return characters;
}

}  // namespace

std::string Format_Number(double value, std::string_view pattern) {
  if (!std::isfinite(value)) return Plain_Number(value);
  if (pattern.find('@') != std::string_view::npos) {
    return Format_Text(Plain_Number(value), pattern);
  }
  const auto point = pattern.find('.');
  const std::string_view before = pattern.substr(0, point);
  const std::string_view after =
      point == std::string_view::npos ? std::string_view() : pattern.substr(point + 1);
  const auto places = static_cast<std::size_t>(
      std::count_if(after.begin(), after.end(), [](char c) { return c == '#' || c == '0'; }));
  const auto required_before =
      static_cast<std::size_t>(std::count(before.begin(), before.end(), '0'));
  const auto last_required = after.rfind('0');
  const std::size_t required_after =
      last_required == std::string_view::npos ? 0 : last_required + 1;

  const Decimal_Digits decimal = To_Decimal(value);
  std::string whole = Scaled_Whole(decimal, static_cast<int>(places));
  if (whole.size() <= places) whole.insert(0, places + 1 - whole.size(), '0');
  std::string fraction = whole.substr(whole.size() - places);
  whole.erase(whole.size() - places);

  const bool shows_nothing = whole.find_first_not_of('0') == std::string::npos &&
                             fraction.find_first_not_of('0') == std::string::npos;
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  if (whole.size() < required_before) whole.insert(0, required_before - whole.size(), '0');
  if (before.find(',') != std::string_view::npos) Group_Thousands(whole);
  while (fraction.size() > required_after && fraction.back() == '0') fraction.pop_back();

  std::string text = decimal.negative && !shows_nothing ? "-" : "";
  text += whole;
  if (point != std::string_view::npos) text.append(".").append(fraction);
  return text;
}

std::string Format_Text(std::string_view text, std::string_view pattern) {
  const auto positions = static_cast<std::size_t>(std::count(pattern.begin(), pattern.end(), '@'));
  const auto characters = Characters(text);
  std::size_t next = 0;
  std::string result;
  for (; next + positions < characters.size(); ++next) result += characters[next];
  std::size_t blanks = positions - (characters.size() - next);
  for (const char c : pattern) {
    if (c != '@') {
      result += c;
    } else if (blanks > 0) {
      result += ' ';
      --blanks;
    } else {
      result += characters[next++];
    }
  }
  return result;
}

}  // namespace barvon
