#pragma once

#include <optional>
#include <string>
#include <vector>

namespace barvon {

/// Beyond this a value is not drawn: pixels could no longer tell it from its neighbours.
inline constexpr double kLargestDrawn = 1e12;

/// The value is a number that a picture can place: finite and not beyond kLargestDrawn.
bool Can_Be_Drawn(double value);

struct Value_Range {
  double low = 0, high = 0;
};

/// The range of the values that can be drawn; nothing when there are none.
std::optional<Value_Range> Range_Of(const std::vector<double>& values);

/// An axis from `low` to `high`, both whole multiples of `step`, which is 1, 2 or 5 times a power
/// of ten. `decimals` tell two neighbouring steps apart.
struct Axis_Scale {
  double low = 0, high = 1, step = 0.2;
  int decimals = 1;
};

/// The scale that holds the range in about five steps. Ranges below `least_span` (above 0) are
/// widened to it around their middle, so that equal values stand in the middle of an axis.
Axis_Scale Scale_Over(Value_Range range, double least_span);

/// How many grid points or steps go to one label when `count` of them share `pixels` and a label
/// needs `label_pixels`: 1, 2, 5, 10, 20, 50, ...
int Label_Stride(int count, double pixels, double label_pixels);

/// The largest of 1, 2, 5 times a power of ten that is not above the value; 0 for values that are
/// not above 0.
double Round_Value_Below(double value);

/// The number with so many decimals, "." as the point and no minus before a zero; "no number" for
/// what is not finite.
std::string Fixed_Text(double value, int decimals);

/// The number in up to six digits: "40", "0.25", "1.5e+09"; "no number" for what is not finite.
std::string Short_Text(double value);

}  // namespace barvon
