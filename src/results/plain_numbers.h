#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace barvon {

// Numbers of files that other programs read: "." is the point whatever the desktop says.

/// The fewest digits that read back as the same number, plain from 0.0001 up to below 1e15 and in
/// exponent form outside: "0.1", "500000", "1e-07". Not for what is not finite.
std::string Shortest_Number(double value);

/// At most so many decimals, without zeros at the end and without a minus before a zero. Not for
/// what is not finite.
std::string Rounded_Number(double value, int decimals);

/// The number nearest to the value that has at most so many digits; what is not finite as it is.
double In_Digits(double value, int digits);

/// `a` less `b` where both were written with so many digits, nine at most: the multiple of the last
/// digit's unit of the larger one that is nearest to it, of two the one farther from 0. What is not
/// finite comes as it does, and so does the other where one is 0.
double Written_Difference(double a, double b, int digits);

/// The number that the whole text is, blanks around it apart; nothing for any other text, and for
/// what is not finite.
std::optional<double> Number_Of(std::string_view text);

}  // namespace barvon
