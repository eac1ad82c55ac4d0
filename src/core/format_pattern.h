#pragma once

#include <string>
#include <string_view>

namespace barvon {

/// A number in a digit pattern such as "####0.0000" or "#.00": '#' is an optional digit, '0' a
/// required one, '.' the point, which is written even when no digit follows it. Digits in front
/// of the point are never cut. The value is rounded half away from zero on its 15-digit decimal
/// form (1.005 in "0.00" is 1.01). A ',' in front of the point groups the digits there by three. A
/// value that shows no digit other than 0 has no sign. In a pattern with '@' the default text form
/// of the number fills the positions, see below.
std::string Format_Number(double value, std::string_view pattern);

/// A text in a pattern of '@': the characters fill the positions from the right, positions left
/// over become blanks, characters left over are in front. Every other character of the pattern
/// is written as it is ("@@@@@@@@.0" of "3600" is "    3600.0").
std::string Format_Text(std::string_view text, std::string_view pattern);

}  // namespace barvon
